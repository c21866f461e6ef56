#include "problems/idioma.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "problems/texto.h"

namespace fs = std::filesystem;

namespace ss {

ErrorFatalDatos::ErrorFatalDatos(const fs::path& fichero, int linea, const std::string& que)
    : std::runtime_error(fichero.string() + (linea > 0 ? ":" + std::to_string(linea) : "") +
                         ": " + que),
      fichero_(fichero),
      linea_(linea) {}

std::optional<fs::path> BuscaFichero(const fs::path& carpeta, std::string_view nombre) {
  std::error_code ec;
  const fs::path exacto = carpeta / fs::path(std::string(nombre));
  if (fs::is_regular_file(exacto, ec)) return exacto;
  const std::string buscado = UCase(nombre);
  for (fs::directory_iterator it(carpeta, ec), end; !ec && it != end; it.increment(ec)) {
    if (UCase(it->path().filename().string()) == buscado && it->is_regular_file(ec))
      return it->path();
  }
  return std::nullopt;
}

std::optional<std::vector<std::string>> LeeLineasLmo(const fs::path& fichero) {
  std::ifstream in(fichero, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);  // a byte-order mark is no text
  const std::string text = Utf8ToCp1252(bytes);
  std::vector<std::string> lines;
  std::size_t from = 0;
  for (;;) {
    const std::size_t at = text.find("\r\n", from);
    if (at == std::string::npos) {
      lines.push_back(text.substr(from));
      break;
    }
    lines.push_back(text.substr(from, at - from));
    from = at + 2;
  }
  return lines;
}

Mensajes::Mensajes(fs::path carpetaPrograma, Aviso aviso)
    : carpeta_(std::move(carpetaPrograma)), aviso_(std::move(aviso)) {}

void Mensajes::LoadMGE(std::string_view code) {
  const std::string nombre = "ENG_MGE_" + std::string(code) + ".lmo";
  const fs::path carpetaLang = carpeta_ / "lang";
  const auto ruta = BuscaFichero(carpetaLang, nombre);
  if (!ruta) return;
  const char cual = code.empty() ? ' ' : UCaseChar(code.front());
  if (cual != 'M' && cual != 'F' && cual != 'Q') {
    if (aviso_) aviso_("Error: \n" + ruta->string());
    return;
  }
  const auto lines = LeeLineasLmo(*ruta);
  if (!lines) return;
  Tabla nueva;
  int numero = 0;
  for (const std::string& raw : *lines) {
    ++numero;
    const std::string_view line = LTrim(raw);
    if (!line.starts_with('[')) continue;
    const std::size_t close = line.find("]=");
    if (close == std::string_view::npos)
      throw ErrorFatalDatos(*ruta, numero, "an entry without \"]=\"");
    const std::string_view keyAsWritten = line.substr(1, close - 1);
    std::string text(line.substr(close + 2));
    if (!text.empty() && text.back() == ' ' && aviso_)
      aviso_("<Space at right> @ " + std::string(keyAsWritten) + " ::: " + std::string(code));
    nueva.textos.try_emplace(UCase(Trim(keyAsWritten)), std::move(text));  // the first one wins
  }
  nueva.cargada = true;
  const TablaMensajes t = cual == 'M' ? TablaMensajes::MAT
                          : cual == 'F' ? TablaMensajes::FIS
                                        : TablaMensajes::QUI;
  tabla(t) = std::move(nueva);
}

const std::string* Mensajes::Buscar(TablaMensajes t, std::string_view key) {
  if (!tabla(t).cargada) {
    LoadMGE(t == TablaMensajes::MAT ? "MAT" : t == TablaMensajes::FIS ? "FIS" : "QUI");
    if (!tabla(t).cargada) return nullptr;
  }
  const auto& textos = tabla(t).textos;
  const auto it = textos.find(UCase(Trim(key)));
  return it == textos.end() ? nullptr : &it->second;
}

TextosVentana::TextosVentana(fs::path carpetaPrograma, std::string code)
    : carpeta_(std::move(carpetaPrograma)), code_(std::move(code)) {}

void TextosVentana::LoadIdioma() {
  const auto ruta = BuscaFichero(carpeta_ / "lang", "ENG_WIN_" + code_ + ".lmo");
  if (!ruta) return;
  const auto lines = LeeLineasLmo(*ruta);
  if (!lines) return;
  std::unordered_map<std::string, std::string> textos;
  for (const std::string& raw : *lines) {
    const std::string_view line = LTrim(raw);
    if (!line.starts_with('[')) continue;
    const std::size_t close = line.find(']');
    const std::size_t equals = close == std::string_view::npos ? close : line.find('=', close);
    if (equals == std::string_view::npos) {
      textos.clear();  // a broken file gives no texts at all
      break;
    }
    textos.try_emplace(UCase(Trim(line.substr(1, close - 1))), std::string(line.substr(equals + 1)));
  }
  textos_ = std::move(textos);
  cargado_ = true;
}

std::string TextosVentana::GetL_win(std::string_view key, bool stripAmpersands) {
  if (!cargado_) LoadIdioma();
  const auto it = textos_.find(UCase(Trim(key)));
  if (it == textos_.end()) return {};
  std::string text = it->second;
  ReplaceAll(text, "%CRLF%", "\n");
  if (stripAmpersands) ReplaceAll(text, "&", "");
  return text;
}

void InitServicios(Notacion& notacion, Mensajes& mensajes) {
  notacion = Notacion{};
  mensajes.LoadMGE("MAT");
  mensajes.LoadMGE("FIS");
  mensajes.LoadMGE("QUI");
}

}  // namespace ss
