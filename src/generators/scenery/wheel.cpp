// Wheel: two hub discs and, where it is textured, the cones and the tread between them. It stands upright,
// with its axle along y.
#include "generators/figures.h"

namespace marlogl {

namespace {

Ring wheel_ring(double segments)
{
    return segments == 18 ? Ring{18, 20} : segments == 15 ? Ring{15, 24} : Ring{12, 30};
}

// The four rings of points, from the hub on the near side (y below 0) over the rim to the hub on the far
// side. They are recorded in the order near hub, far hub, near rim, far rim.
struct Rings {
    int near_hub, far_hub, near_rim, far_rim; // first points
};

Rings record_rings(Pen &pen, Ring ring)
{
    const double outer = pen.cell(1), hub = pen.cell(2), width = pen.cell(3), protrusion = pen.cell(4);
    const double centre = pen.cell(58) + outer / 2;
    const auto record_ring = [&](double radius, double y) {
        for (int i = 0; i < ring.count; ++i)
            pen.record(radius * sine(ring.angle(i)), y, centre + radius * cosine(ring.angle(i)));
    };
    record_ring(hub / 2, -(protrusion + width / 2));
    record_ring(hub / 2, protrusion + width - width / 2);
    record_ring(outer / 2, -width / 2);
    record_ring(outer / 2, width - width / 2);
    return {0, ring.count, 2 * ring.count, 3 * ring.count};
}

void draw_discs(Pen &pen, double segments)
{
    NgonFile &ngon = pen.to.ngon;
    const auto open = [&] {
        ngon.open(NgonLayout::cap);
        pen.out().line("glColor3ub( ", pen.to.configuration.colour_outside, " );");
    };
    const auto add = [&](double point, double slot) {
        const Point &at = pen.object.points(slot);
        ngon.add({point, static_cast<double>(at.x), 255.0 - at.y});
    };
    open();
    for (double j = 1; j <= segments; ++j)
        add(j - 1, 50 + j);
    pen.ngon(2);
    open();
    for (double j = segments; j >= 1; --j)
        add(segments + j - 1, 70 + j);
    pen.ngon(3);
}

struct Edge {
    int ring;      // first point of the ring that the edge lies on
    double column; // of the texture
};

// The face of one segment between two rings: points q and q1 of the one and then of the other.
void draw_segment(Pen &pen, Edge from, Edge to, double q, double q1)
{
    const struct {
        double point, column;
        int row;
    } corners[] = {
        {from.ring + q,  from.column, 1},
        {from.ring + q1, from.column, 2},
        {to.ring + q1,   to.column,   3},
        {to.ring + q,    to.column,   4},
    };
    pen.out().line(begin_polygon);
    pen.normal(corners[0].point, corners[1].point, corners[2].point);
    for (const auto &[point, column, row] : corners) {
        texture_line(pen.out(), column, pen.object.points(row).y);
        pen.vertex(point);
    }
    pen.out().line(end_block);
}

// The strip over cone, tread and cone is textured by one rectangle, whose columns are shared out by width.
void draw_tread(Pen &pen, const Rings &rings, Ring ring, double segments)
{
    const double width = pen.cell(3), protrusion = pen.cell(4);
    const double near_column = pen.object.points(1).x, far_column = pen.object.points(3).x;
    const double strip =
        std::abs(static_cast<double>(whole_16(near_column - far_column, "width of the tread texture")));
    const double total_width = width + 2 * protrusion;
    const double cone =
        round_decimals(quotient(protrusion * strip, total_width, "the width of the wheel"), 0);
    const Edge near_hub{rings.near_hub, near_column}, near_rim{rings.near_rim, cone + near_column};
    const Edge far_rim{rings.far_rim, far_column - cone}, far_hub{rings.far_hub, far_column};

    bind_lines(pen.out(), trimmed(pen.object.texts(1)));
    for (double j = 1; j <= segments; ++j) {
        const bool last = j == segments;
        const double q = last ? 0 : j, q1 = last ? ring.count - 1 : j - 1;
        draw_segment(pen, near_hub, near_rim, q, q1);
        draw_segment(pen, near_rim, far_rim, q, q1);
        draw_segment(pen, far_rim, far_hub, q, q1);
    }
}

} // namespace

void draw_wheel(Pen &pen)
{
    const double segments = pen.cell(11);
    const Ring ring = wheel_ring(segments);
    const Rings rings = record_rings(pen, ring);
    draw_discs(pen, segments);
    if (pen.is_textured(1))
        draw_tread(pen, rings, ring, segments);
}

} // namespace marlogl
