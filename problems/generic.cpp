#include "problems/generic.h"

#include <algorithm>
#include <cctype>

#include "problems/fallos.h"
#include "problems/idioma.h"
#include "problems/silabo.h"
#include "problems/texto.h"

namespace ss {

GenContext::GenContext(FuenteMensajes* fuente, Aleatorio r)
    : rnd(r), mensajes(fuente ? fuente : &sinMensajes_) {}

std::string GenContext::Msg(TablaMensajes tabla, std::string_view key, int selector) {
  const std::string* text = mensajes->Buscar(tabla, key);
  if (!text) {
    GP_MsgFound = false;
    return {};
  }
  return EligeAlternativa(*text, selector, rnd);
}

std::string GenContext::MsgQUI(std::string_view key, int selector) {
  return Msg(TablaMensajes::QUI, key, selector);
}
std::string GenContext::MsgFIS(std::string_view key, int selector) {
  return Msg(TablaMensajes::FIS, key, selector);
}
std::string GenContext::MsgMAT(std::string_view key, int selector) {
  return Msg(TablaMensajes::MAT, key, selector);
}

int ParseaComando(GenContext& g, std::string_view command) {
  g.GP_Case = std::string(Mid(command, 1, 3));
  g.GP_SeqA = CLng(Val(Mid(command, 4, 3)));
  g.GP_SeqB = CLng(Val(Mid(command, 7, 4)));
  g.GP_Items = CLng(Val(Mid(command, 11, 2)));
  g.GP_Amount = Val(Mid(command, 13, 2));
  g.GP_Index = Val(Mid(command, 15, 2));
  const int n = CLng(Val(g.GP_Case));
  g.GP_Statement.clear();
  g.GP_Solution.clear();
  g.rnd.Resembrar();
  return n;
}

namespace {

// "<Error in module ANEU__QUIM__TER:. No routine 015>&LF": the notice of a
// generator number that the module does not have.
void AvisoSinRutina(GenContext& g, std::string_view modulo) {
  std::string enModulo = g.MsgQUI("Error_in_module", -1);
  std::string sinRutina = g.MsgQUI("Error_no_routine", -1);
  g.GP_Statement = "<" + enModulo + " " + DoubleUnderscores(std::string(modulo) + ":") + ". " +
                   sinRutina + g.GP_Case + ">&LF";
  g.GP_Solution = "&LF";
}

// The generator writes these afresh for each number of a run.
void LimpiaEntrada(GenContext& g) {
  g.GP_Level.clear();
  g.GP_ThemeOrd.clear();
  g.GP_ThemeKey.clear();
  g.GP_SubOrd.clear();
  g.GP_MaxItems.clear();
}

std::string Campo(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, std::min(width, text.size())));
  out.resize(width, ' ');
  return out;
}

std::string Ordinal(std::string_view text, std::size_t width) {
  std::string_view t = Trim(text);
  if (t.size() >= width) return std::string(Right(t, width));
  return std::string(width - t.size(), '0') + std::string(t);
}

std::string Nivel(std::string_view level) {
  std::string_view t = Trim(level);
  return t.empty() ? std::string("3") : std::string(1, t.front());
}

// A number written in a finished text as "nan" or "inf": a computation went
// wrong somewhere the checked helpers did not see.
bool NumeroRoto(std::string_view text) {
  auto letter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
  for (std::string_view word : {std::string_view("nan"), std::string_view("inf")}) {
    for (std::size_t at = text.find(word); at != std::string_view::npos;
         at = text.find(word, at + 1)) {
      bool before = at > 0 && letter(text[at - 1]);
      std::size_t end = at + word.size();
      bool after = end < text.size() && letter(text[end]);
      if (!before && !after) return true;
    }
  }
  return false;
}

}  // namespace

std::string RegistroDetalle(const CamposRegistro& c) {
  std::string r;
  r.reserve(kLargoRegistro);
  r += Ordinal(c.ordTema, 3);
  r += Ordinal(c.ordSubtema, 3);
  r += Campo(c.asignatura, 65);
  r += Campo(c.tema, 80);
  r += Campo(c.subtema, 80);
  r += Nivel(c.nivel);
  r += Ordinal(c.generador, 3);
  r += Ordinal(c.maxItems, 3);
  r += Campo(c.descripcion, 160);
  r += "\r\n";
  return r;
}

std::string RegistroCabecera(const CamposRegistro& c) {
  std::string r;
  r.reserve(kLargoRegistro);
  r += Ordinal(c.ordTema, 3);
  r += "000";
  r += Campo(c.asignatura, 65);
  r += Campo(c.tema, 80);
  r += std::string(80, ' ');
  r += "5000000";
  r += std::string(160, ' ');
  r += "\r\n";
  return r;
}

std::string ModuloDispatcher(const ModuloDef& m, GenContext& g, std::string_view command,
                             std::string& statement, std::string& solution, bool listMode) {
  g.GP_ListMode = listMode;
  const std::string conDosPuntos = std::string(m.nombre) + ":";
  const bool conSilabo = listMode && g.silabo != nullptr;
  std::vector<bool> admitida;
  std::vector<std::string> vistas;  // headings already emitted, upper-cased
  std::string salida;

  int first = 1, last = m.N();
  if (listMode) {
    salida = conDosPuntos;
    if (conSilabo) {
      const int asignaturas = g.silabo->NumAsignaturas();
      admitida.assign(static_cast<std::size_t>(asignaturas) + 1, false);
      for (int j = 1; j <= asignaturas; ++j) admitida[j] = g.silabo->AdmiteQuimica(j);
    }
  } else {
    first = last = ParseaComando(g, command);
  }

  auto emite = [&](const CamposRegistro& campos) {
    std::string cabecera = RegistroCabecera(campos);
    std::string clave = UCase(cabecera);
    if (std::find(vistas.begin(), vistas.end(), clave) == vistas.end()) {
      vistas.push_back(std::move(clave));
      salida += cabecera;
    }
    salida += RegistroDetalle(campos);
  };

  for (int n = first; n <= last; ++n) {
    const std::string num = std::to_string(n);
    const std::string claveS = "S_" + std::string(m.codigo) + "_" + num;
    const std::string claveD = "D_" + std::string(m.codigo) + "_" + num;
    if (listMode) {
      g.GP_AsigName.clear();
      g.GP_MsgFound = true;
      g.GP_Description = g.MsgQUI(claveD, -1);
    }
    g.GP_SubName = g.MsgQUI(claveS, -1);
    LimpiaEntrada(g);

    if (n >= 1 && n <= m.N()) {
      const auto k = static_cast<std::size_t>(n - 1);
      const bool soloEntrada = k < m.entradas.size() && EntradaCatalogo(g, m.entradas[k]);
      if (Generador gen = m.generadores[k]; gen && !soloEntrada) gen(g);
    } else if (!listMode) {
      AvisoSinRutina(g, m.nombre);
    }
    if (!listMode) continue;

    g.GP_ThemeName = g.MsgQUI(g.GP_ThemeKey, -1);
    CamposRegistro campos;
    campos.nivel = g.GP_Level;
    campos.generador = num;
    campos.maxItems = g.GP_MaxItems;
    if (conSilabo) {
      if (g.GP_AsigName.empty() || g.GP_SubName.empty() || g.GP_ThemeName.empty()) continue;
      for (int j = 1; j < static_cast<int>(admitida.size()); ++j) {
        if (!admitida[j]) continue;
        SubtemaResuelto r = g.silabo->ResolverSubtema(j, n, conDosPuntos, g);
        if (r.asignatura.empty() || r.tema.empty() || r.subtema.empty()) continue;
        campos.ordTema = r.ordTema;
        campos.ordSubtema = r.ordSubtema;
        campos.asignatura = r.asignatura;
        campos.tema = r.tema;
        campos.subtema = r.subtema;
        campos.descripcion = r.descripcion;
        emite(campos);
      }
    } else if (!g.GP_AsigName.empty() && g.GP_MsgFound) {
      campos.ordTema = g.GP_ThemeOrd;
      campos.ordSubtema = g.GP_SubOrd;
      campos.asignatura = g.GP_AsigName;
      campos.tema = g.GP_ThemeName;
      campos.subtema = g.GP_SubName;
      campos.descripcion = g.GP_Description;
      emite(campos);
    }
  }

  if (listMode) return salida;
  statement = g.GP_Statement;
  solution = g.GP_Solution;
  return {};
}

void RespaldoDispatcher(const ModuloDef& m, GenContext& g, std::string_view command,
                        std::string& statement, std::string& solution) {
  g.GP_ListMode = false;
  const int n = ParseaComando(g, command);
  LimpiaEntrada(g);
  const auto propios = m.generadoresRespaldo;
  Generador gen = n >= 1 && n <= static_cast<int>(propios.size())
                      ? propios[static_cast<std::size_t>(n - 1)]
                      : nullptr;
  if (gen)
    gen(g);
  else
    AvisoSinRutina(g, m.respaldo);
  statement = g.GP_Statement;
  solution = g.GP_Solution;
}

std::string NormalizaModulo(std::string_view name) {
  static constexpr std::pair<std::string_view, std::string_view> kAlias[] = {
      {"OKBR_MATE", "ANEU_MATE"}, {"OKBR_MATH", "ANEU_MATE"}, {"OKBR_FISI", "ANEU_FISI"},
      {"OKBR_PHYS", "ANEU_FISI"}, {"OKBR_QUIM", "ANEU_QUIM"}, {"OKBR_CHEM", "ANEU_QUIM"},
  };
  std::string normal = UCase(name);
  for (const auto& [from, to] : kAlias) ReplaceAll(normal, from, to);
  return normal;
}

void GeneraProblema(TablaModulos modulos, GenContext& g, std::string_view moduleName,
                    std::string_view command, std::string& statement, std::string& solution) {
  statement.clear();
  solution.clear();
  g.GP_MsgFound = true;
  const std::string normal = NormalizaModulo(moduleName);
  int numero = 0;
  std::string descripcion;
  // A real problem takes a few hundred draws; ten million mean a redraw loop
  // that cannot end.
  struct Presupuesto {
    Aleatorio& rnd;
    explicit Presupuesto(Aleatorio& r) : rnd(r) { rnd.TiradasRestantes = 10'000'000; }
    ~Presupuesto() { rnd.TiradasRestantes = -1; }
  } presupuesto(g.rnd);
  try {
    const ModuloDef* modulo = nullptr;
    for (const ModuloDef* m : modulos)
      if (m->nombre == normal) modulo = m;
    if (modulo) {
      ModuloDispatcher(*modulo, g, command, statement, solution, false);
      if (statement.empty() || !g.GP_MsgFound)
        RespaldoDispatcher(*modulo, g, command, statement, solution);
      if (NumeroRoto(statement) || NumeroRoto(solution)) throw GenFault::Overflow();
    } else {
      statement = "<ERROR: Cannot re-create the problem.>&LFRequested module=" +
                  DoubleUnderscores(moduleName) + " alias " + DoubleUnderscores(normal) + "&LF";
      solution = "<ERROR>&LF";
    }
  } catch (const GenFault& f) {
    numero = f.number();
    descripcion = f.what();
  } catch (const ErrorFatalDatos&) {
    throw;  // broken data files end the program, not just this problem
  } catch (const std::exception& e) {
    numero = GenFault::InvalidArgument().number();
    descripcion = Utf8ToCp1252(e.what());
  } catch (...) {
    GenFault f = GenFault::Internal();
    numero = f.number();
    descripcion = f.what();
  }
  if (numero != 0) {
    statement = "<ERROR>  Number= " + std::to_string(numero) + "&LFError description= " +
                descripcion + " &LFCommand= " + std::string(command) + "&LFModule=" +
                DoubleUnderscores(moduleName) + " alias " + DoubleUnderscores(normal) + "&LF";
    solution = "<ERROR>&LF";
  }
}

void ListaProblemas(TablaModulos modulos, GenContext& g, std::vector<std::string>& catalogo) {
  catalogo.clear();
  for (const ModuloDef* m : modulos) {
    std::string statement, solution, texto;
    try {
      texto = ModuloDispatcher(*m, g, {}, statement, solution, true);
    } catch (const ErrorFatalDatos&) {
      throw;
    } catch (...) {
      continue;  // a module that cannot list itself offers nothing
    }
    const std::size_t colon = texto.find(':');
    if (colon == std::string::npos) continue;
    const std::string prefijo = texto.substr(0, colon + 1);
    const long long registros =
        CLng(static_cast<double>(texto.size()) / static_cast<double>(kLargoRegistro));
    for (long long i = 0; i < registros; ++i) {
      const std::size_t desde = colon + 1 + static_cast<std::size_t>(i) * kLargoRegistro;
      catalogo.push_back(prefijo + std::string(Mid(texto, desde + 1, kLargoRegistro)));
    }
  }
}

}  // namespace ss
