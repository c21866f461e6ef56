#include "problems/aleatorio.h"

#include <chrono>

#include "problems/fallos.h"

namespace ss {
namespace {

uint64_t Mix(uint64_t z) {
  z += 0x9E3779B97F4A7C15ULL;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31);
}

uint64_t ClockReading() {
  return static_cast<uint64_t>(
      std::chrono::high_resolution_clock::now().time_since_epoch().count());
}

}  // namespace

Aleatorio::Aleatorio(std::optional<uint64_t> seed)
    : state_(Mix(seed ? *seed : ClockReading())), seeded_(seed.has_value()) {}

Aleatorio Aleatorio::Guionado(std::vector<double> valores) {
  Aleatorio a(0);
  a.guion_ = std::move(valores);
  return a;
}

double Aleatorio::Siguiente() {
  if (TiradasRestantes == 0) throw GenFault::Internal();
  if (TiradasRestantes > 0) --TiradasRestantes;
  if (!guion_.empty()) {
    double v = guion_[siguienteGuion_];
    siguienteGuion_ = (siguienteGuion_ + 1) % guion_.size();
    return v;
  }
  // splitmix64: a full-period 64-bit sequence, the top 53 bits as the fraction.
  state_ += 0x9E3779B97F4A7C15ULL;
  uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  z ^= z >> 31;
  return static_cast<double>(z >> 11) * 0x1.0p-53;
}

void Aleatorio::Resembrar() {
  if (!guion_.empty()) return;
  uint64_t news = seeded_ ? ++counter_ : ClockReading();
  state_ = Mix(state_ ^ Mix(news));
}

}  // namespace ss
