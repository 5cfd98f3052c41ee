// BMP files without compression, of every kind of header: bottom-up or top-down, 1 to 32 bits a pixel.
#pragma once

#include "bitmap.h"

#include <filesystem>

// The largest width and height that is read.
inline constexpr int largest_bmp = 8192;

struct BmpSize {
    int width = 0, height = 0; // each from 1 to largest_bmp
};

// What the header says, once it is certain that the file holds all the pixels that it promises. Throws
// std::runtime_error, with the name of the file and what is wrong, when it cannot be opened or shown.
BmpSize size_of_bmp(const std::filesystem::path &file);

// The pixels, halved until neither width nor height is above `largest` (at least 1). Throws as size_of_bmp
// does.
Bitmap read_bmp(const std::filesystem::path &file, int largest);
