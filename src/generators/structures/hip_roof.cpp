// Hip roof: a plate, and four faces up to a ridge along y, a ridge along x or an apex.
#include "generators/figures.h"

namespace marlogl {

namespace {

//   1 ------- 2    ^ y    ridge along y: 4 in front, 5 behind
//   |  4   5  |    |      ridge along x: 4 on the left, 5 on the right
//   0 ------- 3    +--> x apex: 4
constexpr Face plate{
    {{1, 50}, {6, 70}},
    { 3, 2,            1, 0}
};

// Front, left, back, right.
constexpr Face ridge_along_y[] = {
    {{{2, 1}, {7, 25}},   {3, 4, 0, no_point}},
    {{{4, 54}, {9, 74}},  {0, 4, 5, 1}       },
    {{{3, 4}, {8, 28}},   {1, 5, 2, no_point}},
    {{{5, 58}, {10, 78}}, {2, 5, 4, 3}       },
};
constexpr Face apex[] = {
    {{{2, 7}, {7, 31}},   {3, 4, 0, no_point}},
    {{{4, 13}, {9, 37}},  {0, 4, 1, no_point}},
    {{{3, 10}, {8, 34}},  {1, 4, 2, no_point}},
    {{{5, 16}, {10, 40}}, {2, 4, 3, no_point}},
};
constexpr Face ridge_along_x[] = {
    {{{2, 62}, {7, 82}},  {3, 5, 4, 0}       },
    {{{4, 19}, {9, 43}},  {0, 4, 1, no_point}},
    {{{3, 66}, {8, 86}},  {1, 4, 5, 2}       },
    {{{5, 22}, {10, 46}}, {2, 5, 3, no_point}},
};

std::span<const Face> roof_of(double shape)
{
    if (shape == 0)
        return ridge_along_y;
    if (shape == 1)
        return apex;
    return ridge_along_x;
}

} // namespace

void draw_hip_roof(Pen &pen)
{
    constexpr double stored_offset = 2000;
    const double shape = pen.cell(6), ground = pen.cell(58), top = ground + pen.cell(3);
    const double ridge = pen.cell(11) - stored_offset;
    const Span ends = centred(pen.cell(7));

    record_rectangle(pen, centred(pen.cell(1)), centred(pen.cell(2)), ground);
    if (shape == 0) {
        pen.record(ridge, ends.low, top);
        pen.record(ridge, ends.high, top);
    } else if (shape == 1) {
        pen.record(ridge, pen.cell(12) - stored_offset, top);
    } else {
        pen.record(ends.low, ridge, top);
        pen.record(ends.high, ridge, top);
    }

    for (const Side side : {outside, inside}) {
        pen.choose_side(side);
        draw_face(pen, side, plate);
        for (const Face &face : roof_of(shape))
            draw_face(pen, side, face);
    }
}

} // namespace marlogl
