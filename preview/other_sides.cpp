#include "other_sides.h"

#include <unordered_map>

namespace {

std::span<const Vertex> outline_of(const Scene &scene, const Face &face)
{
    return std::span(scene.vertices).subspan(face.outline, face.outline_size);
}

bool are_equal(Vec3 a, Vec3 b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

// The same corners, one way round and the other.
bool are_two_sides(std::span<const Vertex> one, std::span<const Vertex> other)
{
    const std::size_t count = one.size();
    const auto same = [&](std::size_t i, std::size_t j) {
        return are_equal(one[i % count].position, other[j % count].position);
    };
    if (count != other.size())
        return false;
    for (std::size_t start = 0; start < count; ++start) {
        std::size_t i = 0;
        while (i < count && same(i, start + count - i))
            ++i;
        if (i == count)
            return true;
    }
    return false;
}

// The same for all orders of the corners.
std::size_t hash_of(std::span<const Vertex> outline)
{
    std::size_t sum = 0;
    for (const Vertex &vertex : outline) {
        const std::hash<double> hash;
        const auto &[x, y, z] = vertex.position;
        sum += (hash(x) * 31 + hash(y)) * 31 + hash(z);
    }
    return sum;
}

} // namespace

std::vector<std::uint32_t> find_other_sides(const Scene &scene)
{
    std::vector<std::uint32_t> other_sides(scene.faces.size(), no_face);
    std::unordered_map<std::size_t, std::uint32_t> alone; // the last face of each hash that has no other side
    alone.reserve(scene.faces.size());
    for (std::uint32_t i = 0; i < scene.faces.size(); ++i) {
        const auto outline = outline_of(scene, scene.faces[i]);
        const auto [known, is_new] = alone.try_emplace(hash_of(outline), i);
        if (is_new)
            continue;
        if (are_two_sides(outline_of(scene, scene.faces[known->second]), outline)) {
            other_sides[i] = known->second;
            other_sides[known->second] = i;
            alone.erase(known);
        } else {
            known->second = i;
        }
    }
    return other_sides;
}
