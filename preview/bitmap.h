// Pictures in memory: BMP files, mipmaps and the checkerboard that stands for a missing texture.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

struct Bitmap {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb; // three bytes a pixel, the bottom row first, rows without padding
    bool stands_in = false;        // for a missing texture: shown in its own colours, not those of the faces
};

// Reads a BMP file. Nothing when it cannot be opened, is damaged or is wider or higher than 8192 pixels.
std::optional<Bitmap> read_bmp(const std::filesystem::path &file);

// The bitmap at half its size (rounded down, but at least 1): the next mipmap level.
Bitmap halved(const Bitmap &bitmap);

// Magenta and white squares, to stand in.
Bitmap checkerboard();
