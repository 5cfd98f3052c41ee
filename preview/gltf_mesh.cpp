#include "gltf_mesh.h"

#include "gltf_solids.h"

#include <algorithm>
#include <span>

namespace {

// To the viewer who sees the triangles' corners run counter-clockwise; zero when they have no area.
Vec3 normal_of(const std::vector<Vec3> &points, const std::vector<std::uint32_t> &triangles)
{
    Vec3 sum;
    for (std::size_t i = 0; i + 2 < triangles.size(); i += 3) {
        const Vec3 &a = points[triangles[i]], &b = points[triangles[i + 1]], &c = points[triangles[i + 2]];
        sum = sum + cross(b - a, c - a);
    }
    return unit(sum);
}

} // namespace

void GltfMeshMaker::add_face(const Face &face, Sides sides)
{
    std::vector<std::uint32_t> triangles;
    std::uint32_t count = face.outline_size; // and behind the outline the crossings of its edges
    for (const std::uint32_t corner : std::span(scene_.corners).subspan(face.first, face.count)) {
        triangles.push_back(corner - face.outline);
        count = std::max(count, triangles.back() + 1);
    }
    std::vector<Vec3> points;
    for (std::uint32_t i = 0; i < count; ++i)
        points.push_back(own(face.outline + i));
    Vec3 normal = normal_of(points, triangles);
    const double step = sides == Sides::front ? metres_apart / placement_.magnification() : 0;
    const Vec3 shift = normal * step;
    if (length(normal) == 0)
        normal = {0, 0, 1}; // there is nothing to see, but readers refuse normals without length

    const bool is_textured = face.texture != Run::untextured;
    const Outfit outfit = is_textured ? Outfit::textured : Outfit::plain;
    auto &[positions, normals, texture_points] = vertices(outfit);
    const auto first = static_cast<std::uint32_t>(positions.size());
    for (std::uint32_t i = 0; i < count; ++i) {
        const Vertex &vertex = scene_.vertices[face.outline + i];
        positions.push_back(in_floats(points[i] + shift));
        normals.push_back(in_floats(normal));
        if (is_textured)
            texture_points.push_back({vertex.s, 1 - vertex.t}); // v runs downwards
    }
    const std::uint32_t material =
        materials_.number(face.texture, scene_.vertices[face.outline].colour, sides == Sides::both);
    auto &target = indices(Primitive::triangles, outfit, material);
    for (const std::uint32_t corner : triangles)
        target.push_back(first + corner);
}

void GltfMeshMaker::add_line(std::uint32_t from, std::uint32_t to, bool solid)
{
    const std::uint32_t material = plain_material(to, !solid);
    if (solid) {
        add_box(own(from), own(to), line_width, vertices(Outfit::plain),
                indices(Primitive::triangles, Outfit::plain, material));
        return;
    }
    add_bare(Primitive::lines, from, material);
    add_bare(Primitive::lines, to, material);
}

void GltfMeshMaker::add_point(std::uint32_t at, bool solid)
{
    const std::uint32_t material = plain_material(at, !solid);
    if (solid)
        add_octahedron(own(at), point_width, vertices(Outfit::plain),
                       indices(Primitive::triangles, Outfit::plain, material));
    else
        add_bare(Primitive::points, at, material);
}

std::vector<std::uint32_t> &GltfMeshMaker::indices(Primitive primitive, Outfit outfit, std::uint32_t material)
{
    const auto [known, is_new] = part_numbers_.try_emplace({primitive, outfit, material}, mesh.parts.size());
    if (is_new)
        mesh.parts.push_back({primitive, outfit, material, {}});
    return mesh.parts[known->second].indices;
}

std::uint32_t GltfMeshMaker::plain_material(std::uint32_t vertex, bool double_sided)
{
    return materials_.number(Run::untextured, scene_.vertices[vertex].colour, double_sided);
}

void GltfMeshMaker::add_bare(Primitive primitive, std::uint32_t vertex, std::uint32_t material)
{
    auto &positions = vertices(Outfit::bare).positions;
    indices(primitive, Outfit::bare, material).push_back(static_cast<std::uint32_t>(positions.size()));
    positions.push_back(in_floats(own(vertex)));
}
