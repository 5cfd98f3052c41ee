#include "emit/vertex_table.h"

#include "emit/output.h"

namespace marlogl {

Table<Vertex, vertex_rows> vertex_table{"vertex table row"};
int vertex_count = 0;
Table<ShortVertex, vertex_rows> vertex_copy{"vertex copy row"};
std::int16_t vertex_copy_count = 0;
Text<1> vertex_copy_flag("N");
ListBox List1, List2;

namespace {

Vertex difference(double from, double to)
{
    if (!vertex_table.has(from + 1) || !vertex_table.has(to + 1))
        return {0, 0, 0};
    const Vertex &a = vertex(from), &b = vertex(to);
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

} // namespace

Vertex &next_vertex()
{
    return vertex_table(++vertex_count);
}

void record_point(double a, double b, double c)
{
    const Vertex point{std::trunc(finite(a)), std::trunc(finite(c)), std::trunc(finite(b))};
    next_vertex() = point;
    add_entry(List1, p0(point.x), "/", p0(point.z), "@", p0(point.y));
    if (vertex_copy_flag(1) == 'Y') {
        const ShortVertex copy{whole_16(point.x, "coordinate"), whole_16(point.y, "coordinate"),
                               whole_16(point.z, "coordinate")};
        vertex_copy(++vertex_copy_count) = copy;
        add_entry(List2, p0(point.x), ", ", p0(point.y), ", ", p0(point.z));
    }
}

bool fnturn_xy(double i, double j, double k)
{
    const Vertex d1 = difference(i, j), d2 = difference(k, j);
    return d1.x * d2.y - d1.y * d2.x >= 0;
}

bool fnturn_xz(double i, double j, double k)
{
    const Vertex d1 = difference(i, j), d2 = difference(k, j);
    return d1.x * d2.z - d1.z * d2.x >= 0;
}

void reset_vertices()
{
    vertex_table.clear();
    vertex_copy.clear();
    vertex_count = 0;
    vertex_copy_count = 0;
    vertex_copy_flag = "N";
    List1.clear();
    List2.clear();
}

} // namespace marlogl
