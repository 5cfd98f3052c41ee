// The bitmaps of a scene.
#pragma once

#include "bitmap.h"
#include "file_finder.h"
#include "scene.h"

struct Textures {
    std::vector<Bitmap> bitmaps;        // every file once; the first is the checkerboard
    std::vector<std::uint32_t> of_name; // index into `bitmaps`; 0 where there is no bitmap
    std::size_t missing = 0;            // how many names have no bitmap
};

// At most so many bitmaps are held, and so many pixels in all: about 100 MB, and twice that in the driver.
inline constexpr std::size_t most_bitmaps = 4096, most_texture_pixels = 32 << 20;

// The bitmaps of all names. What is missing or cannot be shown is told to `problems`. Bitmaps that are too
// large together are halved, the largest first, until they are not.
Textures load_textures(const std::vector<TextureName> &names, FileFinder &finder, Problems &problems);
