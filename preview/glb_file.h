// The binary form of glTF: one file with everything in it.
#pragma once

#include "glb_buffer.h"
#include "gltf.h"

// Hands out the bytes of the file, piece by piece. Texts that are no UTF-8 are taken for Latin-1. Throws
// std::runtime_error, before the first piece, when the file would be larger than the format allows.
void write_glb(const Gltf &gltf, const TakeBytes &take);
