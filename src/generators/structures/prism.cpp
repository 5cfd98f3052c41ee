#include "generators/structures/prism.h"

#include "emit/point_file.h"

#include <utility>

namespace marlogl {

std::array<double, 4> wall_points(double i, double n)
{
    if (i < n)
        return {i, n + i, n + i - 1, i - 1};
    return {0, n, 2 * n - 1, n - 1};
}

bool wall_turn(bool flat, double n)
{
    return flat ? fnturn_xy(n, n + 1, n + 2) : fnturn_xz(n, n + 1, n + 2);
}

void write_ngon_cap(const Cap &cap, double n, std::string_view reverse)
{
    const double first = cap.position == bottom ? 0 : n;
    const auto corner = [&](double k) {
        const double slot = k + cap.before_positions;
        const double u = point_x(slot, current_object), v = point_y(slot, current_object);
        write_point_line("   ", p0(first + k - 1), " ", blank_p0(u), " ", p0(v));
    };
    const bool turn = fnturn_xy(first, first + 1, first + 2);
    point_file::open();
    if (turn == (cap.position == bottom))
        for (double k = 1; k <= n; ++k)
            corner(k);
    else
        for (double k = n; k >= 1; --k)
            corner(k);
    writen(cap.t, reverse);
}

void write_triangle_cap(const Cap &cap, double n, std::string_view codes, bool opposite)
{
    const double first = cap.position == bottom ? 0 : n;
    for (double j = 1; j <= n - 2; ++j) {
        const Text<4> &names = point_attr(j, current_object);
        const auto a = codes.find(names(1)), b = codes.find(names(2)), c = codes.find(names(3));
        if (a == codes.npos || b == codes.npos || c == codes.npos)
            continue;
        double corner1 = static_cast<double>(a + 1), corner3 = static_cast<double>(c + 1);
        const double corner2 = static_cast<double>(b + 1);
        const auto point = [&](double corner_number) { return first + corner_number - 1; };
        const bool turn = fnturn_xy(point(corner1), point(corner2), point(corner3));
        if ((turn == (cap.position == top)) != opposite)
            std::swap(corner1, corner3);
        write3a("", "", "", cap.t, point(corner1), point(corner2), point(corner3),
                corner1 + cap.before_positions, corner2 + cap.before_positions,
                corner3 + cap.before_positions);
    }
}

} // namespace marlogl
