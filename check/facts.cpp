#include "facts.h"

namespace marlogl::check {

namespace {

// Code and text slots that a kind takes for something else than a face. A kind without a row takes none.
struct KindFacts {
    std::string_view name;
    bool counts_points = false;
    int codes[2] = {}, texts[2] = {};
};

constexpr KindFacts facts[] = {
    {"structure with antennas", false, {26}},
    {"tower", true, {2}},
    {"capped cylinder", false, {26}},
    {"roads", true, {1, 2}, {1, 2}},
    {"fence", true, {1}},
    {"beam", true},
    {"guyed mast", false, {3, 4}},
    {"pole with pennant", false, {1}},
};

constexpr KindFacts no_facts{};

const KindFacts &facts_of(const Kind &kind)
{
    for (const KindFacts &each : facts)
        if (each.name == kind.name)
            return each;
    return no_facts;
}

bool holds(const int (&slots)[2], int slot)
{
    return slot > 0 && (slots[0] == slot || slots[1] == slot);
}

} // namespace

bool counts_points(const Kind &kind)
{
    return facts_of(kind).counts_points;
}

bool uses_code(const Kind &kind, int slot)
{
    return slot == 30 || holds(facts_of(kind).codes, slot);
}

bool uses_text(const Kind &kind, int slot)
{
    return holds(facts_of(kind).texts, slot);
}

std::vector<Outline> outlines_of(const Kind &kind)
{
    if (kind.name == "extruded polygon")
        return {{0, "bottom outline"}, {20, "top outline"}};
    if (kind.name == "two-sided extruded polygon")
        return {{0, "bottom outline"}, {10, "top outline"}};
    return {};
}

int most_corners(const Kind &kind)
{
    return kind.name == "two-sided extruded polygon" ? 10 : 20;
}

} // namespace marlogl::check
