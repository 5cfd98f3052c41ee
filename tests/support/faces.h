// The textured faces of an output, read back, and what can be said about a set of them.
#pragma once

#include "support/design.h"

#include <functional>
#include <map>
#include <set>

namespace marlogl {

struct Corner3 {
    Point3 at;
    double u, v; // texture position in pixels
};

/// A polygon block.
struct DrawnFace {
    std::string texture; // without its ending; empty when none was bound
    char side = ' ';     // 'I' or 'O' by the colour line within the block, a blank without one
    std::vector<Point3> normal;
    std::vector<Corner3> corners;

    /// The face slot that textured_design named the texture after.
    int slot() const;
    /// The slots that textured_design gave the corners' positions, `flipped` added where the row is counted
    /// from below; -1 for a position of no slot.
    std::vector<int> position_slots() const;
    static constexpr int flipped = 1000;
};
using Faces = std::vector<DrawnFace>;

Faces faces(const Converted &converted);

/// Cells and their values: "1 5, 2 9".
using Cells = std::string;

/// An outline of the extruded polygons: corners as "x y, x y", and the attributes of the points from 1 on.
struct Prism {
    std::string bottom, top, triangles = "";
};

/// A design of one object. Every face slot has a texture of its own, "t00" to "t28", and every point slot s a
/// position of its own, (s, 250 - s), where `prism` does not take the slot.
Design textured_design(int version, int type, const Cells &cells, const Prism &prism = {});
Faces textured_faces(int version, int type, const Cells &cells, const Prism &prism = {});

/// Every corner of `after` is the corner of `before` at the same place, moved.
void expect_moved(const Faces &before, const Faces &after, const std::function<Point3(const Point3 &)> &move);

// Geometry. A face counts as it is written: its corners are counter-clockwise for a viewer in front of it.

/// Twice the area of a face as a vector towards its viewer.
Point3 area_vector(const DrawnFace &face);
/// The volume that the faces enclose, negative when they are seen from inside. What is open lies at the
/// height of `base`.
double volume(const Faces &faces, double base);
/// The edges that no other face walks in the opposite direction, and edges that two walk in the same.
std::vector<std::pair<Point3, Point3>> open_edges(const Faces &faces);
/// Smallest and largest coordinates.
std::pair<Point3, Point3> extents(const Faces &faces);
/// The same as "-4..5 -3..3 0..16".
std::string box_text(const Faces &faces);
/// The face with its corners in the opposite order, beginning with the least one.
std::vector<Point3> opposite(const DrawnFace &face);
std::vector<Point3> in_order(const DrawnFace &face);

/// The signs of a vector as a text: "0-+".
std::string signs(const Point3 &v);
/// The signs of the direction that a face looks in and of the way from its middle to its first corner, its
/// texture, and the position slots of its corners: "0-0 +0- t01 4 3 2 1" is a front wall, drawn from the
/// lower right corner on.
std::string description(const DrawnFace &face);

bool operator<(const Point3 &a, const Point3 &b);
Point3 operator-(const Point3 &a, const Point3 &b);
std::ostream &operator<<(std::ostream &out, const Point3 &p);

} // namespace marlogl
