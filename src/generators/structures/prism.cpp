#include "generators/structures/prism.h"

namespace marlogl {

void Prism::record_outline(int before, double z, double y, double shift, double lift) const
{
    for (double j = 1; j <= n; ++j) {
        const Point &corner = pen.object.points(j + before);
        if (flat)
            pen.record(corner.x, corner.y, z);
        else
            pen.record(corner.x + shift, y, pen.cell(58) + corner.y + lift);
    }
}

std::array<double, 4> Prism::wall_points(double i) const
{
    if (i < n)
        return {i, n + i, n + i - 1, i - 1};
    return {0, n, 2 * n - 1, n - 1};
}

bool Prism::turns_clockwise() const
{
    Vertices &points = pen.to.vertices;
    return flat ? points.turns_clockwise_xy(n, n + 1, n + 2) : points.turns_clockwise_xz(n, n + 1, n + 2);
}

void Prism::draw_ngon_cap(const Cap &cap, bool reversed) const
{
    const double first = first_point(cap);
    NgonFile &ngon = pen.to.ngon;
    const auto corner = [&](double k) {
        const Point &at = pen.object.points(k + cap.before_positions);
        ngon.add({first + k - 1, static_cast<double>(at.x), static_cast<double>(at.y)});
    };
    const bool turn = pen.to.vertices.turns_clockwise_xy(first, first + 1, first + 2);
    ngon.open(NgonLayout::cap);
    if (turn == (cap.position == bottom))
        for (double k = 1; k <= n; ++k)
            corner(k);
    else
        for (double k = n; k >= 1; --k)
            corner(k);
    pen.ngon(cap.face, reversed);
}

void Prism::draw_triangle_cap(const Cap &cap, std::string_view codes, bool opposite) const
{
    const double first = first_point(cap);
    for (double j = 1; j <= n - 2; ++j) {
        const Text<4> &names = pen.object.point_texts(j).attribute;
        const auto a = codes.find(names(1)), b = codes.find(names(2)), c = codes.find(names(3));
        if (a == codes.npos || b == codes.npos || c == codes.npos)
            continue;
        // Corners from 0 on.
        std::array<int, 3> corners{static_cast<int>(a), static_cast<int>(b), static_cast<int>(c)};
        std::array<double, 3> points{first + corners[0], first + corners[1], first + corners[2]};
        const bool turn = pen.to.vertices.turns_clockwise_xy(points[0], points[1], points[2]);
        if ((turn == (cap.position == top)) != opposite) {
            std::swap(corners[0], corners[2]);
            std::swap(points[0], points[2]);
        }
        const int before = cap.before_positions + 1;
        pen.polygon(cap.face, points, {before + corners[0], before + corners[1], before + corners[2]});
    }
}

} // namespace marlogl
