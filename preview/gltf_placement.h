// Where an object stands in a glTF scene, and the way from the points of the scene to its own.
#pragma once

#include "geometry.h"

#include <array>

class GltfPlacement {
  public:
    // `object` leads from the object's own coordinates into those of the scene, and is taken when it moves,
    // turns and magnifies only; else the object stands at the origin. `unit` is positive.
    GltfPlacement(const Placement &object, double unit);

    // A point of the scene in the object's coordinates: as it was written, where that is certain.
    Vec3 own(Vec3 point) const;

    // The length of an own unit in the scene.
    double magnification() const { return length(placement_.x); }

    // In units of the design file, without the noise of the calculation.
    std::array<double, 3> translation() const;
    std::array<double, 4> rotation() const; // a quaternion: x, y, z, w
    double scale() const;

  private:
    Placement placement_;
    double unit_;
};
