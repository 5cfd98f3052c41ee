#include "mesh.h"

#include "light.h"
#include "other_sides.h"

#include <algorithm>
#include <map>

namespace {

Vec3 normal_of(const Scene &scene, const Face &face)
{
    Vec3 sum;
    const Vertex *const corner = &scene.vertices[face.outline];
    for (std::uint32_t i = 1; i + 1 < face.outline_size; ++i)
        sum =
            sum + cross(corner[i].position - corner[0].position, corner[i + 1].position - corner[0].position);
    return unit(sum);
}

double area_of(const Scene &scene, const Face &face)
{
    const Bounds bounds = bounds_of(std::span(scene.vertices).subspan(face.outline, face.outline_size));
    return (bounds.highest.x - bounds.lowest.x) * (bounds.highest.y - bounds.lowest.y);
}

bool lies_on_ground(const Scene &scene, const Face &face)
{
    const double level = 0.01 * scene.unit;
    const Vertex *const corner = &scene.vertices[face.outline];
    return std::all_of(corner, corner + face.outline_size,
                       [&](const Vertex &vertex) { return std::abs(vertex.position.z) < level; });
}

Mesh::Rgba shaded(const std::array<std::uint8_t, 3> &colour, double factor)
{
    const auto part = [&](std::uint8_t value) {
        return static_cast<std::uint8_t>(std::lround(value * factor));
    };
    return {part(colour[0]), part(colour[1]), part(colour[2]), 255};
}

void fill_vertices(Mesh &mesh, const Scene &scene)
{
    const Vec3 centre = scene.centre();
    const auto relative = [&](Vec3 p) {
        const Vec3 at = p - centre;
        return std::array{static_cast<float>(at.x), static_cast<float>(at.y), static_cast<float>(at.z)};
    };
    auto &[plain, clockwise, counter_clockwise] = mesh.colours;
    for (const Vertex &vertex : scene.vertices) {
        const Vec3 normal{vertex.normal[0], vertex.normal[1], vertex.normal[2]};
        mesh.points.push_back(relative(vertex.position));
        mesh.shadows.push_back(relative(shadow_of(vertex.position)));
        mesh.texture_points.push_back({vertex.s, vertex.t});
        plain.push_back(shaded(vertex.colour, 1));
        clockwise.push_back(shaded(vertex.colour, brightness(normal)));
        counter_clockwise.push_back(shaded(vertex.colour, brightness(normal * -1)));
    }
}

void whiten(Mesh &mesh, const Scene &scene, const Face &face)
{
    auto &[plain, clockwise, counter_clockwise] = mesh.colours;
    for (std::size_t i = face.first; i < face.first + face.count; ++i) {
        const std::uint32_t corner = scene.corners[i];
        const auto &[x, y, z] = scene.vertices[corner].normal;
        plain[corner] = {255, 255, 255, 255};
        clockwise[corner] = shaded({255, 255, 255}, brightness({x, y, z}));
        counter_clockwise[corner] = shaded({255, 255, 255}, brightness({-x, -y, -z}));
    }
}

void sort_faces(Mesh &mesh, const Scene &scene)
{
    std::map<std::uint32_t, double> largest; // face of each object on the ground
    for (std::uint32_t i = 0; i < scene.faces.size(); ++i) {
        const Face &face = scene.faces[i];
        if (!lies_on_ground(scene, face)) {
            mesh.order.push_back(i);
            continue;
        }
        mesh.on_ground.push_back(i);
        double &area = largest[face.object];
        area = std::max(area, area_of(scene, face));
    }
    std::stable_sort(mesh.on_ground.begin(), mesh.on_ground.end(), [&](auto a, auto b) {
        return largest[scene.faces[a].object] > largest[scene.faces[b].object];
    });
    const auto texture = [&](std::uint32_t face) { return scene.faces[face].texture; };
    std::stable_sort(mesh.order.begin(), mesh.order.end(),
                     [&](auto a, auto b) { return texture(a) < texture(b); });
    for (std::size_t i = 0; i < mesh.order.size(); ++i) {
        if (mesh.batches.empty() || mesh.batches.back().texture != texture(mesh.order[i]))
            mesh.batches.push_back({texture(mesh.order[i]), i, i});
        mesh.batches.back().end = i + 1;
    }
}

void cast_shadows(Mesh &mesh, const Scene &scene)
{
    for (const std::uint32_t number : mesh.order) {
        const Face &face = scene.faces[number];
        const auto corners = std::span(scene.corners).subspan(face.first, face.count);
        const bool is_edge_on = std::abs(dot(mesh.normals[number], to_the_sun)) < 1e-4;
        const bool is_buried = std::all_of(corners.begin(), corners.end(), [&](std::uint32_t corner) {
            return scene.vertices[corner].position.z <= 0;
        });
        const bool is_cast_already = mesh.other_sides[number] < number;
        if (!is_edge_on && !is_buried && !is_cast_already)
            mesh.shadow_corners.insert(mesh.shadow_corners.end(), corners.begin(), corners.end());
    }
}

} // namespace

Mesh make_mesh(const Scene &scene, const std::vector<bool> &in_white)
{
    Mesh mesh;
    fill_vertices(mesh, scene);
    for (const Face &face : scene.faces) {
        mesh.normals.push_back(normal_of(scene, face));
        if (face.texture != Run::untextured && in_white[face.texture])
            whiten(mesh, scene, face);
    }
    mesh.other_sides = find_other_sides(scene);
    sort_faces(mesh, scene);
    cast_shadows(mesh, scene);
    for (const Run &run : scene.runs)
        if (run.primitive != Primitive::triangles) {
            auto &target = run.primitive == Primitive::lines ? mesh.lines : mesh.dots;
            const auto corners = std::span(scene.corners).subspan(run.first, run.count);
            target.insert(target.end(), corners.begin(), corners.end());
        }
    mesh.edges = find_edges(scene, mesh.normals);
    return mesh;
}

std::vector<bool> faces_towards(const Mesh &mesh, const Scene &scene, Vec3 eye, bool far_away)
{
    std::vector<bool> towards(scene.faces.size());
    for (std::size_t i = 0; i < towards.size(); ++i) {
        const Vec3 to_the_eye = far_away ? eye : eye - scene.vertices[scene.faces[i].outline].position;
        towards[i] = dot(mesh.normals[i], to_the_eye) > 0;
    }
    return towards;
}
