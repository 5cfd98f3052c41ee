// Wheel: two hub discs and, where it is textured, the cones and the tread between them. It stands upright,
// with its axle along y.
#include "emit/point_file.h"
#include "generators/figures.h"
#include "generators/generators.h"

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

Rings record_rings(Ring ring)
{
    const double outer = cell(1), hub = cell(2), width = cell(3), protrusion = cell(4);
    const double centre = cell(58) + outer / 2;
    const auto record_ring = [&](double radius, double y) {
        for (int i = 0; i < ring.count; ++i)
            record(radius * fnsin(ring.angle(i)), y, centre + radius * fncos(ring.angle(i)));
    };
    record_ring(hub / 2, -(protrusion + width / 2));
    record_ring(hub / 2, protrusion + width - width / 2);
    record_ring(outer / 2, -width / 2);
    record_ring(outer / 2, width - width / 2);
    return {0, ring.count, 2 * ring.count, 3 * ring.count};
}

void disc_corner(double point, double slot)
{
    const double u = point_x(slot, current_object), v = point_y(slot, current_object);
    write_point_line("   ", p0(point), " ", blank_p0(u), " ", p0(255 - whole(v)));
}

void open_disc()
{
    point_file::open();
    write_line("glColor3ub( ", colour_outside, " );");
}

void write_discs(double segments)
{
    open_disc();
    for (double j = 1; j <= segments; ++j)
        disc_corner(j - 1, 50 + j);
    writen(2, "N");

    open_disc();
    for (double j = segments; j >= 1; --j)
        disc_corner(segments + j - 1, 70 + j);
    writen(3, "N");
}

struct Edge {
    int ring;      // first point of the ring that the edge lies on
    double column; // of the texture
};

// The face of one segment between two rings: points q and q1 of the one and then of the other.
void write_segment(Edge from, Edge to, double q, double q1)
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
    begin_polygon_line();
    fnVector(corners[0].point, corners[1].point, corners[2].point, "");
    for (const auto &[point, column, row] : corners) {
        texture_line(column, point_y(row, current_object));
        vertex_line(point);
    }
    gl_end_line();
}

// The strip over cone, tread and cone is textured by one rectangle, whose columns are shared out by width.
void write_tread(const Rings &rings, Ring ring, double segments)
{
    const double width = cell(3), protrusion = cell(4);
    const double near_column = point_x(1, current_object), far_column = point_x(3, current_object);
    const double strip =
        std::abs(static_cast<double>(whole_16(near_column - far_column, "width of the tread texture")));
    const double total_width = width + 2 * protrusion;
    const double cone = fnround(quotient(protrusion * strip, total_width, "the width of the wheel"), 0);
    const Edge near_hub{rings.near_hub, near_column}, near_rim{rings.near_rim, cone + near_column};
    const Edge far_rim{rings.far_rim, far_column - cone}, far_hub{rings.far_hub, far_column};

    bitmap_string(object_text(1, current_object), 1, object_code(1, current_object));
    for (double j = 1; j <= segments; ++j) {
        const bool last = j == segments;
        const double q = last ? 0 : j, q1 = last ? ring.count - 1 : j - 1;
        write_segment(near_hub, near_rim, q, q1);
        write_segment(near_rim, far_rim, q, q1);
        write_segment(far_rim, far_hub, q, q1);
    }
}

} // namespace

void save_wheel()
{
    remember_texture("99999999");
    List1.clear();
    List2.clear();
    const double segments = cell(11);
    const Ring ring = wheel_ring(segments);
    const Rings rings = record_rings(ring);
    write_discs(segments);
    if (is_textured(1))
        write_tread(rings, ring, segments);
}

} // namespace marlogl
