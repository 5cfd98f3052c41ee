// Two-sided extruded polygon: a prism over an outline of up to 10 corners, seen from inside and from outside.
#include "generators/structures/prism.h"

namespace marlogl {

namespace {

constexpr int before_top_outline = 10; // the outlines stand in slots 1 to 10 and 11 to 20

// By side: inside, outside.
constexpr Cap caps[][2] = {
    {{bottom, 23, 120}, {top, 24, 130}},
    {{bottom, 11, 100}, {top, 12, 110}},
};
constexpr FaceSlots before_walls[] = {
    {12, 57},
    {0,  17}
};

void record_outlines(const Prism &prism)
{
    Pen &pen = prism.pen;
    const double ground = pen.cell(58), height = pen.cell(2), direction = pen.cell(18), amount = pen.cell(16);
    const Span thickness = centred(height);
    // How an upright outline is moved along x, and lifted, by its numbers in cells 18 and 19.
    const auto shift = [&](double back, double forth) {
        return direction == back ? -amount : direction == forth ? amount : 0;
    };
    const auto lift = [&](double lifted) { return pen.cell(19) == lifted ? pen.cell(17) : 0; };
    prism.record_outline(0, ground, thickness.low, shift(0, 1), lift(0));
    if (!prism.flat)
        return prism.record_outline(before_top_outline, 0, thickness.high, shift(2, 3), lift(1));
    for (double j = 1; j <= prism.n; ++j) {
        const Point &corner = pen.object.points(j + before_top_outline);
        pen.record(corner.x, corner.y, ground + height + pen.cell(45 + j));
    }
}

// Draws wall `i` through its points or through their opposite order, turned as the outline wants it on this
// side.
void draw_wall(const Prism &prism, Side side, bool turn, int i)
{
    const bool upright_inside = side == inside && !prism.flat;
    auto [p1, p2, p3, p4] = prism.wall_points(i);
    if (side == outside || (upright_inside && !turn)) {
        std::swap(p1, p4);
        std::swap(p2, p3);
    }
    const auto [before_face, before_positions] = before_walls[side];
    const FaceSlots slots{before_face + i, 4 * i + before_positions};
    if (turn != upright_inside)
        prism.pen.quad<double>(slots, {p1, p2, p3, p4});
    else
        prism.pen.reversed_quad(slots, {p1, p2, p3, p4});
}

// The hexadecimal digits of 1 to n, one after the other.
std::string corner_codes(double n)
{
    std::string codes;
    char digits[output::most_of_number];
    for (double j = 1; j <= n; ++j)
        codes.append(digits, output::put(digits, hex(j)));
    return codes;
}

} // namespace

void draw_two_sided_polygon(Pen &pen)
{
    const Prism prism{pen};
    record_outlines(prism);
    const bool turn = prism.turns_clockwise();

    for (const Side side : {inside, outside}) {
        pen.choose_side(side);
        for (int i = 1; i <= prism.n; ++i)
            draw_wall(prism, side, turn, i);
        for (const Cap &cap : caps[side]) {
            if (pen.cell(4) == 1)
                prism.draw_triangle_cap(cap, corner_codes(prism.n), side == inside);
            else
                prism.draw_ngon_cap(cap, side == inside && pen.cell(13) == 1 && pen.cell(cap.face + 20) == 1);
        }
    }
}

} // namespace marlogl
