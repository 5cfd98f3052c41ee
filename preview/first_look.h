// Where the camera stands at first, as the command line asks for it.
#pragma once

#include "camera.h"
#include "loading.h"

#include <array>
#include <optional>
#include <string>

struct FirstLook {
    Direction direction{45, 30};
    Lens lens;
    double zoom = 1;         // magnifies the framed picture
    std::string object = {}; // number or name of the one to frame, or empty
    std::optional<std::array<double, 3>> position = {}, focal_point = {}; // in units of the design file
};

// Throws std::runtime_error when there is no such object, or nothing to see of it.
Camera first_camera(const Loaded &loaded, const FirstLook &look, double aspect);
