#include "gltf_solids.h"

#include <span>

namespace {

using Corner = std::uint8_t;

void add_body(std::span<const Vec3> corners, Vec3 centre, std::span<const std::array<Corner, 3>> triangles,
              GltfVertices &vertices, std::vector<std::uint32_t> &indices)
{
    const auto first = static_cast<std::uint32_t>(vertices.positions.size());
    for (const Vec3 &corner : corners) {
        vertices.positions.push_back(in_floats(corner));
        vertices.normals.push_back(in_floats(unit(corner - centre)));
    }
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
    std::array<Vec3, 8> corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = (i < 4 ? from : to) + across * (i % 2 == 0 ? -1 : 1) + up * (i / 2 % 2 == 0 ? -1 : 1);
    add_body(corners, (from + to) * 0.5, triangles, vertices, indices);
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
    const std::array<Vec3, 6> corners{
        centre + Vec3{half, 0,    0   },
          centre + Vec3{0,    half, 0   },
          centre - Vec3{half, 0,    0   },
        centre - Vec3{0,    half, 0   },
          centre + Vec3{0,    0,    half},
          centre - Vec3{0,    0,    half},
    };
    add_body(corners, centre, triangles, vertices, indices);
}
