// Guyed mast: a thin square mast of stacked segments, held by two sets of four guy lines.
#include "generators/figures.h"
#include "generators/generators.h"

#include <algorithm>

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

bool has_guy_set(int slot)
{
    return object_code(slot, current_object) != "  ";
}

// Records four anchors on the ground and four ends at the mast.
void record_guy_set(double distance, double height)
{
    const double ground = 2 * cell(58);
    for (const auto &[end, direction] : guy_lines)
        record(end.x + 2 * distance * fncos(direction), end.y + 2 * distance * fnsin(direction), ground);
    for (const auto &[end, direction] : guy_lines)
        record(end.x, end.y, height);
}

void write_guy_set(double first_point)
{
    for (int m = 0; m < guys; ++m) {
        vertex_line(first_point + m);
        vertex_line(first_point + guys + m);
    }
}

void write_segment(double j)
{
    const double lower = corners * (j - 1), upper = corners * j;
    for (const int c : {1, 2, 3, 0}) {
        const int d = next(c, corners);
        begin_polygon_line();
        for (const double point : {lower + c, upper + c, upper + d, lower + d})
            vertex_line(point);
        gl_end_line();
    }
}

} // namespace

void save_mast()
{
    List1.clear();
    List2.clear();
    if (cell(31) == 1)
        vertex_copy_flag = "Y";
    const double base = cell(58), segments = cell(6);
    const double low = 2 * base, top = 2 * (base + cell(3) + cell(4) + cell(5));
    const double step =
        quotient(2 * (cell(3) + cell(4) + cell(5)), segments, "the number of segments (cell 6)");

    double height = low;
    for (double level = 0; level <= segments; ++level) {
        for (const auto &[x, y] : mast_corners)
            record(x, y, height);
        height = std::min(height + step, top);
    }
    double first_guys = 0, second_guys = 0;
    if (has_guy_set(3)) {
        first_guys = corners * (segments + 1);
        record_guy_set(cell(1), 2 * (base + cell(3)));
    }
    if (has_guy_set(4)) {
        second_guys = vertex_count;
        record_guy_set(cell(2), 2 * (base + cell(3) + cell(4)));
    }

    for (double j = 1; j <= segments; ++j) {
        const bool odd = j == 1 || j == 3 || j == 5 || j == 7;
        colour_line(object_colour(odd ? 1 : 2, current_object));
        write_segment(j);
    }
    colour_line(object_colour(3, current_object));
    begin_lines_line();
    write_guy_set(first_guys);
    colour_line(object_colour(4, current_object));
    write_guy_set(second_guys);
    gl_end_line();
    vertex_copy_flag = "N";
    work_flag = false;
}

} // namespace marlogl
