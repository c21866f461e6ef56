#include "problems/generador.h"

#include <algorithm>

#include "problems/generic.h"
#include "problems/texto.h"

namespace ss {

bool EntradaCatalogo(GenContext& g, const Entrada& e) {
  g.GP_MaxItems = std::string(e.maxItems);
  if (!g.GP_ListMode) return false;
  g.GP_Level = std::string(e.nivel);
  g.GP_AsigName = g.MsgQUI("Asig", -1);
  g.GP_ThemeOrd = std::string(e.ordTema);
  g.GP_ThemeKey = std::string(e.claveTema);
  g.GP_SubOrd = std::string(e.ordSubtema);
  return true;
}

void EntradaLiteral(GenContext& g, std::string_view ordTema, std::string_view tema,
                    std::string_view ordSubtema, std::string_view subtema, std::string_view maxItems) {
  g.GP_Level = "2";
  g.GP_AsigName = "Chemistry";
  g.GP_ThemeOrd = std::string(ordTema);
  g.GP_ThemeName = std::string(tema);
  g.GP_SubOrd = std::string(ordSubtema);
  g.GP_SubName = std::string(subtema);
  g.GP_MaxItems = std::string(maxItems);
}

int ItemsEjercicio(const GenContext& g) {
  int items = std::clamp(g.GP_Items, 2, 26);
  const double most = Val(g.GP_MaxItems);
  // A generator that states no bound leaves the count as it stands.
  if (most >= 1 && most < items) items = static_cast<int>(most);
  return items;
}

int Forma(const GenContext& g, int forms, int offset) {
  if (forms <= 1) return 0;
  const long long v = static_cast<long long>(g.GP_SeqB) + offset;
  const long long r = v % forms;
  return static_cast<int>(r < 0 ? r + forms : r);
}

void Reemplaza(std::string& text, std::string_view name, std::string_view value) {
  ReplaceAll(text, name, value);
}

std::string Etiqueta(int i) {
  return "&+B" + std::string(1, static_cast<char>('a' + (i - 1) % 26)) + ")&-B ";
}

}  // namespace ss
