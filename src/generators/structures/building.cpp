// Profiled-roof house: a box of walls under a roof of eight strips, which follow a profile of seven points.
#include "emit/point_file.h"
#include "generators/figures.h"
#include "generators/generators.h"

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
    {"Base front", {{15, 49}, {1, 1}},  {3, 7, 4, 0}},
    {"Base left",  {{16, 53}, {2, 5}},  {0, 4, 5, 1}},
    {"Base back",  {{17, 57}, {3, 9}},  {1, 5, 6, 2}},
    {"Base right", {{18, 61}, {4, 13}}, {2, 6, 7, 3}},
};

constexpr Face strips[] = {
    {"Roof 1", {{19, 65}, {5, 17}},  {8, 15, 5, 4}   },
    {"Roof 2", {{20, 69}, {6, 21}},  {9, 16, 15, 8}  },
    {"Roof 3", {{21, 73}, {7, 25}},  {10, 17, 16, 9} },
    {"Roof 4", {{22, 77}, {8, 29}},  {11, 18, 17, 10}},
    {"Roof 5", {{23, 81}, {9, 33}},  {12, 19, 18, 11}},
    {"Roof 6", {{24, 85}, {10, 37}}, {13, 20, 19, 12}},
    {"Roof 7", {{25, 89}, {11, 41}}, {14, 21, 20, 13}},
    {"Roof 8", {{26, 93}, {12, 45}}, {7, 6, 21, 14}  },
};

constexpr int gable_corners = 9;

struct Gable {
    FaceSlots slots[2];        // inside, outside; the texture position of the second corner comes first
    int points[gable_corners]; // as the inside pass writes them
};

enum GableEnd { front_gable, back_gable };
constexpr Gable gables[] = {
    {{{27, 121}, {13, 101}}, {7, 4, 8, 9, 10, 11, 12, 13, 14}  },
    {{{28, 131}, {14, 111}}, {5, 6, 21, 20, 19, 18, 17, 16, 15}},
};

void record_profile(double y, double eaves)
{
    for (int left = 12; left <= 14; ++left)
        record(-cell(left), y, eaves + cell(left + 10));
    record(0, y, eaves + cell(2));
    for (int right = 15; right <= 17; ++right)
        record(cell(right), y, eaves + cell(right + 10));
}

void write_gable(Side side, GableEnd end)
{
    const Gable &gable = gables[end];
    const auto [t, second_position] = gable.slots[side];
    point_file::open();
    for (int i = 0; i < gable_corners; ++i) {
        const int corner = side == inside ? i : gable_corners - 1 - i;
        // The positions go round from the second corner; the first one has the last.
        const int slot = second_position + (corner == 0 ? gable_corners : corner) - 1;
        const double u = point_x(slot, current_object), v = point_y(slot, current_object);
        write_point_line("    ", p0(gable.points[corner]), "  ", spaced(u), " ", fnflip(v));
    }
    writen(t, "N");
}

} // namespace

void save_building()
{
    remember_texture("99999999");
    const double wall_height = cell(3);
    const Span x{-cell(11), cell(18)}, y = centred(cell(1));
    const double ground = cell(58), eaves = ground + wall_height;

    record_rectangle(x, y, ground);
    record_rectangle(x, y, eaves);
    record_profile(y.low, eaves);
    record_profile(y.high, eaves);

    for (const Side side : {inside, outside}) {
        const auto write_wall = [&](Wall wall) {
            if (wall_height > 0)
                write_face(side, walls[wall]);
        };
        remember_texture("");
        set_view_side(side);
        write_gable(side, front_gable);
        write_wall(front);
        write_gable(side, back_gable);
        write_wall(back);
        for (const Face &strip : strips)
            write_face(side, strip);
        write_wall(left);
        write_wall(right);
    }
}

} // namespace marlogl
