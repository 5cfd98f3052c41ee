#include "framing.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double margin = 1.05;
constexpr double nearest = 1e-9; // of scenes without extent

struct Axes {
    Vec3 right, up, back; // back points from the scene to the camera
};

Axes camera_axes(Direction direction)
{
    const double a = radians(direction.azimuth), e = radians(direction.elevation);
    const Vec3 right{std::cos(a), std::sin(a), 0};
    const Vec3 back{std::sin(a) * std::cos(e), -std::cos(a) * std::cos(e), std::sin(e)};
    return {right, cross(back, right), back};
}

// How far the camera is from the centre of the scene, and moved to which side of it, in world units.
struct Place {
    double distance = 1, shift_right = 0, shift_up = 0;
};

// How far the box around the scene reaches from its centre along `back`.
double reach_of_bounds(const Scene &scene, Vec3 back)
{
    const Vec3 half = (scene.highest - scene.lowest) * 0.5;
    return std::abs(back.x) * half.x + std::abs(back.y) * half.y + std::abs(back.z) * half.z;
}

std::array<double, 16> perspective(double half_width, double half_height, double near, double far)
{
    // clang-format off
    return {near / half_width, 0, 0, 0,
            0, near / half_height, 0, 0,
            0, 0, -(far + near) / (far - near), -1,
            0, 0, -2 * far * near / (far - near), 0};
    // clang-format on
}

std::array<double, 16> orthographic(double half_width, double half_height, double near, double far)
{
    // clang-format off
    return {1 / half_width, 0, 0, 0,
            0, 1 / half_height, 0, 0,
            0, 0, -2 / (far - near), 0,
            0, 0, -(far + near) / (far - near), 1};
    // clang-format on
}

// A point at (X, Y, Z) in camera axes is inside the picture of a camera at distance d, moved by s, when
// |X - s| <= (d - Z) tan_x. So the right edge asks for d tan_x + s >= A = max(X + Z tan_x), the left one for
// d tan_x - s >= B = max(Z tan_x - X); their sum gives d, their difference s. The same for Y with C and D.
// An orthographic picture does not shrink with the depth: there the terms with Z fall away.
Place find_place(const Scene &scene, const Axes &axes, const Lens &lens)
{
    if (scene.vertices.empty())
        return {};
    const Vec3 centre = scene.centre();
    const double depth_x = lens.orthographic ? 0 : lens.tan_x(),
                 depth_y = lens.orthographic ? 0 : lens.tan_y();
    constexpr double least = std::numeric_limits<double>::lowest();
    double a = least, b = least, c = least, d = least;
    for (const Vertex &vertex : scene.vertices) {
        const Vec3 p = vertex.position - centre;
        const double x = dot(p, axes.right), y = dot(p, axes.up), z = dot(p, axes.back);
        a = std::max(a, x + z * depth_x);
        b = std::max(b, z * depth_x - x);
        c = std::max(c, y + z * depth_y);
        d = std::max(d, z * depth_y - y);
    }
    const double distance = margin * std::max((a + b) / (2 * lens.tan_x()), (c + d) / (2 * lens.tan_y()));
    return {std::max(distance, nearest), (a - b) / 2, (c - d) / 2};
}

} // namespace

Camera frame(const Scene &scene, Direction direction, const Lens &lens)
{
    const Axes axes = camera_axes(direction);
    const auto &[right, up, back] = axes;
    const auto [distance, shift_right, shift_up] = find_place(scene, axes, lens);
    Camera camera;
    // clang-format off
    camera.view = {right.x, up.x, back.x, 0,
                   right.y, up.y, back.y, 0,
                   right.z, up.z, back.z, 0,
                   -shift_right, -shift_up, -distance, 1};
    // clang-format on
    const double reach = 1.01 * reach_of_bounds(scene, back) + 0.001 * distance;
    const double far = distance + reach;
    const double half_width = distance * lens.tan_x() / lens.zoom;
    const double half_height = distance * lens.tan_y() / lens.zoom;
    if (lens.orthographic) {
        camera.projection = orthographic(half_width, half_height, distance - reach, far);
    } else {
        const double near = std::max(distance - reach, far * 1e-3);
        const double at_near = near / distance;
        camera.projection = perspective(half_width * at_near, half_height * at_near, near, far);
    }
    return camera;
}
