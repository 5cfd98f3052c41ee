// What both extruded polygons share: the outlines, the walls and the caps of a prism.
#pragma once

#include "generators/figures.h"

namespace marlogl {

enum CapPosition { bottom, top };

/// A cap: which, its face slot, and the slot before the texture positions of its corners.
struct Cap {
    CapPosition position;
    int face, before_positions;
};

/// A prism over outlines of n corners: the bottom one has the points 0 to n - 1, the top one n to 2n - 1. n
/// is what the design file says; where it is no whole number, loops run while their counter is not above it.
struct Prism {
    Pen &pen;
    double n = pen.cell(11);
    bool flat = pen.cell(13) == 0; // else the outline stands upright

    /// Records the outline whose corners stand in the slots after `before`: a flat one on the level `z`, an
    /// upright one behind `y`, moved by `shift` along x and up by `lift`.
    void record_outline(int before, double z, double y, double shift = 0, double lift = 0) const;

    /// The points of wall `i`, 1 to n: counter-clockwise for a viewer outside when a flat outline runs
    /// counter-clockwise seen from above.
    std::array<double, 4> wall_points(double i) const;

    /// Whether the top outline turns clockwise where it starts: seen from above for a flat outline, else from
    /// the front.
    bool turns_clockwise() const;

    /// Draws the cap as one n-gon.
    void draw_ngon_cap(const Cap &cap, bool reversed = false) const;

    /// Draws the cap as the triangles whose corners the attributes of points 1 to n - 2 name by their
    /// `codes`: the character at position k names corner k. A triangle with another character is left out.
    /// `opposite` turns each.
    void draw_triangle_cap(const Cap &cap, std::string_view codes, bool opposite = false) const;

  private:
    double first_point(const Cap &cap) const { return cap.position == bottom ? 0 : n; }
};

} // namespace marlogl
