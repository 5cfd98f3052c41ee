// Rules that look at the points of an object: outlines, rows of points, marks, offsets.
#include "examples.h"
#include "rules.h"

#include <algorithm>

namespace marlogl::check {

namespace {

std::string point_name(int point)
{
    const std::string digits = std::to_string(point);
    return 'Q' + std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits;
}

// The line of a point that counts, 0 for none.
LineNumber counted_line(const ObjectSeen &seen, int point)
{
    const LineNumber line = seen.point_line(point);
    return line > seen.at.counted_from ? line : 0;
}

bool is_row(const ObjectSeen &seen)
{
    return seen.kind != nullptr && counts_points(*seen.kind);
}

int point_count(const ObjectSeen &seen)
{
    return static_cast<int>(std::clamp(seen.cell(point_count_cell), 0.0, double{point_numbers.last}));
}

void point_counted_twice(const LineSeen &seen, const Say &say)
{
    if (seen.earlier != 0 && seen.counts_points())
        say(seen, seen.slot_field(),
            {'"', seen.field(1, 4).text, "\" comes twice in this row (", seen.kind()->name,
             ") and counts as two points (line ", seen.earlier, " is the other one)"});
}

void point_zero(const ObjectSeen &seen, const Say &say)
{
    if (is_row(seen) && counted_line(seen, 0) != 0)
        say(counted_line(seen, 0), "Q000 counts as a point; the last point of the row is then missing");
}

void point_gap(const ObjectSeen &seen, const Say &say)
{
    if (!is_row(seen))
        return;
    int highest = point_numbers.last;
    while (highest > 0 && counted_line(seen, highest) == 0)
        --highest;
    for (int point = 1; point < highest; ++point)
        if (counted_line(seen, point) == 0) {
            say(counted_line(seen, highest), {"the row of points has no ", point_name(point),
                                              ", so it ends at point ", point_count(seen), " of ", highest});
            return;
        }
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
                    {"corner ", corner, " of the ", name, " (", point_name(before + corner),
                     ") is missing; it lies at 0,0"});
                break;
            }
}

// The codes of an outline's corners; empty when no cap is drawn as triangles.
std::string_view corner_codes(const ObjectSeen &seen)
{
    constexpr std::string_view codes = "123456789ABCDEFGHIJK";
    if (seen.kind == nullptr || outlines_of(*seen.kind).empty() || seen.cell(4) != 1)
        return {};
    const bool has_cap = std::any_of(seen.faces.begin(), seen.faces.end(), [&](const Face &face) {
        return face.name.find("cap") != face.name.npos && seen.is_drawn(face.slot);
    });
    const double n = seen.cell(11);
    return has_cap && n >= 3 && n <= most_corners(*seen.kind) ? codes.substr(0, static_cast<std::size_t>(n))
                                                              : std::string_view();
}

void triangle_codes(const ObjectSeen &seen, const Say &say)
{
    const std::string_view codes = corner_codes(seen);
    for (int triangle = 1; triangle + 2 <= static_cast<int>(codes.size()); ++triangle) {
        const std::string_view names = std::string_view(seen.object.points(triangle).attribute).substr(0, 3);
        if (names.find_first_not_of(codes) != names.npos)
            say(seen.line_of(seen.point_line(triangle)),
                {"triangle ", triangle, " is skipped: the attribute of ", point_name(triangle),
                 " names the corners ", quoted(names), ", which are no three of ", codes.front(), " to ",
                 codes.back()});
    }
}

void rail_from_origin(const ObjectSeen &seen, const Say &say)
{
    const Text<4> &marks = seen.object.points(1).attribute;
    if (seen.is("fence") && point_count(seen) > 0 && marks(4) == 'L' && marks(2) != 'S' &&
        seen.point_line(0) == 0)
        say(seen.line_of(seen.point_line(1)), "L at point 1 draws a rail from the origin; begin with a post");
}

bool lacks_mark(const ObjectSeen &seen, int point)
{
    const Text<4> &marks = seen.object.points(point).attribute;
    if (seen.is("tower"))
        return marks(4) != 'H' && marks(4) != 'V';
    if (seen.is("beam"))
        return marks(3) != 'P';
    if (!seen.is("fence") || marks(4) == 'L' || marks(4) == 'P')
        return false;
    // A point without a mark can be where a rail comes from.
    const bool is_last = point == point_count(seen);
    return is_last || seen.object.points(point + 1).attribute(4) != 'L';
}

void point_without_mark(const ObjectSeen &seen, const Say &say)
{
    const std::string_view wanted = seen.is("tower")  ? "H or V at position 18"
                                    : seen.is("beam") ? "P at position 17"
                                                      : "L or P at position 18";
    for (int point = 1; point <= point_count(seen) && is_row(seen); ++point)
        if (const LineNumber line = counted_line(seen, point); line != 0 && lacks_mark(seen, point))
            say(line, {"point ", point, " is not drawn: it has no ", wanted});
}

bool adds_5000(const LineSeen &seen)
{
    return seen.reading.rules.shifts(seen.reading.object->type);
}

struct Stored {
    double x, y;

    explicit Stored(const LineSeen &seen)
        : x(numeric_value(seen.field(5, 8).text)), y(numeric_value(seen.field(9, 12).text))
    {
    }
    bool lies_between(double low, double high) const
    {
        return std::min(x, y) >= low && std::max(x, y) <= high;
    }
};

void points_without_5000(const LineSeen &seen, const Say &say)
{
    // Nobody draws in that corner, but texture positions and small coordinates without the offset all lie
    // there.
    const Stored point(seen);
    if (seen.kind() != nullptr && adds_5000(seen) && point.lies_between(-800, 800))
        say(seen, seen.field(5, 12),
            {"the points of this kind have 5000 added; x = ", point.x, " lies at ", point.x - 5000});
}

void unwanted_5000(const LineSeen &seen, const Say &say)
{
    if (seen.kind() != nullptr && !adds_5000(seen) && Stored(seen).lies_between(4900, 1e300))
        say(seen, seen.field(5, 12), {"the points of a ", seen.kind()->name, " do not have 5000 added"});
}

using enum Severity;
using namespace examples;

constexpr std::string_view scene = "scene.mr2";

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule rules[] = {
    {"point-counted-twice", error, "a point of a row is given twice and counts as two",
     "Towers, roads, fences and beams use points 1 to n, where n is the number of Q records. A point\n"
     "that is given twice is overwritten, but counted twice.",
     {scene, fence, "", "Q00350004986     P\n"}, in_records("Q", point_counted_twice)},
    {"point-zero", warning, "point 0 of a row counts, but is not drawn",
     "Start with point 1: a point 0 counts as well, and then the last point of the row is one that you\n"
     "have not given.",
     {scene, fence, "", "Q00050005000\n"}, in_objects(point_zero)},
    {"point-gap", error, "a row of points has a gap; its last points are not drawn",
     "The number of points is the number of Q records, whatever their point numbers.",
     {scene, fence, "Q00350004986     P\n", "Q00450004986     P\n"}, in_objects(point_gap)},
    {"outline-missing", warning, "a corner of an outline is missing",
     "Both outlines need all their corners; one that is left out lies at 0,0.",
     {scene, meadow, "Q02350505050\n", ""}, in_objects(outline_missing)},
    {"triangle-codes", warning, "a triangle of a cap names corners that are not there",
     "With cell 4 at 1 the attribute of point j names the three corners of triangle j by the codes 1\n"
     "to 9 and A to K. A triangle without three valid codes is skipped.",
     {scene, triangles, "Q00149504950  123\n", "Q00149504950  1 3\n"}, in_objects(triangle_codes)},
    {"rail-from-origin", warning, "a fence begins with a rail from the origin",
     "An L draws a rail from the point before; before point 1 lies point 0, at the origin.",
     {scene, fence, "Q00149804986     P\n", "Q00149804986     L\n"}, in_objects(rail_from_origin)},
    {"point-without-mark", warning, "a point of a row has no mark, so it is not drawn",
     "The attribute stands at positions 15 to 18. A fence needs L or P at 18, a tower H or V at 18, a\n"
     "beam P at 17.",
     {scene, fence, "Q00350004986     P\n", "Q00350004986   P\n"}, in_objects(point_without_mark)},
    {"points-without-5000", error, "points that are stored with 5000 added hold less",
     "Extruded polygons, towers, roads, fences and beams store every point with 5000 added, their\n"
     "texture positions too. A point without it lies so far away that the scene has lost it.",
     {scene, meadow, "Q14150007550\n", "Q141   0 255\n"}, in_records("Q", points_without_5000)},
    {"unwanted-5000", warning, "points of this kind do not have 5000 added",
     "A texture position of 5000 repeats the picture 20 times.",
     {scene, house, "Q003 255   0\n", "Q00352555000\n"}, in_records("Q", unwanted_5000)},
};
// clang-format on

} // namespace

std::span<const Rule> point_rules_of_kinds()
{
    return rules;
}

} // namespace marlogl::check
