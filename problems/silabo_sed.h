// Education systems. A .sed file beside the program names its subjects; each
// subject has a text file in lang/ that places the generators it holds under
// its own topics and subtopics, in its own order, with its own names:
//
//   [Asig]=Chemistry 1                 the subject's name (required)
//   [T_Gases]=<#020#>Gases             a topic, with its ordinal
//   [S_DIS_9]=<$010$>The ideal gas     a subtopic, with its ordinal
//   [S_DIS_4]=                         kept under its base name
//   [S_DIS_1]=<#030#><%Mixtures%>...   moved under a new topic
//   [S_DIS_2]=<#030#><@T_Gases@>...    moved under the topic of another key
//
// A generator whose S_ key the file lacks is not part of that subject.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "problems/idioma.h"
#include "problems/silabo.h"

namespace ss {

struct Asignatura {
  std::string nombre;  // <NOM>: the name on the wizard's list
  std::string modg;    // <MODG>: the subject's text file in lang/
  std::string img;     // <IMG>: its picture in img/
  std::string modb;    // <MODB>, upper-cased: the base modules it draws on
};

// The <NOMSYS> name of an education-system file; empty when the path is
// empty, the file missing or unreadable, or the tags missing or out of order.
std::string LeerNomSys(const std::filesystem::path& ruta);

// The subjects of a .sed text, all or nothing: one damaged block and the
// system has no subjects at all.
std::vector<Asignatura> LoadAsignaturas(std::string_view texto);

class SilaboSed final : public Silabo {
 public:
  // `sysedu` is the file name of the system in the program folder; empty: none.
  // `aviso` shows the syntax errors of a subject file (in Spanish, for the
  // writers of syllabi).
  SilaboSed(std::filesystem::path carpetaPrograma, std::string sysedu, Aviso aviso = {});

  // Reads the .sed file and the text file of every subject. A subject text
  // line with "[" but no "]=" throws ErrorFatalDatos.
  void Carga();

  const std::vector<Asignatura>& Asignaturas() const { return asignaturas_; }
  bool TextosCargados() const { return cargados_; }

  int NumAsignaturas() const override { return static_cast<int>(asignaturas_.size()); }
  bool AdmiteQuimica(int j) const override;
  SubtemaResuelto ResolverSubtema(int j, int n, std::string_view moduloConDosPuntos,
                                  GenContext& g) override;

  // The text of `key` in subject j's file (no choice among alternatives);
  // empty, with g.GP_MsgFound cleared, when the key or the texts are missing.
  std::string MsgAsig(std::string_view key, int j, GenContext& g) const;

 private:
  std::filesystem::path carpeta_;
  std::string sysedu_;
  Aviso aviso_;
  std::vector<Asignatura> asignaturas_;
  std::vector<std::unordered_map<std::string, std::string>> textos_;
  std::vector<std::filesystem::path> ficheros_;
  bool cargados_ = false;
};

}  // namespace ss
