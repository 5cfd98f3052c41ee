// Lines and points as bodies, for programs that draw none: in the coordinates of an object.
#pragma once

#include "geometry.h"
#include "gltf.h"

// Each adds a closed body to the vertices and the indices. `width` is positive.
void add_box(Vec3 from, Vec3 to, double width, GltfVertices &vertices, std::vector<std::uint32_t> &indices);
void add_octahedron(Vec3 centre, double width, GltfVertices &vertices, std::vector<std::uint32_t> &indices);
