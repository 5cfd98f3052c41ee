// Structure with antennas: a closed solid of eight corners that can lean, with antennas and lights on top.
#include "generators/figures.h"

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
    {{{{7, 25}, {1, 1}}, {1, 5, 4, 0}},   1, 5, 51, true }, // front
    {{{{10, 37}, {4, 13}}, {2, 6, 5, 1}}, 2, 6, 52, false}, // right
    {{{{8, 29}, {2, 5}}, {3, 7, 6, 2}},   3, 7, 53, true }, // back
    {{{{9, 33}, {3, 9}}, {0, 4, 7, 3}},   4, 8, 54, false}, // left
};
constexpr int wall_count = 4;

enum End { top, bottom };
constexpr Face end_faces[] = {
    {{{11, 41}, {5, 17}}, {5, 6, 7, 4}},
    {{{12, 45}, {6, 21}}, {0, 3, 2, 1}},
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

Shifts edge_shifts(Pen &pen)
{
    Shifts shifts;
    shifts.left = pen.cell(16) == 0 ? pen.cell(14) : -pen.cell(14);
    shifts.right = pen.cell(17) == 0 ? pen.cell(15) : -pen.cell(15);
    if (pen.cell(10) > 0)
        (pen.cell(11) == 0 ? shifts.front : shifts.back) = pen.cell(12) == 0 ? -pen.cell(10) : pen.cell(10);
    return shifts;
}

// The offsets of each corner from where the edge lengths put it.
struct Offsets {
    double x[corner_count] = {}, y[corner_count] = {}, height[corner_count] = {};
};

Offsets corner_offsets(Pen &pen)
{
    constexpr double stored_offset = 5000;
    Offsets offsets;
    for (int i = 0; i < 4; ++i) {
        const auto &side = sides[i];
        if (pen.cell(23) == i)
            for (const auto &corners : {side.lower, side.upper})
                for (int end = 0; end < 2; ++end)
                    offsets.height[corners[end]] = pen.cell(21) - stored_offset;
        if (pen.cell(24) == i)
            for (const int corner : side.lower) {
                offsets.x[corner] = side.x * pen.cell(22);
                offsets.y[corner] = side.y * pen.cell(22);
            }
    }
    // On top of the side's height.
    for (int i = 0; i < 4; ++i)
        if (pen.cell(35) == i)
            for (const int corner : sides[i].upper)
                offsets.height[corner] += pen.cell(34);
    return offsets;
}

using Corners = std::array<Vertex, corner_count>;

// Corners 0 to 3: the cells of the edge lengths along x and y whose ends they are, and which ends. Those of
// the corners above them follow four cells later.
constexpr struct {
    int length_x, length_y;
    bool right, behind;
} feet[] = {
    {1, 4, false, false},
    {1, 2, true,  false},
    {3, 2, true,  true },
    {3, 4, false, true },
};

Corners corners(Pen &pen)
{
    const double lean_x = pen.cell(32), lean_y = pen.cell(33), ground = pen.cell(58), height = pen.cell(9);
    const Shifts shift = edge_shifts(pen);
    const Offsets offset = corner_offsets(pen);
    Corners solid;
    for (std::size_t i = 0; i < solid.size(); ++i) {
        const bool upper = i >= std::size(feet);
        const auto [length_x, length_y, right, behind] = feet[i % std::size(feet)];
        const Span x = centred(pen.cell(upper ? length_x + 4 : length_x));
        const Span y = centred(pen.cell(upper ? length_y + 4 : length_y));
        solid[i] = {
            (right ? x.high : x.low) + (upper ? lean_x : offset.x[i]) + (behind ? shift.back : shift.front),
            (behind ? y.high : y.low) + (upper ? lean_y : offset.y[i]) + (right ? shift.right : shift.left),
            (upper ? ground + height : ground) + offset.height[i]};
    }
    return solid;
}

bool lower_is_wider(Pen &pen, const Wall &wall)
{
    return pen.cell(wall.lower_length) > pen.cell(wall.upper_length);
}

// Records the points under (or over) the ends of a wall's narrower edge, on the level of its wider edge.
void record_extra_points(Pen &pen, const Wall &wall, const Corners &solid)
{
    const bool narrows = lower_is_wider(pen, wall);
    for (const auto &[lower, higher] : {std::pair(wall.la(), wall.ha()), std::pair(wall.lb(), wall.hb())}) {
        const Vertex &narrow = solid[static_cast<std::size_t>(narrows ? higher : lower)];
        const Vertex &wide = solid[static_cast<std::size_t>(narrows ? lower : higher)];
        pen.record(wall.along_x ? narrow.x : wide.x, wall.along_x ? wide.y : narrow.y, wide.z);
    }
}

// Writes a wall with straight sides: a rectangle through its extra points `ea` and `ea` + 1, and a triangle
// on each side of it. The outside pass writes every piece in the opposite order.
//
//          ha ---- hb            la ea ---- eb lb      the wider edge is the lower or
//          |       |             |          |          the upper one
//    la    ea      eb   lb       ha         hb
void draw_straight_wall(Pen &pen, Side side, const Wall &wall, int ea)
{
    const int eb = ea + 1;
    const auto [face, positions] = wall.face.slots[side];
    const auto rectangle = [&, slots = wall.face.slots[side]](int p1, int p2, int p3, int p4) {
        pen.quad<int>(slots, side == outside ? std::array{p4, p3, p2, p1} : std::array{p1, p2, p3, p4});
    };
    const auto triangle = [&, slot = face](int p1, int p2, int p3, int position) {
        if (side == outside)
            std::swap(p1, p3);
        pen.polygon<int, 3>(slot, {p1, p2, p3}, {position, position + 1, position + 2});
    };
    if (lower_is_wider(pen, wall))
        rectangle(ea, wall.ha(), wall.hb(), eb);
    else
        rectangle(wall.la(), ea, eb, wall.lb());
    triangle(wall.la(), wall.ha(), ea, positions);
    triangle(eb, wall.hb(), wall.lb(), positions + 1);
}

// The first extra point of each wall, no_point for a wall without straight sides.
using ExtraPoints = std::array<int, wall_count>;

void draw_walls(Pen &pen, Side side, const ExtraPoints &extra_points)
{
    for (std::size_t i = 0; i < extra_points.size(); ++i)
        if (extra_points[i] == no_point)
            draw_face(pen, side, walls[i].face);
        else
            draw_straight_wall(pen, side, walls[i], extra_points[i]);
}

bool has_antenna(Pen &pen, int j)
{
    return pen.is_true(35 + j);
}

void record_antenna(Pen &pen, int j)
{
    constexpr double stored_offset = 2000;
    const Point &position = pen.object.points(50 + j);
    const double x = position.x - stored_offset, y = position.y - stored_offset;
    const double foot = pen.cell(58) + pen.cell(9);
    pen.record(x, y, foot);
    pen.record(x, y, foot + pen.cell(45 + j));
}

void write_antenna_commands(Pen &pen, int last_point)
{
    const Text<11> &colour = pen.object.colours(13);
    const auto component = [&](std::size_t first) {
        return hex(numeric_value(columns(colour, first, first + 2)), 2);
    };
    bool coloured = false;
    for (int j = 1; j <= 4; ++j) {
        if (!has_antenna(pen, j))
            continue;
        if (!coloured)
            pen.out().line("Dbx( 2E 00 ", component(3), " EF ", component(6), " ", component(9),
                           " )  ; Antenna's");
        coloured = true;
        move_line(pen.out(), last_point + 1);
        draw_line(pen.out(), last_point + 2);
        last_point += 2;
    }
}

} // namespace

void draw_structure(Pen &pen)
{
    const bool has_lights = pen.cell(31) == 1;
    pen.short_coordinates = has_lights;
    const Corners solid = corners(pen);
    for (const auto &[x, y, z] : solid)
        pen.record(x, y, z);
    ExtraPoints extra_points;
    for (std::size_t i = 0; i < extra_points.size(); ++i) {
        const Wall &wall = walls[i];
        const bool straight =
            pen.cell(wall.lower_length) != pen.cell(wall.upper_length) && pen.is_true(wall.straight_switch);
        extra_points[i] = straight ? pen.count() : no_point;
        if (straight)
            record_extra_points(pen, wall, solid);
    }
    const int last_point = pen.count() - 1;
    for (int j = 1; j <= 4; ++j)
        if (has_antenna(pen, j))
            record_antenna(pen, j);

    // The inside of the bottom takes the view side that the object before has left.
    draw_face(pen, inside, end_faces[bottom]);
    pen.choose_side(inside);
    draw_walls(pen, inside, extra_points);
    draw_face(pen, inside, end_faces[top]);
    pen.choose_side(outside);
    draw_walls(pen, outside, extra_points);
    draw_face(pen, outside, end_faces[bottom]);
    draw_face(pen, outside, end_faces[top]);

    if (has_lights)
        draw_lights(pen, std::array{4, 7, 6, 5});
    write_antenna_commands(pen, last_point);
}

} // namespace marlogl
