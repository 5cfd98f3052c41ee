#include "emit/pen.h"

namespace marlogl {

const ColourTable &Drawing::colours()
{
    if (!colour_table)
        colour_table = read_colour_table(files, colour_table_path);
    return *colour_table;
}

void Pen::record(double x, double y, double z)
{
    const auto whole_part = [](double coordinate) {
        return std::abs(coordinate) < 1e9 ? static_cast<int>(coordinate)
                                          : std::trunc(require_finite(coordinate));
    };
    const Vertex point{whole_part(x), whole_part(y), whole_part(z)};
    to.vertices.append(point);
    if (short_coordinates)
        for (const double coordinate : {point.x, point.y, point.z})
            whole_16(coordinate, "coordinate");
}

// Empty when the face is not textured.
std::string_view Pen::texture_of(int face) const
{
    // The text comes first: its table has fewer slots, and bounds the face slots.
    const std::string_view name = object.texts(face);
    return object.codes(face)(1) == 'Y' ? trimmed(name) : std::string_view();
}

// Writes the lines that open the block of a textured face; false when the face is not textured.
template <typename Number> bool Pen::begin(int face, Number p1, Number p2, Number p3)
{
    const auto write = [&] {
        constexpr char begin_face[] = "\r\nglBegin( GL_POLYGON );\r\nglColor3ub(";
        if (to.side == inside)
            bind_lines(out(), last_texture, begin_face, " ", to.configuration.colour_inside, " ); ");
        else
            bind_lines(out(), last_texture, begin_face, to.configuration.colour_outside, " ); ");
    };
    if (face == last_face && to.side == last_side) {
        out().lines(face_lines, write);
    } else {
        const std::string_view texture = texture_of(face);
        if (texture.empty())
            return false;
        last_face = face;
        last_side = to.side;
        last_texture = texture;
        face_lines.forget();
        write();
    }
    normal(p1, p2, p3);
    return true;
}

// The texture line of a corner.
[[gnu::always_inline]] inline void Pen::position(int slot)
{
    const Point &at = object.points(slot);
    texture_line(out(), at.x, at.y);
}

template <typename Number, std::size_t Corners>
void Pen::polygon(int face, const std::array<Number, Corners> &points,
                  const std::array<int, Corners> &positions)
{
    if (!begin(face, points[0], points[1], points[2]))
        return;
    for (std::size_t i = 0; i < Corners; ++i) {
        position(positions[i]);
        vertex(points[i]);
    }
    out().line(end_block);
}

template void Pen::polygon(int, const std::array<int, 3> &, const std::array<int, 3> &);
template void Pen::polygon(int, const std::array<double, 3> &, const std::array<int, 3> &);
template void Pen::polygon(int, const std::array<int, 4> &, const std::array<int, 4> &);
template void Pen::polygon(int, const std::array<double, 4> &, const std::array<int, 4> &);

void Pen::reversed_quad(FaceSlots slots, const std::array<double, 4> &points)
{
    if (!begin(slots.face, points[0], points[1], points[2]))
        return;
    for (std::size_t i = 0; i < 4; ++i) {
        const Vertex &plan = to.vertices(points[3 - i]);
        const double z = to.vertices(points[i]).z;
        position(slots.positions + 3 - static_cast<int>(i));
        if (plan.z == z)
            vertex(points[3 - i]);
        else
            vertex_line(out(), plan.x, plan.y, z);
    }
    out().line(end_block);
}

void Pen::picture(FaceSlots slots, const std::array<int, 4> &points)
{
    if (!begin(slots.face, points[0], points[1], points[2]))
        return;
    constexpr int u[] = {0, 0, 2, 2}, v[] = {3, 1, 1, 3};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto edge = [&](int slot) { return object.points(slots.positions + slot).x; };
        texture_line(out(), edge(u[i]), edge(v[i]));
        vertex(points[i]);
    }
    out().line(end_block);
}

void Pen::ngon(int face, bool reversed)
{
    const std::string_view texture = texture_of(face);
    if (texture.empty())
        return;
    bind_lines(out(), texture);
    const std::span<const Corner> corners = to.ngon.read();
    out().line(begin_polygon);
    if (corners.size() >= 3)
        normal(corners[0].point, corners[1].point, corners[2].point);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto [point, u, v] = corners[reversed ? corners.size() - 1 - i : i];
        texture_line(out(), u, v);
        vertex(point);
    }
    out().line(end_block);
}

void Pen::normal(const Vertex &a, const Vertex &b, const Vertex &c)
{
    const Vertex u{a.x - b.x, a.y - b.y, a.z - b.z}, v{b.x - c.x, b.y - c.y, b.z - c.z};
    const Vertex n{-(u.y * v.z - u.z * v.y), -(u.z * v.x - u.x * v.z), -(u.x * v.y - u.y * v.x)};
    const double length = require_finite(std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z));
    if (length == 0)
        return;
    const double f = 1 / length;
    normal_line(out(), f * n.x, f * n.y, f * n.z);
}

} // namespace marlogl
