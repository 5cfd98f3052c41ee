// Walls are often two faces with the same corners, one for each side. A viewer sees one of them.
#pragma once

#include "scene.h"

inline constexpr std::uint32_t no_face = 0xffffffff;

// Of each face: the one with the same corners the other way round, as an index into Scene::faces, or no_face.
std::vector<std::uint32_t> find_other_sides(const Scene &scene);
