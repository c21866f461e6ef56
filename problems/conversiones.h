// Unit conversion exercises shared by several problem modules.
//
// Each routine makes a whole exercise of lettered items in the generator
// context: GP_Statement gets the title and one line an item, GP_Solution one
// answer an item. The caller has set GP_Items, GP_SeqB and GP_MaxItems (the
// item count is bounded by it); the routines read their words through MsgMAT.
#pragma once

namespace ss {

struct GenContext;

// The seven-unit decimal ladders of the metric system.
enum class Escalera {
  Masa,              // kg .. mg, steps of 10
  Longitud,          // km .. mm, steps of 10
  Capacidad,         // kL .. mL, steps of 10
  Superficie,        // km^2 .. mm^2, steps of 100
  SuperficieAgraria, // the same, with ha, a and ca beside hm^2, dam^2 and m^2
  Volumen,           // km^3 .. mm^3, steps of 1000
  VolumenCapacidad,  // the same, with kL, L and mL beside m^3, dm^3 and cm^3
};

// Quantities, some written as sums of several units of the ladder, each to be
// expressed in one unit of it.
void ConversionesDecimales(GenContext& g, Escalera escalera);

// Temperatures among Celsius, Fahrenheit and Kelvin, in six forms that follow
// the variant counter; `inversas` turns every form the other way round.
void ConversionesTemperatura(GenContext& g, bool inversas);

// Lengths between miles, yards, feet, inches and metric units (22 forms).
void ConversionesLongitudImperial(GenContext& g);

// Masses between pounds, ounces, kilograms and grams (10 forms).
void ConversionesMasaImperial(GenContext& g);

}  // namespace ss
