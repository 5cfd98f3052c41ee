// A scene in the terms of glTF: nodes that share meshes, meshes in parts of one material each.
#pragma once

#include "loading.h"

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

// The attributes of vertices; those that a kind of vertices does not have are empty.
struct GltfVertices {
    std::vector<std::array<float, 3>> positions, normals;
    std::vector<std::array<float, 2>> texture_points;

    auto operator<=>(const GltfVertices &) const = default;
};

// What a vertex has beside its position.
enum class Outfit : std::uint8_t {
    textured, // a normal and a texture point
    plain,    // a normal
    bare,
};

struct GltfPart {
    Primitive primitive;
    Outfit outfit;
    std::uint32_t material;
    std::vector<std::uint32_t> indices; // of the vertices of that outfit

    auto operator<=>(const GltfPart &) const = default;
};

struct GltfMesh {
    std::array<GltfVertices, 3> vertices; // by outfit
    std::vector<GltfPart> parts;

    auto operator<=>(const GltfMesh &) const = default;
};

// An object: first scaled, then turned, then moved.
struct GltfNode {
    std::string name;
    int number = 0;
    std::string_view kind; // empty when it is not known
    std::optional<std::uint32_t> mesh = {};
    std::array<double, 3> translation{};
    std::array<double, 4> rotation{0, 0, 0, 1}; // a quaternion: x, y, z, w
    double scale = 1;
};

struct GltfMaterial {
    std::string name;
    std::array<float, 3> colour; // linear
    std::optional<std::uint32_t> image;
    bool double_sided;
};

struct GltfImage {
    std::string name;
    std::vector<std::uint8_t> png;
};

struct Gltf {
    double unit = 1; // of the design file, in metres
    bool unlit = false;
    std::vector<GltfNode> nodes; // in the order of the file; z is up in them
    std::vector<GltfMesh> meshes;
    std::vector<GltfMaterial> materials;
    std::vector<GltfImage> images;
    std::size_t equal_faces = 0; // were left out
};

struct GltfStyle {
    bool unlit = false;
    bool solid_lines = false; // boxes and octahedra in place of lines and points
};

// The two faces of an opposite pair are moved by so much, each along its own normal.
inline constexpr double metres_apart = 0.005;

// With --solid-lines, in units of the design file: the width of a line, and of a point from tip to tip.
inline constexpr double line_width = 0.4, point_width = 2;

// Throws std::runtime_error when a texture cannot be encoded.
Gltf make_gltf(const Loaded &loaded, const GltfStyle &style);

// Adds to the table of --verbose. The faces and triangles of a mesh count in each node that shows it.
void write_report(std::ostream &to, const Gltf &gltf);
