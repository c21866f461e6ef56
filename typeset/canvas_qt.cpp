#include "typeset/canvas_qt.h"

#include <QFontDatabase>
#include <QFontInfo>
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

std::string Clave(const EstadoFuente& f) {
  std::string k = f.nombre;
  k += '|';
  k += std::to_string(f.negrita) + std::to_string(f.cursiva) + std::to_string(f.subrayado) +
       std::to_string(f.tachado);
  return k;
}

// A size that Qt and the page can bear: from a tenth of a point to 1000 points.
double TamanoSensato(double puntos) {
  if (!std::isfinite(puntos)) return 12;
  return std::clamp(puntos, 0.1, 1000.0);
}

}  // namespace

// The metrics of one font (at the reference size) and its character widths.
struct CanvasQt::Metricas {
  explicit Metricas(const EstadoFuente& f) : font(Fuente(f)), fm(font) {
    anchos.fill(-1);
    alto = fm.height();
    ascenso = fm.ascent();
    simbolo = EsSymbol(f.nombre) ? 1 : EsMtExtra(f.nombre) ? 2 : 0;
    nombre = f.nombre;
  }
  static QFont Fuente(const EstadoFuente& f) {
    QFont font(Familia(f.nombre));
    font.setPixelSize(static_cast<int>(kRef));
    font.setBold(f.negrita);
    font.setItalic(f.cursiva);
    font.setUnderline(f.subrayado);
    font.setStrikeOut(f.tachado);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
  }
  double Ancho(unsigned char b) {
    double& w = anchos[b];
    if (w < 0) w = fm.horizontalAdvance(Glifo(nombre, b));
    return w;
  }
  QFont font;
  QFontMetricsF fm;
  std::array<double, 256> anchos{};
  double alto = 0, ascenso = 0;
  int simbolo = 0;
  std::string nombre;
};

CanvasQt::CanvasQt(QPainter* painter, TipoCanvas tipo, double anchoPx, double altoPx)
    : painter_(painter), tipo_(tipo), anchoPx_(anchoPx), altoPx_(altoPx) {
  RegistraFuentes();
}

CanvasQt::~CanvasQt() = default;

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

CanvasQt::Metricas& CanvasQt::Actual() {
  if (actual_ && fuente.nombre == clave_.nombre && fuente.negrita == clave_.negrita &&
      fuente.cursiva == clave_.cursiva && fuente.subrayado == clave_.subrayado &&
      fuente.tachado == clave_.tachado)
    return *actual_;
  const std::string k = Clave(fuente);
  auto it = cache_.find(k);
  if (it == cache_.end()) it = cache_.emplace(k, std::make_unique<Metricas>(fuente)).first;
  clave_ = fuente;
  actual_ = it->second.get();
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
    QString s;
    s.reserve(static_cast<qsizetype>(text.size()));
    for (char ch : text) s.append(Glifo(m.nombre, static_cast<unsigned char>(ch)));
    painter_->save();
    painter_->translate(CurrentX, CurrentY);
    painter_->scale(escala, escala);
    painter_->setFont(m.font);
    painter_->setPen(Color(ForeColor));
    painter_->drawText(QPointF(0, m.ascenso), s);
    painter_->restore();
  }
  CurrentX += ancho * escala;
}

void CanvasQt::Line(double x1, double y1, double x2, double y2, int32_t color, ModoLinea modo) {
  if (!painter_) return;
  painter_->save();
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
  painter_->restore();
}

void CanvasQt::Circle(double x, double y, double radius, int32_t color, double start, double end) {
  if (!painter_) return;
  painter_->save();
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
  painter_->restore();
}

void CanvasQt::PaintPicture(const std::string& path, double x, double y, double width,
                            double height) {
  if (!painter_) return;
  const QImage image(QString::fromStdString(path));
  if (image.isNull()) return;
  painter_->drawImage(QRectF(x, y, width, height), image);
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
