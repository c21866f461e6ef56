// The education system chosen by the user, as the catalogue listing sees it:
// which subjects admit the chemistry modules, and where a subject places each
// generator (subject, topic, subtopic, ordinals, description).
#pragma once

#include <string>
#include <string_view>

namespace ss {

struct GenContext;

struct SubtemaResuelto {
  std::string asignatura;
  std::string tema;
  std::string subtema;
  std::string descripcion;
  std::string ordTema;
  std::string ordSubtema;
};

class Silabo {
 public:
  virtual ~Silabo() = default;
  virtual int NumAsignaturas() const = 0;
  // Subject j (from 1) draws on the chemistry modules.
  virtual bool AdmiteQuimica(int j) const = 0;
  // Where subject j places generator n of the module named (with its colon),
  // from the catalogue entry the generator just left in the context. An empty
  // subtopic means the generator is not part of that subject.
  virtual SubtemaResuelto ResolverSubtema(int j, int n, std::string_view moduloConDosPuntos,
                                          GenContext& g) = 0;
};

}  // namespace ss
