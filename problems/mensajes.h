// Where the generators' words come from.
//
// A generator holds keys, never sentences: its statements are looked up in the
// message tables by key. The tables themselves (the .lmo files) are loaded by
// an implementation of this interface; without one every lookup is "not found",
// which sends each problem to its fallback notice.
#pragma once

#include <string>
#include <string_view>

namespace ss {

class Aleatorio;

enum class TablaMensajes { QUI, FIS, MAT };

class FuenteMensajes {
 public:
  virtual ~FuenteMensajes() = default;
  // The text stored under `key` in `tabla`, exactly as written ("@@" joins
  // alternatives), or nullptr when the table is missing or lacks the key.
  // Keys compare trimmed and without regard to case.
  virtual const std::string* Buscar(TablaMensajes tabla, std::string_view key) = 0;
};

// No message files at all: every key is missing.
class SinMensajes final : public FuenteMensajes {
 public:
  const std::string* Buscar(TablaMensajes, std::string_view) override { return nullptr; }
};

// One of the "@@" alternatives of `text`: with a negative selector a fresh
// random choice, floor(r * 0.9999 * count); otherwise selector modulo count.
std::string EligeAlternativa(std::string_view text, int selector, Aleatorio& rnd);

}  // namespace ss
