#include "problems/silabo_sed.h"

#include <fstream>
#include <iterator>

#include "problems/generic.h"
#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {
namespace {

std::optional<std::string> LeeTexto(const fs::path& ruta) {
  std::ifstream in(ruta, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
  return Utf8ToCp1252(bytes);
}

// The text between <TAG> and </TAG>, when both stand in order.
std::optional<std::string> Etiqueta(std::string_view texto, std::string_view tag) {
  const std::string abre = "<" + std::string(tag) + ">";
  const std::string cierra = "</" + std::string(tag) + ">";
  const std::size_t a = texto.find(abre);
  const std::size_t c = texto.find(cierra);
  if (a == std::string_view::npos || c == std::string_view::npos || c < a + abre.size())
    return std::nullopt;
  return std::string(texto.substr(a + abre.size(), c - a - abre.size()));
}

// An ordinal of 1 to 3 digits, kept as three: "7" is "007".
std::optional<std::string> Ordinal(std::string_view texto) {
  const std::string_view t = Trim(texto);
  if (t.empty() || t.size() > 3) return std::nullopt;
  for (char c : t)
    if (c < '0' || c > '9') return std::nullopt;
  return std::string(3 - t.size(), '0') + std::string(t);
}

// The texts of one error: opening, the key in brackets, the closing words.
std::string Error(std::string_view abre, std::string_view clave, std::string_view cierra) {
  return std::string(abre) + " [" + std::string(clave) + "]" + std::string(cierra);
}

}  // namespace

std::string LeerNomSys(const fs::path& ruta) {
  if (ruta.empty()) return {};
  const auto texto = LeeTexto(ruta);
  if (!texto) return {};
  return Etiqueta(*texto, "NOMSYS").value_or("");
}

std::vector<Asignatura> LoadAsignaturas(std::string_view texto) {
  std::vector<Asignatura> asignaturas;
  std::string resto(texto);
  for (;;) {
    const std::size_t a = resto.find("<ASIG>");
    const std::size_t c = resto.find("</ASIG>");
    if (a == std::string::npos || c == std::string::npos || a > c) break;
    const std::string bloque = resto.substr(a + 6, c - a - 6);
    resto.erase(0, c + 7);
    Asignatura s;
    const auto nom = Etiqueta(bloque, "NOM");
    const auto modg = Etiqueta(bloque, "MODG");
    const auto img = Etiqueta(bloque, "IMG");
    const auto modb = Etiqueta(bloque, "MODB");
    if (!nom || !modg || !img || !modb) return {};  // a damaged file acts as an empty one
    s.nombre = *nom;
    s.modg = std::string(Trim(*modg));
    s.img = std::string(Trim(*img));
    s.modb = UCase(*modb);
    asignaturas.push_back(std::move(s));
    if (asignaturas.size() >= 99) break;
  }
  return asignaturas;
}

SilaboSed::SilaboSed(fs::path carpetaPrograma, std::string sysedu, Aviso aviso)
    : carpeta_(std::move(carpetaPrograma)), sysedu_(std::move(sysedu)), aviso_(std::move(aviso)) {}

void SilaboSed::Carga() {
  asignaturas_.clear();
  textos_.clear();
  ficheros_.clear();
  cargados_ = false;
  if (sysedu_.empty()) return;
  const auto ruta = BuscaFichero(carpeta_, sysedu_);
  if (!ruta) return;
  const auto texto = LeeTexto(*ruta);
  if (!texto) return;
  asignaturas_ = LoadAsignaturas(*texto);

  for (const Asignatura& s : asignaturas_) {
    const auto fichero = BuscaFichero(carpeta_ / "lang", s.modg);
    if (!fichero) return;  // the texts stay unloaded: the system lists nothing
    const auto lineas = LeeLineasLmo(*fichero);
    if (!lineas) return;
    std::unordered_map<std::string, std::string> textos;
    int numero = 0;
    for (const std::string& raw : *lineas) {
      ++numero;
      const std::string_view linea = LTrim(raw);
      if (!linea.starts_with('[')) continue;
      const std::size_t cierre = linea.find("]=");
      if (cierre == std::string_view::npos)
        throw ErrorFatalDatos(*fichero, numero, "an entry without \"]=\"");
      textos.try_emplace(UCase(Trim(linea.substr(1, cierre - 1))),
                         std::string(Trim(linea.substr(cierre + 2))));
    }
    textos_.push_back(std::move(textos));
    ficheros_.push_back(*fichero);
  }
  cargados_ = true;
}

bool SilaboSed::AdmiteQuimica(int j) const {
  return j >= 1 && j <= NumAsignaturas() &&
         asignaturas_[static_cast<std::size_t>(j - 1)].modb.find("<QUI>") != std::string::npos;
}

std::string SilaboSed::MsgAsig(std::string_view key, int j, GenContext& g) const {
  if (!cargados_ || j < 1 || j > static_cast<int>(textos_.size())) {
    g.GP_MsgFound = false;
    return {};
  }
  const auto& textos = textos_[static_cast<std::size_t>(j - 1)];
  const auto it = textos.find(UCase(Trim(key)));
  if (it == textos.end()) {
    g.GP_MsgFound = false;
    return {};
  }
  return it->second;
}

SubtemaResuelto SilaboSed::ResolverSubtema(int j, int n, std::string_view modulo, GenContext& g) {
  // The module's code: the last three letters of its name, before the colon.
  std::string_view nombre = modulo;
  if (nombre.ends_with(':')) nombre.remove_suffix(1);
  const std::string codigo(Right(nombre, 3));
  const std::string S = "S_" + codigo + "_" + std::to_string(n);
  const std::string D = "D_" + codigo + "_" + std::to_string(n);

  SubtemaResuelto r;
  const bool guardado = g.GP_MsgFound;
  std::string ordTema = g.GP_ThemeOrd, ordSubtema = g.GP_SubOrd;
  r.ordTema = ordTema;
  r.ordSubtema = ordSubtema;
  auto error = [&](const std::string& texto) {
    if (aviso_) aviso_(texto);
    r.subtema.clear();  // the generator stays out of this subject
    return r;
  };

  g.GP_MsgFound = true;
  r.asignatura = MsgAsig("Asig", j, g);
  if (r.asignatura.empty() || !g.GP_MsgFound)
    throw ErrorFatalDatos(j >= 1 && j <= static_cast<int>(ficheros_.size())
                              ? ficheros_[static_cast<std::size_t>(j - 1)]
                              : carpeta_ / sysedu_,
                          0, "Error: Asignatura no encontrada");

  g.GP_MsgFound = true;
  std::string tema(Trim(MsgAsig(g.GP_ThemeKey, j, g)));
  if (tema.empty() && g.GP_MsgFound) tema = g.GP_ThemeName;
  if (tema.starts_with("<#")) {
    const std::size_t cierre = tema.find("#>");
    if (cierre == std::string::npos)
      return error(Error("Error de sintaxis leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base)",
                         g.GP_ThemeKey, "  falta #> de cierre"));
    const auto ord = Ordinal(std::string_view(tema).substr(2, cierre - 2));
    if (!ord)
      return error(Error("Error leyendo n\xBA ordinal del tema con etiqueta (en m\xF3" "dulo base)",
                         g.GP_ThemeKey, " valor fuera de rango "));
    ordTema = *ord;
    tema = std::string(Trim(std::string_view(tema).substr(cierre + 2)));
    if (tema.empty()) tema = g.GP_ThemeName;
  }
  r.tema = tema;

  g.GP_MsgFound = true;
  std::string sub = MsgAsig(S, j, g);
  if (!g.GP_MsgFound) {
    r.subtema.clear();
    return r;  // not part of this subject
  }
  if (sub.empty()) sub = g.GP_SubName;
  if (sub.starts_with("<#")) {
    const std::size_t cierre = sub.find("#>");
    if (cierre == std::string::npos)
      return error(Error("Error de sintaxis leyendo n\xBA ordinal del tema en la etiqueta de subtema", S,
                         "  falta #> de cierre"));
    const auto ord = Ordinal(std::string_view(sub).substr(2, cierre - 2));
    if (!ord)
      return error(Error("Error leyendo n\xBA ordinal del tema en la etiqueta de subtema", S,
                         " valor fuera de rango "));
    ordTema = *ord;
    std::string resto(Trim(std::string_view(sub).substr(cierre + 2)));
    if (resto.starts_with("<%")) {
      const std::size_t fin = resto.find("%>");
      const std::string_view abre = "Error de sintaxis leyendo nombre de nuevo tema en la etiqueta de subtema";
      if (fin == std::string::npos) return error(Error(abre, S, "  falta %> de cierre"));
      const std::string nuevo(Trim(std::string_view(resto).substr(2, fin - 2)));
      if (nuevo.empty()) return error(Error(abre, S, "  nombre de tema vac\xEDo"));
      r.tema = nuevo;
      sub = std::string(Trim(std::string_view(resto).substr(fin + 2)));
    } else if (resto.starts_with("<@")) {
      const std::size_t fin = resto.find("@>");
      if (fin == std::string::npos)
        return error(Error("Error de sintaxis leyendo etiqueta de tema en la etiqueta de subtema", S,
                           "  falta @> de cierre"));
      const std::string clave(Trim(std::string_view(resto).substr(2, fin - 2)));
      if (clave.empty())
        return error(Error("Error de sintaxis leyendo etiqueta de tema contenido en subtema", S,
                           "  falta la etiqueta"));
      g.GP_MsgFound = true;
      const std::string otro(Trim(MsgAsig(clave, j, g)));
      const std::string_view abre =
          "Error de sintaxis leyendo nombre de tema de etiqueta de tema contenido en subtema";
      if (otro.empty()) return error(Error(abre, S, "  falta el tema correspondiente a la etiqueta"));
      if (otro.starts_with("<#")) return error(Error(abre, S, "  el tema tiene un ordinal expl\xED" "cito"));
      r.tema = otro;
      sub = std::string(Trim(std::string_view(resto).substr(fin + 2)));
    } else {
      return error(Error("Error de sintaxis leyendo tema contenido en subtema", S,
                         "  Falta la etiqueta de tema existente o el nombre de un nuevo tema"));
    }
    if (sub.empty()) sub = g.GP_SubName;
  }
  if (sub.starts_with("<$")) {
    const std::size_t cierre = sub.find("$>");
    if (cierre == std::string::npos)
      return error(Error("Error de sintaxis leyendo n\xBA ordinal del subtema con etiqueta ", S,
                         "  falta $> de cierre"));
    const auto ord = Ordinal(std::string_view(sub).substr(2, cierre - 2));
    if (!ord)
      return error(Error("Error leyendo n\xBA ordinal del subtema con etiqueta (en m\xF3" "dulo base)", S,
                         " valor del n\xFAmero fuera de rango "));
    ordSubtema = *ord;
    sub = std::string(Trim(std::string_view(sub).substr(cierre + 2)));
    if (sub.empty()) sub = g.GP_SubName;
  }
  r.subtema = sub;

  g.GP_MsgFound = true;
  r.descripcion = MsgAsig(D, j, g);
  const bool encontrada = g.GP_MsgFound;
  if (r.descripcion.empty() && encontrada) r.descripcion = g.GP_Description;
  if (encontrada) {
    r.ordTema = ordTema;
    r.ordSubtema = ordSubtema;
    g.GP_MsgFound = guardado;
  }
  return r;
}

}  // namespace ss
