#include "edges.h"

#include "places.h"

#include <algorithm>

namespace {

constexpr double smoothest_bend = -0.8; // the cosine between two faces that bend by less than 37 degrees

// A side of a face's outline.
struct Side {
    std::array<std::uint32_t, 2> places; // of its ends, the lower number first: equal points have one number
    std::array<std::uint32_t, 2> ends;
    std::uint32_t face;
    Vec3 inward; // from the edge into the face, of length 1
};

void add_sides(const Scene &scene, const std::vector<std::uint32_t> &places, const std::vector<Vec3> &normals,
               std::uint32_t number, std::vector<Side> &sides)
{
    const Face &face = scene.faces[number];
    for (std::uint32_t i = 0; i < face.outline_size; ++i) {
        const std::uint32_t from = face.outline + i, to = face.outline + (i + 1) % face.outline_size;
        if (places[from] == places[to])
            continue;
        const Vec3 along = scene.vertices[to].position - scene.vertices[from].position;
        const Vec3 inward =
            unit(cross(normals[number], along)); // the normal sees the corners counter-clockwise
        const bool turned = places[from] > places[to];
        sides.push_back({
            turned ? std::array{places[to],   places[from]}
              : std::array{places[from], places[to]  },
            {from,         to          },
            number,
            inward
        });
    }
}

// The sides first to last lie on each other.
void judge(const Side *first, const Side *last, const std::vector<Vec3> &normals, Edges &edges)
{
    constexpr double in_one_plane = 0.999;
    const Side *second = nullptr;
    for (const Side *side = first + 1; side != last; ++side) {
        const double bend = dot(first->inward, side->inward);
        if (bend > in_one_plane)
            continue;
        if (second != nullptr && dot(second->inward, side->inward) <= in_one_plane) {
            second = nullptr; // three faces meet
            break;
        }
        second = side;
    }
    if (second == nullptr || dot(first->inward, second->inward) > smoothest_bend) {
        edges.sharp.push_back({first->ends});
        return;
    }
    if (dot(first->inward, second->inward) > -in_one_plane)
        edges.smooth.push_back({
            {first->ends  },
            { first->face, second->face},
            dot(normals[first->face], normals[second->face]) > 0
        });
}

} // namespace

Edges find_edges(const Scene &scene, const std::vector<Vec3> &normals)
{
    const std::vector<std::uint32_t> places = number_places(scene);
    std::vector<Side> sides;
    for (std::uint32_t i = 0; i < scene.faces.size(); ++i)
        add_sides(scene, places, normals, i, sides);
    std::sort(sides.begin(), sides.end(), [](const Side &a, const Side &b) { return a.places < b.places; });
    Edges edges;
    for (std::size_t first = 0, end = 0; first < sides.size(); first = end) {
        for (end = first + 1; end < sides.size() && sides[end].places == sides[first].places;)
            ++end;
        judge(&sides[first], sides.data() + end, normals, edges);
    }
    return edges;
}
