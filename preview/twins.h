// Faces in one place: which of them a program shows that has no other way to tell them apart.
#pragma once

#include "scene.h"

// From where a face is to be seen.
enum class Sides : std::uint8_t {
    both,
    front, // from where its corners run counter-clockwise: another face has the other side
    none,  // a later face is equal
};

// Of each face of the scene. Two faces lie in one place when they go round the same corners, whichever corner
// they begin with.
std::vector<Sides> sides_of_faces(const Scene &scene);
