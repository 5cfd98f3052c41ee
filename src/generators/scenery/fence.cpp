// Fence: a rail along the points, and posts at some of them.
#include "generators/figures.h"

namespace marlogl {

void draw_fence(Pen &pen)
{
    const ColourTable &colours = pen.to.colours();
    const double count = pen.cell(point_count_cell), foot = pen.cell(58), top = foot + pen.cell(1);
    if (count == 0)
        return;
    const auto attribute = [&](double i) -> const Text<4> & { return pen.object.point_texts(i).attribute; };
    const auto point_line = [&](double i, double z) {
        const Point &point = pen.object.points(i);
        vertex_line(pen.out(), point.x, point.y, z);
    };

    colour_line(pen.out(), colours(colour_number(numeric_value(pen.object.codes(1)), 1)));
    pen.out().line(begin_lines);
    for (double i = 1; i <= count; ++i) {
        const bool rail = attribute(i)(4) == 'L', interrupted = attribute(i)(2) == 'S';
        if (rail && !interrupted) {
            point_line(i - 1, top);
            point_line(i, top);
        }
    }
    for (double i = 1; i <= count; ++i) {
        if (attribute(i)(4) == 'P') {
            point_line(i, foot);
            point_line(i, top);
        }
    }
    pen.out().line(end_block);
}

} // namespace marlogl
