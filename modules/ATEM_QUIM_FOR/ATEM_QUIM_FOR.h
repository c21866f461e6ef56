// The fallback module of organic nomenclature: it holds generators of its own,
// run by number when the main module gives no text.
#pragma once

#include <span>

#include "problems/generic.h"

namespace ss::mod::ATEM_QUIM_FOR {

std::span<const Generador> Generadores();

}  // namespace ss::mod::ATEM_QUIM_FOR
