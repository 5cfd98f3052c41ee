// Pole with pennant: a line, and a triangle that is seen from both sides.
#include "generators/figures.h"

namespace marlogl {

void draw_pennant(Pen &pen)
{
    const double foot = pen.cell(58), pole = pen.cell(3), height = pen.cell(2), length = pen.cell(1);
    const double top = foot + height + pole, low = foot + pole;
    const double tip = foot + pole + std::floor(height / 2);

    Output &out = pen.out();
    out.line("glColor3ub( 192, 192, 192 ); ");
    out.line(begin_lines);
    vertex_line(out, 0, 0, foot);
    vertex_line(out, 0, 0, top);
    if (!trimmed(pen.object.codes(1)).empty()) {
        const Text<11> &colour = pen.object.colours(2);
        out.line(end_block);
        out.line("glColor3ub( ", columns(colour, 3, 5), ", ", columns(colour, 6, 8), ", ",
                 columns(colour, 9, 11), " ) ;  ");
        out.line(begin_polygon);
        vertex_line(out, 0, 0, top);
        vertex_line(out, length, 0, tip);
        vertex_line(out, 0, 0, low);
        out.line(end_block);
        out.line(begin_polygon);
        vertex_line(out, 0, 0, low);
        vertex_line(out, length, 0, tip);
        vertex_line(out, 0, 0, top);
    }
    out.line(end_block);
}

} // namespace marlogl
