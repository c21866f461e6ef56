#include "tests/modules/markup_numeros.h"

#include <gtest/gtest.h>

namespace ss::test {
namespace {

TEST(MarkupNumbers, ReadsNumbersAsTheyArePrinted) {
  EXPECT_EQ(Numeros("A gas at 2&.5& atm and -15& \xB0" "C fills 12_ 345&.5 mL."),
            (std::vector<double>{2.5, -15, 12345.5}));
  EXPECT_EQ(Numeros("H_2SO_4 and Ca^2^+ and 3&E8 and 1&.5&E-7"), (std::vector<double>{3e8, 1.5e-7}));
  EXPECT_EQ(Numeros("CO-2 x-ray 4-5"), (std::vector<double>{2, 4, 5}));
  EXPECT_EQ(Numeros("no numbers"), std::vector<double>{});
  EXPECT_EQ(NumerosTras("&+Ba)&-B 12&.5 g&LF&+Bb)&-B 7 g&LF", "&+Bb)&-B "), std::vector<double>{7});
}

}  // namespace
}  // namespace ss::test
