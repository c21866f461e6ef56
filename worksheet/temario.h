// The topic tree of a subject, read from the catalogue: what the wizard shows
// and what the command-line tool lists and composes from. Each catalogue entry
// is a module's name, a colon and the fixed-width record of one generator or
// topic heading.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "worksheet/coleccion.h"

namespace ss {

// The kinds of item offered, by level: question, exercise, problem, theory.
// Theory is not offered unless asked for.
using TiposItem = std::array<bool, 4>;
inline constexpr TiposItem kTiposPorDefecto = {true, true, true, false};

// The subjects of the catalogue, trimmed, each once, in the order of the
// wizard's list: with a syllabus (its subject names, in its order) the
// syllabus order, leaving out subjects it does not name; without one,
// mathematics, physics and chemistry before the rest, then by name.
std::vector<std::string> AsignaturasDelCatalogo(const std::vector<std::string>& catalogo,
                                                const std::vector<std::string>* silabo);

// Puts the catalogue into teaching order: the subjects in the order of
// `asignaturas` (names as the syllabus gives them), then topic and subtopic
// ordinals; a topic heading shared by several modules is kept once.
void OrdenaPorAsignaturas(std::vector<std::string>& catalogo,
                          const std::vector<std::string>& asignaturas);

// The tree of the subject named `asignatura` (compared trimmed and without
// case): the root, a topic row for each heading and an item row for each
// record of an offered kind, in topic order. Empty (no rows) when the
// catalogue does not hold the subject; `nombre` gets the subject's name as
// the catalogue spells it.
Arbol ArbolDeAsignatura(const std::vector<std::string>& catalogo, const std::string& asignatura,
                        const TiposItem& tipos = kTiposPorDefecto, std::string* nombre = nullptr);

}  // namespace ss

#include <QString>

#include <functional>
#include <memory>

namespace ss {

class SilaboSed;
class Mensajes;
struct GenContext;

// The subjects on offer under the chosen education system: its syllabus and
// the catalogue of every generator, listed once and kept until the system
// changes.
class Temario {
 public:
  using Aviso = std::function<void(const std::string&)>;
  Temario(QString carpetaDatos, Mensajes& mensajes, Aviso aviso = {});
  ~Temario();

  // Chooses the system (a .sed file name, empty for none), reads its syllabus
  // and empties the catalogue. A subject file with a broken line throws
  // ErrorFatalDatos and leaves the old system in place.
  void Carga(const QString& sysedu);
  const QString& Sysedu() const { return sysedu_; }
  // The syllabus of the system, or null without one.
  SilaboSed* Silabo() const { return silabo_.get(); }

  // The catalogue, listed on first use.
  const std::vector<std::string>& Catalogo();
  // The subjects in the order of the wizard's list.
  std::vector<std::string> Asignaturas();
  // The picture of a subject in the data folder: the syllabus's own, a
  // chemistry flask for the chemistry of the program, else a plain one.
  QString Imagen(const std::string& asignatura) const;

 private:
  QString datos_;
  Mensajes& mensajes_;
  Aviso aviso_;
  QString sysedu_;
  std::unique_ptr<SilaboSed> silabo_;
  std::vector<std::string> catalogo_;
  bool listado_ = false;
};

}  // namespace ss
