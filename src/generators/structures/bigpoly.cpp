// Extruded polygon: a prism over an outline of up to 20 corners, seen from outside.
#include "generators/generators.h"
#include "generators/structures/prism.h"

namespace marlogl {

namespace {

constexpr int before_top_outline = 20; // the outlines stand in slots 1 to 20 and 21 to 40
constexpr Cap caps[] = {
    {bottom, 21, 120},
    {top,    22, 140},
};

} // namespace

void save_bigpoly()
{
    remember_texture("9999999999");
    const double n = cell(11), ground = cell(58), height = cell(2);
    const bool flat = cell(13) == 0;
    const Span thickness = centred(height);

    const auto record_outline = [&](int before, double flat_z, double upright_y) {
        for (double j = 1; j <= n; ++j) {
            const double px = point_x(j + before, current_object), py = point_y(j + before, current_object);
            if (flat)
                record(px, py, flat_z);
            else
                record(px, upright_y, ground + py);
        }
    };
    record_outline(0, ground, thickness.low);
    record_outline(before_top_outline, ground + height, thickness.high);

    const auto write_wall = wall_turn(flat, n) ? write4ar : write4a;
    set_view_side(outside);
    for (double i = 1; i <= n; ++i) {
        const auto [p1, p2, p3, p4] = wall_points(i, n);
        write_wall("", i, p1, p2, p3, p4, 4 * i + 37, "");
    }

    const std::string_view all_codes = "123456789ABCDEFGHIJK";
    const std::string_view codes =
        n < 1 ? "" : all_codes.substr(0, static_cast<std::size_t>(round_half_even(n)));
    for (const Cap &cap : caps)
        if (cell(4) == 1)
            write_triangle_cap(cap, n, codes, false);
        else
            write_ngon_cap(cap, n, "N");
}

} // namespace marlogl
