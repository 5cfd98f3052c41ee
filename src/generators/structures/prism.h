// What both extruded polygons share: the walls and the caps of a prism over an outline of n corners.
#pragma once

#include "generators/figures.h"

#include <array>
#include <string_view>

namespace marlogl {

// The bottom outline has the points 0 to n - 1, the top outline n to 2n - 1. n is what the design file says;
// where it is no whole number, loops run while their counter is not above it.

enum CapPosition { bottom, top };

/// A cap: which, its face slot, and the slot before the texture positions of its corners.
struct Cap {
    CapPosition position;
    int t, before_positions;
};

/// The points of wall `i`, 1 to n: counter-clockwise for a viewer outside when a flat outline runs
/// counter-clockwise seen from above.
std::array<double, 4> wall_points(double i, double n);

/// Whether the top outline turns clockwise where it starts: seen from above for a flat outline, else from the
/// front.
bool wall_turn(bool flat, double n);

/// Writes the cap as one n-gon. `reverse` is that of writen.
void write_ngon_cap(const Cap &cap, double n, std::string_view reverse);

/// Writes the cap as the triangles whose corners the attributes of points 1 to n - 2 name by their `codes`:
/// the character at position k names corner k. A triangle with another character is left out. `opposite`
/// turns each.
void write_triangle_cap(const Cap &cap, double n, std::string_view codes, bool opposite);

} // namespace marlogl
