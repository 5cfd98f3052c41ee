// Rules that look at what is stored with 2000 or 5000 added.
#include "examples.h"
#include "rules.h"

#include <algorithm>

namespace marlogl::check {

namespace {

// Cells that hold a length with an offset added never hold less than half of the offset.
void missing_offset_of_structure(const ObjectSeen &seen, const Say &say)
{
    constexpr std::string_view sides[] = {"back", "front", "right", "left"};
    for (int side = 0; side < 4; ++side)
        if (seen.cell(23) == side && seen.cell(21) < 2500)
            say.of_cell(seen, 21,
                        {": the ", sides[side], " side hangs ", 5000 - seen.cell(21),
                         " units too low; write P21 5000"});
    for (int antenna = 1; antenna <= 4; ++antenna) {
        const Point &at = seen.object.points(50 + antenna);
        if (seen.cell(35 + antenna) == -1 && (at.x < 1000 || at.y < 1000))
            say(seen.line_of(seen.cell_line(35 + antenna)),
                {"point ", 50 + antenna, " of antenna ", antenna, " does not have 2000 added to x and y"});
    }
}

void missing_offset(const ObjectSeen &seen, const Say &say)
{
    if (seen.is("structure with antennas"))
        missing_offset_of_structure(seen, say);
    if (seen.is("hip roof"))
        for (const int cell : {11, 12})
            if (seen.cell(cell) < 1000 && (cell == 11 || seen.cell(6) == 1))
                say.of_cell(seen, cell,
                            {": the ridge lies at ", seen.cell(cell) - 2000, "; write P", cell, " 2000"});
}

bool adds_5000(const LineSeen &seen)
{
    return seen.reading.shift != 0;
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

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_offset_rules[] = {
    {"missing-offset", error, "a cell or point that is stored with 2000 or 5000 added holds less",
     "Structures: cell 21 holds a height with 5000 added, points 51 to 54 the antennas with 2000\n"
     "added. Hip roofs: cells 11 and 12 hold the ridge or the tip with 2000 added. Always write P21\n"
     "5000, P11 2000. Without, the side or the ridge lies so far away that the scene has lost it.",
     {scene, roof, "P11 2000\n", ""}, in_objects(missing_offset)},
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

std::span<const Rule> offset_rules()
{
    return all_offset_rules;
}

} // namespace marlogl::check
