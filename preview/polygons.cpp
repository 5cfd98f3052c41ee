#include "polygons.h"

#include <GL/glu.h>

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr double flat = 1e-9; // the sine of an angle that is none

// What the callbacks of the tesselator work on. It refers to vertices by their index in its pointers.
struct Cutting {
    std::vector<Vertex> &vertices;
    std::vector<std::uint32_t> &corners;
    Vec3 origin;
    std::size_t &crossings_left;
    bool failed = false;
};

void *pointer_to(std::size_t index)
{
    // No index is the null pointer.
    return reinterpret_cast<void *>(index + 1); // NOLINT(performance-no-int-to-ptr)
}

std::size_t index_of(void *pointer)
{
    return reinterpret_cast<std::size_t>(pointer) - 1;
}

void add_corner(void *vertex, void *cutting)
{
    static_cast<Cutting *>(cutting)->corners.push_back(static_cast<std::uint32_t>(index_of(vertex)));
}

// The vertex at a crossing, between up to four others. Without an answer the tesselator reports an error.
void combine(GLdouble at[3], void *from[4], GLfloat weights[4], void **answer, void *data)
{
    Cutting &cutting = *static_cast<Cutting *>(data);
    if (cutting.crossings_left == 0)
        return;
    --cutting.crossings_left;
    Vertex vertex{};
    std::array<float, 3> colour{};
    for (int i = 0; i < 4 && from[i] != nullptr; ++i) {
        const Vertex &part = cutting.vertices[index_of(from[i])];
        for (std::size_t c = 0; c < 3; ++c) {
            vertex.normal[c] += part.normal[c] * weights[i];
            colour[c] += static_cast<float>(part.colour[c]) * weights[i];
        }
        vertex.s += part.s * weights[i];
        vertex.t += part.t * weights[i];
    }
    vertex.position = cutting.origin + Vec3{at[0], at[1], at[2]};
    for (std::size_t c = 0; c < 3; ++c)
        vertex.colour[c] = static_cast<std::uint8_t>(std::clamp(colour[c] + 0.5f, 0.0f, 255.0f));
    *answer = pointer_to(cutting.vertices.size());
    cutting.vertices.push_back(vertex);
}

void note_failure(GLenum, void *cutting)
{
    static_cast<Cutting *>(cutting)->failed = true;
}

// Whoever asks for edge flags gets single triangles, no fans and strips.
void ignore_edge_flag(GLboolean, void *) {}

void add_fan(std::size_t first, std::size_t count, std::vector<std::uint32_t> &corners)
{
    for (std::size_t i = first + 1; i + 1 < first + count; ++i)
        for (const std::size_t corner : {first, i, i + 1})
            corners.push_back(static_cast<std::uint32_t>(corner));
}

struct Vec2 {
    double x, y;
};

// On which side of the line through a and b the point p is.
double side(Vec2 a, Vec2 b, Vec2 p)
{
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

} // namespace

PolygonCutter::PolygonCutter() : tesselator(gluNewTess(), gluDeleteTess)
{
    if (!tesselator)
        throw std::bad_alloc();
    const auto set = [&](GLenum which, auto *callback) {
        gluTessCallback(tesselator.get(), which, reinterpret_cast<void (*)()>(callback));
    };
    set(GLU_TESS_VERTEX_DATA, add_corner);
    set(GLU_TESS_COMBINE_DATA, combine);
    set(GLU_TESS_ERROR_DATA, note_failure);
    set(GLU_TESS_EDGE_FLAG_DATA, ignore_edge_flag);
    gluTessProperty(tesselator.get(), GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
}

Shape PolygonCutter::cut(std::vector<Vertex> &vertices, std::size_t first,
                         std::vector<std::uint32_t> &corners)
{
    const std::size_t count = vertices.size() - first;
    if (!fill_outline(vertices, first) || is_convex()) {
        add_fan(first, count, corners);
        return Shape::convex;
    }
    if (count > most_corners_cut) {
        add_fan(first, count, corners);
        return Shape::long_concave;
    }
    const Shape shape = crosses_itself() ? Shape::crossing : Shape::concave;
    if ((shape == Shape::crossing && crossings_left == 0) || !tessellate(vertices, first, corners))
        add_fan(first, count, corners);
    return shape;
}

// False when all corners lie on one line.
bool PolygonCutter::fill_outline(const std::vector<Vertex> &vertices, std::size_t first)
{
    const Vec3 origin = vertices[first].position;
    outline.assign(1, Vec3{});
    for (std::size_t i = first + 1; i < vertices.size(); ++i)
        if (const Vec3 at = vertices[i].position - origin; length(at - outline.back()) > 0)
            outline.push_back(at);
    while (outline.size() > 1 && length(outline.back()) == 0)
        outline.pop_back();
    Vec3 sum, widest;
    for (std::size_t i = 1; i + 1 < outline.size(); ++i) {
        const Vec3 area = cross(outline[i], outline[i + 1]);
        sum = sum + area;
        widest = length(area) > length(widest) ? area : widest;
    }
    // The two halves of a bow tie may make up for each other.
    normal = unit(length(sum) > flat * length(widest) ? sum : widest);
    return length(normal) > 0;
}

// All corners turn the same way, and none lies behind the first edge: so it goes round once only.
bool PolygonCutter::is_convex() const
{
    const std::size_t count = outline.size();
    const auto turn = [&](Vec3 a, Vec3 b) { // -1, 0 or 1: to the right, not at all, to the left
        const double least = flat * length(a) * length(b), sine = dot(cross(a, b), normal);
        return (sine > least) - (sine < -least);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const Vec3 &at = outline[i], &next = outline[(i + 1) % count], &after = outline[(i + 2) % count];
        const int bend = turn(next - at, after - next);
        const bool spike = bend == 0 && dot(next - at, after - next) < 0;
        if (bend < 0 || spike || turn(outline[1], at) < 0 || turn(at, next) < 0)
            return false;
    }
    return true;
}

bool PolygonCutter::crosses_itself() const
{
    const double x = std::abs(normal.x), y = std::abs(normal.y), z = std::abs(normal.z);
    const auto flattened = [&](Vec3 p) {
        return z >= x && z >= y ? Vec2{p.x, p.y} : y >= x ? Vec2{p.x, p.z} : Vec2{p.y, p.z};
    };
    const std::size_t count = outline.size();
    std::vector<Vec2> points;
    for (const Vec3 &corner : outline)
        points.push_back(flattened(corner));
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t j = i + 2; j < count; ++j) {
            const Vec2 a = points[i], b = points[i + 1], c = points[j], d = points[(j + 1) % count];
            if (side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0)
                return true;
        }
    return false;
}

bool PolygonCutter::tessellate(std::vector<Vertex> &vertices, std::size_t first,
                               std::vector<std::uint32_t> &corners)
{
    const std::size_t end = vertices.size(), corners_before = corners.size();
    Cutting cutting{vertices, corners, vertices[first].position, crossings_left};
    GLUtesselator *const tess = tesselator.get();
    gluTessNormal(tess, normal.x, normal.y, normal.z);
    gluTessBeginPolygon(tess, &cutting);
    gluTessBeginContour(tess);
    for (std::size_t i = first; i < end; ++i) {
        const Vec3 at = vertices[i].position - cutting.origin;
        GLdouble coordinates[] = {at.x, at.y, at.z};
        gluTessVertex(tess, coordinates, pointer_to(i));
    }
    gluTessEndContour(tess);
    gluTessEndPolygon(tess);
    if (!cutting.failed && corners.size() > corners_before)
        return true;
    vertices.resize(end);
    corners.resize(corners_before);
    return false;
}
