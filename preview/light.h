// A sun that stands still in the world, and soft light from the sky.
#pragma once

#include "geometry.h"

#include <algorithm>

// To the sun, of length 1: in front, a little to the left, half way up. From wherever one looks at a cube,
// the sides that are seen differ: their brightness is about 0.97 above, 0.85 in front, 0.69 left, 0.59 right,
// 0.43 behind, 0.31 below.
inline constexpr Vec3 to_the_sun{-0.15, -0.68, 0.7178};

// How bright a side is that looks there, from 0 to 1. Sides away from the sun are told apart, too.
inline double brightness(Vec3 towards)
{
    constexpr double from_everywhere = 0.22, from_the_sky = 0.11, from_the_sun = 0.31;
    return std::clamp(from_everywhere + from_the_sky * (1 + towards.z) +
                          from_the_sun * (1 + dot(towards, to_the_sun)),
                      0.0, 1.0);
}

// Where the shadow of a point lies on the ground, which is at height 0. Nothing below has one.
inline Vec3 shadow_of(Vec3 point)
{
    const Vec3 cast = point - to_the_sun * (std::max(point.z, 0.0) / to_the_sun.z);
    return {cast.x, cast.y, 0};
}
