// Pole with pennant: a line, and a triangle that is seen from both sides.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

void save_panel()
{
    const double foot = cell(58), pole = cell(3), height = cell(2), length = cell(1);
    const double top = foot + height + pole, low = foot + pole;
    const double tip = foot + pole + whole(height / 2);

    write_line("glColor3ub( 192, 192, 192 ); ");
    begin_lines_line();
    vertex_line(0, 0, foot);
    vertex_line(0, 0, top);
    if (!trimmed(object_code(1, current_object)).empty()) {
        const Text<11> &colour = object_colour(2, current_object);
        gl_end_line();
        write_line("glColor3ub( ", columns(colour, 3, 5), ", ", columns(colour, 6, 8), ", ",
                   columns(colour, 9, 11), " ) ;  ");
        begin_polygon_line();
        vertex_line(0, 0, top);
        vertex_line(length, 0, tip);
        vertex_line(0, 0, low);
        gl_end_line();
        begin_polygon_line();
        vertex_line(0, 0, low);
        vertex_line(length, 0, tip);
        vertex_line(0, 0, top);
    }
    gl_end_line();
}

} // namespace marlogl
