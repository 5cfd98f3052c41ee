// Two-sided extruded polygon: a prism over an outline of up to 10 corners, seen from inside and from outside.
#include "emit/output.h"
#include "generators/generators.h"
#include "generators/structures/prism.h"

namespace marlogl {

namespace {

constexpr int before_top_outline = 10; // the outlines stand in slots 1 to 10 and 11 to 20

// By side: inside, outside.
constexpr Cap caps[][2] = {
    {{bottom, 23, 120}, {top, 24, 130}},
    {{bottom, 11, 100}, {top, 12, 110}},
};
constexpr int before_walls[] = {12, 0};
constexpr int before_wall_positions[] = {57, 17};

// What an upright outline is moved by, along x and up.
struct Move {
    double shift, lift;
};

Move bottom_move()
{
    const double direction = cell(18);
    return {direction == 0 ? -cell(16) : direction == 1 ? cell(16) : 0, cell(19) == 0 ? cell(17) : 0};
}

Move top_move()
{
    const double direction = cell(18);
    return {direction == 2 ? -cell(16) : direction == 3 ? cell(16) : 0, cell(19) == 1 ? cell(17) : 0};
}

void record_outlines(double n, bool flat)
{
    const double ground = cell(58), height = cell(2);
    const auto record_upright = [&](int before, Move move, double y) {
        for (double j = 1; j <= n; ++j)
            record(point_x(j + before, current_object) + move.shift, y,
                   ground + point_y(j + before, current_object) + move.lift);
    };
    if (flat) {
        for (double j = 1; j <= n; ++j)
            record(point_x(j, current_object), point_y(j, current_object), ground);
        for (double j = 1; j <= n; ++j)
            record(point_x(j + before_top_outline, current_object),
                   point_y(j + before_top_outline, current_object), ground + height + cell(45 + j));
    } else {
        const Span thickness = centred(height);
        record_upright(0, bottom_move(), thickness.low);
        record_upright(before_top_outline, top_move(), thickness.high);
    }
}

// Writes wall `i` through its points or through their opposite order, with the writer that the turn of the
// outline wants on this side.
void write_wall(Side side, bool flat, bool turn, double i, double n)
{
    const bool upright_inside = side == inside && !flat;
    const bool straight = upright_inside ? !turn : turn;
    auto [p1, p2, p3, p4] = wall_points(i, n);
    if (side == outside || (upright_inside && !turn)) {
        std::swap(p1, p4);
        std::swap(p2, p3);
    }
    (straight ? write4a : write4ar)("", before_walls[side] + i, p1, p2, p3, p4,
                                    4 * i + before_wall_positions[side], "");
}

// The hexadecimal digits of 1 to n, one after the other.
std::string corner_codes(double n)
{
    std::string codes;
    for (double j = 1; j <= n; ++j)
        codes += text_of(hex(j));
    return codes;
}

} // namespace

void save_poly()
{
    remember_texture("9999999999");
    const double n = cell(11);
    const bool flat = cell(13) == 0;
    record_outlines(n, flat);
    const bool turn = wall_turn(flat, n);

    for (const Side side : {inside, outside}) {
        set_view_side(side);
        for (double i = 1; i <= n; ++i)
            write_wall(side, flat, turn, i, n);
        for (const Cap &cap : caps[side]) {
            if (cell(4) == 1) {
                write_triangle_cap(cap, n, corner_codes(n), side == inside);
            } else {
                const bool reversed = side == inside && cell(13) == 1 && cell(cap.t + 20) == 1;
                write_ngon_cap(cap, n, reversed ? "Y" : "N");
            }
        }
    }
}

} // namespace marlogl
