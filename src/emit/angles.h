// Sine and cosine of whole degrees.
#pragma once

namespace marlogl {

/// Cosine and sine of an angle of 0 to 359 whole degrees, with 3.1415926 for pi: the exact values rounded to
/// double, the same with every compiler and library.
double cosine(int degrees);
double sine(int degrees);

} // namespace marlogl
