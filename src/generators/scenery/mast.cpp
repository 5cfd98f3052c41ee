// Guyed mast: a thin square mast of stacked segments, held by two sets of four guy lines.
#include "generators/figures.h"

namespace marlogl {

namespace {

struct Position {
    double x, y;
};

//   1 -- 2   ^ y
//   |    |   |
//   0 -- 3   +--> x
constexpr Position mast_corners[] = {
    {-1, -1},
    {-1, 1 },
    {1,  1 },
    {1,  -1},
};

// Where each line of a guy set ends at the mast, and the direction in which it leaves.
constexpr struct {
    Position end;
    int direction;
} guy_lines[] = {
    {{1, 1},   45 },
    {{1, -1},  135},
    {{-1, -1}, 225},
    {{-1, 1},  315},
};

constexpr int guys = 4, corners = 4;

bool has_guy_set(Pen &pen, int slot)
{
    return pen.object.codes(slot) != "  ";
}

// Records four anchors on the ground and four ends at the mast.
void record_guy_set(Pen &pen, double distance, double height)
{
    const double ground = 2 * pen.cell(58);
    for (const auto &[end, direction] : guy_lines)
        pen.record(end.x + 2 * distance * cosine(direction), end.y + 2 * distance * sine(direction), ground);
    for (const auto &[end, direction] : guy_lines)
        pen.record(end.x, end.y, height);
}

void draw_guy_set(Pen &pen, double first_point)
{
    for (int m = 0; m < guys; ++m) {
        pen.vertex(first_point + m);
        pen.vertex(first_point + guys + m);
    }
}

void draw_segment(Pen &pen, double j)
{
    const double lower = corners * (j - 1), upper = corners * j;
    for (const int c : {1, 2, 3, 0}) {
        const int d = next(c, corners);
        draw_plain_polygon(pen, std::array{lower + c, upper + c, upper + d, lower + d});
    }
}

} // namespace

void draw_mast(Pen &pen)
{
    pen.short_coordinates = pen.cell(31) == 1;
    const double base = pen.cell(58), segments = pen.cell(6);
    const double low = 2 * base, top = 2 * (base + pen.cell(3) + pen.cell(4) + pen.cell(5));
    const double step =
        quotient(2 * (pen.cell(3) + pen.cell(4) + pen.cell(5)), segments, "the number of segments (cell 6)");

    double height = low;
    for (double level = 0; level <= segments; ++level) {
        for (const auto &[x, y] : mast_corners)
            pen.record(x, y, height);
        height = std::min(height + step, top);
    }
    double first_guys = 0, second_guys = 0;
    if (has_guy_set(pen, 3)) {
        first_guys = corners * (segments + 1);
        record_guy_set(pen, pen.cell(1), 2 * (base + pen.cell(3)));
    }
    if (has_guy_set(pen, 4)) {
        second_guys = pen.count();
        record_guy_set(pen, pen.cell(2), 2 * (base + pen.cell(3) + pen.cell(4)));
    }

    for (double j = 1; j <= segments; ++j) {
        const bool odd = j == 1 || j == 3 || j == 5 || j == 7;
        colour_line(pen.out(), pen.object.colours(odd ? 1 : 2));
        draw_segment(pen, j);
    }
    colour_line(pen.out(), pen.object.colours(3));
    pen.out().line(begin_lines);
    draw_guy_set(pen, first_guys);
    colour_line(pen.out(), pen.object.colours(4));
    draw_guy_set(pen, second_guys);
    pen.out().line(end_block);
}

} // namespace marlogl
