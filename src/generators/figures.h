// The figures that generators share.
#pragma once

#include "design/scene.h"
#include "emit/faces.h"
#include "emit/lines.h"
#include "emit/textures.h"
#include "emit/vertex_table.h"

#include <array>

namespace marlogl {

inline double cell(double number)
{
    return object_param(number, current_object);
}

/// A cell that holds a yes (-1) or no.
inline bool is_true(double number)
{
    return cell(number) == -1;
}

/// An extent laid over the origin; an odd unit lies on the positive side.
struct Span {
    double low, high;
};

inline Span centred(double extent)
{
    return {-whole(extent / 2), extent - whole(extent / 2)};
}

/// Records a point by its coordinates in the order of the output. Errors: those of record_point.
inline void record(double x, double y, double z)
{
    record_point(x, z, y);
}

/// Records the four corners of a level rectangle: front left, back left, back right, front right.
void record_rectangle(Span x, Span y, double z);

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

enum Side { inside, outside };

/// Sets view_side.
inline void set_view_side(Side side)
{
    view_side = side == inside ? "I" : "O";
}

inline constexpr int no_point = -1;

/// Face slot and first texture position of a face.
struct FaceSlots {
    int t, bit1;
};

/// A triangle (its last point is no_point) or a quadrilateral that both passes write: the outside pass as its
/// points stand here, the inside pass in the opposite order.
struct Face {
    std::string_view name;
    FaceSlots slots[2]; // inside, outside
    std::array<int, 4> points;
};

/// A face that stands in no table.
constexpr Face single_face(std::string_view name, FaceSlots inside_slots, FaceSlots outside_slots,
                           const std::array<int, 4> &corners)
{
    return {
        name, {inside_slots, outside_slots},
         corners
    };
}

/// Writes a face by write3 or write4a, with the slots and the order of points of `side`. Errors: theirs.
void write_face(Side side, const Face &face);

/// Writes GL_POINTS at the points whose two-digit numbers stand in `lightss` one after the other. List2 must
/// hold the coordinates of the points, and is cleared; a number that it does not hold repeats the light
/// before. Sets work_flag to false. Before all that, control characters in the current object's code slot 26
/// become blanks, and when the slot is blank then, nothing more happens. Errors: input_output.
void make_lights(std::string_view lightss);

} // namespace marlogl
