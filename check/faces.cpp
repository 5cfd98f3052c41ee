#include "faces.h"

#include <numeric>

namespace marlogl::check {

namespace {

std::vector<int> slots_from(int first, int count)
{
    std::vector<int> slots(static_cast<std::size_t>(count));
    std::iota(slots.begin(), slots.end(), first);
    return slots;
}

} // namespace

void Faces::add(int slot, std::string name, int first, int corners, int twin)
{
    faces_.push_back({slot, std::move(name), slots_from(first, corners), twin});
}

void Faces::add(const Row &row)
{
    if (row.outside != 0)
        add(row.outside, row.name, row.outside_position, row.corners, row.inside);
    if (row.inside != 0)
        add(row.inside, std::string(row.name) + (row.outside != 0 ? ", inside" : ""), row.inside_position,
            row.corners, row.outside);
}

void Faces::add_row(int count, const char *name, int slot, int first, int corners)
{
    for (int i = 0; i < count; ++i)
        add(slot + i, name + (' ' + std::to_string(i + 1)), first + corners * i, corners);
}

void Faces::add_cap(const Row &cap)
{
    const std::size_t before = faces_.size();
    add(cap);
    if (cell(4) != 1)
        return;
    const std::string_view codes = corner_names.substr(0, static_cast<std::size_t>(cap.corners));
    for (std::size_t i = before; i < faces_.size(); ++i) {
        std::vector<int> &positions = faces_[i].positions;
        const int first = positions.empty() ? 0 : positions.front();
        std::erase_if(positions, [&](int position) {
            return !names_corner(codes, static_cast<std::size_t>(position - first));
        });
    }
}

// Whether a triangle has a corner, counted from 0, of those that the codes name.
bool Faces::names_corner(std::string_view codes, std::size_t corner) const
{
    for (int triangle = 1; triangle + 2 <= static_cast<int>(codes.size()); ++triangle) {
        const std::string_view names = std::string_view(object_.point_texts(triangle).attribute).substr(0, 3);
        if (names.find_first_not_of(codes) == names.npos && names.find(codes[corner]) != names.npos)
            return true;
    }
    return false;
}

} // namespace marlogl::check
