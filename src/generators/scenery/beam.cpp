// Beam: runs of points, each drawn as a fan of triangles around its apex, seen from both sides.
#include "generators/figures.h"

namespace marlogl {

namespace {

// What the attribute of a point says.
struct BeamPoint {
    const Text<4> &attribute;

    bool takes_part() const { return attribute(3) == 'P'; }
    bool starts_run() const { return attribute(2) == 'S'; }
    bool skips_closing() const { return attribute(4) == 'V'; }
};

void record_points(Pen &pen, double count, bool upright)
{
    const double base = pen.cell(58), offset = pen.cell(2), rise = pen.cell(5);
    for (double i = 1; i <= count; ++i) {
        const BeamPoint point{pen.object.point_texts(i).attribute};
        if (!point.takes_part())
            continue;
        const double px = pen.object.points(i).x, py = pen.object.points(i).y;
        if (upright) {
            if (point.starts_run())
                pen.record(px, base, py + rise);
            pen.record(px, base + rise - offset, py + rise);
        } else {
            if (point.starts_run())
                pen.record(px, py, base + rise);
            pen.record(px, py, base + rise - offset);
        }
    }
}

// The drawing so far. The points are counted again, from the runs alone: a first point that starts no run was
// recorded as point 0, and counts as 1 here.
struct Fan {
    Pen &pen;
    bool doubled;
    int apex = 0, first = 0, previous = 0, last = 0;

    void draw_pairs(int p1, int p2, int p3) const
    {
        for (int time = 0; time < (doubled ? 2 : 1); ++time) {
            draw_plain_polygon(pen, std::array{p1, p2, p3});
            draw_plain_polygon(pen, std::array{p3, p2, p1});
        }
    }

    void close() const { draw_pairs(previous, apex, first); }
};

} // namespace

void draw_beam(Pen &pen)
{
    const double count = pen.cell(point_count_cell);
    if (count < 1)
        return;
    const bool upright = pen.cell(11) == 1;
    record_points(pen, count, upright);
    if (pen.count() == 0)
        return;

    colour_line(pen.out(), pen.object.colours(1));
    Fan fan{pen, upright && pen.is_true(12)};
    bool open = false;
    int length = 0;
    for (double i = 1; i <= count; ++i) {
        const BeamPoint point{pen.object.point_texts(i).attribute};
        if (!point.takes_part())
            continue;
        if (point.starts_run()) {
            if (open) {
                if (!point.skips_closing())
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
                fan.draw_pairs(fan.previous, fan.apex, fan.last);
            fan.previous = fan.last;
        }
    }
    if (!BeamPoint{pen.object.point_texts(count).attribute}.skips_closing())
        fan.close();
}

} // namespace marlogl
