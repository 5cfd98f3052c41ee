// Road: cross lines and edges along a profile, and the surfaces of the road and of its two ends. It runs
// along y.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

void wire_line(double x, double y, double z)
{
    write_line("      glVertex3d( ", p0(x), ", ", p0(y), ", ", p0(z), " ) ;");
}

void write_wire_frame(Span width, double count)
{
    const double elevation = cell(58);
    const auto profile_line = [&](double x, double i) {
        wire_line(x, point_x(i, current_object), point_y(i, current_object) + elevation);
    };
    for (double i = 1; i <= count; ++i) {
        if (point_attr(i, current_object)(1) == 'Y') {
            profile_line(width.low, i);
            profile_line(width.high, i);
        }
    }
    for (double i = 2; i <= count; ++i) {
        if (point_attr(i, current_object)(2) == 'S')
            continue;
        for (const double x : {width.low, width.high}) {
            profile_line(x, i - 1);
            profile_line(x, i);
        }
    }
}

//   1 ----- 2     end of the surface
//   |       |
//   0 ----- 3     start
struct Surface {
    double start, end, start_height, end_height;
};

// Writes the lower and the upper side of a surface, but for the line that ends the upper one.
void write_surface(Span width, const Surface &surface)
{
    const double rise = cell(58);
    vertex_count = 0;
    record(width.low, surface.start, surface.start_height);
    record(width.low, surface.end, surface.end_height);
    record(width.high, surface.end, surface.end_height + rise);
    record(width.high, surface.start, surface.start_height + rise);
    write_roads(2, "", 0, 0, -1);
    gl_end_line();
    write_roads(1, "", 0, 0, 1);
}

// A length in two halves, the second with the odd unit.
struct Halves {
    explicit Halves(double length) : smaller(whole(length / 2)), larger(length - smaller) {}
    double smaller, larger;
};

void write_surfaces(Span width)
{
    const double inner_height_1 = cell(57), inner_height_2 = cell(54);
    const Halves a(cell(38)), m(cell(1)), b(cell(39));
    if (cell(38) > 0) {
        write_surface(width, {-a.larger - (a.larger + m.smaller), a.smaller - (a.larger + m.smaller), 0,
                              inner_height_1});
        gl_end_line();
    }
    if (cell(39) > 0) {
        write_surface(width,
                      {m.larger - b.larger + b.smaller, b.smaller + m.larger + b.smaller, inner_height_2, 0});
        gl_end_line();
    }
    write_surface(width, {-m.larger, m.smaller, inner_height_2, inner_height_1});
}

} // namespace

void save_roads()
{
    const double count = cell(50), road_width = cell(2);
    if (count == 0)
        return;
    const ColourTable colours = load_colour_table();
    const Span width = centred(road_width);
    List1.clear();

    table_colour_line(colours(colour_number(numeric_value(point_code(1, current_object)), 1)));
    begin_lines_line();
    write_wire_frame(width, count);
    if (road_width > 0 && cell(31) != 3) {
        gl_end_line();
        write_surfaces(width);
    }
    List2.clear();
    List1.clear();
    gl_end_line();
}

} // namespace marlogl
