// Alkanes, alkenes and alkynes as chains: the main chain runs left to right,
// carbon 1 at the left unless a row says otherwise, each chain carbon a group
// of its own; branches stand on bonds up and down (#UDB), multiple bonds of the
// chain are "&=" and "&#". A branch on a carbon whose neighbour also carries one
// on the same side hangs to the left ("H_3C", "H_3C-H_2C"), so that the groups
// do not run into each other. Only in the longest chains is a run of carbons
// without branches written as one group ("(CH_2)_2", "CH_3CH_2"), so that the
// structure fits in a column of a list.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {
namespace {

// A CH with a group up or down; a C with a group up or down (the text after it
// gives its hydrogens, if any); a C with a group on each side.
#define ARRIBA(g) "#UDB(CSX#R1(" g "#R1)#UDB)H"
#define ABAJO(g) "#UDB(CXS#R2(" g "#R2)#UDB)H"
#define C_ARRIBA(g) "#UDB(CSX#R1(" g "#R1)#UDB)"
#define C_ABAJO(g) "#UDB(CXS#R2(" g "#R2)#UDB)"
#define C_DOS(a, b) "#UDB(CSS#R1(" a "#R1)#R2(" b "#R2)#UDB)"
// The branches, written from the bond outwards; the "_I" ones hang to the left.
#define ME "CH_3"
#define ET "CH_2-CH_3"
#define PR "CH_2-CH_2-CH_3"
#define ME_I "#LP(H_3#LP)C"
#define ET_I "#LP(H_3C-H_2#LP)C"

constexpr Par kAlcanos[] = {
    {"CH_4", "Methane"},
    {"CH_3-CH_3", "Ethane"},
    {"CH_3-CH_2-CH_3", "Propane"},
    {"CH_3-CH_2-CH_2-CH_3", "Butane"},
    {"CH_3-CH_2-CH_2-CH_2-CH_3", "Pentane"},
    {"CH_3-CH_2-CH_2-CH_2-CH_2-CH_3", "Hexane"},
    {"CH_3-CH_2-CH_2-CH_2-CH_2-CH_2-CH_3", "Heptane"},
    {"CH_3-(CH_2)_6-CH_3", "Octane"},
    {"CH_3-" ARRIBA(ME) "-CH_3", "Methylpropane or isobutane"},
    {"CH_3-" C_DOS(ME, ME) "-CH_3", "Dimethylpropane or neopentane"},
    {"CH_3-CH_2-" ARRIBA(ME) "-CH_3", "Methylbutane or isopentane"},
    {"CH_3-" C_DOS(ME, ME) "-CH_2-CH_3", "2,2-dimethylbutane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-CH_3", "2,3-dimethylbutane"},
    {"CH_3-" C_DOS(ME_I, ME_I) "-" ARRIBA(ME) "-CH_3", "2,2,3-trimethylbutane"},
    {"CH_3-" C_DOS(ME_I, ME_I) "-" C_DOS(ME, ME) "-CH_3", "Tetramethylbutane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-CH_2-CH_3", "2-methylpentane"},
    {"CH_3-CH_2-" ARRIBA(ME) "-CH_2-CH_3", "3-methylpentane"},
    {"CH_3-CH_2-" ARRIBA(ET) "-CH_2-CH_3", "Ethylpentane"},
    {"CH_3-CH_2-" C_DOS(ET, ET) "-CH_2-CH_3", "Diethylpentane"},
    {"CH_3-" C_DOS(ME, ME) "-CH_2-CH_2-CH_3", "2,2-dimethylpentane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-CH_2-CH_3", "2,3-dimethylpentane"},
    {"CH_3-" ABAJO(ME) "-" ARRIBA(ET) "-CH_2-CH_3", "3-ethyl-2-methylpentane"},
    {"CH_3-" ABAJO(ME) "-" ARRIBA(ET) "-CH_2-CH_2-CH_3", "3-ethyl-2-methylhexane"},
    {"CH_3-" ABAJO(ME) "-" ARRIBA(ET) "-CH_2-CH_2-CH_2-CH_3", "3-ethyl-2-methylheptane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" ARRIBA(ME) "-CH_3", "2,4-dimethylpentane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" ARRIBA(ME) "-CH_2-CH_3", "2,4-dimethylhexane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" ARRIBA(ME) "-CH_2-CH_2-CH_3", "2,4-dimethylheptane"},
    {"CH_3-CH_2-" C_DOS(ET, ME) "-CH_2-CH_3", "3-ethyl-3-methylpentane"},
    {"CH_3-CH_2-" C_DOS(ET, ME) "-CH_2-CH_2-CH_3", "3-ethyl-3-methylhexane"},
    {"CH_3-CH_2-" C_DOS(ET, ME) "-CH_2-CH_2-CH_2-CH_3", "3-ethyl-3-methylheptane"},
    {"CH_3-" ARRIBA(ME_I) "-" C_DOS(ET, ME) "-CH_2-CH_3", "3-ethyl-2,3-dimethylpentane"},
    {"CH_3-" ARRIBA(ME_I) "-" C_DOS(ET, ME) "-CH_2-CH_2-CH_3", "3-ethyl-2,3-dimethylhexane"},
    {"CH_3-" ARRIBA(ME_I) "-" C_DOS(ET, ME) "-CH_2-CH_2-CH_2-CH_3", "3-ethyl-2,3-dimethylheptane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-" ARRIBA(ME) "-CH_3", "2,3,4-trimethylpentane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-" ARRIBA(ME) "-CH_2-CH_3", "2,3,4-trimethylhexane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-" ARRIBA(ME) "-CH_2-CH_2-CH_3", "2,3,4-trimethylheptane"},
    {"CH_3-" ABAJO(ME) "-" ARRIBA(ET_I) "-" ABAJO(ME) "-" ARRIBA(ME) "-CH_3", "3-ethyl-2,4,5-trimethylhexane"},
    {"CH_3-CH_2-" C_DOS(ET_I, ME_I) "-" ABAJO(ET) "-CH_2-CH_3", "3,4-diethyl-3-methylhexane"},
    {"CH_3-" C_DOS(ME, ME) "-CH_2-CH_2-" C_DOS(ME, ME) "-CH_2-CH_3", "2,2,5,5-tetramethylheptane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" ARRIBA(ME) "-" ABAJO(ME) "-CH_2-CH_3", "2,4,5-trimethylheptane"},
    {"CH_3-CH_2-" C_DOS(ME, ME) "-CH_2-CH_3", "3,3-dimethylpentane"},
    {"CH_3-CH_2-" ABAJO(ME) "-" ARRIBA(ET) "-CH_2-CH_2-CH_3", "4-ethyl-3-methylheptane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" C_DOS(ET, ME) "-CH_2-CH_2-CH_3", "4-ethyl-2,4-dimethylheptane"},
    {"CH_3-" ARRIBA(ME) "-CH_2-" ARRIBA(PR) "-" ABAJO(ET) "-CH_2-CH_3", "5-ethyl-2-methyl-4-propylheptane"},
    {"CH_3-CH_2-" C_DOS(ME, ME) "-CH_2-" ARRIBA(ME) "-CH_2-CH_3", "3,3,5-trimethylheptane"},
    {"CH_3-(CH_2)_2-" ARRIBA(ET) "-" ABAJO(ME) "-(CH_2)_2-CH_3", "4-ethyl-5-methyloctane"},
    {"CH_3-(CH_2)_2-" ABAJO(ME) "-" ARRIBA(PR) "-(CH_2)_2-CH_3", "4-methyl-5-propyloctane"},
    {"CH_3CH_2-" C_DOS(ME, ET) "-CH_2-" ARRIBA(ME) "-" ABAJO(ME) "-CH_2CH_3", "3-ethyl-3,5,6-trimethyloctane"},
    {"CH_3-" C_DOS(ME, ME) "-CH_2-" ARRIBA(ME) "-CH_3", "2,2,4-trimethylpentane"},
    {"CH_3-CH_2-" ARRIBA(ME) "-CH_2-CH_2-CH_3", "3-methylhexane"},
    {"CH_3-CH_2-" C_DOS(ME_I, ME_I) "-" ARRIBA(ET) "-CH_2-CH_2-CH_3", "4-ethyl-3,3-dimethylheptane"},
    {"CH_3-CH_2-" C_DOS(ME_I, ME_I) "-" ARRIBA(ET) "-CH_2-CH_3", "4-ethyl-3,3-dimethylhexane"},
    {"CH_3-CH_2-" C_DOS(ME_I, ME_I) "-" C_DOS(ET, ME) "-CH_2-CH_2-CH_3", "4-ethyl-3,3,4-trimethylheptane"},
    {"CH_3-CH_2-" C_DOS(ET_I, ME_I) "-" C_DOS(ME, ME) "-CH_2-CH_3", "3-ethyl-3,4,4-trimethylhexane"},
    {"CH_3-" ARRIBA(ME) "-" ABAJO(ME) "-" ARRIBA(ET) "-" ABAJO(ME) "-CH_2-CH_3", "4-ethyl-2,3,5-trimethylheptane"},
};

constexpr Par kAlquenos[] = {
    {"CH_2&=CH_2", "Ethene or ethylene"},
    {"CH&#CH", "Ethyne or acetylene"},
    {"CH_2&=CH-CH_3", "Propene"},
    {"CH_2&=CH-CH_2-CH_3", "1-butene"},
    {"CH_3-CH&=CH-CH_3", "2-butene"},
    {"CH_2&=CH-CH_2-" ARRIBA(ME) "-" ABAJO(ME) "-CH_2-CH_3", "4,5-dimethyl-1-heptene"},
    {"CH_3-CH&=" C_ARRIBA(ET) "-CH_2-CH_2-" ARRIBA(ME) "-CH_3", "3-ethyl-6-methyl-2-heptene"},
    {"CH_3CH_2CH&=CH-" ARRIBA(ET) "-CH_2CH_2CH_3", "5-ethyl-3-octene"},
    {"CH_3-CH_2-CH&=CH-" ARRIBA(ME) "-" ABAJO(ME) "-CH_3", "5,6-dimethyl-3-heptene"},
    {"CH&#C-CH_3", "Propyne"},
    {"CH&#C-CH_2-CH_3", "1-butyne"},
    {"CH_3-C&#C-CH_3", "2-butyne"},
    {"CH&#C-" ARRIBA(PR) "-CH_2-C&#C-CH_3", "3-propyl-1,5-heptadiyne"},
    {"CH_2&=CH-C&#CH", "1-buten-3-yne"},
    {"CH_2&=CH-CH_2-CH_2-" ARRIBA(ME) "-CH_3", "5-methyl-1-hexene"},
    {"CH_3-CH_2-" C_ARRIBA(ME) "&=C&=CH-CH_2-CH_3", "3-methyl-3,4-heptadiene"},
    {"CH_2&=CH-" ARRIBA(ET) "-CH_2-CH&=CH_2", "3-ethyl-1,5-hexadiene"},
    {"CH_3-CH&=CH-" ARRIBA(ME) "-" ABAJO(ME) "-CH_3", "4,5-dimethyl-2-hexene"},
    {"CH_3-CH&=" C_ARRIBA(ME) "-" ABAJO(ME) "-CH_2-CH_3", "3,4-dimethyl-2-hexene"},
    {"CH_2&=CH-CH_2-" ARRIBA(ME) "-CH_3", "4-methyl-1-pentene"},
    {"CH_2&=CH-" ARRIBA(ET) "-" ABAJO(ME) "-CH_3", "3-ethyl-4-methyl-1-pentene"},
    {"CH_3-CH&=CH-" ARRIBA(ET) "-" ABAJO(ME) "-CH_3", "4-ethyl-5-methyl-2-hexene"},
    {"CH_2&=CH-" ARRIBA(ME_I) "-" C_DOS(ME, ME) "-CH_3", "3,4,4-trimethyl-1-pentene"},
    {"CH_3-" C_ARRIBA(ME_I) "&=" C_ARRIBA(ME) "-CH_3", "2,3-dimethyl-2-butene"},
    {"CH_3-CH&=" C_ARRIBA(ME) "-CH_2-" ARRIBA(ME) "-CH_3", "3,5-dimethyl-2-hexene"},
    {"CH_2&=" C_ARRIBA(ET) "-" C_ABAJO(ME) "&=C&=CH-CH_3", "2-ethyl-3-methyl-1,3,4-hexatriene"},
    {"CH_2&=CH-" C_DOS(ET, ET) "-CH&=CH-CH_3", "3,3-diethyl-1,4-hexadiene"},
    {"CH_2&=CH-" ARRIBA(ME) "-CH&=CH_2", "3-methyl-1,4-pentadiene"},
    {"CH_2&=C&=CH-" ARRIBA(ET) "-" ABAJO(ME) "-CH_3", "4-ethyl-5-methyl-1,2-hexadiene"},
    {"CH_3-" C_ARRIBA(ME) "&=CH-" C_ARRIBA(ET) "&=CH-CH_3", "4-ethyl-2-methyl-2,4-hexadiene"},
    {"CH_2&=CH-" C_DOS(ET, ME) "-C&#CH", "3-ethyl-3-methyl-1-penten-4-yne"},
    {"CH&#C-" ARRIBA(ME) "-" ABAJO(ET) "-" C_ARRIBA(ME) "&=CH-CH_3",
     "&FS=11:4-ethyl-3,5-dimethyl-5-hepten-1-yne&FS=12:"},
    {"CH_2&=" C_ARRIBA(ME) "-" ABAJO(ET) "-CH&=CH_2", "3-ethyl-2-methyl-1,4-pentadiene"},
    // "-ene" keeps its "e" before the consonant of "diyne".
    {"CH&#C-C&#C-" C_DOS(ME, ME) "-CH&=CH_2", "5,5-dimethyl-6-heptene-1,3-diyne"},
    {"CH_2&=" C_ARRIBA(ME) "-" C_ABAJO(ME) "&=" C_ARRIBA(ET) "-C&#CH",
     "&FS=11:4-ethyl-2,3-dimethyl-1,3-hexadien-5-yne&FS=12:"},
    {"CH_3-CH&=" C_ARRIBA(ME) "-" ABAJO(ME) "-" C_ARRIBA(ME) "&=CH-CH_3", "3,4,5-trimethyl-2,5-heptadiene"},
    {"CH_2&=C&=CH_2", "Propadiene"},
    {"CH_2&=C&=C&=CH_2", "Butatriene"},
    {"CH_2&=" C_ARRIBA(ME) "-CH_3", "Methylpropene"},
    {"CH_2&=" C_ARRIBA(ME) "-C&#CH", "2-methyl-1-buten-3-yne"},
    {"CH&#C-" C_DOS(ME, ME) "-CH_3", "Dimethylbutyne"},
    {"CH_2&=CH-" C_DOS(ME, ME) "-CH_2-CH_3", "3,3-dimethyl-1-pentene"},
    {"CH_2&=CH-" C_DOS(ME, ME) "-CH&=CH_2", "3,3-dimethyl-1,4-pentadiene"},
    // Carbon 1 at the right: the ethyl then stands clear of the methyls.
    {"CH_2&=CH-" ARRIBA(ME) "-" ABAJO(ME) "-" C_ARRIBA(ET) "&=CH_2", "2-ethyl-3,4-dimethyl-1,5-hexadiene"},
    {"CH_2&=C&=" C_ARRIBA(ME) "-CH_2-" C_ARRIBA(ME) "&=CH_2", "3,5-dimethyl-1,2,5-hexatriene"},
    // Halogenated: each stored row gives one row a halogen. Carbon 1 of the
    // first stands at the right.
    {"CH_3-" ARRIBA("[HAL]") "-CH&=CH_2", "3-[HAL]-1-butene"},
    {"CH_2&=CH-" ARRIBA("[HAL]") "-CH_2-" ARRIBA(ME) "-CH_3", "3-[HAL]-5-methyl-1-hexene"},
    {"CH_2&=" C_ARRIBA(ME) "-" C_ABAJO("[HAL]") "H_2", "3-[HAL]-2-methyl-1-propene"},
    {C_DOS("[HAL]", "[HAL]") "&=CH-C&#CH", "1,1-di[HAL]-1-buten-3-yne"},
};

#undef ARRIBA
#undef ABAJO
#undef C_ARRIBA
#undef C_ABAJO
#undef C_DOS
#undef ME
#undef ET
#undef PR
#undef ME_I
#undef ET_I

}  // namespace

Bloques FilasAlcanos() { return {kAlcanos}; }
Bloques FilasAlquenos() { return {kAlquenos}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
