// Extruded polygon: a prism over an outline of up to 20 corners, seen from outside.
#include "generators/structures/prism.h"

namespace marlogl {

namespace {

constexpr int before_top_outline = 20; // the outlines stand in slots 1 to 20 and 21 to 40
constexpr Cap caps[] = {
    {bottom, 21, 120},
    {top,    22, 140},
};

} // namespace

void draw_extruded_polygon(Pen &pen)
{
    const Prism prism{pen};
    const double ground = pen.cell(58), height = pen.cell(2);
    const Span thickness = centred(height);
    prism.record_outline(0, ground, thickness.low);
    prism.record_outline(before_top_outline, ground + height, thickness.high);

    const bool reversed = prism.turns_clockwise();
    pen.choose_side(outside);
    for (int i = 1; i <= prism.n; ++i) {
        const FaceSlots slots{i, 4 * i + 37};
        if (reversed)
            pen.reversed_quad(slots, prism.wall_points(i));
        else
            pen.quad(slots, prism.wall_points(i));
    }

    constexpr std::string_view codes = "123456789ABCDEFGHIJK";
    const auto named = static_cast<std::size_t>(std::clamp(round_half_even(prism.n), 0.0, 20.0));
    for (const Cap &cap : caps)
        if (pen.cell(4) == 1)
            prism.draw_triangle_cap(cap, codes.substr(0, named));
        else
            prism.draw_ngon_cap(cap);
}

} // namespace marlogl
