// Profiled-roof house: a box of walls under a roof of eight strips, which follow a profile of seven points.
#include "generators/figures.h"

namespace marlogl {

namespace {

//            11              front profile 8-14 at the gable, back profile 15-21 behind it
//         10    12
//       9          13         1,5 ---- 2,6   ^ y
//     8              14        |        |    |
//    4 -------------- 7       0,4 ---- 3,7   +--> x
//    0 -------------- 3        0-3 base, 4-7 eaves
enum Wall { front, left, back, right };
constexpr Face walls[] = {
    {{{15, 49}, {1, 1}},  {3, 7, 4, 0}},
    {{{16, 53}, {2, 5}},  {0, 4, 5, 1}},
    {{{17, 57}, {3, 9}},  {1, 5, 6, 2}},
    {{{18, 61}, {4, 13}}, {2, 6, 7, 3}},
};

constexpr Face strips[] = {
    {{{19, 65}, {5, 17}},  {8, 15, 5, 4}   },
    {{{20, 69}, {6, 21}},  {9, 16, 15, 8}  },
    {{{21, 73}, {7, 25}},  {10, 17, 16, 9} },
    {{{22, 77}, {8, 29}},  {11, 18, 17, 10}},
    {{{23, 81}, {9, 33}},  {12, 19, 18, 11}},
    {{{24, 85}, {10, 37}}, {13, 20, 19, 12}},
    {{{25, 89}, {11, 41}}, {14, 21, 20, 13}},
    {{{26, 93}, {12, 45}}, {7, 6, 21, 14}  },
};

constexpr int gable_corners = 9;

struct Gable {
    FaceSlots slots[2];        // inside, outside; the texture position of the second corner comes first
    int points[gable_corners]; // as the inside pass draws them
};

// In front and at the back.
constexpr Gable gables[] = {
    {{{27, 121}, {13, 101}}, {7, 4, 8, 9, 10, 11, 12, 13, 14}  },
    {{{28, 131}, {14, 111}}, {5, 6, 21, 20, 19, 18, 17, 16, 15}},
};

void record_profile(Pen &pen, double y, double eaves)
{
    for (int left = 12; left <= 14; ++left)
        pen.record(-pen.cell(left), y, eaves + pen.cell(left + 10));
    pen.record(0, y, eaves + pen.cell(2));
    for (int right = 15; right <= 17; ++right)
        pen.record(pen.cell(right), y, eaves + pen.cell(right + 10));
}

void draw_gable(Pen &pen, Side side, const Gable &gable)
{
    const auto [face, second_position] = gable.slots[side];
    pen.to.ngon.open(NgonLayout::gable);
    for (int i = 0; i < gable_corners; ++i) {
        const int corner = side == inside ? i : gable_corners - 1 - i;
        // The positions go round from the second corner; the first one has the last.
        const Point &at = pen.object.points(second_position + (corner == 0 ? gable_corners : corner) - 1);
        pen.to.ngon.add({static_cast<double>(gable.points[corner]), static_cast<double>(at.x), 255.0 - at.y});
    }
    pen.ngon(face);
}

} // namespace

void draw_profiled_house(Pen &pen)
{
    const double wall_height = pen.cell(3);
    const Span x{-pen.cell(11), pen.cell(18)}, y = centred(pen.cell(1));
    const double ground = pen.cell(58), eaves = ground + wall_height;

    record_rectangle(pen, x, y, ground);
    record_rectangle(pen, x, y, eaves);
    record_profile(pen, y.low, eaves);
    record_profile(pen, y.high, eaves);

    for (const Side side : {inside, outside}) {
        const auto draw_wall = [&](Wall wall) {
            if (wall_height > 0)
                draw_face(pen, side, walls[wall]);
        };
        pen.choose_side(side);
        draw_gable(pen, side, gables[0]);
        draw_wall(front);
        draw_gable(pen, side, gables[1]);
        draw_wall(back);
        for (const Face &strip : strips)
            draw_face(pen, side, strip);
        draw_wall(left);
        draw_wall(right);
    }
}

} // namespace marlogl
