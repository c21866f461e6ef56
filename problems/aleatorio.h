// The program's one source of uniform random values in [0,1).
//
// Re-seeding mixes something new into the current state instead of replacing
// it: a high-resolution clock reading normally, a call counter in seeded mode.
// So problems made within one clock tick still differ, and a run started from
// a fixed seed (tests, the command-line tool's --seed) repeats exactly.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace ss {

class Aleatorio {
 public:
  // Without a seed the state starts from the clock; with one the source is
  // reproducible, re-seeds included.
  explicit Aleatorio(std::optional<uint64_t> seed = std::nullopt);

  double Siguiente();  // next value in [0,1)
  void Resembrar();    // mix the clock (or, seeded, the call counter) into the state

  bool Sembrado() const { return seeded_; }

  // Set when a draw of AleatorioEn gave up on a range it could not meet.
  bool RangoFallido = false;

  // Draws left before Siguiente gives up with an internal fault; negative for
  // no limit. A generator whose redraw loop can never be met (a table without a
  // fitting row, a scripted source) then ends as a notice in its problem
  // instead of hanging the program.
  long long TiradasRestantes = -1;

  // A source that returns the given values in turn, over and over, and
  // ignores re-seeding: for tests that need exact draws.
  static Aleatorio Guionado(std::vector<double> valores);

 private:
  uint64_t state_;
  uint64_t counter_ = 0;
  bool seeded_;
  std::vector<double> guion_;
  std::size_t siguienteGuion_ = 0;
};

}  // namespace ss
