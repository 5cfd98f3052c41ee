#include "emit/faces.h"

#include "emit/lines.h"
#include "emit/point_file.h"
#include "emit/textures.h"

namespace marlogl {

namespace {

void side_colour_line()
{
    if (view_side(1) == 'I')
        write_line("glColor3ub( ", colour_inside, " ); ");
    else
        write_line("glColor3ub(", colour_outside, " ); ");
}

// The texture of face slot `t`; empty when the face is not textured.
std::string_view face_texture(double t)
{
    // The text comes first: its table has fewer slots, and bounds the face slots.
    const std::string_view name = object_text(t, current_object);
    return object_code(t, current_object)(1) == 'Y' ? trimmed(name) : std::string_view();
}

// Writes the lines that bind the texture of a face; false when the face is not textured.
bool bind_face(double t)
{
    const std::string_view texture = face_texture(t);
    if (texture.empty())
        return false;
    bitmap_string(texture, t, object_code(t, current_object));
    return true;
}

// Writes the lines that open the block of a textured face; false when the face is not textured.
bool begin_face(double t, double p1, double p2, double p3, std::string_view direction)
{
    if (!bind_face(t))
        return false;
    begin_polygon_line();
    side_colour_line();
    fnVector(p1, p2, p3, direction);
    return true;
}

// The texture line of a corner whose positions stand in `slot` of both tables.
void position_line(double slot)
{
    texture_line(point_x(slot, current_object), point_y(slot, current_object));
}

} // namespace

bool is_textured(double t)
{
    return !face_texture(t).empty();
}

void write3(std::string_view xide1, std::string_view, std::string_view, double t, double bit1, double p1,
            double p2, double p3, std::string_view)
{
    if (!begin_face(t, p1, p2, p3, xide1))
        return;
    double slot = bit1 + 2;
    for (const double point : {p1, p2, p3}) {
        position_line(slot--);
        vertex_line(point);
    }
    gl_end_line();
}

void write4(std::string_view xide1, std::string_view, std::string_view, double t, double bit1, double p1,
            double p2, double p3, double p4, std::string_view)
{
    if (!begin_face(t, p1, p2, p3, xide1))
        return;
    const struct {
        double point, u, v;
    } corners[] = {
        {p1, bit1,     bit1 + 3},
        {p2, bit1,     bit1 + 1},
        {p3, bit1 + 2, bit1 + 1},
        {p4, bit1 + 2, bit1 + 3}
    };
    for (const auto &corner : corners) {
        texture_line(point_x(corner.u, current_object), point_x(corner.v, current_object));
        vertex_line(corner.point);
    }
    gl_end_line();
}

void write3a(std::string_view xide1, std::string_view, std::string_view, double t, double p1, double p2,
             double p3, double p4, double p5, double p6)
{
    if (!begin_face(t, p1, p2, p3, xide1))
        return;
    const struct {
        double point, slot;
    } corners[] = {
        {p1, p4},
        {p2, p5},
        {p3, p6}
    };
    for (const auto &corner : corners) {
        position_line(corner.slot);
        vertex_line(corner.point);
    }
    gl_end_line();
}

void write4a(std::string_view xide1, double t, double p1, double p2, double p3, double p4, double bit1,
             std::string_view)
{
    if (!begin_face(t, p1, p2, p3, xide1))
        return;
    double slot = bit1 + 3;
    for (const double point : {p1, p2, p3, p4}) {
        position_line(slot--);
        vertex_line(point);
    }
    gl_end_line();
}

void write4ar(std::string_view xide1, double t, double p1, double p2, double p3, double p4, double bit1,
              std::string_view)
{
    if (!begin_face(t, p1, p2, p3, xide1))
        return;
    const struct {
        double xy, z;
    } corners[] = {
        {p4, p1},
        {p3, p2},
        {p2, p3},
        {p1, p4}
    };
    double slot = bit1 + 3;
    for (const auto &corner : corners) {
        position_line(slot--);
        const Vertex &plan = vertex(corner.xy);
        vertex_line(plan.x, plan.y, vertex(corner.z).z);
    }
    gl_end_line();
}

void writen(double t, std::string_view reverse)
{
    if (!bind_face(t))
        return;
    static Corners corners{"corner of the polygon"};
    const int count = point_file::read(corners);
    begin_polygon_line();
    if (count >= 3)
        fnVector(corners(1).point, corners(2).point, corners(3).point, "");
    for (int i = 1; i <= count; ++i) {
        const Corner &corner = corners(reverse == "Y" ? count + 1 - i : i);
        texture_line(corner.u, corner.v);
        vertex_line(corner.point);
    }
    gl_end_line();
}

void write_roads(double text, std::string_view, double xx1, double xx2, double xx3)
{
    const std::string &name = object_text(text, current_object);
    if (trimmed(name).empty())
        return;
    const int first_cell = text == 1 ? 11 : 15;
    const auto corner = [&](int point, int u, int v) {
        for (const int cell : {u, v})
            object_param(first_cell + cell, current_object) =
                whole(object_param(first_cell + cell, current_object));
        texture_line(object_param(first_cell + u, current_object),
                     object_param(first_cell + v, current_object));
        vertex_line(point);
    };
    enum Side { ua, va, ub, vb };

    bitmap_string(name, text, "N");
    begin_polygon_line();
    if (xx3 == 1) {
        corner(3, ub, vb);
        corner(2, ub, va);
        corner(1, ua, va);
        normal_line(xx1, xx2, xx3);
        corner(0, ua, vb);
    } else {
        normal_line(xx1, xx2, xx3);
        corner(0, ua, vb);
        corner(1, ua, va);
        corner(2, ub, va);
        corner(3, ub, vb);
    }
}

void fnVector(double p1, double p2, double p3, std::string_view)
{
    const Vertex &a = vertex(p1), &b = vertex(p2), &c = vertex(p3);
    const Vertex u{a.x - b.x, a.y - b.y, a.z - b.z}, v{b.x - c.x, b.y - c.y, b.z - c.z};
    const Vertex n{-(u.y * v.z - u.z * v.y), -(u.z * v.x - u.x * v.z), -(u.x * v.y - u.y * v.x)};
    const double length = finite(std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z));
    if (length == 0)
        return;
    const double f = 1 / length;
    normal_line(f * n.x, f * n.y, f * n.z);
}

} // namespace marlogl
