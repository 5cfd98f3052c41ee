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

// A face that goes round the solid, the cells of its lower and its upper edge length, and the cell that asks
// for straight sides.
struct Wall {
    Face face;
    int lower_length, upper_length, straight_switch;
    bool along_x;

    // The corners in the order of the inside pass: lower, higher, higher and lower.
    int la() const { return face.points[3]; }
    int ha() const { return face.points[2]; }
    int hb() const { return face.points[1]; }
    int lb() const { return face.points[0]; }
};

constexpr Wall walls[] = {
    {{"front", {{7, 25}, {1, 1}}, {1, 5, 4, 0}},   1, 5, 51, true },
    {{"right", {{10, 37}, {4, 13}}, {2, 6, 5, 1}}, 2, 6, 52, false},
    {{"back", {{8, 29}, {2, 5}}, {3, 7, 6, 2}},    3, 7, 53, true },
    {{"left", {{9, 33}, {3, 9}}, {0, 4, 7, 3}},    4, 8, 54, false},
};
constexpr int wall_count = 4;

constexpr Face top_face = single_face("top", {11, 41}, {5, 17}, {5, 6, 7, 4});
constexpr Face bottom_face = single_face("bottom", {12, 45}, {6, 21}, {0, 3, 2, 1});

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

using Corners = std::array<Vertex, corner_count>;

Corners corners()
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

// Records the point under (or over) the end `narrow` of a wall's narrower edge, on the level of its wider
// edge.
void record_extra_point(const Wall &wall, const Vertex &narrow, const Vertex &wide)
{
    if (wall.along_x)
        record(narrow.x, wide.y, wide.z);
    else
        record(wide.x, narrow.y, wide.z);
}

void record_extra_points(const Wall &wall, const Corners &solid)
{
    const auto corner = [&](int point) { return solid[static_cast<std::size_t>(point)]; };
    const Vertex la = corner(wall.la()), ha = corner(wall.ha()), hb = corner(wall.hb()),
                 lb = corner(wall.lb());
    if (lower_is_wider(wall)) {
        record_extra_point(wall, ha, la);
        record_extra_point(wall, hb, lb);
    } else {
        record_extra_point(wall, la, ha);
        record_extra_point(wall, lb, hb);
    }
}

// Writes a wall with straight sides: a rectangle through its extra points `ea` and `ea` + 1, and a triangle
// on each side of it. The outside pass writes every piece in the opposite order.
//
//          ha ---- hb            la ea ---- eb lb      the wider edge is the lower or
//          |       |             |          |          the upper one
//    la    ea      eb   lb       ha         hb
void write_straight_wall(Side side, const Wall &wall, int ea)
{
    const int eb = ea + 1;
    const auto [t, bit1] = wall.face.slots[side];
    const auto rectangle = [&, t = t, bit1 = bit1](int p1, int p2, int p3, int p4) {
        if (side == outside)
            write4a("", t, p4, p3, p2, p1, bit1, "");
        else
            write4a("", t, p1, p2, p3, p4, bit1, "");
    };
    const auto triangle = [&, t = t](int p1, int p2, int p3, int position) {
        if (side == outside)
            std::swap(p1, p3);
        write3a("", "", "", t, p1, p2, p3, position, position + 1, position + 2);
    };
    if (lower_is_wider(wall))
        rectangle(ea, wall.ha(), wall.hb(), eb);
    else
        rectangle(wall.la(), ea, eb, wall.lb());
    triangle(wall.la(), wall.ha(), ea, bit1);
    triangle(eb, wall.hb(), wall.lb(), bit1 + 1);
}

// The first extra point of each wall, no_point for a wall without straight sides.
using ExtraPoints = std::array<int, wall_count>;

void write_walls(Side side, const ExtraPoints &extra_points)
{
    for (std::size_t i = 0; i < extra_points.size(); ++i)
        if (extra_points[i] == no_point)
            write_face(side, walls[i].face);
        else
            write_straight_wall(side, walls[i], extra_points[i]);
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
        move_line(last_point + 1);
        draw_line(last_point + 2);
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

    const Corners solid = corners();
    for (const auto &[x, y, z] : solid)
        record(x, y, z);
    ExtraPoints extra_points;
    int last_point = corner_count - 1;
    for (std::size_t i = 0; i < extra_points.size(); ++i) {
        extra_points[i] = is_straight(walls[i]) ? last_point + 1 : no_point;
        if (extra_points[i] != no_point) {
            record_extra_points(walls[i], solid);
            last_point += 2;
        }
    }
    for (int j = 1; j <= 4; ++j)
        if (has_antenna(j))
            record_antenna(j);
    vertex_copy_flag = "N";

    // The inside of the bottom takes the view side that the object before has left.
    write_face(inside, bottom_face);
    set_view_side(inside);
    write_walls(inside, extra_points);
    write_face(inside, top_face);
    set_view_side(outside);
    write_walls(outside, extra_points);
    write_face(outside, bottom_face);
    write_face(outside, top_face);

    if (has_lights)
        make_lights("04070605");
    write_antenna_commands(last_point);
}

} // namespace marlogl
