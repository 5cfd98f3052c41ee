// Cone: a fan of triangles under its base, and one up to its apex.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

void save_cone()
{
    remember_texture("99999999");
    List2.clear();
    const double radius = cell(1) / 2, ground = cell(58);
    const Ring ring = selected_ring(cell(6));

    constexpr int centre = 0, apex = 1, first = 2;
    record(0, 0, ground);
    record(0, 0, ground + cell(2));
    for (int i = 0; i < ring.count; ++i)
        record(radius * fnsin(ring.angle(i)), radius * fncos(ring.angle(i)), ground);

    for (int i = 0; i < ring.count; ++i)
        write3("", "", "", 1, 1, first + next(i, ring.count), centre, first + i, "");
    for (int i = 0; i < ring.count; ++i)
        write3("", "", "", i + 2, 3 * i + 4, first + i, apex, first + next(i, ring.count), "");
}

} // namespace marlogl
