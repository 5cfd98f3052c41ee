// Fence: a rail along the points, and posts at some of them.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

void save_fence()
{
    remember_texture("9999999999");
    const ColourTable colours = load_colour_table();
    const double count = cell(50), foot = cell(58), top = foot + cell(1);
    if (count == 0)
        return;
    const auto attribute = [](double i) -> const Text<4> & { return point_attr(i, current_object); };
    const auto point_line = [](double i, double z) {
        vertex_line(point_x(i, current_object), point_y(i, current_object), z);
    };

    work_flag = false;
    table_colour_line(colours(colour_number(numeric_value(object_code(1, current_object)), 1)));
    begin_lines_line();
    for (double i = 1; i <= count; ++i) {
        const bool rail = attribute(i)(4) == 'L';
        const bool interrupted = rail && attribute(i)(2) == 'S';
        if (rail && !interrupted) {
            point_line(i - 1, top);
            point_line(i, top);
        } else {
            work_flag = interrupted;
        }
    }
    for (double i = 1; i <= count; ++i) {
        if (attribute(i)(4) == 'P') {
            point_line(i, foot);
            point_line(i, top);
        }
    }
    gl_end_line();
}

} // namespace marlogl
