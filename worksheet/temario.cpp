#include "worksheet/temario.h"

#include <algorithm>
#include <tuple>

#include <QDir>
#include <QFileInfo>

#include "modules/modulos.h"
#include "problems/generic.h"
#include "problems/idioma.h"
#include "problems/silabo_sed.h"
#include "problems/texto.h"

namespace ss {
namespace {

// Columns of a catalogue record (from 1): ordinals 1-6, subject 7-71, topic
// 72-151, subtopic 152-231, level 232, generator 233-235, most items 236-238,
// description 239-398.
std::string_view Registro(const std::string& entrada) {
  const std::size_t dosPuntos = entrada.find(':');
  return dosPuntos == std::string::npos ? std::string_view()
                                        : std::string_view(entrada).substr(dosPuntos + 1);
}

std::string AsignaturaDe(std::string_view registro) { return std::string(Trim(Mid(registro, 7, 65))); }

// The three-digit key that places a subject in the list when no syllabus is loaded.
std::string ClaveSinSilabo(const std::string& nombre) {
  const std::string dos = UCase(Mid(nombre, 1, 2));
  if (dos == "MA") return "001";
  if (dos == "F\xCD" || dos == "PH") return "002";
  if (dos == "QU" || dos == "CH") return "003";
  return "000";
}

}  // namespace

std::vector<std::string> AsignaturasDelCatalogo(const std::vector<std::string>& catalogo,
                                                const std::vector<std::string>* silabo) {
  std::vector<std::string> vistas;  // upper-cased
  std::vector<std::pair<std::string, std::string>> lista;  // key and name
  for (const std::string& entrada : catalogo) {
    const std::string nombre = AsignaturaDe(Registro(entrada));
    const std::string clave = UCase(nombre);
    if (nombre.empty() || std::find(vistas.begin(), vistas.end(), clave) != vistas.end()) continue;
    vistas.push_back(clave);
    std::string orden;
    if (silabo) {
      std::size_t j = 0;
      while (j < silabo->size() && UCase(Trim((*silabo)[j])) != clave) ++j;
      if (j == silabo->size()) continue;
      orden = std::to_string(101 + j);
    } else {
      orden = ClaveSinSilabo(nombre);
    }
    lista.emplace_back(orden + " " + clave, nombre);
  }
  std::stable_sort(lista.begin(), lista.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> nombres;
  for (auto& [clave, nombre] : lista) nombres.push_back(std::move(nombre));
  return nombres;
}

void OrdenaPorAsignaturas(std::vector<std::string>& catalogo,
                          const std::vector<std::string>& asignaturas) {
  std::vector<std::string> orden;
  for (const std::string& a : asignaturas) orden.push_back(UCase(Trim(a)));
  auto clave = [&](const std::string& entrada) {
    const std::string_view rec = Registro(entrada);
    const std::string asig = UCase(AsignaturaDe(rec));
    const auto pos = std::find(orden.begin(), orden.end(), asig) - orden.begin();
    return std::tuple(pos, Mid(rec, 1, 3), Mid(rec, 4, 3));
  };
  std::stable_sort(catalogo.begin(), catalogo.end(),
                   [&](const std::string& a, const std::string& b) { return clave(a) < clave(b); });
  std::vector<std::string> vistas, unico;
  for (std::string& e : catalogo) {
    const std::string_view rec = Registro(e);
    if (Mid(rec, 232, 1) == "5") {
      const std::string k = UCase(rec.substr(0, std::min<std::size_t>(rec.size(), 231)));
      if (std::find(vistas.begin(), vistas.end(), k) != vistas.end()) continue;
      vistas.push_back(k);
    }
    unico.push_back(std::move(e));
  }
  catalogo = std::move(unico);
}

Arbol ArbolDeAsignatura(const std::vector<std::string>& catalogo, const std::string& asignatura,
                        const TiposItem& tipos, std::string* nombre) {
  const std::string buscada = UCase(Trim(asignatura));
  std::vector<std::string> lista;  // the record, blank-padded, with its module's name behind it
  for (const std::string& entrada : catalogo) {
    const std::size_t dosPuntos = entrada.find(':');
    if (dosPuntos == std::string::npos) continue;
    std::string registro = entrada.substr(dosPuntos + 1);
    if (UCase(AsignaturaDe(registro)) != buscada) continue;
    registro.resize(kLargoRegistro, ' ');
    lista.push_back(registro + entrada.substr(0, dosPuntos));
  }
  std::sort(lista.begin(), lista.end());

  Arbol arbol;
  if (lista.empty()) return arbol;
  ArbolItem raiz;
  raiz.Nivel = 0;
  raiz.EsRama = raiz.Abierto = true;
  raiz.Tipo = 6;
  raiz.Nombre = AsignaturaDe(lista.front());
  if (nombre) *nombre = raiz.Nombre;
  arbol.Agrega(raiz);
  for (std::size_t k = 0; k < lista.size(); ++k) {
    const std::string& e = lista[k];
    const char nivel = e[231];
    if (nivel == '5') {
      const std::string tema(Trim(Mid(e, 72, 80)));
      const ArbolItem& arriba = arbol.filas.back();
      if (arriba.Tipo == 5 && !(UCase(arriba.Nombre) < UCase(tema))) continue;
      ArbolItem fila;
      fila.Tipo = 5;
      fila.Nivel = 1;
      fila.EsRama = true;
      fila.Nombre = tema;
      arbol.Agrega(fila);
    } else if (nivel >= '1' && nivel <= '4' && tipos[nivel - '1']) {
      ArbolItem fila;
      fila.Tipo = static_cast<int16_t>(nivel - '0');
      fila.Nivel = 2;
      std::string nombreFila(Trim(Mid(e, 152, 80)));
      if (nombreFila.starts_with('@')) nombreFila.erase(0, 1);
      fila.Nombre = nombreFila;
      fila.Ayuda = std::string(Trim(Mid(e, 239, 160)));
      fila.Indice = static_cast<int16_t>(k + 1);
      fila.Rutina = static_cast<int16_t>(Val(Mid(e, 233, 3)));
      fila.MaxCantidad2 = static_cast<int16_t>(Val(Mid(e, 236, 3)));
      fila.ModuloFijo = e.substr(kLargoRegistro);
      fila.ModuloFijo.resize(80, ' ');
      arbol.Agrega(fila);
    }
  }
  return arbol;
}

// ---- the subjects of the chosen system -------------------------------------------

Temario::Temario(QString datos, Mensajes& mensajes, Aviso aviso)
    : datos_(std::move(datos)), mensajes_(mensajes), aviso_(std::move(aviso)) {}

Temario::~Temario() = default;

void Temario::Carga(const QString& sysedu) {
  std::unique_ptr<SilaboSed> silabo;
  if (!sysedu.isEmpty()) {
    silabo = std::make_unique<SilaboSed>(datos_.toStdString(), sysedu.toStdString(), aviso_);
    silabo->Carga();
  }
  sysedu_ = sysedu;
  silabo_ = std::move(silabo);
  catalogo_.clear();
  listado_ = false;
}

const std::vector<std::string>& Temario::Catalogo() {
  if (!listado_) {
    // A context of its own: listing draws no numbers from the worksheet's source.
    GenContext g(&mensajes_);
    g.silabo = silabo_.get();
    catalogo_.clear();
    ListaProblemas(g, catalogo_);
    if (silabo_) {
      std::vector<std::string> nombres;
      for (const Asignatura& a : silabo_->Asignaturas()) nombres.push_back(a.nombre);
      OrdenaPorAsignaturas(catalogo_, nombres);
    }
    listado_ = true;
  }
  return catalogo_;
}

std::vector<std::string> Temario::Asignaturas() {
  const std::vector<std::string>& catalogo = Catalogo();
  if (!silabo_) return AsignaturasDelCatalogo(catalogo, nullptr);
  std::vector<std::string> nombres;
  for (const Asignatura& a : silabo_->Asignaturas()) nombres.push_back(a.nombre);
  return AsignaturasDelCatalogo(catalogo, &nombres);
}

QString Temario::Imagen(const std::string& asignatura) const {
  const QDir img(QDir(datos_).filePath(QStringLiteral("img")));
  auto existe = [&img](const QString& nombre) {
    return !nombre.isEmpty() && QFileInfo(img.filePath(nombre)).isFile();
  };
  if (silabo_) {
    for (const Asignatura& a : silabo_->Asignaturas()) {
      if (UCase(Trim(a.nombre)) != UCase(Trim(asignatura))) continue;
      QString nombre = QString::fromUtf8(Cp1252ToUtf8(std::string(Trim(a.img))).c_str());
      if (!nombre.isEmpty() && QFileInfo(nombre).suffix().isEmpty()) {
        for (const char* ext : {".png", ".jpg"})
          if (existe(nombre + QLatin1String(ext))) return img.filePath(nombre + QLatin1String(ext));
      }
      if (existe(nombre)) return img.filePath(nombre);
      break;
    }
  } else if (ClaveSinSilabo(asignatura) == "003") {
    return img.filePath(QStringLiteral("subject_chemistry.png"));
  }
  return img.filePath(QStringLiteral("nada.png"));
}

}  // namespace ss
