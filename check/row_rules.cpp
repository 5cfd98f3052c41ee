// Rules that look at rows of points: those of towers, roads, fences and beams.
#include "examples.h"
#include "rules.h"

#include <algorithm>

namespace marlogl::check {

namespace {

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
            say(counted_line(seen, highest), {"the row of points has no ", record_name('Q', point),
                                              ", so it ends at point ", point_count(seen), " of ", highest});
            return;
        }
}

void rail_from_origin(const ObjectSeen &seen, const Say &say)
{
    const Text<4> &marks = seen.object.point_texts(1).attribute;
    if (seen.is("fence") && point_count(seen) > 0 && marks(4) == 'L' && marks(2) != 'S' &&
        seen.point_line(0) == 0)
        say(seen.line_of(seen.point_line(1)), "L at point 1 draws a rail from the origin; begin with a post");
}

bool lacks_mark(const ObjectSeen &seen, int point)
{
    const Text<4> &marks = seen.object.point_texts(point).attribute;
    if (seen.is("tower"))
        return marks(4) != 'H' && marks(4) != 'V';
    if (seen.is("beam"))
        return marks(3) != 'P';
    if (!seen.is("fence") || marks(4) == 'L' || marks(4) == 'P')
        return false;
    // A point without a mark can be where a rail comes from.
    const bool is_last = point == point_count(seen);
    return is_last || seen.object.point_texts(point + 1).attribute(4) != 'L';
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

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_row_rules[] = {
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
    {"rail-from-origin", warning, "a fence begins with a rail from the origin",
     "An L draws a rail from the point before; before point 1 lies point 0, at the origin.",
     {scene, fence, "Q00149804986     P\n", "Q00149804986     L\n"}, in_objects(rail_from_origin)},
    {"point-without-mark", warning, "a point of a row has no mark, so it is not drawn",
     "The attribute stands at positions 15 to 18. A fence needs L or P at 18, a tower H or V at 18, a\n"
     "beam P at 17.",
     {scene, fence, "Q00350004986     P\n", "Q00350004986   P\n"}, in_objects(point_without_mark)},
};
// clang-format on

} // namespace

std::span<const Rule> row_rules()
{
    return all_row_rules;
}

} // namespace marlogl::check
