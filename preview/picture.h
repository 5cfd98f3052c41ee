// Pictures of any size, drawn piece by piece into one framebuffer.
#pragma once

#include "offscreen.h"
#include "render.h"

#include <functional>

// The width and height of a piece, in pixels: small enough for the memory, large enough to be worth a
// drawing.
inline constexpr int largest_tile = 1024;

// Draws a picture of width x height pixels in pieces of the size of `tile`, and hands over its rows from the
// top, a band of them at a time. Throws std::runtime_error
// when the driver cannot draw a picture of that size.
void draw_picture(const Offscreen &tile, const Drawing &drawing, const Camera &camera,
                  const Appearance &appearance, int width, int height,
                  const std::function<void(const Picture &)> &take);
