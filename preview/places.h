// Which vertices lie in the same place.
#pragma once

#include "scene.h"

// A number for each vertex of the scene. Vertices in one place have the same, also where objects that touch
// have rounded it differently.
std::vector<std::uint32_t> number_places(const Scene &scene);
