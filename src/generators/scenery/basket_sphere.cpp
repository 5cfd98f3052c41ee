// Sphere with basket: an envelope of seven rings, and a square basket on four ropes below it.
#include "generators/figures.h"

namespace marlogl {

namespace {

constexpr int ring_count = 7;

struct Basket {
    int first; // its points: lower and upper corner 0, lower and upper corner 1, ...

    int lower(int corner) const { return first + 2 * (corner % 4); }
    int upper(int corner) const { return lower(corner) + 1; }
};

// The points of the lowest ring that the ropes hang from.
constexpr struct {
    int ring_count, points[4];
} ropes[] = {
    {6,  {1, 2, 4, 5}  },
    {8,  {1, 3, 5, 7}  },
    {10, {2, 3, 7, 8}  },
    {12, {2, 4, 8, 10} },
    {20, {4, 6, 14, 16}},
};

// Records the rings; returns the height of the highest.
double record_rings(Pen &pen, Ring ring, double base)
{
    constexpr int first_angle = 1;
    double height = base;
    for (int r = 1; r <= ring_count; ++r) {
        height += pen.cell(r);
        const double radius = pen.cell(8 + r) / 2;
        for (int i = 0; i < ring.count; ++i) {
            const int angle = first_angle + ring.angle(i);
            pen.record(radius * sine(angle), radius * cosine(angle), height);
        }
    }
    return height;
}

void record_basket(Pen &pen, double base, double basket_height)
{
    const Span edge = centred(pen.cell(16));
    for (int corner = 0; corner < 4; ++corner) {
        const double x = corner < 2 ? edge.high : edge.low,
                     y = corner == 0 || corner == 3 ? edge.high : edge.low;
        pen.record(x, y, base);
        pen.record(x, y, base + basket_height);
    }
}

void draw_ropes(Pen &pen, const Basket &basket, Ring ring)
{
    pen.out().line("glColor3ub( 255, 255, 255 ); ");
    pen.out().line(begin_lines);
    for (const auto &[count, points] : ropes)
        for (int corner = 0; count == ring.count && corner < 4; ++corner) {
            pen.vertex(points[corner]);
            pen.vertex(basket.upper(corner));
        }
    pen.out().line(end_block);
}

void draw_basket(Pen &pen, Side side, const Basket &basket)
{
    for (int m = 0; m < 4; ++m)
        draw_face(pen, side, {7 + m, 25 + 4 * m},
                  {basket.lower(m), basket.upper(m), basket.upper(m + 1), basket.lower(m + 1)});
    draw_face(pen, side, {11, 41}, {basket.lower(3), basket.lower(2), basket.lower(1), basket.lower(0)});
}

// Draws a triangle of a cap, whose texture positions stand in three slots from `position` on.
void draw_cap_triangle(Pen &pen, Side side, int face, int position, int p1, int p2, int p3)
{
    if (side == inside)
        std::swap(p1, p3);
    pen.polygon<int, 3>(face, {p1, p2, p3}, {position, position + 1, position + 2});
}

void draw_envelope(Pen &pen, Side side, int n, int bottom)
{
    for (int i = 0; i < n; ++i)
        draw_cap_triangle(pen, side, 12, 50, bottom, i, next(i, n));
    for (int r = 2; r <= ring_count; ++r) {
        if (!(pen.cell(r) > 0))
            continue;
        const int lower = (r - 2) * n, upper = (r - 1) * n;
        for (int i = 0; i < n; ++i)
            draw_face(pen, side, {r - 1, 4 * (r - 2) + 1},
                      {lower + i, upper + i, upper + next(i, n), lower + next(i, n)});
    }
    const int top = bottom + 1, highest = (ring_count - 1) * n;
    for (int i = 0; i < n; ++i)
        draw_cap_triangle(pen, side, 13, 53, highest + i, top, highest + next(i, n));
}

} // namespace

void draw_basket_sphere(Pen &pen)
{
    const bool has_offsets = pen.cell(29) != 0, has_basket = pen.cell(29) == 1;
    const double base = pen.cell(58);
    const double basket_height = has_offsets ? pen.cell(17) : 0, gap = has_offsets ? pen.cell(18) : 0;
    const double envelope = base + gap + basket_height;
    const Ring ring = selected_ring(pen.cell(20));

    const double highest = record_rings(pen, ring, envelope);
    const int bottom = pen.count();
    // The two end points keep their fractions, unlike recorded ones.
    for (const double z : {require_finite(envelope), require_finite(highest + pen.cell(8))})
        pen.to.vertices.append({0, 0, z});
    const Basket basket{bottom + 2};
    if (has_basket) {
        record_basket(pen, base, basket_height);
        draw_ropes(pen, basket, ring);
    }
    for (const Side side : {inside, outside}) {
        pen.choose_side(side);
        if (has_basket)
            draw_basket(pen, side, basket);
    }
    // The view side stays outside, also for the inside of the envelope.
    if (pen.cell(19) == 0)
        draw_envelope(pen, inside, ring.count, bottom);
    draw_envelope(pen, outside, ring.count, bottom);
}

} // namespace marlogl
