// Rules that look at the outlines of extruded polygons.
#include "examples.h"
#include "rules.h"

#include <algorithm>

namespace marlogl::check {

namespace {

void corner_number(const ObjectSeen &seen, const Say &say)
{
    if (seen.kind == nullptr || outlines_of(*seen.kind).empty())
        return;
    if (const int most = most_corners(*seen.kind); seen.cell(11) > most)
        say(seen.line_of(seen.cell_line(11)),
            {seen.cell(11), " corners: more than ", most, " overlap in the table of points"});
}

void too_few_corners(const ObjectSeen &seen, const Say &say)
{
    if (seen.kind != nullptr && !outlines_of(*seen.kind).empty() && seen.cell(11) < 3)
        say.of_cell(seen, 11, "; an outline has at least 3 corners");
}

void outline_missing(const ObjectSeen &seen, const Say &say)
{
    if (seen.kind == nullptr)
        return;
    const double n = seen.cell(11);
    for (const auto &[before, name] : outlines_of(*seen.kind))
        for (int corner = 1; corner <= n && n <= most_corners(*seen.kind); ++corner)
            if (seen.point_line(before + corner) == 0) {
                say(seen.line_of(seen.cell_line(11)),
                    {"corner ", corner, " of the ", name, " (", record_name('Q', before + corner),
                     ") is missing; it lies at 0,0"});
                break;
            }
}

// The codes of an outline's corners; empty when no cap is drawn as triangles.
std::string_view corner_codes(const ObjectSeen &seen)
{
    if (seen.kind == nullptr || outlines_of(*seen.kind).empty() || seen.cell(4) != 1)
        return {};
    const bool has_cap = std::any_of(seen.faces.begin(), seen.faces.end(), [&](const Face &face) {
        return face.name.find("cap") != face.name.npos && seen.is_drawn(face.slot);
    });
    const double n = seen.cell(11);
    return has_cap && n >= 3 && n <= most_corners(*seen.kind)
               ? corner_names.substr(0, static_cast<std::size_t>(n))
               : std::string_view();
}

void triangle_codes(const ObjectSeen &seen, const Say &say)
{
    const std::string_view codes = corner_codes(seen);
    for (int triangle = 1; triangle + 2 <= static_cast<int>(codes.size()); ++triangle) {
        const std::string_view names =
            std::string_view(seen.object.point_texts(triangle).attribute).substr(0, 3);
        if (names.find_first_not_of(codes) != names.npos)
            say(seen.line_of(seen.point_line(triangle)),
                {"triangle ", triangle, " is skipped: the attribute of ", record_name('Q', triangle),
                 " names the corners ", quoted(names), ", which are no three of ", codes.front(), " to ",
                 codes.back()});
    }
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_outline_rules[] = {
    {"too-many-corners", error, "an outline has more corners than its points have room for",
     "A two-sided extruded polygon has at most 10 corners, an extruded polygon at most 20.",
     {scene, meadow, "P11 3\nK22Y\nF22grass\n", "P11 21\n"}, in_objects(corner_number)},
    {"too-few-corners", warning, "an outline has fewer than three corners",
     "Cell 11 is the number of corners.",
     {scene, meadow, "P11 3\n", "P11 2\n"}, in_objects(too_few_corners)},
    {"outline-missing", warning, "a corner of an outline is missing",
     "Both outlines need all their corners; one that is left out lies at 0,0.",
     {scene, meadow, "Q02350505050\n", ""}, in_objects(outline_missing)},
    {"triangle-codes", warning, "a triangle of a cap names corners that are not there",
     "With cell 4 at 1 the attribute of point j names the three corners of triangle j by the codes 1\n"
     "to 9 and A to K. A triangle without three valid codes is skipped.",
     {scene, triangles, "Q00149504950  123\n", "Q00149504950  1 3\n"}, in_objects(triangle_codes)},
};
// clang-format on

} // namespace

std::span<const Rule> outline_rules()
{
    return all_outline_rules;
}

} // namespace marlogl::check
