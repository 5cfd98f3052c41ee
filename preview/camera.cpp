#include "camera.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double margin = 1.05;
constexpr double closest = 1e-9; // of scenes without extent

// How far the camera is from the centre of the scene, and moved to which side of it, in world units.
struct Place {
    double distance = 1, shift_right = 0, shift_up = 0;
};

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
Place find_place(std::span<const Vertex> vertices, Vec3 centre, const Axes &axes, const Lens &lens,
                 double aspect)
{
    const double tan_x = lens.tan_y * aspect, tan_y = lens.tan_y;
    const double depth_x = lens.orthographic ? 0 : tan_x, depth_y = lens.orthographic ? 0 : tan_y;
    constexpr double least = std::numeric_limits<double>::lowest();
    double a = least, b = least, c = least, d = least;
    for (const Vertex &vertex : vertices) {
        const Vec3 p = vertex.position - centre;
        const double x = dot(p, axes.right), y = dot(p, axes.up), z = dot(p, axes.back);
        a = std::max(a, x + z * depth_x);
        b = std::max(b, z * depth_x - x);
        c = std::max(c, y + z * depth_y);
        d = std::max(d, z * depth_y - y);
    }
    const double distance = margin * std::max((a + b) / (2 * tan_x), (c + d) / (2 * tan_y));
    return {std::max(distance, closest), (a - b) / 2, (c - d) / 2};
}

} // namespace

Axes axes_of(Direction direction)
{
    const double a = radians(direction.azimuth), e = radians(direction.elevation);
    const Vec3 right{std::cos(a), std::sin(a), 0};
    const Vec3 back{std::sin(a) * std::cos(e), -std::cos(a) * std::cos(e), std::sin(e)};
    return {right, cross(back, right), back};
}

void Camera::turn(double to_the_right, double up)
{
    direction.azimuth = std::remainder(direction.azimuth + to_the_right, 360);
    direction.elevation = std::clamp(direction.elevation + up, -90.0, 90.0);
}

void Camera::move(double right, double up)
{
    const Axes axes = axes_of(direction);
    focal_point = focal_point - (axes.right * right + axes.up * up) * half_height();
}

void Camera::approach(double factor, Vec3 point)
{
    const double wanted = std::clamp(distance * factor, closest, 10 * largest_coordinate);
    focal_point = point + (focal_point - point) * (wanted / distance);
    distance = wanted;
}

void Camera::stand_at(Vec3 place)
{
    constexpr double degrees = 57.29577951308232;
    const Vec3 to = place - focal_point;
    if (!(length(to) > closest))
        return;
    distance = length(to);
    direction.elevation = std::atan2(to.z, std::hypot(to.x, to.y)) * degrees;
    if (to.x != 0 || to.y != 0)
        direction.azimuth = std::atan2(to.x, -to.y) * degrees;
}

Vec3 Camera::point_at(double x, double y, double aspect) const
{
    const Axes axes = axes_of(direction);
    return focal_point + (axes.right * (x * aspect) + axes.up * y) * half_height();
}

Ray Camera::ray(double x, double y, double aspect) const
{
    const Vec3 through = point_at(x, y, aspect), back = axes_of(direction).back * distance;
    if (lens.orthographic)
        return {through + back * 1e3, back * -1}; // from far behind: nothing lies behind such a camera
    return {focal_point + back, through - focal_point - back};
}

std::optional<std::array<double, 2>> Camera::place_of(Vec3 point, double aspect) const
{
    const Axes axes = axes_of(direction);
    const Vec3 p = point - focal_point;
    const double depth = lens.orthographic ? distance : distance - dot(p, axes.back);
    if (depth < distance * 1e-6)
        return {};
    const double half = depth * lens.tan_y;
    return std::array{dot(p, axes.right) / (half * aspect), dot(p, axes.up) / half};
}

Matrices matrices_of(const Camera &camera, double aspect, Vec3 origin, Vec3 lowest, Vec3 highest)
{
    const auto [right, up, back] = axes_of(camera.direction);
    const Vec3 p = origin - camera.focal_point;
    Matrices matrices;
    // clang-format off
    matrices.view = {right.x, up.x, back.x, 0,
                     right.y, up.y, back.y, 0,
                     right.z, up.z, back.z, 0,
                     dot(p, right), dot(p, up), dot(p, back) - camera.distance, 1};
    // clang-format on
    const Vec3 half = (highest - lowest) * 0.5, middle = (highest + lowest) * 0.5 - camera.focal_point;
    const double depth = camera.distance - dot(middle, back);
    const double reach =
        1.01 * (std::abs(back.x) * half.x + std::abs(back.y) * half.y + std::abs(back.z) * half.z) +
        0.001 * camera.distance + 1e-6 * std::abs(depth);
    const double half_height = camera.half_height(), half_width = half_height * aspect;
    if (camera.lens.orthographic) {
        matrices.projection = orthographic(half_width, half_height, depth - reach, depth + reach);
    } else {
        // Within the scene a near plane that is too near costs the precision of all depths.
        const double far = std::max(depth + reach, camera.distance);
        const double near =
            std::max({depth - reach, std::min(far * 1e-3, camera.distance * 0.05), far * 1e-5});
        const double at_near = near / camera.distance;
        matrices.projection = perspective(half_width * at_near, half_height * at_near, near, far);
    }
    return matrices;
}

Camera frame(std::span<const Vertex> vertices, Direction direction, const Lens &lens, double aspect)
{
    const auto [lowest, highest] = bounds_of(vertices);
    const Vec3 centre = (lowest + highest) * 0.5;
    const Axes axes = axes_of(direction);
    Place place;
    if (!vertices.empty())
        place = find_place(vertices, centre, axes, lens, aspect);
    return {centre + axes.right * place.shift_right + axes.up * place.shift_up, place.distance, direction,
            lens};
}
