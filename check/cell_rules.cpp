// Rules that look at cells which only some values make sense in.
#include "examples.h"
#include "rules.h"

#include <cmath>

namespace marlogl::check {

namespace {

// Cells without which a kind has no extent; what is not given counts as 0.
constexpr struct {
    std::string_view kind;
    int cell;
    std::string_view name;
} sizes[] = {
    {"gabled house", 2, "width"},
    {"gabled house", 7, "depth"},
    {"structure with antennas", 1, "lower front edge"},
    {"structure with antennas", 2, "lower right edge"},
    {"structure with antennas", 3, "lower back edge"},
    {"structure with antennas", 4, "lower left edge"},
    {"structure with antennas", 5, "upper front edge"},
    {"structure with antennas", 6, "upper right edge"},
    {"structure with antennas", 7, "upper back edge"},
    {"structure with antennas", 8, "upper left edge"},
    {"hip roof", 1, "length along x"},
    {"hip roof", 2, "length along y"},
    {"sign board", 1, "width"},
    {"sign board", 4, "height or depth"},
    {"cone", 1, "diameter"},
    {"wheel", 1, "outer diameter"},
    {"flag", 1, "width"},
    {"flag", 2, "height"},
    {"digital clock", 1, "width of a digit"},
    {"digital clock", 2, "height"},
    {"profiled-roof house", 1, "depth"},
    {"tree", 1, "width"},
    {"tree", 2, "height"},
};

void size_missing(const ObjectSeen &seen, const Say &say)
{
    for (const auto &[kind, cell, name] : sizes)
        if (seen.is(kind) && seen.cell_line(cell) == 0 && seen.drawn.textures)
            say(seen.at.opened, {"cell ", cell, " (", name, ") is missing; it counts as 0"});
}

void lights_half(const ObjectSeen &seen, const Say &say)
{
    if (!seen.is("structure with antennas") && !seen.is("capped cylinder"))
        return;
    const bool by_cell = seen.cell(31) == 1, by_code = !trimmed(seen.object.codes(26)).empty();
    if (by_cell && !by_code)
        say.of_cell(seen, 31, ", but code slot 26 is blank, so there are no lights; add K2601");
    if (by_code && !by_cell)
        say(seen.code_line(26),
            "code slot 26 is not blank, but cell 31 is not 1, so there are no lights; add P31 1");
    if (by_code && by_cell && seen.is("capped cylinder") && seen.cell(7) == 5)
        say.of_cell(seen, 31, ", but a cylinder with nine corners (P07 5) gets no lights");
}

void wheel_segments(const ObjectSeen &seen, const Say &say)
{
    const double segments = seen.cell(11);
    if (seen.is("wheel") && segments != 12 && segments != 15 && segments != 18)
        say.of_cell(seen, 11, "; only 12, 15 and 18 segments work");
}

// Cells that switch something on with one value only.
constexpr struct {
    std::string_view kind;
    int first, last, on;
} switches[] = {
    {"structure with antennas", 31, 31, 1},
    {"structure with antennas", 36, 39, -1},
    {"structure with antennas", 51, 54, -1},
    {"capped cylinder", 12, 12, -1},
    {"capped cylinder", 18, 18, 1},
    {"capped cylinder", 31, 31, 1},
    {"flag", 8, 8, -1},
    {"extruded polygon", 4, 4, 1},
    {"two-sided extruded polygon", 4, 4, 1},
    {"two-sided extruded polygon", 43, 44, 1},
    {"sphere with basket", 29, 29, 1},
    {"beam", 11, 11, 1},
    {"beam", 12, 12, -1},
};

void switch_value(const ObjectSeen &seen, const Say &say)
{
    const bool old = seen.version == 1 && seen.file_version < 12; // the cells of antennas held something else
    for (const auto &[kind, first, last, on] : switches)
        for (int cell = first; cell <= last && seen.is(kind); ++cell)
            if (seen.cell(cell) != 0 && seen.cell(cell) != on && !(old && cell >= 36 && cell <= 39))
                say.of_cell(seen, cell, {"; only ", on, " switches it on"});
}

// Cells that choose a side, and the cell without which there is nothing to choose for.
constexpr struct {
    std::string_view kind;
    int cell, amount, last;
} selectors[] = {
    {"structure with antennas", 24, 22, 3},
    {"structure with antennas", 35, 34, 3},
    {"two-sided extruded polygon", 18, 16, 3},
    {"two-sided extruded polygon", 19, 17, 1},
};

void selector_value(const ObjectSeen &seen, const Say &say)
{
    for (const auto &[kind, cell, amount, last] : selectors) {
        if (!seen.is(kind) || seen.cell(amount) == 0)
            continue;
        const double value = seen.cell(cell);
        if (value < 0 || value > last || value != std::floor(value))
            say.of_cell(seen, cell,
                        {", which chooses no side (0 to ", last, "); cell ", amount, " has no effect"});
    }
}

void sign_mode(const ObjectSeen &seen, const Say &say)
{
    const double mode = seen.cell(8);
    if (seen.is("sign board") && mode < 5 && mode != 1 && mode != 2 && mode != 3 && mode != 4)
        say.of_cell(seen, 8, ", which draws nothing; write 1 to 7");
}

void tower_not_upright(const ObjectSeen &seen, const Say &say)
{
    if (seen.is("tower") && seen.cell(2) != 90)
        say.of_cell(seen, 2, "; without \"P02 90\" the output gets a tilt command");
}

void road_elevation(const ObjectSeen &seen, const Say &say)
{
    if (seen.is("roads") && seen.cell(58) != 0 && seen.cell(31) != 3)
        say.of_cell(seen, 58, ", which lifts only the right edge of the road; use cells 54 and 57");
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_cell_rules[] = {
    {"size-missing", warning, "a cell without which the kind has no extent is missing",
     "What is not given counts as 0, and corners fall together. Write a 0 where it is meant.",
     {scene, flag, "P02 9\n", ""}, in_objects(size_missing)},
    {"lights-half", warning, "lights need a cell and a code",
     "Structures and capped cylinders carry lights with P31 1 and K2601, and take their colour from slot 0.\n"
     "A cylinder with nine corners never does.",
     {"scene.mrl", box, "P21 5000\n", "P21 5000\nP31 1\n"}, in_objects(lights_half)},
    {"wheel-segments", warning, "a wheel has 12, 15 or 18 segments",
     "With any other number rings of 12 points are made, but the faces are counted by cell 11.",
     {scene, wheel, "P11 12\n", "P11 14\n"}, in_objects(wheel_segments)},
    {"switch-value", warning, "a cell that switches something on holds another value",
     "Some switches are on with 1, others with -1; no other value switches them on.",
     {scene, flag, "P58 24\n", "P58 24\nP08 1\n"}, in_objects(switch_value)},
    {"selector-value", warning, "a cell that chooses a side chooses none",
     "Sides are numbered from 0. Any other number makes the amount that belongs to it have no effect.",
     {"scene.mrl", box, "P21 5000\n", "P21 5000\nP22 3\nP24 4\n"}, in_objects(selector_value)},
    {"sign-mode", warning, "a sign board in a mode that draws nothing",
     "Cell 8 says where the board stands: 1 front, 2 right, 3 back, 4 left, 5 and more lying.",
     {scene, sign, "P08 1\n", "P08 0\n"}, in_objects(sign_mode)},
    {"tower-not-upright", warning, "a tower without P02 90 is tilted",
     "Cell 2 is the angle of the structure. Every other value than 90 brings a tilt command into the\n"
     "output.",
     {scene, tower, "P02 90\n", ""}, in_objects(tower_not_upright)},
    {"road-elevation", warning, "cell 58 lifts only the right edge of a road",
     "It lifts the wire-frame, but of the surfaces the right edge alone. Leave it at 0 and use cells\n"
     "54 and 57.",
     {scene, road, "P18 1530\n", "P18 1530\nP58 2\n"}, in_objects(road_elevation)},
};
// clang-format on

} // namespace

std::span<const Rule> cell_rules()
{
    return all_cell_rules;
}

} // namespace marlogl::check
