// Scripted stand-ins for the message tables and the education system.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "problems/generic.h"
#include "problems/mensajes.h"
#include "problems/silabo.h"
#include "problems/texto.h"

namespace ss::test {

class MensajesFijos : public FuenteMensajes {
 public:
  MensajesFijos(std::initializer_list<std::pair<const std::string, std::string>> qui) {
    for (const auto& [k, v] : qui) qui_[UCase(Trim(k))] = v;
  }
  void Pon(const std::string& key, const std::string& text) { qui_[UCase(Trim(key))] = text; }
  void Quita(const std::string& key) { qui_.erase(UCase(Trim(key))); }
  const std::string* Buscar(TablaMensajes tabla, std::string_view key) override {
    if (tabla != TablaMensajes::QUI) return nullptr;
    auto it = qui_.find(UCase(Trim(key)));
    return it == qui_.end() ? nullptr : &it->second;
  }

 private:
  std::map<std::string, std::string> qui_;
};

// Subjects that place every generator under "<subject>/<topic>", with an
// ordinal of their own; a subject may refuse the chemistry modules.
class SilaboFijo : public Silabo {
 public:
  struct Asignatura {
    std::string nombre;
    bool quimica;
  };
  explicit SilaboFijo(std::vector<Asignatura> a) : asignaturas_(std::move(a)) {}
  int NumAsignaturas() const override { return static_cast<int>(asignaturas_.size()); }
  bool AdmiteQuimica(int j) const override { return asignaturas_.at(j - 1).quimica; }
  SubtemaResuelto ResolverSubtema(int j, int n, std::string_view modulo, GenContext& g) override {
    llamadas.push_back(std::to_string(j) + ":" + std::string(modulo) + std::to_string(n));
    SubtemaResuelto r;
    r.asignatura = asignaturas_.at(j - 1).nombre;
    r.tema = g.GP_ThemeName;
    r.subtema = n == excluido ? "" : g.GP_SubName + " (" + r.asignatura + ")";
    r.descripcion = g.GP_Description;
    r.ordTema = "9";
    r.ordSubtema = std::to_string(n);
    return r;
  }
  int excluido = -1;
  std::vector<std::string> llamadas;

 private:
  std::vector<Asignatura> asignaturas_;
};

}  // namespace ss::test
