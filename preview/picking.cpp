#include "picking.h"

#include <limits>

namespace {

// How far along the ray it meets the triangle, in lengths of its direction; infinity when it does not.
double meeting(const Ray &ray, Vec3 a, Vec3 b, Vec3 c)
{
    constexpr double never = std::numeric_limits<double>::infinity();
    const Vec3 along_b = b - a, along_c = c - a, across = cross(ray.direction, along_c),
               from_a = ray.origin - a;
    const double volume = dot(along_b, across);
    if (volume == 0)
        return never;
    const double u = dot(from_a, across) / volume;
    const Vec3 turned = cross(from_a, along_b);
    const double v = dot(ray.direction, turned) / volume, at = dot(along_c, turned) / volume;
    return u >= 0 && v >= 0 && u + v <= 1 && at > 0 ? at : never; // false for NaN, too
}

} // namespace

std::optional<Hit> pick(const Scene &scene, const Ray &ray)
{
    double nearest = std::numeric_limits<double>::infinity();
    std::optional<Hit> hit;
    const auto corner = [&](std::size_t i) { return scene.vertices[scene.corners[i]].position; };
    for (std::size_t number = 0; number < scene.faces.size(); ++number) {
        const Face &face = scene.faces[number];
        for (std::size_t i = face.first; i < face.first + face.count; i += 3)
            if (const double at = meeting(ray, corner(i), corner(i + 1), corner(i + 2)); at < nearest) {
                nearest = at;
                hit = {number, ray.origin + ray.direction * at};
            }
    }
    return hit;
}
