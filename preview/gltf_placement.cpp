#include "gltf_placement.h"

#include <algorithm>

namespace {

constexpr double noise = 1e-9;

bool magnifies_evenly(const Placement &placement, double unit)
{
    const auto [x, y, z, origin] = placement;
    const double size = length(x), most = noise * size * size;
    const bool is_even = std::abs(dot(x, y)) <= most && std::abs(dot(y, z)) <= most &&
                         std::abs(dot(z, x)) <= most && std::abs(dot(y, y) - size * size) <= most &&
                         std::abs(dot(z, z) - size * size) <= most; // false for NaN
    const bool is_usable = size > 1e-6 * unit && size < 1e6 * unit && length(origin) < 1e15 * unit;
    return is_even && is_usable && dot(cross(x, y), z) > 0;
}

bool same(Vec3 a, Vec3 b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

double tidy(double value)
{
    return std::abs(value) < noise ? 0 : value;
}

} // namespace

GltfPlacement::GltfPlacement(const Placement &object, double scene_unit)
    : placement_(magnifies_evenly(object, scene_unit) ? object
                                                      : scaling({scene_unit, scene_unit, scene_unit})),
      unit_(scene_unit)
{
}

Vec3 GltfPlacement::own(Vec3 point) const
{
    constexpr double decimals = 1e6;
    const auto &[x, y, z, origin] = placement_;
    const Vec3 away = (point - origin) * (1 / dot(x, x));
    const Vec3 close{dot(x, away), dot(y, away), dot(z, away)};
    const auto rounded = [](double value) { return std::round(value * decimals) / decimals; };
    const Vec3 written{rounded(close.x), rounded(close.y), rounded(close.z)};
    return same(placement_.point(written), point) ? written : close;
}

std::array<double, 3> GltfPlacement::translation() const
{
    const Vec3 at = placement_.origin * (1 / unit_);
    return {tidy(at.x), tidy(at.y), tidy(at.z)};
}

// Each row below is the quaternion times four times one of its parts. That of the largest part is the most
// precise one.
std::array<double, 4> GltfPlacement::rotation() const
{
    const Vec3 x = ::unit(placement_.x), y = ::unit(placement_.y), z = ::unit(placement_.z);
    const double xy = x.y + y.x, yz = y.z + z.y, zx = z.x + x.z;
    const double about_x = y.z - z.y, about_y = z.x - x.z, about_z = x.y - y.x;
    const std::array<std::array<double, 4>, 4> rows{
        {{1 + x.x - y.y - z.z, xy, zx, about_x},
         {xy, 1 - x.x + y.y - z.z, yz, about_y},
         {zx, yz, 1 - x.x - y.y + z.z, about_z},
         {about_x, about_y, about_z, 1 + x.x + y.y + z.z}}
    };
    std::size_t largest = 3;
    for (std::size_t i = 0; i < 3; ++i)
        if (rows[i][i] > rows[largest][largest])
            largest = i;
    std::array<double, 4> quaternion = rows[largest];
    for (double &part : quaternion)
        part = tidy(part / (2 * std::sqrt(rows[largest][largest])));
    return quaternion;
}

double GltfPlacement::scale() const
{
    const double factor = magnification() / unit_;
    return std::abs(factor - 1) < noise ? 1 : factor;
}
