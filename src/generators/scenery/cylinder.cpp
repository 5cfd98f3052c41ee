// Capped cylinder: two rings joined by sides, closed by a fan to a point at each end; upright with a railing
// and lights if wanted, or lying along y.
#include "generators/figures.h"

#include <numeric>

namespace marlogl {

namespace {

// Point 0 lies beyond ring 2, point 1 beyond ring 1, and ring 1 begins at point 2.
constexpr int upper_end = 0, lower_end = 1, ring1 = 2;

struct Cylinder {
    Ring ring;
    bool lying, has_ring2, has_railing;
    int ring2, railing; // first points; without a ring 2, ring 1 stands for it
};

void record_ring(Pen &pen, const Cylinder &cylinder, double radius, double at)
{
    const double base = pen.cell(58);
    for (int i = 0; i < cylinder.ring.count; ++i) {
        const int angle = cylinder.ring.angle(i);
        const double x = radius * sine(angle), across = radius * cosine(angle);
        if (cylinder.lying)
            pen.record(x, at, base + radius + across);
        else
            pen.record(x, across, at);
    }
}

void record_points(Pen &pen, const Cylinder &cylinder)
{
    const double base = pen.cell(58), beyond2 = pen.cell(1), between = pen.cell(2), beyond1 = pen.cell(3);
    const double radius1 = pen.cell(4) / 2, radius2 = pen.cell(5) / 2;
    double ring1_at = base + beyond1, ring2_at = base + beyond1 + between;
    if (cylinder.lying) {
        // The ends lie in the planes of their rings.
        ring1_at = -beyond1 - between / 2;
        ring2_at = beyond2 + between / 2;
        pen.record(0, ring2_at, base + radius2);
        pen.record(0, ring1_at, base + radius1);
    } else {
        pen.record(0, 0, base + beyond2 + between + beyond1);
        pen.record(0, 0, base);
    }
    record_ring(pen, cylinder, radius1, ring1_at);
    if (cylinder.has_ring2)
        record_ring(pen, cylinder, radius2, ring2_at);
    if (cylinder.has_railing)
        record_ring(pen, cylinder, radius2, base + between + beyond1 + pen.cell(6));
}

void draw_railing(Pen &pen, const Cylinder &cylinder)
{
    Output &out = pen.out();
    colour_line(out, pen.object.colours(23), " ");
    out.line(begin_lines);
    for (int i = 0; i < cylinder.ring.count; ++i) {
        pen.vertex(cylinder.ring2 + i);
        pen.vertex(cylinder.railing + i);
    }
    // The rails are not closed to a ring.
    for (int i = 0; i + 1 < cylinder.ring.count; ++i) {
        out.line(comment_prefix, "DrawToPt( ", spaced(cylinder.railing + i), " )");
        pen.vertex(cylinder.ring2 + i);
        pen.vertex(cylinder.ring2 + i + 1);
    }
    out.line(end_block);
}

void draw_faces(Pen &pen, Side side, const Cylinder &cylinder)
{
    for (int i = 0; i < cylinder.ring.count; ++i) {
        const int j = i + 1, k = next(i, cylinder.ring.count);
        draw_face(pen, side, {2, 104}, {cylinder.ring2 + k, upper_end, cylinder.ring2 + i, no_point});
        draw_face(pen, side, {1, 101}, {ring1 + i, lower_end, ring1 + k, no_point});
        if (cylinder.has_ring2)
            draw_face(pen, side, {j + 2, 4 * j + 5},
                      {ring1 + k, cylinder.ring2 + k, cylinder.ring2 + i, ring1 + i});
    }
}

} // namespace

void draw_cylinder(Pen &pen)
{
    const bool has_lights = pen.cell(31) == 1;
    pen.short_coordinates = has_lights;
    const Ring ring = pen.cell(7) == 5 ? Ring{9, 40} : selected_ring(pen.cell(7));
    const bool lying = pen.cell(18) == 1, has_ring2 = pen.cell(2) > 0;
    const int ring2 = has_ring2 ? ring1 + ring.count : ring1;
    const Cylinder cylinder{ring, lying, has_ring2, !lying && pen.cell(6) > 0, ring2, ring2 + ring.count};
    record_points(pen, cylinder);
    if (cylinder.has_railing)
        draw_railing(pen, cylinder);
    if (pen.is_true(12)) {
        pen.choose_side(outside);
        draw_faces(pen, outside, cylinder);
    }
    pen.choose_side(inside);
    draw_faces(pen, inside, cylinder);
    constexpr int unlit_count = 9;
    if (has_lights && ring.count != unlit_count) {
        std::vector<int> points(static_cast<std::size_t>(ring.count));
        std::iota(points.begin(), points.end(), ring2);
        draw_lights(pen, points);
    }
}

} // namespace marlogl
