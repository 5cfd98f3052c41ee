// What drawing functions have before them: their own declarations, and the figures that they share.
#pragma once

#include "emit/angles.h"
#include "generators/generators.h"

namespace marlogl {

/// An extent laid over the origin; an odd unit lies on the positive side.
struct Span {
    double low, high;
};

inline Span centred(double extent)
{
    return {-std::floor(extent / 2), extent - std::floor(extent / 2)};
}

/// Records the four corners of a level rectangle: front left, back left, back right, front right.
void record_rectangle(Pen &pen, Span x, Span y, double z);

/// A regular ring of points: how many, and the angle between two of them in degrees.
struct Ring {
    int count, step;

    constexpr int angle(int i) const { return i * step; }
};

/// The ring that the selectors 0 to 3 stand for: 6, 8, 10 or 12 points, and 20 for any other number.
Ring selected_ring(double selector);

/// The number after `i` on a ring of `count` numbers, 0 to count - 1.
constexpr int next(int i, int count)
{
    return i + 1 == count ? 0 : i + 1;
}

inline constexpr int no_point = -1;

/// A triangle (its last point is no_point) or a quadrilateral that both passes draw: the outside pass as its
/// points stand here, the inside pass in the opposite order.
struct Face {
    FaceSlots slots[2]; // inside, outside
    std::array<int, 4> points;
};

/// Draws a face with the slots and the order of points of `side`. Errors: those of the pen.
void draw_face(Pen &pen, Side side, const Face &face);

/// Draws a face that has the same slots on both sides.
inline void draw_face(Pen &pen, Side side, FaceSlots slots, const std::array<int, 4> &points)
{
    draw_face(pen, side,
              {
                  {slots, slots},
                  points
    });
}

/// Draws a polygon without texture and normal through recorded points. Errors: index, input_output.
template <typename Points> void draw_plain_polygon(Pen &pen, const Points &points)
{
    pen.out().line(begin_polygon);
    for (const auto point : points)
        pen.vertex(point);
    pen.out().line(end_block);
}

/// Draws GL_POINTS at recorded points, in the colour of slot 0, unless code slot 26 of the object is blank or
/// holds control characters only. Errors: index, input_output.
void draw_lights(Pen &pen, std::span<const int> points);

} // namespace marlogl
