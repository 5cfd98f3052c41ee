// Rules that look at the numbers in a line.
#include "examples.h"
#include "number_field.h"
#include "rules.h"

namespace marlogl::check {

namespace {

// Where the number of a record stands that has a single one.
std::size_t number_column(char key)
{
    return key == 'P' ? 4 : 2;
}

NumberField number_of(const LineSeen &seen)
{
    return read_number_field(columns(seen.line, number_column(seen.key())));
}

std::string shown(std::string_view text)
{
    return quoted(trimmed(text), 20);
}

bool is_comma_decimal(const NumberField &field)
{
    return field.digits && field.rest.size() > 1 && field.rest[0] == ',' && field.rest[1] >= '0' &&
           field.rest[1] <= '9';
}

void comma_decimal(const LineSeen &seen, const Say &say)
{
    const std::string_view text = columns(seen.line, number_column(seen.key()));
    const NumberField field = number_of(seen);
    if (is_comma_decimal(field))
        say(seen.number, {number_column(seen.key()), seen.line.size()},
            shown(text) + " is read as " + message_number(numeric_value(text)) + "; write a point");
}

void number_tail(const LineSeen &seen, const Say &say)
{
    const NumberField field = number_of(seen);
    if (field.digits && !field.rest.empty() && !is_comma_decimal(field))
        say(seen.number, {number_column(seen.key()) + field.length, seen.line.size()},
            "the number ends before " + shown(field.rest));
}

void no_number(const LineSeen &seen, const Say &say)
{
    const NumberField field = number_of(seen);
    if (!field.digits && !field.rest.empty())
        say(seen, "there is no number in " + shown(columns(seen.line, number_column(seen.key()))) +
                      ", so it is 0; begin a remark with #");
}

void blank_in_number(const LineSeen &seen, const Say &say)
{
    const std::string_view text = columns(seen.line, number_column(seen.key()));
    if (const NumberField field = number_of(seen); field.digits && field.blank_between)
        say(seen.number, {number_column(seen.key()), number_column(seen.key()) + field.length - 1},
            shown(text.substr(0, field.length)) + " is read as " + message_number(numeric_value(text)));
}

// Only towers and roads have a code behind the y.
bool goes_on_behind_y(const LineSeen &seen)
{
    const Kind *kind = seen.kind();
    const bool has_code = kind == nullptr || kind->name == "tower" || kind->name == "roads";
    const std::string_view end = columns(seen.line, 12, 13);
    return !has_code && end.size() == 2 && end.find_first_not_of("0123456789") == end.npos;
}

void point_columns(const LineSeen &seen, const Say &say)
{
    if (goes_on_behind_y(seen))
        say(seen.number, {9, 13},
            "the y goes on behind position 12, where it is cut to " + quoted(columns(seen.line, 9, 12)));
    for (const std::size_t first : {5u, 9u}) {
        const std::string_view text = columns(seen.line, first, first + 3);
        const NumberField field = read_number_field(text);
        const bool empty = !field.digits && field.rest.empty();
        if (empty || field.whole())
            continue;
        say(seen.number, {first, first + 3},
            std::string("the ") + (first == 5 ? "x" : "y") + " at positions " + std::to_string(first) +
                " to " + std::to_string(first + 3) + " is " + quoted(text) + ", which is read as " +
                message_number(numeric_value(text)) + "; put numbers to the right of their four positions");
        return;
    }
}

void tell_fraction(const LineSeen &seen, const Say &say, std::size_t first, std::size_t last)
{
    const std::string_view text = columns(seen.line, first, last);
    const double value = numeric_value(text);
    if (value == std::floor(value))
        return;
    // Positions and angles are rounded when they are written; type codes and points when they are read.
    const bool written = seen.key() == 'C' || seen.key() == 'D' || seen.key() == 'P';
    const double used =
        written ? (value < 0 ? -std::floor(0.5 - value) : std::floor(value + 0.5)) : round_half_even(value);
    say(seen.number, {first, std::min(last, seen.line.size())},
        message_number(value) + (written ? " is written as " : " is read as ") + message_number(used));
}

void fraction(const LineSeen &seen, const Say &say)
{
    constexpr int angle = 61;
    if (seen.key() == 'Q') {
        tell_fraction(seen, say, 5, 8);
        tell_fraction(seen, say, 9, 12);
    } else if (seen.key() != 'P' || seen.slot == angle) {
        tell_fraction(seen, say, number_column(seen.key()), seen.line.npos);
    }
}

using enum Severity;
using namespace examples;

constexpr std::string_view scene = "scene.mr2";
constexpr std::string_view with_number = "ACDPV";

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule rules[] = {
    {"comma-decimal", error, "a number ends at its comma",
     "The decimal separator is the point. Reading stops at the first character that cannot go on with\n"
     "the number, so the decimals are lost.",
     {scene, house, "P06 14\n", "P06 14,5\n"}, with_number, comma_decimal},
    {"number-tail", note, "something stands behind the number",
     "Reading stops at the first character that cannot go on with the number: \"12 ft\" is 12.",
     {scene, house, "P06 14\n", "P06 14 ft\n"}, with_number, number_tail},
    {"no-number", warning, "there is no number where one is expected; it counts as 0",
     "Often the line is a remark that begins with the letter of a key. A remark begins with # or a\n"
     "small letter.",
     {scene, house, "P01 13\n", "Church in the distance\nP01 13\n"}, with_number, no_number},
    {"blank-in-number", warning, "a number with a blank in it is read as one",
     "Blanks and tabs are skipped wherever they stand: \"14 5\" is 145.",
     {scene, house, "P06 14\n", "P06 14 5\n"}, with_number, blank_in_number},
    {"point-columns", error, "a Q record out of its columns",
     "The fields of a Q record stand without separators: x at positions 5 to 8, y at 9 to 12, the code\n"
     "at 13 and 14, the attribute at 15 to 18. A field that is out of its place is cut.",
     {scene, house, "Q004 255 255\n", "Q004 255  255\n"}, "Q", point_columns},
    {"fraction", warning, "positions, angles and points are whole numbers",
     "Positions (C, D) and angles (cell 61) are rounded when they are written, points and type codes\n"
     "when they are read.",
     {scene, two_houses, "C90\n", "C90.5\n"}, "ACDPQ", fraction},
};
// clang-format on

} // namespace

std::span<const Rule> number_rules()
{
    return rules;
}

} // namespace marlogl::check
