// Draws a scene through OpenGL 1.5. A context must be current for every call.
#pragma once

#include "arrays.h"
#include "camera.h"
#include "textures.h"

#include <memory>

using Colour = std::array<float, 3>; // red, green, blue from 0 to 1

struct Appearance {
    std::optional<Colour> background; // a sky when there is none
    bool lit = true, shadows = true, edges = true;
    float thickness = 1; // of lines and points: 1 for a screen, 2 at double size
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
    void use_texture(std::uint32_t number) const;
    void draw_elements(unsigned mode, const std::vector<std::uint32_t> &corners) const;
    void draw_ground(const std::vector<bool> &towards, bool lit) const;
    void draw_faces(const std::vector<bool> &towards, bool lit, const Matrices &matrices) const;
    void draw_shadows() const;
    void draw_edges(const std::vector<bool> &towards) const;

    const Scene &scene;
    Mesh mesh;
    std::vector<unsigned> texture_names; // the last is white
    std::vector<unsigned> texture_of;    // of each texture name of the scene
    std::unique_ptr<Arrays> arrays;
};
