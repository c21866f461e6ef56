// Rings and benzene derivatives.
//
// How the structures are drawn:
// - a ring vertex holds the hydrogens its bonds leave free, so a vertex joined
//   to anything carries a single bond letter, and what it is joined to is the
//   label at the end of that bond;
// - a group that binds at its right end ([LRAD], "CH_3-CH_2-CH_2") hangs on a
//   vertex to the left of the ring; one that binds at its left end ([RRAD])
//   stands on the top vertex or on one to the right;
// - two rings joined by a chain: the second ring is the left label of the
//   first, and the chain the label of its right vertex, so both bonds of the
//   chain are ring bonds; the taller ring is the first, whose box holds the
//   line's height;
// - a ring on a ring is the label of the other's bond, its own single bond
//   drawn along that bond;
// - a double or triple side is named by "&EC=", side k running from vertex k
//   to vertex k + 1.
#include "modules/ATEM_QUIM_FOR/organica.h"

namespace ss::mod::ATEM_QUIM_FOR {
namespace {

// Small rings with a triple bond cannot close round it (the triple bond wants
// a straight line of four atoms); cyclooctyne is the smallest that keeps. The
// rows after the cycloalkenes are dienes and that alkyne.
constexpr Par kCiclos[] = {
    {"#BCV(#BCV)", "Benzene"},
    {"#A3V(#A3V)", "Cyclopropane"},
    {"#A4V(#A4V)", "Cyclobutane"},
    {"#A5V(#A5V)", "Cyclopentane"},
    {"#A6V(#A6V)", "Cyclohexane"},
    {"#A7V(#A7V)", "Cycloheptane"},
    {"#A3V(&EC=SDS:#A3V)", "Cyclopropene"},
    {"#A4V(&EC=SDSS:#A4V)", "Cyclobutene"},
    {"#A5V(&EC=SDSSS:#A5V)", "Cyclopentene"},
    {"#A6V(&EC=SDSSSS:#A6V)", "Cyclohexene"},
    {"#A5V(&EC=SDSDS:#A5V)", "1,3-cyclopentadiene"},
    {"#A6V(&EC=SDSDSS:#A6V)", "1,3-cyclohexadiene"},
    {"#A6V(&EC=SDSSDS:#A6V)", "1,4-cyclohexadiene"},
    {"#A8V(&EC=TSSSSSSS:#A8V)", "Cyclooctyne"},
    {"#A3V(SXX#R1([RRAD]#R1)#A3V)", "[RRAD]cyclopropane"},
    {"#A4V(SXXX#R1([RRAD]#R1)#A4V)", "[RRAD]cyclobutane"},
    {"#A5V(SXXXX#R1([RRAD]#R1)#A5V)", "[RRAD]cyclopentane"},
    {"#A6V(SXXXXX#R1([RRAD]#R1)#A6V)", "[RRAD]cyclohexane"},
    // The group on vertex 1, at the left; the double bond on side 2, so that
    // vertex 1 is carbon 3, next to carbon 1.
    {"#A3I(SXX&EC=SDS:#R1([LRAD]#R1)#A3I)", "3-[LRAD]cyclopropene"},
    {"#A4I(SXXX&EC=SDSS:#R1([LRAD]#R1)#A4I)", "3-[LRAD]cyclobutene"},
    {"#A5I(SXXXX&EC=SDSSS:#R1([LRAD]#R1)#A5I)", "3-[LRAD]cyclopentene"},
    {"#A6I(SXXXXX&EC=SDSSSS:#R1([LRAD]#R1)#A6I)", "3-[LRAD]cyclohexene"},
    {"#A4I(SXXX#R1(#A4D(SXXX#R1(CH_2-CH_2#R1)#A4D)#R1)#A4I)", "1,2-dicyclobutylethane"},
    {"#A4I(SXXX#R1(#A3D(SXX#R1(CH_2-CH_2#R1)#A3D)#R1)#A4I)", "1-cyclobutyl-2-cyclopropylethane"},
    {"#A4I(SXXX#R1(#A5D(SXXXX#R1(CH_2-CH_2#R1)#A5D)#R1)#A4I)", "1-cyclobutyl-2-cyclopentylethane"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(CH_2-CH_2#R2)#BCH)#R5)#BCH)", "1,2-diphenylethane"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(CH_2-CH_2-CH_2#R2)#BCH)#R5)#BCH)", "1,3-diphenylpropane"},
    {"#BCH(XXXXSX#R5(#BCH(XSXXXX#R2(CH_2-CH_2-CH_2-CH_2#R2)#BCH)#R5)#BCH)", "1,4-diphenylbutane"},
    {"#A5D(SXXXX#R1(CH_2-CH&=CH_2#R1)#A5D)", "3-cyclopentyl-1-propene"},
    {"#A4I(SXXX#R1(#BCH(XSXXXX#R2(CH_2-CH_2-CH_2#R2)#BCH)#R1)#A4I)", "1-cyclobutyl-3-phenylpropane"},
    {"#A4I(SXXX#R1(#A6D(SXXXXX#R1(CH_2-CH_2#R1)#A6D)#R1)#A4I)", "1-cyclobutyl-2-cyclohexylethane"},
    // Benzene with the first group on the top vertex: vertex 2 is ortho to
    // it, 3 meta, 4 para.
    {"#BCV(SXXXXX#R1(CH_3#R1)#BCV)", "Methylbenzene / toluene"},
    {"#BCV(SSXXXX#R1(CH_3#R1)#R2(CH_3#R2)#BCV)", "&+Io&-I-dimethylbenzene / &+Io&-I-xylene"},
    {"#BCV(SXSXXX#R1(CH_3#R1)#R3(CH_3#R3)#BCV)", "&+Im&-I-dimethylbenzene / &+Im&-I-xylene"},
    {"#BCV(SXXSXX#R1(CH_3#R1)#R4(CH_3#R4)#BCV)", "&+Ip&-I-dimethylbenzene / &+Ip&-I-xylene"},
    {"#BCV(SXSXSX#R1(CH_3#R1)#R3(CH_3#R3)#R5(H_3C#R5)#BCV)", "1,3,5-trimethylbenzene / mesitylene"},
    {"#BCV(SXXXXX#R1(CH_2-CH_3#R1)#BCV)", "Ethylbenzene"},
    {"#BCH(XSXXXX#R2(CH_2-CH_2-CH_3#R2)#BCH)", "Propylbenzene"},
    {"#BCH(XSXXXX#R2(CH_2-CH_2-CH_2-CH_3#R2)#BCH)", "Butylbenzene"},
    {"#BCV(SXSXXX#R1(CH_2-CH_3#R1)#R3(CH_2-CH_2-CH_3#R3)#BCV)", "1-ethyl-3-propylbenzene"},
    {"#BCV(SXSXSX#R1(CH_2-CH_3#R1)#R3(CH_3#R3)#R5(CH_3-CH_2-CH_2#R5)#BCV)",
     "1-ethyl-3-methyl-5-propylbenzene"},
    {"#BCH(XSXXXX#R2(#A4I(SXXX#A4I)#R2)#BCH)", "Cyclobutylbenzene"},
    // The flat-topped benzene has its para vertices 2 and 5 on the line; the
    // upright one its meta vertices 2 and 6 on either side.
    {"#BCH(XSXXSX#R2(#A4I(SXXX#A4I)#R2)#R5([LRAD]#R5)#BCH)", "1-cyclobutyl-4-[LRAD]benzene"},
    {"#BCV(XSXXXS#R2(#A4I(SXXX#A4I)#R2)#R6([LRAD]#R6)#BCV)", "1-cyclobutyl-3-[LRAD]benzene"},
};

}  // namespace

Bloques FilasCiclos() { return {kCiclos}; }

}  // namespace ss::mod::ATEM_QUIM_FOR
