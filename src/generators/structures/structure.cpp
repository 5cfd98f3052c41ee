// Structure with antennas: a closed solid of eight corners that can lean, with antennas and lights on top.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

//    7 ------ 6      upper outline 4-7
//   /|       /|
//  4 ------ 5 |      ^ z  y
//  | 3 -----|-2      |  /
//  |/       |/       | /
//  0 ------ 1        +--> x     lower outline 0-3
constexpr int corner_count = 8;

// A face that goes round the solid: its corners as the inside pass writes them, the cells of its lower and
// upper edge length, and the cell that asks for straight sides.
struct Wall {
    int la, ha, hb, lb;
    int lower_length, upper_length, straight_switch;
    bool along_x;
    FaceSlots slots[2]; // inside, outside
};

constexpr Wall walls[] = {
    {0, 4, 5, 1, 1, 5, 51, true,  {{7, 25}, {1, 1}}  }, // front
    {1, 5, 6, 2, 2, 6, 52, false, {{10, 37}, {4, 13}}}, // right
    {2, 6, 7, 3, 3, 7, 53, true,  {{8, 29}, {2, 5}}  }, // back
    {3, 7, 4, 0, 4, 8, 54, false, {{9, 33}, {3, 9}}  }, // left
};
constexpr int wall_count = 4;

constexpr Face top_face = {
    "top", {{11, 41}, {5, 17}},
     { 5, 6,             7, 4}
};

// The sides in the order of the cells that select one, and the direction in which each lies.
constexpr struct {
    int lower[2], upper[2];
    double x, y;
} sides[] = {
    {{2, 3}, {6, 7}, 0,  1 }, // back
    {{0, 1}, {4, 5}, 0,  -1}, // front
    {{1, 2}, {5, 6}, 1,  0 }, // right
    {{0, 3}, {4, 7}, -1, 0 }, // left
};

struct Shifts {
    double front = 0, back = 0, left = 0, right = 0;
};

Shifts edge_shifts()
{
    Shifts shifts;
    shifts.left = cell(16) == 0 ? cell(14) : -cell(14);
    shifts.right = cell(17) == 0 ? cell(15) : -cell(15);
    if (cell(10) > 0)
        (cell(11) == 0 ? shifts.front : shifts.back) = cell(12) == 0 ? -cell(10) : cell(10);
    return shifts;
}

// The offsets of each corner from where the edge lengths put it.
struct Offsets {
    double x[corner_count] = {}, y[corner_count] = {}, height[corner_count] = {};
};

Offsets corner_offsets()
{
    constexpr double stored_offset = 5000;
    Offsets offsets;
    for (int i = 0; i < 4; ++i) {
        const auto &side = sides[i];
        if (cell(23) == i)
            for (const auto &corners : {side.lower, side.upper})
                for (int end = 0; end < 2; ++end)
                    offsets.height[corners[end]] = cell(21) - stored_offset;
        if (cell(24) == i)
            for (const int corner : side.lower) {
                offsets.x[corner] = side.x * cell(22);
                offsets.y[corner] = side.y * cell(22);
            }
    }
    // On top of the side's height.
    for (int i = 0; i < 4; ++i)
        if (cell(35) == i)
            for (const int corner : sides[i].upper)
                offsets.height[corner] += cell(34);
    return offsets;
}

struct Point {
    double x, y, z;
};

using Points = std::array<Point, corner_count>;

Points corners()
{
    const Span front_x = centred(cell(1)), right_y = centred(cell(2)), back_x = centred(cell(3)),
               left_y = centred(cell(4));
    const Span front_top_x = centred(cell(5)), right_top_y = centred(cell(6)), back_top_x = centred(cell(7)),
               left_top_y = centred(cell(8));
    const double lean_x = cell(32), lean_y = cell(33), ground = cell(58), height = cell(9);
    const Shifts shift = edge_shifts();
    const auto [e, f, h] = corner_offsets();
    return {
        {
         {front_x.low + e[0] + shift.front, left_y.low + f[0] + shift.left, ground + h[0]},
         {front_x.high + e[1] + shift.front, right_y.low + f[1] + shift.right, ground + h[1]},
         {back_x.high + e[2] + shift.back, right_y.high + f[2] + shift.right, ground + h[2]},
         {back_x.low + e[3] + shift.back, left_y.high + f[3] + shift.left, ground + h[3]},
         {front_top_x.low + lean_x + shift.front, left_top_y.low + lean_y + shift.left,
             ground + height + h[4]},
         {front_top_x.high + lean_x + shift.front, right_top_y.low + lean_y + shift.right,
             ground + height + h[5]},
         {back_top_x.high + lean_x + shift.back, right_top_y.high + lean_y + shift.right,
             ground + height + h[6]},
         {back_top_x.low + lean_x + shift.back, left_top_y.high + lean_y + shift.left,
             ground + height + h[7]},
         }
    };
}

bool lower_is_wider(const Wall &wall)
{
    return cell(wall.lower_length) > cell(wall.upper_length);
}

bool is_straight(const Wall &wall)
{
    return cell(wall.lower_length) != cell(wall.upper_length) && is_true(wall.straight_switch);
}

// The point under (or over) the end `narrow` of a wall's narrower edge, on the level of its wider edge.
void record_foot(const Wall &wall, const Point &narrow, const Point &wide)
{
    if (wall.along_x)
        record(narrow.x, wide.y, wide.z);
    else
        record(wide.x, narrow.y, wide.z);
}

void record_feet(const Wall &wall, const Points &solid)
{
    const bool lower = lower_is_wider(wall);
    record_foot(wall, solid[lower ? wall.ha : wall.la], solid[lower ? wall.la : wall.ha]);
    record_foot(wall, solid[lower ? wall.hb : wall.lb], solid[lower ? wall.lb : wall.hb]);
}

// Writes a wall through the points `ea` and `ea` + 1 that record_feet recorded: a rectangle and a triangle on
// each side of it. The outside pass writes every piece in the opposite order.
//
//      ha ------ hb        la, ea, eb, lb stand on one level when the lower edge is the wider one,
//     / |        | .       ha, ea, eb, hb when the upper one is
//   la  ea       eb  lb
void write_straight_wall(Side side, const Wall &wall, int ea)
{
    const auto [t, bit1] = wall.slots[side];
    const int eb = ea + 1;
    // Faces stand as the outside pass writes them.
    const std::array<int, 4> rectangle =
        lower_is_wider(wall) ? std::array{eb, wall.hb, wall.ha, ea} : std::array{wall.lb, eb, ea, wall.la};
    write_face(side, single_face("rectangle", wall.slots[inside], wall.slots[outside], rectangle));
    const auto triangle = [&, t = t](int p1, int p2, int p3, int position) {
        if (side == outside)
            std::swap(p1, p3);
        write3a("", "", "", t, p1, p2, p3, position, position + 1, position + 2);
    };
    triangle(wall.la, wall.ha, ea, bit1);
    triangle(eb, wall.hb, wall.lb, bit1 + 1);
}

// `feet` are the first points that record_feet recorded for each wall, none for a wall that is not straight.
void write_walls(Side side, const std::array<int, wall_count> &feet)
{
    for (std::size_t i = 0; i < feet.size(); ++i) {
        const Wall &wall = walls[i];
        if (feet[i] != none)
            write_straight_wall(side, wall, feet[i]);
        else
            write_face(side, single_face("wall", wall.slots[inside], wall.slots[outside],
                                         {wall.lb, wall.hb, wall.ha, wall.la}));
    }
}

bool has_antenna(int j)
{
    return is_true(35 + j);
}

void record_antenna(int j)
{
    constexpr double stored_offset = 2000;
    const double x = point_x(50 + j, current_object) - stored_offset;
    const double y = point_y(50 + j, current_object) - stored_offset;
    const double foot = cell(58) + cell(9);
    record(x, y, foot);
    record(x, y, foot + cell(45 + j));
}

void write_antenna_commands(int last_point)
{
    const Text<11> &colour = object_colour(13, current_object);
    const auto component = [&](std::size_t first) {
        return fnhexa(hex(numeric_value(columns(colour, first, first + 2))));
    };
    work_flag = false;
    for (int j = 1; j <= 4; ++j) {
        if (!has_antenna(j))
            continue;
        if (!work_flag)
            write_line("Dbx( 2E 00 ", component(3), " EF ", component(6), " ", component(9),
                       " )  ; Antenna's");
        work_flag = true;
        write_line("MoveToPt( ", spaced(last_point + 1), " )");
        write_line("DrawToPt( ", spaced(last_point + 2), " )");
        last_point += 2;
    }
}

} // namespace

void save_structure()
{
    remember_texture("");
    const bool has_lights = cell(31) == 1;
    if (has_lights)
        vertex_copy_flag = "Y";
    List1.clear();
    List2.clear();

    const Points solid = corners();
    for (const Point &point : solid)
        record(point.x, point.y, point.z);
    std::array<int, wall_count> feet;
    int last_point = corner_count - 1;
    for (std::size_t i = 0; i < feet.size(); ++i) {
        feet[i] = is_straight(walls[i]) ? last_point + 1 : none;
        if (feet[i] != none) {
            record_feet(walls[i], solid);
            last_point += 2;
        }
    }
    for (int j = 1; j <= 4; ++j)
        if (has_antenna(j))
            record_antenna(j);
    vertex_copy_flag = "N";

    // The bottom face takes the view side that the object before has left.
    write4a(" au  ; ", 12, 1, 2, 3, 0, 45, " Bottom");
    set_view_side(inside);
    write_walls(inside, feet);
    write_face(inside, top_face);
    set_view_side(outside);
    write_walls(outside, feet);
    write4a(" ad  ; ", 6, 0, 3, 2, 1, 21, "bottom");
    write_face(outside, top_face);

    if (has_lights)
        make_lights("04070605");
    write_antenna_commands(last_point);
}

} // namespace marlogl
