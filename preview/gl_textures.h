// Bitmaps as textures of OpenGL. A context must be current for every call.
#pragma once

#include "bitmap.h"

// How textures are looked at that are seen small or aslant.
struct Filter {
    int between_mipmaps;
    float directions; // 1, or more where the driver has them
};

// The best that is no burden for the driver.
Filter usable_filter();

// Makes a texture with all its mipmaps. Returns its name.
unsigned upload_texture(const Bitmap &bitmap, const Filter &filter);
