// Sphere with basket: an envelope of seven rings, and a square basket on four ropes below it.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

constexpr int rings = 7;

struct Basket {
    int first; // its points: lower and upper corner 0, lower and upper corner 1, ...

    int lower(int corner) const { return first + 2 * (corner % 4); }
    int upper(int corner) const { return lower(corner) + 1; }
};

// The points of the lowest ring that the ropes hang from.
std::array<int, 4> rope_points(int ring_count)
{
    switch (ring_count) {
    case 6:
        return {1, 2, 4, 5};
    case 8:
        return {1, 3, 5, 7};
    case 10:
        return {2, 3, 7, 8};
    case 12:
        return {2, 4, 8, 10};
    default:
        return {4, 6, 14, 16};
    }
}

// Records the rings; returns the height of the highest.
double record_rings(Ring ring, double base)
{
    constexpr int first_angle = 1;
    double height = base;
    for (int r = 1; r <= rings; ++r) {
        height += cell(r);
        const double radius = cell(8 + r) / 2;
        for (int i = 0; i < ring.count; ++i) {
            const int angle = first_angle + ring.angle(i);
            record(radius * fnsin(angle), radius * fncos(angle), height);
        }
    }
    return height;
}

// The two end points keep their fractions, unlike recorded ones.
void append_end_points(double bottom, double top)
{
    for (const double z : {bottom, top})
        add_entry(List1, "0/", p0(z), "@0");
    for (const double z : {bottom, top})
        next_vertex() = {0, 0, z};
}

void record_basket(double base, double basket_height)
{
    const Span edge = centred(cell(16));
    const struct {
        double x, y;
    } corners[] = {
        {edge.high, edge.high},
        {edge.high, edge.low },
        {edge.low,  edge.low },
        {edge.low,  edge.high},
    };
    for (const auto &[x, y] : corners) {
        record(x, y, base);
        record(x, y, base + basket_height);
    }
}

void write_ropes(const Basket &basket, Ring ring)
{
    write_line("glColor3ub( 255, 255, 255 ); ");
    begin_lines_line();
    int corner = 0;
    for (const int point : rope_points(ring.count)) {
        vertex_line(point);
        vertex_line(basket.upper(corner++));
    }
    gl_end_line();
}

void write_basket(Side side, const Basket &basket)
{
    for (int m = 0; m < 4; ++m) {
        const FaceSlots slots{7 + m, 25 + 4 * m};
        write_face(side,
                   single_face("Basket", slots, slots,
                               {basket.lower(m), basket.upper(m), basket.upper(m + 1), basket.lower(m + 1)}));
    }
    write_face(side, single_face("Basket base", {11, 41}, {11, 41},
                                 {basket.lower(3), basket.lower(2), basket.lower(1), basket.lower(0)}));
}

// Writes a triangle of a cap, whose texture positions stand in three slots from `position` on.
void write_cap_triangle(Side side, int t, int position, int p1, int p2, int p3)
{
    if (side == inside)
        std::swap(p1, p3);
    write3a("", "", "", t, p1, p2, p3, position, position + 1, position + 2);
}

void write_envelope(Side side, int n, int bottom)
{
    for (int i = 0; i < n; ++i)
        write_cap_triangle(side, 12, 50, bottom, i, next(i, n));
    for (int r = 2; r <= rings; ++r) {
        if (!(cell(r) > 0))
            continue;
        const int lower = (r - 2) * n, upper = (r - 1) * n;
        const FaceSlots slots{r - 1, 4 * (r - 2) + 1};
        for (int i = 0; i < n; ++i)
            write_face(side, single_face("Level ", slots, slots,
                                         {lower + i, upper + i, upper + next(i, n), lower + next(i, n)}));
    }
    const int top = bottom + 1, highest = (rings - 1) * n;
    for (int i = 0; i < n; ++i)
        write_cap_triangle(side, 13, 53, highest + i, top, highest + next(i, n));
}

} // namespace

void save_basket_sphere()
{
    remember_texture("");
    List1.clear();
    List2.clear();
    const bool has_offsets = cell(29) != 0, has_basket = cell(29) == 1;
    const double base = cell(58);
    const double basket_height = has_offsets ? cell(17) : 0, gap = has_offsets ? cell(18) : 0;
    const double envelope = base + gap + basket_height;
    const Ring ring = selected_ring(cell(20));

    const double highest = record_rings(ring, envelope);
    append_end_points(envelope, highest + cell(8));
    const int bottom = static_cast<int>(List1.count()) - 2;
    const Basket basket{bottom + 2};
    if (has_basket) {
        record_basket(base, basket_height);
        write_ropes(basket, ring);
    }
    for (const Side side : {inside, outside}) {
        set_view_side(side);
        if (has_basket)
            write_basket(side, basket);
    }
    // The view side stays outside, also for the inside of the envelope.
    if (cell(19) == 0)
        write_envelope(inside, ring.count, bottom);
    write_envelope(outside, ring.count, bottom);
}

} // namespace marlogl
