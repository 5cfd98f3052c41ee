// The camera: what it looks at and from where, and the distance at which a scene just fills the picture. z is
// up.
#pragma once

#include "scene.h"

#include <optional>
#include <span>
#include <string_view>

// Where the camera stands as seen from what it looks at, in degrees: azimuth 0 is the front (the side of low
// y), 90 the right (high x); elevation 90 is above.
struct Direction {
    double azimuth = 0, elevation = 0;
};

struct NamedView {
    std::string_view name;
    std::string_view keys; // in the window
    Direction direction;
    bool is_plan; // without perspective
};

inline constexpr NamedView named_views[] = {
    {"top",   "t7", {0, 90},  true },
    {"front", "f1", {0, 0},   false},
    {"back",  "b2", {180, 0}, false},
    {"left",  "4",  {-90, 0}, false},
    {"right", "3",  {90, 0},  false},
    {"iso",   "i9", {45, 30}, false},
};

struct Lens {
    double tan_y =
        0.2679; // of half the angle between the lower and the upper edge of the picture: 30 degrees
    bool orthographic = false;
};

struct Axes {
    Vec3 right, up, back; // of the picture; back points to the camera
};

Axes axes_of(Direction direction);

struct Ray {
    Vec3 origin, direction;
};

// A camera in the world. Places in the picture are given by x and y from -1 (left, bottom) to 1; `aspect` is
// width : height of the picture, above 0.
struct Camera {
    Vec3 focal_point;    // what it looks at
    double distance = 1; // from there, above 0; without perspective it is only a measure of the extent
    Direction direction;
    Lens lens;

    Vec3 position() const { return focal_point + axes_of(direction).back * distance; }
    double half_height() const { return distance * lens.tan_y; } // of the picture, at the focal point

    // Turns about the focal point, in degrees; it stops at the zenith and the nadir.
    void turn(double to_the_right, double up);
    // Moves the picture by these parts of half its height.
    void move(double right, double up);
    // Multiplies the distance. The point stays where it is in the picture.
    void approach(double factor, Vec3 point);
    // Goes to another place without turning its eyes off the focal point.
    void stand_at(Vec3 place);

    Ray ray(double x, double y, double aspect) const;
    // The point on the plane through the focal point, at right angles to the view.
    Vec3 point_at(double x, double y, double aspect) const;
    // The place of a point in the picture, as x and y; nothing for one behind the camera.
    std::optional<std::array<double, 2>> place_of(Vec3 point, double aspect) const;
};

// Matrices as glLoadMatrixd takes them.
struct Matrices {
    std::array<double, 16> projection{}, view{};
};

// For points relative to `origin`. The depth range holds all between `lowest` and `highest`.
Matrices matrices_of(const Camera &camera, double aspect, Vec3 origin, Vec3 lowest, Vec3 highest);

// The camera that looks at the middle of the vertices from there, moved so that they fill the picture but for
// a small margin.
Camera frame(std::span<const Vertex> vertices, Direction direction, const Lens &lens, double aspect);
