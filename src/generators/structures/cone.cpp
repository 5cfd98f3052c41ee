// Cone: a fan of triangles under its base, and one up to its apex.
#include "generators/figures.h"

namespace marlogl {

void draw_cone(Pen &pen)
{
    const double radius = pen.cell(1) / 2, ground = pen.cell(58);
    const Ring ring = selected_ring(pen.cell(6));

    constexpr int centre = 0, apex = 1, first = 2;
    pen.record(0, 0, ground);
    pen.record(0, 0, ground + pen.cell(2));
    for (int i = 0; i < ring.count; ++i)
        pen.record(radius * sine(ring.angle(i)), radius * cosine(ring.angle(i)), ground);

    for (int i = 0; i < ring.count; ++i)
        pen.triangle({1, 1}, first + next(i, ring.count), centre, first + i);
    for (int i = 0; i < ring.count; ++i)
        pen.triangle({i + 2, 3 * i + 4}, first + i, apex, first + next(i, ring.count));
}

} // namespace marlogl
