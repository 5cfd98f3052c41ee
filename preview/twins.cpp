#include "twins.h"

#include "places.h"
#include "polygons.h"

#include <algorithm>
#include <map>
#include <optional>

namespace {

using Walk = std::vector<std::uint32_t>; // the places of the corners, in order

// The same walk from the corner with which it comes first among all; corners that repeat are left out.
Walk normalised(Walk walk)
{
    walk.erase(std::unique(walk.begin(), walk.end()), walk.end());
    while (walk.size() > 1 && walk.front() == walk.back())
        walk.pop_back();
    Walk first = walk;
    const std::uint32_t lowest = *std::min_element(walk.begin(), walk.end());
    for (std::size_t i = 0; i < walk.size(); ++i) {
        std::rotate(walk.begin(), walk.begin() + 1, walk.end());
        if (walk.front() == lowest && walk < first)
            first = walk;
    }
    return first;
}

// The last faces in one place: as the walk goes, and the other way round.
struct Last {
    std::optional<std::size_t> along, against;
};

} // namespace

std::vector<Sides> sides_of_faces(const Scene &scene)
{
    const std::vector<std::uint32_t> places = number_places(scene);
    std::map<Walk, Last> in_one_place;
    std::vector<Sides> sides(scene.faces.size(), Sides::both);
    const auto replace = [&](std::optional<std::size_t> &last, std::size_t face) {
        if (last)
            sides[*last] = Sides::none;
        last = face;
    };
    for (std::size_t i = 0; i < scene.faces.size(); ++i) {
        const Face &face = scene.faces[i];
        if (face.outline_size > most_corners_cut)
            continue;
        const auto begin = places.begin() + face.outline, end = begin + face.outline_size;
        Walk along = normalised({begin, end}), against = normalised({along.rbegin(), along.rend()});
        const bool turned = against < along;
        Last &last = in_one_place[std::move(turned ? against : along)];
        replace(turned ? last.against : last.along, i);
    }
    for (const auto &[walk, last] : in_one_place)
        if (last.along && last.against)
            sides[*last.along] = sides[*last.against] = Sides::front;
    return sides;
}
