// A scene made ready for drawing: what does not change while the camera moves. It knows no OpenGL.
#pragma once

#include "edges.h"

#include <span>

// The colours of a vertex in different light.
enum class Light : std::uint8_t {
    none,      // as in the file
    clockwise, // on the side from which the corners run clockwise
    counter_clockwise
};

// Faces that are drawn in one go: a range of Mesh::order.
struct Batch {
    std::uint32_t texture; // as in Run
    std::size_t first, end;
};

struct Mesh {
    using Rgba = std::array<std::uint8_t, 4>;

    // Of each vertex. The points are relative to the centre of the scene, so that floats are precise enough.
    std::vector<std::array<float, 3>> points, shadows;
    std::vector<std::array<float, 2>> texture_points;
    std::array<std::vector<Rgba>, 3> colours; // by Light

    // Of each face: to the viewer who sees its corners run counter-clockwise.
    std::vector<Vec3> normals;

    std::vector<std::uint32_t> other_sides; // of each face, see other_sides.h

    std::vector<std::uint32_t> order; // of faces, but for those on the ground
    std::vector<Batch> batches;       // of those in order
    // Faces on the ground lie in one plane, so no depths can tell which of them is seen: what is small lies
    // on what is large.
    std::vector<std::uint32_t> on_ground;

    std::vector<std::uint32_t> shadow_corners, lines, dots; // indices of vertices
    Edges edges;
};

// `in_white` tells of each texture whether it is shown in its own colours, not in those of the faces.
Mesh make_mesh(const Scene &scene, const std::vector<bool> &in_white);

// Which faces show their corners counter-clockwise: to an eye at that point, or far away in that direction.
std::vector<bool> faces_towards(const Mesh &mesh, const Scene &scene, Vec3 eye, bool far_away);
