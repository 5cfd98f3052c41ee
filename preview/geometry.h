// Points, directions and placements in space, in double.
#pragma once

#include <array>
#include <cmath>

struct Vec3 {
    double x = 0, y = 0, z = 0;
};

inline Vec3 operator+(Vec3 a, Vec3 b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(Vec3 a, Vec3 b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator*(Vec3 a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}
inline double dot(Vec3 a, Vec3 b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline double length(Vec3 a)
{
    return std::hypot(a.x, a.y, a.z);
}

inline Vec3 cross(Vec3 a, Vec3 b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// The direction of `a` with length 1; the zero vector where `a` has no usable length.
inline Vec3 unit(Vec3 a)
{
    const double factor = 1 / length(a); // also infinite for lengths that are not zero
    return factor > 0 && std::isfinite(factor) ? a * factor : Vec3{};
}

inline std::array<float, 3> in_floats(Vec3 v)
{
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

inline double radians(double degrees)
{
    return degrees * 3.14159265358979323846 / 180;
}

// An affine transformation: where the three axes and the origin go.
struct Placement {
    Vec3 x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, origin{};

    Vec3 direction(Vec3 v) const { return x * v.x + y * v.y + z * v.z; }
    Vec3 point(Vec3 v) const { return direction(v) + origin; }

    // Normals stay at right angles to their faces under uneven scales: they follow the cofactors.
    Vec3 normal(Vec3 v) const
    {
        const Vec3 turned = cross(y, z) * v.x + cross(z, x) * v.y + cross(x, y) * v.z;
        return unit(dot(cross(x, y), z) < 0 ? turned * -1 : turned);
    }
};

// First `inner`, then `outer`, as OpenGL multiplies its current matrix.
inline Placement operator*(const Placement &outer, const Placement &inner)
{
    return {outer.direction(inner.x), outer.direction(inner.y), outer.direction(inner.z),
            outer.point(inner.origin)};
}

inline Placement translation(Vec3 by)
{
    Placement placement;
    placement.origin = by;
    return placement;
}

inline Placement scaling(Vec3 factors)
{
    Placement placement;
    placement.x.x = factors.x;
    placement.y.y = factors.y;
    placement.z.z = factors.z;
    return placement;
}

// About an axis of length 1.
inline Placement rotation(double degrees, Vec3 axis)
{
    const double c = std::cos(radians(degrees)), s = std::sin(radians(degrees));
    const auto turn = [&](Vec3 v) { return v * c + cross(axis, v) * s + axis * (dot(axis, v) * (1 - c)); };
    const Placement still;
    return {turn(still.x), turn(still.y), turn(still.z), still.origin};
}
