// Draws a scene through OpenGL 1.1. A context must be current for every call.
#pragma once

#include "camera.h"
#include "textures.h"

using Colour = std::array<float, 3>; // red, green, blue from 0 to 1

struct Appearance {
    Colour background{0.3f, 0.35f, 0.4f};
    bool lit = true;
    float thickness = 1; // of lines and points, in screen pixels: 1 for a screen, 2 at double size
};

// A scene made ready for OpenGL. Lives as long as the context in which it was made, and as the scene.
class Drawing {
  public:
    // `textures` are those of the scene.
    Drawing(const Scene &scene, const Textures &textures);
    ~Drawing();
    Drawing(const Drawing &) = delete;
    Drawing &operator=(const Drawing &) = delete;

    // Draws a picture of width x height pixels into the current framebuffer, so that the pixel (left, bottom)
    // of the picture, counted from its lower left corner, comes to the lower left corner of the framebuffer.
    void draw(const Camera &camera, const Appearance &appearance, int width, int height, int left = 0,
              int bottom = 0) const;

  private:
    // As OpenGL takes it: relative to the centre of the scene, so that floats are precise enough.
    struct Corner {
        std::array<float, 3> position, normal;
        std::array<float, 2> texture_point;
        std::array<std::uint8_t, 4> colour;
    };
    struct Paint {
        unsigned name; // of the texture
        bool in_white; // shown in its own colours, not those of the faces
    };

    void draw_both_sides(bool lit) const;
    void draw_runs(bool lit) const;

    const Scene &scene;
    std::vector<unsigned> texture_names;
    std::vector<Corner> corners; // one for each vertex of the scene
    std::vector<Paint> paints;   // one for each texture name of the scene
};
