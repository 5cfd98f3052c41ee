// What the manual's tables say of the kinds: faces, slots, points.
#pragma once

#include "design/scene.h"
#include "dispatch/dispatch.h"

#include <string>
#include <string_view>
#include <vector>

namespace marlogl::check {

/// A face of an object: its slot, and its texture positions among the points.
struct Face {
    int slot;
    std::string name;
    std::vector<int> positions;
    int twin = 0; ///< the slot of the face that lies in the same place, 0 for none
};

/// The faces that an object of a kind has with the cells that it holds.
std::vector<Face> faces_of(const Kind &kind, const Object &object);

/// Whether the kind draws points 1 to n, n being the number of Q records.
bool counts_points(const Kind &kind);

/// Whether the kind takes a code or a text slot for something else than a face.
bool uses_code(const Kind &kind, int slot);
bool uses_text(const Kind &kind, int slot);

/// The outlines of extruded polygons: the point before the first one of each, and a name. Empty for all other
/// kinds.
struct Outline {
    int before;
    std::string_view name;
};
std::vector<Outline> outlines_of(const Kind &kind);

/// How the attributes of points name the corners of an outline, from the first one on.
inline constexpr std::string_view corner_names = "123456789ABCDEFGHIJK";

/// How many corners an outline of the kind can have.
int most_corners(const Kind &kind);

} // namespace marlogl::check
