// Draws a scene through OpenGL 1.1. A context must be current for every call.
#pragma once

#include "bitmap.h"
#include "framing.h"

using Colour = std::array<float, 3>; // red, green, blue from 0 to 1

struct Appearance {
    Colour background{0.3f, 0.35f, 0.4f};
    bool lit = true;
    float thickness = 1; // of lines and points, in screen pixels: 1 for a screen, 2 at double size
};

// A scene in the memory of the driver. Lives as long as the context in which it was made.
class Drawing {
  public:
    // Compiles the scene; `textures` holds a bitmap for each of its texture names.
    Drawing(const Scene &scene, const std::vector<Bitmap> &textures, const Appearance &look);

    // Draws into the current framebuffer; width and height in pixels.
    void draw(const Camera &camera, int width, int height) const;

  private:
    Appearance appearance;
    unsigned list = 0;
};
