// What is drawn into the scene to measure it and to point at it. All of it goes with a picture that
// Drawing::draw has just drawn, whose matrices are still set.
#pragma once

#include "overlay.h"

// Turns places in the world into those of an overlay, in pixels.
struct Screen {
    const Scene &scene;
    const Camera &camera;
    int width, height;

    std::optional<std::array<double, 2>> place_of(Vec3 point) const;
};

// A grid on the ground in round numbers of design units, with north and its scale.
void draw_grid(const Screen &screen, const Overlay &overlay);

// The axes of the design file, from its origin.
void draw_axes(const Screen &screen, const Overlay &overlay);

// Number and name over each object; those that would lie on another one are left out.
void draw_names(const Screen &screen, const Overlay &overlay);

// The outline of a face.
void draw_outline(const Screen &screen, const Overlay &overlay, const Face &face);
