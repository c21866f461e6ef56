#include "typeset/canvas_qt.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "problems/texto.h"

namespace ss {
namespace {

// Text is measured and drawn at this pixel size and scaled: metrics are then
// free of hinting and exactly proportional to the size.
constexpr double kRef = 1000;

constexpr double kTwipsPorPunto = 20;

bool EsSymbol(const std::string& n) { return UCase(n) == "SYMBOL"; }
bool EsMtExtra(const std::string& n) { return UCase(n) == "MT EXTRA"; }

char16_t SymbolUnicode(unsigned char b) {
  // Greek letters by their Latin keys, as the symbol font places them.
  static constexpr char16_t kMinus[26] = {
      u'α', u'β', u'χ', u'δ', u'ε', u'φ', u'γ', u'η', u'ι', u'ϕ', u'κ', u'λ', u'μ',
      u'ν', u'ο', u'π', u'θ', u'ρ', u'σ', u'τ', u'υ', u'ϖ', u'ω', u'ξ', u'ψ', u'ζ'};
  static constexpr char16_t kMayus[26] = {
      u'Α', u'Β', u'Χ', u'Δ', u'Ε', u'Φ', u'Γ', u'Η', u'Ι', u'ϑ', u'Κ', u'Λ', u'Μ',
      u'Ν', u'Ο', u'Π', u'Θ', u'Ρ', u'Σ', u'Τ', u'Υ', u'ς', u'Ω', u'Ξ', u'Ψ', u'Ζ'};
  if (b >= 'a' && b <= 'z') return kMinus[b - 'a'];
  if (b >= 'A' && b <= 'Z') return kMayus[b - 'A'];
  switch (b) {
    case 34: return u'∀';
    case '$': return u'∃';
    case '@': return u'≅';
    case '^': return u'⊥';
    case 161: return u'ϒ';
    case 163: return u'≤';
    case 165: return u'∞';
    case 167: return u'♣';
    case 168: return u'♦';
    case 169: return u'♥';
    case 170: return u'♠';
    case 171: return u'↔';
    case 172: return u'←';
    case 173: return u'↑';
    case 174: return u'→';
    case 175: return u'↓';
    case 177: return u'±';
    case 179: return u'≥';
    case 180: return u'×';
    case 182: return u'∂';
    case 184: return u'÷';
    case 185: return u'≠';
    case 187: return u'≈';
    case 194: return u'ℜ';
    case 198: return u'∅';
    case 206: return u'∈';
    case 207: return u'∉';
    case 209: return u'∇';
    case 217: return u'∧';
    case 218: return u'∨';
    case 219: return u'⇔';
    case 220: return u'⇐';
    case 221: return u'⇑';
    case 222: return u'⇒';
    case 223: return u'⇓';
    case 242: return u'∫';
    default: return static_cast<char16_t>(b);
  }
}

char16_t MtExtraUnicode(unsigned char b) {
  switch (b) {
    case 'U': return u'∪';
    case 'I': return u'∩';
    case 'm': return u'∓';
    case 'h': return u'ℏ';
    case 'o': return u'∘';
    default: return static_cast<char16_t>(b);
  }
}

QColor Color(int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

// A size that Qt and the page can bear: from a tenth of a point to 1000 points.
double TamanoSensato(double puntos) {
  if (!std::isfinite(puntos)) return 12;
  return std::clamp(puntos, 0.1, 1000.0);
}

// The signs the engine sets lower or higher than the text around them.
bool EsOperador(std::string_view text) {
  return text.size() == 1 && (text[0] == '+' || text[0] == '=' || text[0] == '\x96');
}

// Faces of the glyphs waiting at once; more are rare and are drawn first.
constexpr std::size_t kMaxTramos = 8;

constexpr quint32 kSinBuscar = 0xFFFFFFFF;

}  // namespace

// The metrics of one face (at the reference size), its character widths and
// its glyphs.
struct CanvasQt::Metricas {
  explicit Metricas(const EstadoFuente& f) : font(Fuente(f)), fm(font) {
    anchos.fill(-1);
    glifos.fill(kSinBuscar);
    alto = fm.height();
    ascenso = fm.ascent();
    subPos = fm.underlinePos();
    tachPos = fm.strikeOutPos();
    grosor = fm.lineWidth();
    nombre = f.nombre;
    negrita = f.negrita;
    cursiva = f.cursiva;
  }
  // Underline and strike-out are rules the canvas draws: they make no face of their own.
  bool Es(const EstadoFuente& f) const {
    return f.negrita == negrita && f.cursiva == cursiva && f.nombre == nombre;
  }
  static QFont Fuente(const EstadoFuente& f) {
    QFont font(Familia(f.nombre));
    font.setPixelSize(static_cast<int>(kRef));
    font.setBold(f.negrita);
    font.setItalic(f.cursiva);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
  }
  double Ancho(unsigned char b) {
    double& w = anchos[b];
    if (w < 0) w = fm.horizontalAdvance(Glifo(nombre, b));
    return w;
  }
  // The glyph of a byte in this face; 0 when the face has none.
  quint32 Indice(unsigned char b) {
    quint32& g = glifos[b];
    if (g == kSinBuscar) {
      if (!raw.isValid()) raw = QRawFont::fromFont(font);
      const QList<quint32> gs = raw.glyphIndexesForString(QString(Glifo(nombre, b)));
      g = gs.size() == 1 ? gs.front() : 0;
    }
    return g;
  }
  QFont font;
  QFontMetricsF fm;
  QRawFont raw;
  std::array<double, 256> anchos{};
  std::array<quint32, 256> glifos{};
  double alto = 0, ascenso = 0, subPos = 0, tachPos = 0, grosor = 0;
  std::string nombre;
  bool negrita = false, cursiva = false;
};

CanvasQt::CanvasQt(QPainter* painter, TipoCanvas tipo, double anchoPx, double altoPx)
    : painter_(painter), tipo_(tipo), anchoPx_(anchoPx), altoPx_(altoPx) {
  RegistraFuentes();
  if (painter_ && painter_->isActive()) base_ = painter_->worldTransform();
}

CanvasQt::~CanvasQt() { Flush(); }

QString CanvasQt::Familia(const std::string& nombre) {
  const std::string n = UCase(Trim(nombre));
  if (n == "TIMES NEW ROMAN" || n.empty()) return QStringLiteral("Liberation Serif");
  if (n == "ARIAL") return QStringLiteral("Liberation Sans");
  if (n == "COURIER NEW") return QStringLiteral("Liberation Mono");
  if (n == "SYMBOL" || n == "MT EXTRA") return QStringLiteral("DejaVu Serif");
  return QString::fromStdString(Cp1252ToUtf8(nombre));
}

QChar CanvasQt::Glifo(const std::string& nombre, unsigned char byte) {
  if (EsSymbol(nombre)) return QChar(SymbolUnicode(byte));
  if (EsMtExtra(nombre)) return QChar(MtExtraUnicode(byte));
  const std::string utf8 = Cp1252ToUtf8(std::string(1, static_cast<char>(byte)));
  const QString s = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  return s.isEmpty() ? QChar(u'?') : s.front();
}

// Faces are measured once a thread and shared by all its canvases, so that
// a page drawn on a new canvas finds its widths and glyphs ready. They are
// never freed: no font may outlive the application object at exit.
CanvasQt::Metricas& CanvasQt::Cara(const EstadoFuente& f) {
  thread_local auto* caras = new std::vector<std::unique_ptr<Metricas>>();
  for (const auto& m : *caras)
    if (m->Es(f)) return *m;
  caras->push_back(std::make_unique<Metricas>(f));
  return *caras->back();
}

CanvasQt::Metricas& CanvasQt::Actual() {
  if (!actual_ || !actual_->Es(fuente)) actual_ = &Cara(fuente);
  return *actual_;
}

double CanvasQt::TextWidth(std::string_view text) {
  Metricas& m = Actual();
  double w = 0;
  for (char ch : text) w += m.Ancho(static_cast<unsigned char>(ch));
  return w * TamanoSensato(fuente.tamano) * kTwipsPorPunto / kRef;
}

double CanvasQt::TextHeight(std::string_view) {
  return Actual().alto * TamanoSensato(fuente.tamano) * kTwipsPorPunto / kRef;
}

double CanvasQt::FontAscent() {
  return Actual().ascenso * TamanoSensato(fuente.tamano) * kTwipsPorPunto / kRef / TwipsPerPixelY();
}

void CanvasQt::Print(std::string_view text) {
  Metricas& m = Actual();
  const double escala = TamanoSensato(fuente.tamano) * kTwipsPorPunto / kRef;
  double ancho = 0;
  for (char ch : text) ancho += m.Ancho(static_cast<unsigned char>(ch));
  if (painter_ && !text.empty()) {
    Transformacion();
    Sigue(subrayado_, fuente.subrayado, true, m, escala, ancho, text);
    Sigue(tachado_, fuente.tachado, false, m, escala, ancho, text);
    Junta(m, escala, text);
  }
  CurrentX += ancho * escala;
}

// What was gathered under another transform is drawn under that one.
void CanvasQt::Transformacion() {
  const QTransform t = painter_->worldTransform();
  if (t == base_) return;
  Flush();
  base_ = t;
}

void CanvasQt::Junta(Metricas& m, double escala, std::string_view text) {
  Tramo* t = nullptr;
  for (std::size_t i = usados_; i-- > 0;)
    if (tramos_[i].m == &m && tramos_[i].escala == escala && tramos_[i].color == ForeColor) {
      t = &tramos_[i];
      break;
    }
  if (!t) {
    if (usados_ == kMaxTramos) VuelcaTramos();
    if (usados_ == tramos_.size()) tramos_.emplace_back();
    t = &tramos_[usados_++];
    t->m = &m;
    t->escala = escala;
    t->color = ForeColor;
  }
  double x = CurrentX;
  const double y = CurrentY / escala + m.ascenso;
  for (char ch : text) {
    const auto b = static_cast<unsigned char>(ch);
    if (const quint32 g = m.Indice(b)) {
      t->glifos.push_back(g);
      t->posiciones.emplace_back(x / escala, y);
    } else {
      DibujaSuelto(m, escala, x, b);
    }
    x += m.Ancho(b) * escala;
  }
}

// A character the face has no glyph for: the painter finds one in another font.
void CanvasQt::DibujaSuelto(Metricas& m, double escala, double x, unsigned char byte) {
  if (!painter_->isActive()) return;
  painter_->save();
  painter_->translate(x, CurrentY);
  painter_->scale(escala, escala);
  painter_->setFont(m.font);
  painter_->setPen(Color(ForeColor));
  painter_->drawText(QPointF(0, m.ascenso), QString(Glifo(m.nombre, byte)));
  painter_->restore();
}

void CanvasQt::VuelcaTramos() {
  if (usados_ > 0 && painter_->isActive()) {
    const QTransform actual = painter_->worldTransform();
    QGlyphRun run;
    for (std::size_t i = 0; i < usados_; ++i) {
      const Tramo& t = tramos_[i];
      if (t.glifos.empty()) continue;
      painter_->setWorldTransform(QTransform::fromScale(t.escala, t.escala) * base_);
      const QPen pen(Color(t.color));
      if (painter_->pen() != pen) painter_->setPen(pen);
      run.setRawFont(t.m->raw);
      run.setRawData(t.glifos.data(), t.posiciones.data(), static_cast<int>(t.glifos.size()));
      painter_->drawGlyphRun(QPointF(), run);
    }
    painter_->setWorldTransform(actual);
  }
  for (std::size_t i = 0; i < usados_; ++i) {
    tramos_[i].glifos.clear();
    tramos_[i].posiciones.clear();
  }
  usados_ = 0;
}

// Carries the rule on under this text, or ends it. The rule keeps one height:
// that of the largest text in it, and of a letter rather than a shifted sign.
void CanvasQt::Sigue(Regla& r, bool activa, bool subrayado, Metricas& m, double escala,
                     double ancho, std::string_view text) {
  if (!activa) {
    Cierra(r);
    return;
  }
  const double base = CurrentY + m.ascenso * escala;
  if (r.activa && (r.color != ForeColor || CurrentX < r.x2 - 1 ||
                   std::fabs(base - r.base) > r.tolerancia))
    Cierra(r);
  const bool operador = EsOperador(text);
  const bool altura = !r.activa || escala > r.escala * 1.001 ||
                      (escala > r.escala * 0.999 && r.deOperador && !operador);
  if (!r.activa) {
    r.activa = true;
    r.x1 = CurrentX;
    r.color = ForeColor;
  }
  r.x2 = CurrentX + ancho * escala;
  if (altura) {
    r.base = base;
    r.escala = escala;
    r.deOperador = operador;
    r.tolerancia = m.alto * escala / 2;
    r.y = base + (subrayado ? m.subPos : -m.tachPos) * escala;
    r.grosor = m.grosor * escala;
  }
}

void CanvasQt::Cierra(Regla& r) {
  if (!r.activa) return;
  r.activa = false;
  if (!painter_->isActive() || r.x2 <= r.x1) return;
  const QTransform actual = painter_->worldTransform();
  if (actual != base_) painter_->setWorldTransform(base_);
  // Never thinner than a device pixel, or the screen would lose it.
  const double pixel = 1 / std::sqrt(std::fabs(base_.determinant()));
  const double g = std::max(r.grosor, std::isfinite(pixel) ? pixel : 0.0);
  painter_->fillRect(QRectF(r.x1, r.y - g / 2, r.x2 - r.x1, g), Color(r.color));
  if (actual != base_) painter_->setWorldTransform(actual);
}

void CanvasQt::Flush() {
  if (!painter_) return;
  VuelcaTramos();
  Cierra(subrayado_);
  Cierra(tachado_);
}

void CanvasQt::Line(double x1, double y1, double x2, double y2, int32_t color, ModoLinea modo) {
  if (!painter_) return;
  Flush();
  QPen pen(Color(color));
  pen.setWidthF(std::max(1, DrawWidth) * TwipsPerPixelX());
  pen.setCapStyle(Qt::FlatCap);
  painter_->setPen(pen);
  const QRectF r = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
  switch (modo) {
    case ModoLinea::Linea: painter_->drawLine(QPointF(x1, y1), QPointF(x2, y2)); break;
    case ModoLinea::Caja:
      painter_->setBrush(Qt::NoBrush);
      painter_->drawRect(r);
      break;
    case ModoLinea::CajaLlena: painter_->fillRect(r, Color(color)); break;
  }
}

void CanvasQt::Circle(double x, double y, double radius, int32_t color, double start, double end) {
  if (!painter_) return;
  Flush();
  QPen pen(Color(color));
  pen.setWidthF(std::max(1, DrawWidth) * TwipsPerPixelX());
  painter_->setPen(pen);
  painter_->setBrush(FillStyle == 0 ? QBrush(Color(color)) : QBrush(Qt::NoBrush));
  const QRectF r(x - radius, y - radius, 2 * radius, 2 * radius);
  if (start == end) {
    painter_->drawEllipse(r);
  } else {
    // Angles run counter-clockwise from three o'clock, as Qt's do, in 16ths of a degree.
    const double a = std::fabs(start), b = std::fabs(end);
    double span = b - a;
    if (span < 0) span += 2 * std::numbers::pi;
    painter_->drawArc(r, static_cast<int>(std::lround(a * 180 / std::numbers::pi * 16)),
                      static_cast<int>(std::lround(span * 180 / std::numbers::pi * 16)));
  }
}

void CanvasQt::PaintPicture(const std::string& path, double x, double y, double width,
                            double height) {
  if (!painter_) return;
  Flush();
  const QImage image(QString::fromStdString(path));
  if (image.isNull()) return;
  // Always upright: a box given with a negative side is the same box.
  // Scaled smoothly, and kept lossless in a PDF: line drawings blur as JPEG.
  painter_->save();
  painter_->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
  painter_->drawImage(QRectF(x, y, width, height).normalized(), image);
  painter_->restore();
}

bool RegistraFuentes() {
  static const bool ok = [] {
    QFont::insertSubstitution(QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"));
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"));
    bool all = true;
    for (const char* f : {"Liberation Serif", "Liberation Sans", "Liberation Mono"}) {
      QFont font(QString::fromLatin1(f));
      all = all && QFontInfo(font).family() == QString::fromLatin1(f);
    }
    return all;
  }();
  return ok;
}

}  // namespace ss
