// Capped cylinder: two rings joined by sides, closed by a fan to a point at each end; upright with a railing
// and lights if wanted, or lying along y.
#include "generators/figures.h"
#include "generators/generators.h"

#include <string>

namespace marlogl {

namespace {

// Point 0 lies beyond ring 2, point 1 beyond ring 1, and ring 1 begins at point 2.
constexpr int upper_end = 0, lower_end = 1, ring1 = 2;

struct Cylinder {
    Ring ring;
    bool has_ring2;
    int ring2, railing; // first points; without a ring 2, ring 1 stands for it
};

Ring cylinder_ring(double selector)
{
    return selector == 5 ? Ring{9, 40} : selected_ring(selector);
}

bool is_lying()
{
    return cell(18) == 1;
}

bool has_railing()
{
    return !is_lying() && cell(6) > 0;
}

void record_upright(const Cylinder &cylinder)
{
    const double base = cell(58), beyond2 = cell(1), between = cell(2), beyond1 = cell(3);
    const auto record_ring = [&](double diameter, double z) {
        for (int i = 0; i < cylinder.ring.count; ++i) {
            const int angle = cylinder.ring.angle(i);
            record(diameter / 2 * fnsin(angle), diameter / 2 * fncos(angle), z);
        }
    };
    record(0, 0, base + beyond2 + between + beyond1);
    record(0, 0, base);
    record_ring(cell(4), base + beyond1);
    if (cylinder.has_ring2)
        record_ring(cell(5), base + beyond1 + between);
    if (has_railing())
        record_ring(cell(5), base + between + beyond1 + cell(6));
}

// The ends lie in the planes of their rings.
void record_lying(const Cylinder &cylinder)
{
    const double base = cell(58), radius1 = cell(4) / 2, radius2 = cell(5) / 2;
    const double y1 = -cell(3) - cell(2) / 2, y2 = cell(1) + cell(2) / 2;
    const auto record_ring = [&](double radius, double y) {
        for (int i = 0; i < cylinder.ring.count; ++i) {
            const int angle = cylinder.ring.angle(i);
            record(radius * fnsin(angle), y, base + radius + radius * fncos(angle));
        }
    };
    record(0, y2, base + radius2);
    record(0, y1, base + radius1);
    record_ring(radius1, y1);
    if (cylinder.has_ring2)
        record_ring(radius2, y2);
}

void write_railing(const Cylinder &cylinder)
{
    colour_line_blank(object_colour(23, current_object));
    begin_lines_line();
    for (int i = 0; i < cylinder.ring.count; ++i) {
        vertex_line(cylinder.ring2 + i);
        vertex_line(cylinder.railing + i);
    }
    // The rails are not closed to a ring.
    for (int i = 0; i + 1 < cylinder.ring.count; ++i) {
        write_line(comment_prefix, "DrawToPt( ", spaced(cylinder.railing + i), " )");
        vertex_line(cylinder.ring2 + i);
        vertex_line(cylinder.ring2 + i + 1);
    }
    gl_end_line();
}

void write_triangle(Side side, FaceSlots slots, int p1, int p2, int p3)
{
    write_face(side, single_face("end", slots, slots, {p1, p2, p3, no_point}));
}

void write_faces(Side side, const Cylinder &cylinder)
{
    for (int i = 0; i < cylinder.ring.count; ++i) {
        const int j = i + 1, k = next(i, cylinder.ring.count);
        const FaceSlots slots{j + 2, 4 * j + 5};
        write_triangle(side, {2, 104}, cylinder.ring2 + k, upper_end, cylinder.ring2 + i);
        write_triangle(side, {1, 101}, ring1 + i, lower_end, ring1 + k);
        if (cylinder.has_ring2)
            write_face(side, single_face("side", slots, slots,
                                         {ring1 + k, cylinder.ring2 + k, cylinder.ring2 + i, ring1 + i}));
    }
}

void write_lights(const Cylinder &cylinder)
{
    constexpr int unlit_count = 9;
    if (cylinder.ring.count == unlit_count)
        return;
    std::string numbers;
    for (int i = 0; i < cylinder.ring.count; ++i)
        numbers += text_of(p00(cylinder.ring2 + i));
    make_lights(numbers);
}

} // namespace

void save_cylinder()
{
    remember_texture("99999999");
    List1.clear();
    List2.clear();
    const bool has_lights = cell(31) == 1;
    if (has_lights)
        vertex_copy_flag = "Y";

    const Ring ring = cylinder_ring(cell(7));
    const bool has_ring2 = cell(2) > 0;
    const int ring2 = has_ring2 ? ring1 + ring.count : ring1;
    const Cylinder cylinder{ring, has_ring2, ring2, ring2 + ring.count};
    if (is_lying())
        record_lying(cylinder);
    else
        record_upright(cylinder);

    if (has_railing())
        write_railing(cylinder);
    if (is_true(12)) {
        set_view_side(outside);
        write_faces(outside, cylinder);
    }
    set_view_side(inside);
    write_faces(inside, cylinder);
    if (has_lights)
        write_lights(cylinder);
    vertex_copy_flag = "N";
}

} // namespace marlogl
