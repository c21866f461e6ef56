// Oxygen functional groups: acids, aldehydes, ketones, alcohols, esters,
// phenols, ethers and compounds with two functions, one block a family.
//
// How the structures are drawn:
// - a carbonyl carbon is a #UDB atom with a double bond up to its O, so the
//   chain stays on one line: "CH_3-#UDB(CDX#R1(O#R1)#UDB)-OH";
// - a ring joined to the rest of the molecule carries a single bond out of
//   that vertex, and the rest is the label at its end; a ring's vertex holds
//   the hydrogens its bonds leave free, so the bond letter counts;
// - a ring that ends a chain hangs the chain on the left of its left vertex
//   ("#A4I(SXXX#R1(CH_3-O#R1)#A4I)"), so the bond meets the O; a label on the
//   left reads towards the ring, and a methyl there is written H_3C;
// - a ring on a ring is the label of the other's bond, its own single bond
//   drawn along that bond.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {
namespace {

constexpr Par kAcidos[] = {
    {"H-#UDB(CDX#R1(O#R1)#UDB)-OH", "Methanoic / formic acid"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-OH", "Ethanoic / acetic acid"},
    {"CH_3-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "Propanoic / propionic acid"},
    {"CH_3-CH_2-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "Butanoic / butyric acid"},
    {"CH_3-CH_2-CH_2-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "Pentanoic / valeric acid"},
    {"HO-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)-OH", "Ethanedioic / oxalic acid"},
    {"HO-#UDB(CDX#R1(O#R1)#UDB)-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "Propanedioic / malonic acid"},
    {"HO-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "Butanedioic / succinic acid"},
    {"HO-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_2-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH",
     "Pentanedioic / glutaric acid"},
    {"#BCH(XSXXXX#R2(#UDB(CDX#R1(O#R1)#UDB)-OH#R2)#BCH)", "Benzoic acid"},
};

// With [LCAD] = "H" the first row is methanal, H-CHO.
constexpr Par kAldehidos[] = {
    {"[LCAD]-#UDB(CDX#R1(O#R1)#UDB)H", "[LCAD]anal"},
    {"CH_2&=CH-#UDB(CDX#R1(O#R1)#UDB)H", "Propenal / acrolein"},
    {"CH_3-CH&=CH-#UDB(CDX#R1(O#R1)#UDB)H", "2-butenal / crotonaldehyde"},
    {"CH_3-#UDB(CSX#R1(CH_3#R1)#UDB)H-CH_2-#UDB(CDX#R1(O#R1)#UDB)H", "3-methylbutanal"},
};

constexpr Par kCetonas[] = {
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-CH_3", "Propanone / acetone"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_3", "Butanone"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)-CH_3", "Butanedione"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_2-CH_3", "2-pentanone"},
    {"CH_3-CH_2-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_3", "3-pentanone"},
    {"#A3V(DXX#R1(O#R1)#A3V)", "Cyclopropanone"},
    {"#A4V(DXXX#R1(O#R1)#A4V)", "Cyclobutanone"},
    {"#A5V(DXXXX#R1(O#R1)#A5V)", "Cyclopentanone"},
    {"#A6V(DXXXXX#R1(O#R1)#A6V)", "Cyclohexanone"},
};

constexpr Par kAlcoholes[] = {
    {"CH_3-OH", "Methanol / methyl alcohol"},
    {"CH_3-CH_2-OH", "Ethanol / ethyl alcohol"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-CH_3", "2-propanol"},
    {"CH_3-CH_2-CH_2-OH", "1-propanol"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-CH_2-CH_3", "2-butanol"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-CH&=CH-CH_3", "3-penten-2-ol"},
    {"HO-CH_2-CH_2-C&#CH", "3-butyn-1-ol"},
    {"HO-CH_2-CH_2-OH", "1,2-ethanediol / ethylene glycol"},
    {"HO-CH_2-#UDB(CSX#R1(OH#R1)#UDB)H-CH_3", "1,2-propanediol"},
    {"HO-CH_2-#UDB(CSX#R1(OH#R1)#UDB)H-CH_2-OH", "1,2,3-propanetriol / glycerol"},
};

// The acid part of the ester on the left, the alkyl or ring on the right.
constexpr Par kEsteres[] = {
    {"[LCAD]-#UDB(CDX#R1(O#R1)#UDB)-O-[RRAD]", "[RRAD] [LCAD]anoate"},
    {"#BCH(XSXXXX#R2(#UDB(CDX#R1(O#R1)#UDB)-O-[RRAD]#R2)#BCH)", "[RRAD] benzoate"},
    {"#A3I(SXX#R1([LCAD]-#UDB(CDX#R1(O#R1)#UDB)-O#R1)#A3I)", "Cyclopropyl [LCAD]anoate"},
    {"#A4I(SXXX#R1([LCAD]-#UDB(CDX#R1(O#R1)#UDB)-O#R1)#A4I)", "Cyclobutyl [LCAD]anoate"},
    {"#A5I(SXXXX#R1([LCAD]-#UDB(CDX#R1(O#R1)#UDB)-O#R1)#A5I)", "Cyclopentyl [LCAD]anoate"},
    {"#A6I(SXXXXX#R1([LCAD]-#UDB(CDX#R1(O#R1)#UDB)-O#R1)#A6I)", "Cyclohexyl [LCAD]anoate"},
};

// The OH at the top vertex; vertex 2 is ortho, 3 meta, 4 para.
constexpr Par kFenoles[] = {
    {"#BCV(SXXXXX#R1(OH#R1)#BCV)", "Phenol"},
    {"#BCV(SSXXXX#R1(OH#R1)#R2(#A3I(SXX#A3I)#R2)#BCV)", "2-cyclopropylphenol"},
    {"#BCV(SSXXXX#R1(OH#R1)#R2(#A4I(SXXX#A4I)#R2)#BCV)", "2-cyclobutylphenol"},
    {"#BCV(SSXXXX#R1(OH#R1)#R2(#A5I(SXXXX#A5I)#R2)#BCV)", "2-cyclopentylphenol"},
    {"#BCV(SSXXXX#R1(OH#R1)#R2(CH_3#R2)#BCV)", "2-methylphenol"},
    {"#BCV(SSXXXX#R1(OH#R1)#R2(CH_2-CH_3#R2)#BCV)", "2-ethylphenol"},
    {"#BCV(SXSXSX#R1(OH#R1)#R3(CH_2-CH_3#R3)#R5(H_3C#R5)#BCV)", "3-ethyl-5-methylphenol"},
    {"#BCV(SXSXXX#R1(OH#R1)#R3([RRAD]#R3)#BCV)", "&+Im&-I-[RRAD]phenol"},
    {"#BCV(SXXSXX#R1(OH#R1)#R4(CH_3#R4)#BCV)", "&+Ip&-I-methylphenol"},
    {"#BCV(SXSXXX#R1(OH#R1)#R3(OH#R3)#BCV)", "1,3-benzenediol / resorcinol"},
};

constexpr Par kEteres[] = {
    {"CH_3-O-CH_3", "Dimethyl ether"},
    {"CH_3-O-CH_2-CH_3", "Ethyl methyl ether"},
    {"CH_3-CH_2-O-CH_2-CH_3", "Diethyl ether / ether"},
    {"CH_3-O-CH_2-CH_2-CH_3", "Methyl propyl ether"},
    {"CH_3-CH_2-O-CH_2-CH_2-CH_3", "Ethyl propyl ether"},
    {"CH_3-CH_2-CH_2-O-CH_2-CH_2-CH_3", "Dipropyl ether"},
    {"#A4I(SXXX#R1([LRAD]-O#R1)#A4I)", "Cyclobutyl [LRAD] ether"},
    {"#A4I(SXXX#R1(#A4D(SXXX#R1(O#R1)#A4D)#R1)#A4I)", "Dicyclobutyl ether"},
    {"#A6I(SXXXXX#R1([LRAD]-O#R1)#A6I)", "Cyclohexyl [LRAD] ether"},
    {"#A6I(SXXXXX#R1(#A6D(SXXXXX#R1(O#R1)#A6D)#R1)#A6I)", "Dicyclohexyl ether"},
    {"#BCH(XSXXXX#R2(O-CH_3#R2)#BCH)", "Methyl phenyl ether"},
    {"#BCH(XSXXXX#R2(O-CH_2-CH_3#R2)#BCH)", "Ethyl phenyl ether"},
    {"#BCH(XSXXXX#R2(O-CH_2-CH_2-CH_3#R2)#BCH)", "Phenyl propyl ether"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(O#R2)#BCH)#R5)#BCH)", "Diphenyl ether"},
};

constexpr Par kMixtos[] = {
    {"H-#UDB(CDX#R1(O#R1)#UDB)-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "3-oxopropanoic acid"},
    {"H-#UDB(CDX#R1(O#R1)#UDB)-CH_2-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "4-oxobutanoic acid"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)-OH", "2-oxopropanoic / pyruvic acid"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-CH_2-#UDB(CDX#R1(O#R1)#UDB)-OH", "3-oxobutanoic acid"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-#UDB(CDX#R1(O#R1)#UDB)H", "2-hydroxypropanal"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-CH_2-#UDB(CDX#R1(O#R1)#UDB)H", "3-hydroxybutanal"},
    {"CH_3-#UDB(CSX#R1(OH#R1)#UDB)H-#UDB(CSX#R1(OH#R1)#UDB)H-#UDB(CDX#R1(O#R1)#UDB)H",
     "2,3-dihydroxybutanal"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)H", "2-oxopropanal"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-CH_2-#UDB(CDX#R1(O#R1)#UDB)H", "3-oxobutanal"},
    {"CH_3-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)-#UDB(CDX#R1(O#R1)#UDB)H",
     "2,3-dioxobutanal"},
};

}  // namespace

Bloques FilasOxigenados() {
  return {kAcidos, kAldehidos, kCetonas, kAlcoholes, kEsteres, kFenoles, kEteres, kMixtos};
}

}  // namespace ss::mod::ATEM_QUIM_FOR
