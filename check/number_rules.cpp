// Rules that look at the numbers in a line.
#include "examples.h"
#include "lost_record.h"
#include "number_field.h"
#include "rules.h"

#include <cmath>

namespace marlogl::check {

namespace {

// The field of a record that has a single number.
Field field_of(const LineSeen &seen)
{
    return seen.field(seen.key() == 'P' ? 4 : 2);
}

NumberField number_of(const LineSeen &seen)
{
    return read_number_field(field_of(seen).text);
}

std::string shown(std::string_view text)
{
    return quoted(trimmed(text), 20);
}

bool is_comma_decimal(const NumberField &number)
{
    return number.digits && number.rest.size() > 1 && number.rest[0] == ',' && number.rest[1] >= '0' &&
           number.rest[1] <= '9';
}

void comma_decimal(const LineSeen &seen, const Say &say)
{
    const Field field = field_of(seen);
    if (is_comma_decimal(number_of(seen)))
        say(seen, field, {shown(field.text), " is read as ", numeric_value(field.text), "; write a point"});
}

void number_tail(const LineSeen &seen, const Say &say)
{
    const NumberField number = number_of(seen);
    if (number.digits && !number.rest.empty() && !is_comma_decimal(number))
        say(seen, seen.field(field_of(seen).at.first + number.length),
            {"the number ends before ", shown(number.rest)});
}

void no_number(const LineSeen &seen, const Say &say)
{
    const NumberField number = number_of(seen);
    if (!number.digits && !number.rest.empty())
        say(seen,
            {"there is no number in ", shown(field_of(seen).text), ", so it is 0; begin a remark with #"});
}

void blank_in_number(const LineSeen &seen, const Say &say)
{
    const NumberField number = number_of(seen);
    if (!number.digits || !number.blank_between)
        return;
    const Field all = field_of(seen);
    const Field field = seen.field(all.at.first, all.at.first + number.length - 1);
    say(seen, field, {shown(field.text), " is read as ", numeric_value(all.text)});
}

bool is_digits(std::string_view text, std::size_t count)
{
    return text.size() == count && all_digits(text);
}

void point_columns(const LineSeen &seen, const Say &say)
{
    if (!seen.has_slot_number())
        return; // what follows stands out of its columns because of it
    // Only towers and roads have a code behind the y.
    const bool has_code = seen.kind() == nullptr || seen.is("tower") || seen.is("roads");
    if (!has_code && is_digits(seen.field(12, 13).text, 2)) {
        say(seen, seen.field(9, 13),
            {"the y goes on behind position 12, where it is cut to ", quoted(seen.field(9, 12).text)});
        return;
    }
    for (const std::size_t first : {5u, 9u}) {
        const Field field = seen.field(first, first + 3);
        const NumberField number = read_number_field(field.text);
        const bool empty = !number.digits && number.rest.empty();
        if (empty || number.whole())
            continue;
        say(seen, field,
            {"the ", first == 5 ? "x" : "y", " at positions ", first, " to ", first + 3, " is ",
             quoted(field.text), ", which is read as ", numeric_value(field.text),
             "; put numbers to the right of their four positions"});
        return;
    }
}

// An x that fills its field may have taken the first digits of the y: then the y ends early.
void point_shifted(const LineSeen &seen, const Say &say)
{
    const Field y = seen.field(9, 12);
    const std::string_view digits = trimmed(y.text);
    if (is_digits(seen.field(5, 8).text, 4) && !digits.empty() && digits.size() < 4 &&
        y.text.starts_with(digits) && all_digits(digits))
        say(seen, seen.field(5, 12),
            {"the x is ", quoted(seen.field(5, 8).text), " and the y ", quoted(digits),
             "; put numbers to the right of their four positions"});
}

void tell_fraction(const LineSeen &seen, const Say &say, const Field &field)
{
    const double value = numeric_value(field.text);
    if (value == std::floor(value))
        return;
    // Positions and angles are rounded when they are written; type codes and points when they are read.
    const bool read = seen.key() == 'A' || seen.key() == 'Q';
    const double away_from_0 = std::copysign(std::floor(std::fabs(value) + 0.5), value);
    say(seen, field,
        {value, read ? " is read as " : " is written as ", read ? round_half_even(value) : away_from_0});
}

constexpr int angle = 61;

void fraction(const LineSeen &seen, const Say &say)
{
    if (seen.key() == 'Q') {
        tell_fraction(seen, say, seen.field(5, 8));
        tell_fraction(seen, say, seen.field(9, 12));
    } else if (seen.key() != 'P' || seen.slot == angle) {
        tell_fraction(seen, say, field_of(seen));
    }
}

void size_fraction(const LineSeen &seen, const Say &say)
{
    const double value = numeric_value(field_of(seen).text);
    if (seen.slot != angle && value != std::floor(value))
        say(seen, field_of(seen),
            {"corners are whole numbers: the fraction of ", value, " is cut from them"});
}

using enum Severity;
using namespace examples;

constexpr std::string_view with_number = "ACDPV";

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_number_rules[] = {
    {"comma-decimal", error, "a number ends at its comma",
     "The decimal separator is the point. Reading stops at the first character that cannot go on with\n"
     "the number, so the decimals are lost.",
     {scene, house, "P06 14\n", "P06 14,5\n"}, in_records(with_number, comma_decimal)},
    {"number-tail", note, "something stands behind the number",
     "Reading stops at the first character that cannot go on with the number: \"12 ft\" is 12.",
     {scene, house, "P06 14\n", "P06 14 ft\n"}, in_records(with_number, number_tail)},
    {"no-number", warning, "there is no number where one is expected; it counts as 0",
     "Often the line is a remark that begins with the letter of a key. A remark begins with # or a\n"
     "small letter.",
     {scene, house, "P01 13\n", "Church in the distance\nP01 13\n"}, in_records(with_number, no_number)},
    {"blank-in-number", warning, "a number with a blank in it is read as one",
     "Blanks and tabs are skipped wherever they stand: \"14 5\" is 145.",
     {scene, house, "P06 14\n", "P06 14 5\n"}, in_records(with_number, blank_in_number)},
    {"point-columns", error, "a Q record out of its columns",
     "The fields of a Q record stand without separators: x at positions 5 to 8, y at 9 to 12, the code\n"
     "at 13 and 14, the attribute at 15 to 18. A field that is out of its place is cut.",
     {scene, house, "Q004 255 255\n", "Q004 255  255\n"}, in_records("Q", point_columns)},
    {"point-shifted", warning, "the x of a Q record seems to have taken digits of the y",
     "The x takes positions 5 to 8, the y 9 to 12, and both stand at the right of them.",
     {scene, house, "Q004 255 255\n", "Q004255255\n"}, in_records("Q", point_shifted)},
    {"fraction", warning, "positions, angles and points are whole numbers",
     "Positions (C, D) and angles (cell 61) are rounded when they are written, points and type codes\n"
     "when they are read.",
     {scene, two_houses, "C90\n", "C90.5\n"}, in_records("ACDPQ", fraction)},
    {"size-fraction", note, "fractions of sizes are cut from corners",
     "Corners are cut to whole numbers after all sizes of the object have been added up: 2.9 becomes 2.",
     {scene, house, "P06 14\n", "P06 14.5\n"}, in_records("P", size_fraction)},
};
// clang-format on

} // namespace

std::span<const Rule> number_rules()
{
    return all_number_rules;
}

} // namespace marlogl::check
