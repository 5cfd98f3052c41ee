// Pictures in memory: their mipmaps, and the checkerboard that stands for a missing texture.
#pragma once

#include <cstdint>
#include <vector>

struct Bitmap {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb; // three bytes a pixel, the bottom row first, rows without padding
    bool stands_in = false;        // for a missing texture: shown in its own colours, not those of the faces
};

// The bitmap at half its size (rounded down, but at least 1): the next mipmap level.
Bitmap halved(const Bitmap &bitmap);

// Magenta and white squares, to stand in.
Bitmap checkerboard();
