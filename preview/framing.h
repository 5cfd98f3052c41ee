// The camera: named views, and the distance at which a scene just fills the picture. z is up.
#pragma once

#include "scene.h"

#include <string_view>

// Where the camera stands as seen from the scene, in degrees: azimuth 0 is the front (the side of low y), 90
// the right (high x); elevation 90 is above.
struct Direction {
    double azimuth = 0, elevation = 0;
};

struct NamedView {
    std::string_view name; // its first letter is its key in the window
    Direction direction;
};

inline constexpr NamedView named_views[] = {
    {"top",   {0, 90}   },
    {"front", {0, 0}    },
    {"back",  {180, 0}  },
    {"left",  {-90, 0}  },
    {"right", {90, 0}   },
    {"iso",   {45, 35.3}},
};

struct Lens {
    double aspect = 1; // width : height of the picture, above 0
    double zoom = 1;   // magnifies the framed picture, above 0
    bool orthographic = false;

    double tan_x() const { return tan_y() * aspect; }
    double tan_y() const { return 0.268; } // half of 30 degrees
};

// Matrices as glLoadMatrixd takes them. The view matrix expects points relative to the centre of the scene.
struct Camera {
    std::array<double, 16> projection{}, view{};
};

// The camera that looks at the centre of the scene from there, moved so that the scene fills the picture but
// for a small margin. The depth range just holds the scene.
Camera frame(const Scene &scene, Direction direction, const Lens &lens);
