// Digital clock: a strip of six digit fields, with separators between hours, minutes and seconds.
#include "generators/figures.h"

namespace marlogl {

namespace {

//   9   10   11  12   13   14  15   16   17     ^ z
//   | h | h  | : | m  | m  | : | s  | s  |      |
//   0   1    2   3    4    5   6    7    8      +--> x
constexpr int columns_of_points = 9;
constexpr int separators[] = {2, 5};
constexpr int digits[] = {0, 1, 3, 4, 6, 7};

// Draws the field whose lower left point is `left`.
void draw_field(Pen &pen, int left, FaceSlots slots)
{
    pen.picture(slots, {left, left + columns_of_points, left + columns_of_points + 1, left + 1});
}

} // namespace

void draw_clock(Pen &pen)
{
    const double w = pen.cell(1), s = pen.cell(3), low = pen.cell(58);
    const double x[columns_of_points] = {-(3 * w + s), -(2 * w + s), -(w + s), -w, 0, w,
                                         w + s,        2 * w + s,    3 * w + s};
    for (const double z : {low, low + pen.cell(2)})
        for (const double column : x)
            pen.record(column, 0, z);

    if (s > 0)
        for (const int left : separators)
            draw_field(pen, left, {11, 41});
    for (const int left : digits)
        draw_field(pen, left, {1, 1});
}

} // namespace marlogl
