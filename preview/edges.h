// The edges of the faces that a drawing shows as lines: where faces end or bend, and the outlines of what is
// round.
#pragma once

#include "scene.h"

struct Edge {
    std::array<std::uint32_t, 2> ends; // indices of vertices
};

// An edge between two faces that go on smoothly: it shows only where one of them is seen from the other side.
struct SmoothEdge {
    Edge edge;
    std::array<std::uint32_t, 2> faces; // indices into Scene::faces
    bool same_way;                      // both list their corners the same way round
};

struct Edges {
    std::vector<Edge> sharp;
    std::vector<SmoothEdge> smooth;
};

// `normals` are those of the faces. Faces in one plane, as the two sides of a wall, count once.
Edges find_edges(const Scene &scene, const std::vector<Vec3> &normals);
