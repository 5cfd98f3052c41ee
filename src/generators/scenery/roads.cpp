// Road: cross lines and edges along a profile, and the surfaces of the road and of its two ends. It runs
// along y.
#include "generators/figures.h"

namespace marlogl {

namespace {

void wire_line(Output &out, double x, double y, double z)
{
    out.line("      glVertex3d( ", p0(x), ", ", p0(y), ", ", p0(z), " ) ;");
}

void draw_wire_frame(Pen &pen, Span width, double count)
{
    const double elevation = pen.cell(58);
    const auto profile_line = [&](double x, double i) {
        const Point &point = pen.object.points(i);
        wire_line(pen.out(), x, point.x, point.y + elevation);
    };
    for (double i = 1; i <= count; ++i) {
        if (pen.object.point_texts(i).attribute(1) == 'Y') {
            profile_line(width.low, i);
            profile_line(width.high, i);
        }
    }
    for (double i = 2; i <= count; ++i) {
        if (pen.object.point_texts(i).attribute(2) == 'S')
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

// Writes one side over points 0 to 3, but for the line that ends it. The upper side runs from point 3 to 0,
// and its normal stands before the last corner. A side is textured when it has a texture's name.
void begin_side(Pen &pen, bool upper)
{
    const int slot = upper ? 1 : 2, first_cell = upper ? 11 : 15;
    const std::string_view texture = trimmed(pen.object.texts(slot));
    if (texture.empty())
        return;
    enum Edge { ua, va, ub, vb };
    const auto corner = [&](int point, Edge u, Edge v) {
        texture_line(pen.out(), pen.cell(first_cell + u), pen.cell(first_cell + v));
        pen.vertex(point);
    };
    bind_lines(pen.out(), texture);
    pen.out().line(begin_polygon);
    if (upper) {
        corner(3, ub, vb);
        corner(2, ub, va);
        corner(1, ua, va);
    }
    normal_line(pen.out(), 0, 0, upper ? 1 : -1);
    corner(0, ua, vb);
    if (!upper) {
        corner(1, ua, va);
        corner(2, ub, va);
        corner(3, ub, vb);
    }
}

// Draws the lower and the upper side of a surface, but for the line that ends the upper one.
void draw_surface(Pen &pen, Span width, const Surface &surface)
{
    const double rise = pen.cell(58);
    pen.to.vertices.restart();
    pen.record(width.low, surface.start, surface.start_height);
    pen.record(width.low, surface.end, surface.end_height);
    pen.record(width.high, surface.end, surface.end_height + rise);
    pen.record(width.high, surface.start, surface.start_height + rise);
    begin_side(pen, false);
    pen.out().line(end_block);
    begin_side(pen, true);
}

// A length in two halves, the second with the odd unit.
struct Halves {
    explicit Halves(double length) : smaller(std::floor(length / 2)), larger(length - smaller) {}
    double smaller, larger;
};

void draw_surfaces(Pen &pen, Span width)
{
    const double inner_height_1 = pen.cell(57), inner_height_2 = pen.cell(54);
    const Halves a(pen.cell(38)), m(pen.cell(1)), b(pen.cell(39));
    if (pen.cell(38) > 0) {
        draw_surface(
            pen, width,
            {-a.larger - (a.larger + m.smaller), a.smaller - (a.larger + m.smaller), 0, inner_height_1});
        pen.out().line(end_block);
    }
    if (pen.cell(39) > 0) {
        draw_surface(pen, width,
                     {m.larger - b.larger + b.smaller, b.smaller + m.larger + b.smaller, inner_height_2, 0});
        pen.out().line(end_block);
    }
    draw_surface(pen, width, {-m.larger, m.smaller, inner_height_2, inner_height_1});
}

} // namespace

void draw_roads(Pen &pen)
{
    const double count = pen.cell(point_count_cell), road_width = pen.cell(2);
    if (count == 0)
        return;
    const ColourTable &colours = pen.to.colours();
    const Span width = centred(road_width);

    colour_line(pen.out(), colours(colour_number(numeric_value(pen.object.point_texts(1).colour), 1)));
    pen.out().line(begin_lines);
    draw_wire_frame(pen, width, count);
    if (road_width > 0 && pen.cell(31) != 3) {
        pen.out().line(end_block);
        draw_surfaces(pen, width);
    }
    pen.out().line(end_block);
}

} // namespace marlogl
