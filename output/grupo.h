// A worksheet for every student of a class: each copy carries its student's
// name and fresh numbers in the problems the teacher chose, and is saved as
// an ordinary worksheet file in a folder of its own. The run works on a copy
// of the open worksheet, which it never touches.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class QByteArray;
class QDateTime;

namespace ss {

class Aleatorio;
struct ColeccionCab;
struct Sesion;

// The names of a student list file: its lines (ended by CR LF, LF or CR,
// whichever the file uses), trimmed, the empty ones left out. UTF-8 (with or
// without a byte-order mark) when the bytes are valid UTF-8, Windows-1252
// otherwise.
std::vector<QString> LeeListaAlumnos(const QByteArray& bytes);

inline constexpr int kAlumnosSinPreguntar = 100;

// The file name (without ".col") for a student: blanks not doubled, only
// letters, digits and " _+-.,;" kept, no leading dot, at most 240 bytes on
// disk. A name with nothing left becomes a number of seven or eight digits.
QString NombreDeFichero(const QString& alumno, Aleatorio& rnd);

// The proposed name of a new folder, from the time: "yy-MM-dd-hh-mm-ss".
QString NombreCarpetaGrupo(const QDateTime& cuando);

// Where the student line goes: into an empty first text under the title, else
// into an empty second one, else on a new line behind the first. Chosen once,
// from the worksheet as it stands, so that every copy carries one name.
enum class LugarAlumno { Posti1, Posti2, TrasPosti1 };
LugarAlumno LugarDeLinea(const ColeccionCab& cab);
// Puts `linea` in its place in `cab`, starting from the texts of `original`.
void PonLineaAlumno(ColeccionCab& cab, const ColeccionCab& original, LugarAlumno lugar,
                    const std::string& linea);
// "Student: " and the first 140 characters of the name, as worksheet text
// (a character the worksheet cannot hold becomes "?"). `rotulo` is the
// worksheet text of the word "Student".
std::string LineaAlumno(const std::string& rotulo, const QString& nombre);

struct PedidoGrupo {
  std::vector<QString> alumnos;
  std::vector<bool> distintos;  // per problem, in worksheet order: new numbers for each student
  QString carpeta;              // an existing folder; the copies go in it
};

struct GrupoHecho {
  QStringList ficheros;  // written, in the list's order
  int fallidos = 0;      // copies that could not be saved (each was told)
  bool cancelado = false;
};

// Makes the copies, one student after another. `antes(i)` runs before
// student i (from 0); false stops the run there. A copy that cannot be saved
// is told through the session's platform, and the run goes on.
GrupoHecho HazGrupo(Sesion& s, const PedidoGrupo& pedido, const std::function<bool(int)>& antes);

}  // namespace ss
