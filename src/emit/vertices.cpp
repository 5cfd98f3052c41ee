#include "emit/vertices.h"

namespace marlogl {

Vertex Vertices::difference(double from, double to)
{
    if (std::max(any_place(rows, from + 1), any_place(rows, to + 1)) > rows.last)
        return {0, 0, 0};
    const Vertex &a = (*this)(from), &b = (*this)(to);
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

bool Vertices::turns_clockwise_xy(double i, double j, double k)
{
    const Vertex d1 = difference(i, j), d2 = difference(k, j);
    return d1.x * d2.y - d1.y * d2.x >= 0;
}

bool Vertices::turns_clockwise_xz(double i, double j, double k)
{
    const Vertex d1 = difference(i, j), d2 = difference(k, j);
    return d1.x * d2.z - d1.z * d2.x >= 0;
}

} // namespace marlogl
