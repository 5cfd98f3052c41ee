// Beam: runs of points, each drawn as a fan of triangles around its apex, seen from both sides.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

const Text<4> &attribute(double i)
{
    return point_attr(i, current_object);
}

bool takes_part(double i)
{
    return attribute(i)(3) == 'P';
}

bool starts_run(double i)
{
    return attribute(i)(2) == 'S';
}

bool skips_closing(double i)
{
    return attribute(i)(4) == 'V';
}

void record_points(double count, bool upright)
{
    const double base = cell(58), offset = cell(2), rise = cell(5);
    for (double i = 1; i <= count; ++i) {
        if (!takes_part(i))
            continue;
        const double px = point_x(i, current_object), py = point_y(i, current_object);
        if (upright) {
            if (starts_run(i))
                record(px, base, py + rise);
            record(px, base + rise - offset, py + rise);
        } else {
            if (starts_run(i))
                record(px, py, base + rise);
            record(px, py, base + rise - offset);
        }
    }
}

void write_triangle(int p1, int p2, int p3)
{
    begin_polygon_line();
    for (const int point : {p1, p2, p3})
        vertex_line(point);
    gl_end_line();
}

// The drawing so far. The points are counted again, from the runs alone: a first point that starts no run was
// recorded as point 0, and counts as 1 here.
struct Fan {
    bool doubled;
    int apex = 0, first = 0, previous = 0, last = 0;

    void write_pairs(int p1, int p2, int p3) const
    {
        for (int time = 0; time < (doubled ? 2 : 1); ++time) {
            write_triangle(p1, p2, p3);
            write_triangle(p3, p2, p1);
        }
    }

    void close() const { write_pairs(previous, apex, first); }
};

} // namespace

void save_beam()
{
    const double count = cell(50);
    if (count < 1)
        return;
    const bool upright = cell(11) == 1;
    record_points(count, upright);
    if (vertex_count == 0)
        return;

    colour_line(object_colour(1, current_object));
    Fan fan{upright && is_true(12)};
    bool open = false;
    int length = 0;
    for (double i = 1; i <= count; ++i) {
        if (!takes_part(i))
            continue;
        if (starts_run(i)) {
            if (open) {
                if (!skips_closing(i))
                    fan.close();
                ++fan.last;
            }
            open = true;
            length = 0;
            fan.apex = fan.last;
            fan.first = fan.previous = ++fan.last;
        } else {
            ++fan.last;
            if (++length > 1)
                fan.write_pairs(fan.previous, fan.apex, fan.last);
            fan.previous = fan.last;
        }
    }
    if (!skips_closing(count))
        fan.close();
}

} // namespace marlogl
