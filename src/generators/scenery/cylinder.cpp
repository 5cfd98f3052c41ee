// Capped cylinder: two rings joined by sides, closed by a fan to a point at each end; upright with a railing
// and lights if wanted, or lying along y.
#include "generators/figures.h"
#include "generators/generators.h"

#include <numeric>
#include <vector>

namespace marlogl {

namespace {

// Point 0 lies beyond ring 2, point 1 beyond ring 1, and ring 1 begins at point 2.
constexpr int upper_end = 0, lower_end = 1, ring1 = 2;

struct Cylinder {
    Ring ring;
    bool has_ring2;
    int ring2, railing; // first points; without a ring 2, ring 1 stands for it
};

Ring cylinder_ring(double selector)
{
    return selector == 5 ? Ring{9, 40} : selected_ring(selector);
}

bool is_lying(Pen &pen)
{
    return pen.cell(18) == 1;
}

bool has_railing(Pen &pen)
{
    return !is_lying(pen) && pen.cell(6) > 0;
}

void record_upright(Pen &pen, const Cylinder &cylinder)
{
    const double base = pen.cell(58), beyond2 = pen.cell(1), between = pen.cell(2), beyond1 = pen.cell(3);
    const auto record_ring = [&](double diameter, double z) {
        for (int i = 0; i < cylinder.ring.count; ++i) {
            const int angle = cylinder.ring.angle(i);
            pen.record(diameter / 2 * sine(angle), diameter / 2 * cosine(angle), z);
        }
    };
    pen.record(0, 0, base + beyond2 + between + beyond1);
    pen.record(0, 0, base);
    record_ring(pen.cell(4), base + beyond1);
    if (cylinder.has_ring2)
        record_ring(pen.cell(5), base + beyond1 + between);
    if (has_railing(pen))
        record_ring(pen.cell(5), base + between + beyond1 + pen.cell(6));
}

// The ends lie in the planes of their rings.
void record_lying(Pen &pen, const Cylinder &cylinder)
{
    const double base = pen.cell(58), radius1 = pen.cell(4) / 2, radius2 = pen.cell(5) / 2;
    const double y1 = -pen.cell(3) - pen.cell(2) / 2, y2 = pen.cell(1) + pen.cell(2) / 2;
    const auto record_ring = [&](double radius, double y) {
        for (int i = 0; i < cylinder.ring.count; ++i) {
            const int angle = cylinder.ring.angle(i);
            pen.record(radius * sine(angle), y, base + radius + radius * cosine(angle));
        }
    };
    pen.record(0, y2, base + radius2);
    pen.record(0, y1, base + radius1);
    record_ring(radius1, y1);
    if (cylinder.has_ring2)
        record_ring(radius2, y2);
}

void draw_railing(Pen &pen, const Cylinder &cylinder)
{
    Output &out = pen.out();
    colour_line_blank(out, pen.object.colours(23));
    begin_lines_line(out);
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
    end_line(out);
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

void draw_ring_lights(Pen &pen, const Cylinder &cylinder)
{
    constexpr int unlit_count = 9;
    if (cylinder.ring.count == unlit_count)
        return;
    std::vector<int> points(static_cast<std::size_t>(cylinder.ring.count));
    std::iota(points.begin(), points.end(), cylinder.ring2);
    draw_lights(pen, points);
}

} // namespace

void draw_cylinder(Pen &pen)
{
    const bool has_lights = pen.cell(31) == 1;
    pen.short_coordinates = has_lights;
    const Ring ring = cylinder_ring(pen.cell(7));
    const bool has_ring2 = pen.cell(2) > 0;
    const int ring2 = has_ring2 ? ring1 + ring.count : ring1;
    const Cylinder cylinder{ring, has_ring2, ring2, ring2 + ring.count};
    if (is_lying(pen))
        record_lying(pen, cylinder);
    else
        record_upright(pen, cylinder);

    if (has_railing(pen))
        draw_railing(pen, cylinder);
    if (pen.is_true(12)) {
        pen.choose_side(outside);
        draw_faces(pen, outside, cylinder);
    }
    pen.choose_side(inside);
    draw_faces(pen, inside, cylinder);
    if (has_lights)
        draw_ring_lights(pen, cylinder);
}

} // namespace marlogl
