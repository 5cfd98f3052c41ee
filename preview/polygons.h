// Cuts polygons into triangles. OpenGL draws only convex ones as they are meant.
#pragma once

#include "scene.h"

#include <memory>

class GLUtesselator;

enum class Shape : std::uint8_t {
    convex,
    concave,
    crossing,     // its edges cross each other, so it has no inside that everybody would agree on
    long_concave, // of more corners than are cut: drawn as if it were convex
};

// MarlOgl writes polygons of up to 20 corners; the time for crossing edges grows with the square of their
// number.
inline constexpr std::size_t most_corners_cut = 100;

// So many vertices are added in a scene where edges cross.
inline constexpr std::size_t most_crossings = 100000;

class PolygonCutter {
  public:
    PolygonCutter();

    // Adds the triangles of the polygon that the vertices from `first` on make up; at least three, in order.
    // Where edges cross, vertices are added; once these are too many, polygons that cross are drawn as if
    // they were convex.
    Shape cut(std::vector<Vertex> &vertices, std::size_t first, std::vector<std::uint32_t> &corners);

  private:
    bool fill_outline(const std::vector<Vertex> &vertices, std::size_t first);
    bool is_convex() const;
    bool crosses_itself() const;
    bool tessellate(std::vector<Vertex> &vertices, std::size_t first, std::vector<std::uint32_t> &corners);

    std::unique_ptr<GLUtesselator, void (*)(GLUtesselator *)> tesselator;
    std::vector<Vec3> outline; // relative to the first corner, without corners that repeat the one before
    std::size_t crossings_left = most_crossings;
    Vec3 normal; // to the viewer who sees the corners run counter-clockwise
};
