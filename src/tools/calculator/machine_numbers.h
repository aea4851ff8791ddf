#pragma once
#include <QString>

// The numbers of the adding machine: doubles, worked through the fifteen digits that a person would write.

// The sum of two values as their decimal texts give it: 0.1 and 0.2 make 0.3.
double decimalSum(double a, double b);

// In the format "#0." and this many zeros, halves away from zero: "8.00", "8." with no place. A value that
// needs more than fifteen digits there shows in exponent form: "1.5E+20".
QString fixedText(double value, int places);
// All its digits, at least a point: "0.4125", "15.".
QString wholeText(double value);
// In "0.0##############"; a value too small for that in exponent form.
QString fractionText(double value);
