#include "gltf_solids.h"

#include <span>

namespace {

using Corner = std::uint8_t;

void add_corner(Vec3 axis, Vec3 outwards, GltfVertices &vertices)
{
    vertices.positions.push_back(in_floats(axis + outwards));
    vertices.normals.push_back(in_floats(unit(outwards)));
}

void add_triangles(std::size_t first_vertex, std::span<const std::array<Corner, 3>> triangles,
                   std::vector<std::uint32_t> &indices)
{
    const auto first = static_cast<std::uint32_t>(first_vertex);
    for (const auto &triangle : triangles)
        for (const Corner corner : triangle)
            indices.push_back(first + corner);
}

} // namespace

void add_box(Vec3 from, Vec3 to, double width, GltfVertices &vertices, std::vector<std::uint32_t> &indices)
{
    // The first end, seen from outside, and the second one, seen through it:
    //   2 3      6 7
    //   0 1      4 5
    constexpr std::array<Corner, 3> triangles[] = {
        {0, 1, 3},
        {0, 3, 2},
        {4, 7, 5},
        {4, 6, 7},
        {4, 5, 1},
        {4, 1, 0},
        {1, 5, 7},
        {1, 7, 3},
        {3, 7, 6},
        {3, 6, 2},
        {2, 6, 4},
        {2, 4, 0},
    };
    Vec3 along = unit(to - from);
    if (length(along) == 0)
        along = {0, 0, 1};
    const Vec3 right = unit(cross(along, std::abs(along.z) < 0.9 ? Vec3{0, 0, 1} : Vec3{1, 0, 0}));
    const Vec3 across = right * (width / 2), up = cross(right, along) * (width / 2);
    add_triangles(vertices.positions.size(), triangles, indices);
    for (int i = 0; i < 8; ++i)
        add_corner(i < 4 ? from : to, across * (i % 2 == 0 ? -1 : 1) + up * (i / 2 % 2 == 0 ? -1 : 1),
                   vertices);
}

void add_octahedron(Vec3 centre, double width, GltfVertices &vertices, std::vector<std::uint32_t> &indices)
{
    constexpr std::array<Corner, 3> triangles[] = {
        {0, 1, 4},
        {1, 2, 4},
        {2, 3, 4},
        {3, 0, 4},
        {1, 0, 5},
        {2, 1, 5},
        {3, 2, 5},
        {0, 3, 5},
    };
    const double half = width / 2;
    add_triangles(vertices.positions.size(), triangles, indices);
    for (const Vec3 &tip : {
             Vec3{half,  0,     0    },
             Vec3{0,     half,  0    },
             Vec3{-half, 0,     0    },
             Vec3{0,     -half, 0    },
             Vec3{0,     0,     half },
             Vec3{0,     0,     -half}
    })
        add_corner(centre, tip, vertices);
}
