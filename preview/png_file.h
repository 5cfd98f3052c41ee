// PNG, favouring speed over size.
#pragma once

#include "offscreen.h"

// The bytes of a PNG file with the picture. Throws std::runtime_error when libpng fails.
std::vector<std::uint8_t> encode_png(const Picture &picture);
