#include "places.h"

#include <algorithm>
#include <limits>

std::vector<std::uint32_t> number_places(const Scene &scene)
{
    // A stray corner far away must not melt what is small into one place.
    constexpr double most = 0.001;
    const double grain =
        std::clamp(length(scene.highest - scene.lowest) * 1e-7, std::numeric_limits<double>::min(), most);
    std::vector<std::array<double, 3>> cells;
    for (const Vertex &vertex : scene.vertices) {
        const Vec3 p = vertex.position * (1 / grain);
        cells.push_back({std::round(p.x), std::round(p.y), std::round(p.z)});
    }
    std::vector<std::uint32_t> order(cells.size()), numbers(cells.size());
    for (std::uint32_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return cells[a] < cells[b]; });
    std::uint32_t number = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        number += cells[order[i]] != cells[order[i - 1]];
        numbers[order[i]] = number;
    }
    return numbers;
}
