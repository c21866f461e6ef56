// Nitrogen functional groups: amines, amides, nitriles, nitro compounds and
// compounds with two functions, one block a family.
//
// How the structures are drawn:
// - a carbonyl carbon is a #UDB atom with a double bond up to its O, so the
//   chain stays on one line; a branch or a third group on the N stands on a
//   bond up as well;
// - a ring vertex holds the hydrogens its bonds leave free, so a vertex joined
//   to anything carries a single bond letter, and what it is joined to is the
//   label at the end of that bond;
// - a ring that ends a chain hangs the chain on the left of its left vertex,
//   written towards the ring ("CH_3-NH"), so the bond meets the N;
// - two rings on one N: the second ring with the N on its right vertex is the
//   left label of the first.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {
namespace {

#define CO "#UDB(CDX#R1(O#R1)#UDB)"
#define ARRIBA(g) "#UDB(CSX#R1(" g "#R1)#UDB)H"
#define N_ARRIBA(g) "#UDB(NSX#R1(" g "#R1)#UDB)"
// Groups on a bond up that hang to the left, clear of a ring on the right.
#define ME_I "#LP(H_3#LP)C"
#define ET_I "#LP(H_3C-H_2#LP)C"

// A secondary or tertiary amine is named as the amine of its largest group,
// the others on the N.
constexpr Par kAminas[] = {
    {"[LRAD]-NH_2", "[LRAD]amine"},
    {"#A4D(SXXX#R1(NH_2#R1)#A4D)", "Cyclobutylamine"},
    {"#A6D(SXXXXX#R1(NH_2#R1)#A6D)", "Cyclohexylamine"},
    {"#BCV(SXXXXX#R1(NH_2#R1)#BCV)", "Phenylamine / aniline"},
    {"CH_3-NH-CH_3", "Dimethylamine"},
    {"CH_3-CH_2-NH-CH_3", "&+IN&-I-methylethylamine"},
    {"CH_3-CH_2-NH-CH_2-CH_3", "Diethylamine"},
    {"CH_3-CH_2-CH_2-NH-CH_3", "&+IN&-I-methylpropylamine"},
    {"CH_3-CH_2-CH_2-NH-CH_2-CH_3", "&+IN&-I-ethylpropylamine"},
    {"CH_3-CH_2-CH_2-NH-CH_2-CH_2-CH_3", "Dipropylamine"},
    {"#A4I(SXXX#R1([LRAD]-NH#R1)#A4I)", "&+IN&-I-[LRAD]cyclobutylamine"},
    {"#A4I(SXXX#R1(#A4D(SXXX#R1(NH#R1)#A4D)#R1)#A4I)", "Dicyclobutylamine"},
    {"#A6I(SXXXXX#R1([LRAD]-NH#R1)#A6I)", "&+IN&-I-[LRAD]cyclohexylamine"},
    {"#A6I(SXXXXX#R1(#A6D(SXXXXX#R1(NH#R1)#A6D)#R1)#A6I)", "Dicyclohexylamine"},
    {"#BCH(XXXXSX#R5(CH_3-NH#R5)#BCH)", "&+IN&-I-methylphenylamine"},
    {"#BCH(XXXXSX#R5(CH_3-CH_2-NH#R5)#BCH)", "&+IN&-I-ethylphenylamine"},
    {"#BCH(XXXXSX#R5(CH_3-CH_2-CH_2-NH#R5)#BCH)", "&+IN&-I-propylphenylamine"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(NH#R2)#BCH)#R5)#BCH)", "Diphenylamine"},
    {"CH_3-" N_ARRIBA("CH_3") "-CH_3", "Trimethylamine"},
    {"CH_3-CH_2-" N_ARRIBA("CH_2-CH_3") "-CH_2-CH_3", "Triethylamine"},
    {"CH_3-CH_2-CH_2-" N_ARRIBA("CH_3") "-CH_3", "&+IN,N&-I-dimethylpropylamine"},
    {"CH_3-CH_2-CH_2-" N_ARRIBA("CH_2-CH_3") "-CH_2-CH_3", "&+IN,N&-I-diethylpropylamine"},
    {"#BCH(XXXXSX#R5(CH_3-CH_2-CH_2-" N_ARRIBA(ME_I) "#R5)#BCH)",
     "&+IN&-I-methyl-&+IN&-I-propylphenylamine"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(" N_ARRIBA("CH_3") "#R2)#BCH)#R5)#BCH)",
     "&+IN&-I-methyldiphenylamine"},
    {"#A4I(SXXX#R1(#A4D(SXXX#R1(" N_ARRIBA("CH_3") "#R1)#A4D)#R1)#A4I)",
     "&+IN&-I-methyldicyclobutylamine"},
    {"#A6I(SXXXXX#R1(#A6D(SXXXXX#R1(" N_ARRIBA("CH_3") "#R1)#A6D)#R1)#A6I)",
     "&+IN&-I-methyldicyclohexylamine"},
    {"#BCH(XXXXSX#R5(CH_3-CH_2-" N_ARRIBA(ET_I) "#R5)#BCH)", "&+IN,N&-I-diethylphenylamine"},
    {"#A6I(SXXXXX#R1(CH_3-CH_2-" N_ARRIBA(ME_I) "#R1)#A6I)",
     "&+IN&-I-ethyl-&+IN&-I-methylcyclohexylamine"},
    {"#A6I(SXXXXX#R1(CH_3-CH_2-CH_2-" N_ARRIBA(ME_I) "#R1)#A6I)",
     "&+IN&-I-methyl-&+IN&-I-propylcyclohexylamine"},
};

// With [LCAD] = "H" the first row is methanamide, H-CO-NH_2.
constexpr Par kAmidas[] = {
    {"[LCAD]-" CO "-NH_2", "[LCAD]anamide"},
    {"H_2N-" CO "-" CO "-NH_2", "ethanediamide"},
    {"H_2N-" CO "-CH_2-" CO "-NH_2", "propanediamide"},
    {"H_2N-" CO "-CH_2-CH_2-" CO "-NH_2", "butanediamide"},
    {"H_2N-" CO "-CH&=CH-" CO "-NH_2", "butenediamide"},
    {"H_2N-" CO "-CH_2-CH_2-CH_2-" CO "-NH_2", "pentanediamide"},
    {"CH_3-" ARRIBA("CH_3") "-" CO "-NH_2", "Methylpropanamide"},
    {"CH_3-CH_2-" ARRIBA("CH_3") "-" CO "-NH_2", "2-methylbutanamide"},
    {"CH_3-" ARRIBA("CH_3") "-CH_2-" CO "-NH_2", "3-methylbutanamide"},
    {"CH_3-CH_2-" ARRIBA("CH_3") "-CH_2-" CO "-NH_2", "3-methylpentanamide"},
    {"CH_2&=CH-CH_2-CH_2-" CO "-NH_2", "4-pentenamide"},
    {"#BCH(XSXXXX#R2(" CO "-NH_2#R2)#BCH)", "Benzamide"},
};

// With [LCAD] = "H" the first row is methanenitrile, hydrogen cyanide.
constexpr Par kNitrilos[] = {
    {"[LCAD]-C&#N", "[LCAD]anenitrile"},
    {"N&#C-C&#N", "ethanedinitrile"},
    {"N&#C-CH_2-C&#N", "propanedinitrile"},
    {"N&#C-CH_2-CH_2-C&#N", "butanedinitrile"},
    {"CH_3-" ARRIBA("CH_3") "-C&#N", "Methylpropanenitrile"},
    {"CH_3-CH_2-" ARRIBA("CH_3") "-C&#N", "2-methylbutanenitrile"},
    {"CH_3-" ARRIBA("CH_3") "-CH_2-C&#N", "3-methylbutanenitrile"},
    {"CH_3-CH_2-" ARRIBA("CH_3") "-CH_2-C&#N", "3-methylpentanenitrile"},
    {"CH_2&=CH-CH_2-CH_2-C&#N", "4-pentenenitrile"},
};

// On benzene the first group stands on the top vertex: vertex 2 is ortho to
// it, 3 meta, 4 para.
constexpr Par kNitroderivados[] = {
    {"CH_3-NO_2", "Nitromethane"},
    {"CH_3-CH_2-NO_2", "Nitroethane"},
    {"CH_3-CH_2-CH_2-NO_2", "1-nitropropane"},
    {"CH_3-CH_2-CH_2-CH_2-NO_2", "1-nitrobutane"},
    {"CH_3-" ARRIBA("NO_2") "-CH_2-CH_3", "2-nitrobutane"},
    {"CH_3-" ARRIBA("NO_2") "-CH_2-" ARRIBA("NO_2") "-CH_3", "2,4-dinitropentane"},
    {"#BCV(SXXXXX#R1(NO_2#R1)#BCV)", "Nitrobenzene"},
    {"#A6V(SXXXXX#R1(NO_2#R1)#A6V)", "Nitrocyclohexane"},
    {"#A4V(SXXX#R1(NO_2#R1)#A4V)", "Nitrocyclobutane"},
    {"#BCV(SXSXXX#R1(NO_2#R1)#R3(NO_2#R3)#BCV)", "1,3-dinitrobenzene"},
    {"#BCV(SSXSXS#R1(CH_3#R1)#R2(NO_2#R2)#R4(NO_2#R4)#R6(O_2N#R6)#BCV)", "2,4,6-trinitrotoluene / TNT"},
};

constexpr Par kMixtos[] = {
    {"H-" CO "-CH_2-" CO "-NH_2", "3-oxopropanamide"},
    {"H-" CO "-CH_2-CH_2-" CO "-NH_2", "4-oxobutanamide"},
    {"CH_3-" CO "-" CO "-NH_2", "2-oxopropanamide"},
    {"CH_3-" CO "-CH_2-" CO "-NH_2", "3-oxobutanamide"},
    {"CH_3-" ARRIBA("OH") "-" CO "-NH_2", "2-hydroxypropanamide"},
    {"CH_3-" ARRIBA("OH") "-CH_2-" CO "-NH_2", "3-hydroxybutanamide"},
    {"CH_3-" ARRIBA("OH") "-" ARRIBA("OH") "-" CO "-NH_2", "2,3-dihydroxybutanamide"},
    {"CH_3-" ARRIBA("NH_2") "-CH_2-" CO "-OH", "3-aminobutanoic acid"},
    {"CH_3-" ARRIBA("NH_2") "-" CO "-OH", "2-aminopropanoic acid"},
    {"CH_3-" ARRIBA("NH_2") "-CH_2-" CO "H", "3-aminobutanal"},
    {"CH_3-" ARRIBA("NH_2") "-" CO "-CH_3", "3-aminobutanone"},
    {"CH_3-" ARRIBA("NH_2") "-" CO "-CH_2-CH_3", "2-amino-3-pentanone"},
    {"H_2N-CH_2-CH_2-" CO "-CH_3", "4-amino-2-butanone"},
};

#undef CO
#undef ARRIBA
#undef N_ARRIBA
#undef ME_I
#undef ET_I

}  // namespace

Bloques FilasNitrogenados() { return {kAminas, kAmidas, kNitrilos, kNitroderivados, kMixtos}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
