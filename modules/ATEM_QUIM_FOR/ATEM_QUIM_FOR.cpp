#include "modules/ATEM_QUIM_FOR/ATEM_QUIM_FOR.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "modules/ATEM_QUIM_FOR/organica.h"
#include "problems/generic.h"
#include "problems/numeros.h"
#include "problems/texto.h"

namespace ss::mod::ATEM_QUIM_FOR {
namespace {

using std::string;
using std::string_view;

struct Variante {
  string_view estructura, nombre;
};

// The placeholders in the order they are filled, with their variants.
struct Marcador {
  string_view clave;
  std::vector<Variante> variantes;
};

const std::vector<Marcador>& Marcadores() {
  static const std::vector<Marcador> kMarcadores = {
      {"[LCAD]",
       {{"H", "meth"}, {"CH_3", "eth"}, {"CH_3CH_2", "prop"}, {"CH_3CH_2CH_2", "but"},
        {"CH_3CH_2CH_2CH_2", "pent"}}},
      {"[RRAD]", {{"CH_3", "methyl"}, {"CH_2CH_3", "ethyl"}, {"CH_2CH_2CH_3", "propyl"}}},
      {"[LRAD]", {{"CH_3", "methyl"}, {"CH_3CH_2", "ethyl"}, {"CH_3CH_2CH_2", "propyl"}}},
      {"[HAL]", {{" F", "fluoro"}, {"Cl", "chloro"}, {"Br", "bromo"}, {" I", "iodo"}}},
  };
  return kMarcadores;
}

// Fills one placeholder with a variant. Inside a branch bracket "([HAL]" the
// halogen loses its leading blank, which only keeps it aligned in a chain.
Fila Rellena(const Fila& f, const Marcador& m, const Variante& v) {
  Fila r = f;
  if (m.clave == "[HAL]") ReplaceAll(r.estructura, "([HAL]", "(" + string(Trim(v.estructura)));
  ReplaceAll(r.estructura, m.clave, v.estructura);
  ReplaceAll(r.nombre, m.clave, v.nombre);
  return r;
}

const Marcador* PrimerMarcador(const Fila& f) {
  for (const Marcador& m : Marcadores())
    if (f.estructura.find(m.clave) != string::npos || f.nombre.find(m.clave) != string::npos) return &m;
  return nullptr;
}

}  // namespace

Tabla Construye(const Bloques& bloques) {
  Tabla t;
  for (const auto& bloque : bloques) {
    const std::size_t desde = t.filas.size();
    for (const Par& p : bloque) t.filas.push_back({string(p.estructura), string(p.nombre)});
    // Every row of the block, those appended meanwhile too, until none holds
    // a placeholder.
    for (std::size_t i = desde; i < t.filas.size(); ++i) {
      while (const Marcador* m = PrimerMarcador(t.filas[i])) {
        const Fila base = t.filas[i];
        t.filas[i] = Rellena(base, *m, m->variantes[0]);
        for (std::size_t k = 1; k < m->variantes.size(); ++k)
          t.filas.push_back(Rellena(base, *m, m->variantes[k]));
      }
    }
    t.finBloques.push_back(static_cast<int>(t.filas.size()));
  }
  return t;
}

namespace {

enum class Tablas { Alcanos, Alquenos, Ciclos, Oxigenados, Nitrogenados };

struct Lista {
  string_view codigo, maximo, titulo;
  bool dibujar;  // names shown, structures asked
  Tablas tabla;
};

constexpr Lista kListas[10] = {
    {"020", "020", "D: Linear and branched chains of alkanes", true, Tablas::Alcanos},
    {"040", "020", "N: Linear and branched chains of alkanes", false, Tablas::Alcanos},
    {"060", "020", "D: Linear and branched chains of alkenes and alkynes", true, Tablas::Alquenos},
    {"080", "020", "N: Linear and branched chains of alkenes and alkynes", false, Tablas::Alquenos},
    {"100", "016", "D: Cycloalkanes/alkenes/alkynes and benzene derivatives", true, Tablas::Ciclos},
    {"120", "016", "N: Cycloalkanes/alkenes/alkynes and benzene derivatives", false, Tablas::Ciclos},
    {"140", "020", "D: Oxygen functional groups", true, Tablas::Oxigenados},
    {"160", "020", "N: Oxygen functional groups", false, Tablas::Oxigenados},
    {"180", "020", "D: Nitrogen functional groups", true, Tablas::Nitrogenados},
    {"200", "020", "N: Nitrogen functional groups", false, Tablas::Nitrogenados},
};

Bloques FilasDe(Tablas t) {
  switch (t) {
    case Tablas::Alcanos: return FilasAlcanos();
    case Tablas::Alquenos: return FilasAlquenos();
    case Tablas::Ciclos: return FilasCiclos();
    case Tablas::Oxigenados: return FilasOxigenados();
    case Tablas::Nitrogenados: return FilasNitrogenados();
  }
  return {};
}

// A row from `desde` to `hasta`: a continuous draw rounded half to even.
int FilaEntre(GenContext& g, int desde, int hasta) {
  return static_cast<int>(std::nearbyint(AleatorioEn(g.rnd, desde, hasta, 0, 0)));
}

// The rows of a list, all different. With blocks the list walks through the
// families in order, and three items in ten come from anywhere.
std::vector<int> Elige(GenContext& g, const Tabla& t, int n) {
  const int filas = static_cast<int>(t.filas.size());
  const int bloques = static_cast<int>(t.finBloques.size());
  std::vector<int> elegidas;
  while (static_cast<int>(elegidas.size()) < n) {
    int desde = 1, hasta = filas;
    if (bloques > 1) {
      const int c = static_cast<int>(elegidas.size());
      const int b = c * bloques / n + 1;
      if (AzarSupera(g.rnd, 0.3)) {
        desde = std::max(1, (b >= 2 ? t.finBloques[static_cast<std::size_t>(b - 2)] : 0) + 1);
        hasta = std::min(filas, t.finBloques[static_cast<std::size_t>(b - 1)]);
      }
    }
    const int fila = FilaEntre(g, desde, hasta);
    if (std::find(elegidas.begin(), elegidas.end(), fila) == elegidas.end()) elegidas.push_back(fila);
  }
  return elegidas;
}

void HazLista(GenContext& g, int numero) {
  const Lista& l = kListas[numero - 1];
  EntradaLiteral(g, "780", "Nomenclature of organic compounds", l.codigo, l.titulo, l.maximo);
  const int n = ItemsEjercicio(g);
  const Tabla t = Construye(FilasDe(l.tabla));

  g.GP_Statement = l.dibujar ? "&-I&-BDraw structures for these compounds:&LF"
                             : "&-I&-BName the following compounds:&LF";
  g.GP_Solution.clear();
  const std::vector<int> filas = Elige(g, t, n);
  for (int i = 1; i <= n; ++i) {
    const Fila& f = t.filas[static_cast<std::size_t>(filas[static_cast<std::size_t>(i - 1)] - 1)];
    const string nombre = Capitaliza(f.nombre);
    const string etiqueta = "&+B" + string(1, static_cast<char>('a' + i - 1)) + ")&-B  ";
    const bool impar = i % 2 == 1;
    g.GP_Statement += (impar ? "&SP=5:" : "&SP=50:") + etiqueta + (l.dibujar ? nombre : f.estructura);
    g.GP_Solution += (impar ? "&SP=10:" : "&SP=50:") + etiqueta + (l.dibujar ? f.estructura : nombre);
    if (!impar || i == n) {
      g.GP_Statement += "&LF";
      g.GP_Solution += "&LF";
    }
  }
  g.GP_Statement += "&LF";
}

template <int N>
void GeneraLista(GenContext& g) {
  HazLista(g, N);
}

constexpr ss::Generador kGeneradores[10] = {
    GeneraLista<1>, GeneraLista<2>, GeneraLista<3>, GeneraLista<4>, GeneraLista<5>,
    GeneraLista<6>, GeneraLista<7>, GeneraLista<8>, GeneraLista<9>, GeneraLista<10>,
};

}  // namespace

std::span<const ss::Generador> Generadores() { return kGeneradores; }

}  // namespace ss::mod::ATEM_QUIM_FOR
