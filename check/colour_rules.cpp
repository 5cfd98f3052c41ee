// Rules that look at colours: of colour slots, of the run configuration, and numbers of the colour table.
#include "colours.h"

#include "examples.h"
#include "lost_record.h"
#include "rules.h"

namespace marlogl::check {

bool is_whole_colour(std::string_view nine)
{
    return nine.size() == 9 && nine.find_first_not_of("0123456789") == nine.npos;
}

std::string octal_fault(std::string_view nine)
{
    for (std::size_t first = 1; is_whole_colour(nine) && first <= 7; first += 3) {
        const std::string text(columns(nine, first, first + 2));
        if (text[0] != '0' || text == "000")
            continue;
        const std::size_t digits = text.find_first_not_of('0');
        const bool octal = text.find_first_of("89") == text.npos;
        return '"' + text + "\" " +
               (octal ? "is " + std::to_string(std::stoi(text.substr(digits), nullptr, 8)) + " in C"
                      : "does not compile in C") +
               "; use 000 or 100 to 255";
    }
    return {};
}

std::string large_fault(std::string_view nine)
{
    for (std::size_t first = 1; is_whole_colour(nine) && first <= 7; first += 3)
        if (const std::string_view text = columns(nine, first, first + 2); text > "255")
            return '"' + std::string(text) + "\" is above 255";
    return {};
}

namespace {

Field components_of(const LineSeen &seen)
{
    return seen.field(6, 14);
}

std::string components_of(const TableColour &colour)
{
    return std::string(colour.red.view()).append(colour.green).append(colour.blue);
}

void short_colour(const LineSeen &seen, const Say &say)
{
    const Field field = components_of(seen);
    if (!is_whole_colour(field.text))
        say(seen, field, {"a colour needs nine digits at positions 6 to 14, not ", quoted(field.text)});
    else if (all_digits(seen.field(15, 15).text))
        say(seen, seen.field(6, 15), "the colour goes on behind position 14, where it is cut");
}

void octal_colour(const LineSeen &seen, const Say &say)
{
    if (const std::string fault = octal_fault(components_of(seen).text); !fault.empty())
        say(seen, components_of(seen), fault);
}

void large_colour(const LineSeen &seen, const Say &say)
{
    if (const std::string fault = large_fault(components_of(seen).text); !fault.empty())
        say(seen, components_of(seen), fault);
}

// Calls `use` with each colour number that the object gives: its text, what replaces it, and its line.
template <typename Use> void for_each_colour_number(const ObjectSeen &seen, Use use)
{
    const auto code = [&](int slot) {
        if (const std::string_view text = trimmed(seen.object.codes(slot)); !text.empty())
            use(text, 1, seen.code_line(slot));
    };
    const auto point = [&](int number, int replacement) {
        if (const std::string_view text = trimmed(seen.object.point_texts(number).colour); !text.empty())
            use(text, replacement, seen.point_line(number));
    };
    if (seen.is("fence"))
        code(1);
    if (seen.is("roads"))
        point(1, 1);
    if (seen.is("tower")) {
        code(2);
        for (int i = 1; i <= seen.cell(point_count_cell) && i <= point_numbers.last; ++i)
            point(i, 11);
    }
}

void colour_number_outside(const ObjectSeen &seen, const Say &say)
{
    for_each_colour_number(seen, [&](std::string_view text, int replacement, LineNumber line) {
        const double number = numeric_value(text);
        if (colour_number(number, replacement) != number)
            say(seen.line_of(line),
                {"colour ", quoted(text), " is outside 1 to 60 and becomes ", replacement});
    });
}

void colour_not_in_table(const ObjectSeen &seen, const Say &say)
{
    if (seen.colours == nullptr)
        return;
    for_each_colour_number(seen, [&](std::string_view text, int replacement, LineNumber line) {
        const double number = colour_number(numeric_value(text), replacement);
        if (!is_whole_colour(components_of((*seen.colours)(number))))
            say(seen.line_of(line),
                {"colour ", number, " is not in the colour table; the output does not compile"});
    });
}

void octal_colour_in_table(const ObjectSeen &seen, const Say &say)
{
    if (seen.colours == nullptr)
        return;
    for_each_colour_number(seen, [&](std::string_view text, int replacement, LineNumber line) {
        const double number = colour_number(numeric_value(text), replacement);
        if (const std::string fault = octal_fault(components_of((*seen.colours)(number))); !fault.empty())
            say(seen.line_of(line), {"line ", number, " of the colour table: ", fault});
    });
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_colour_rules[] = {
    {"short-colour", error, "a colour does not have nine digits",
     "Positions 4 and 5 of a colour record are not used; red, green and blue follow with three digits\n"
     "each. What is missing stays blank in the output, which then does not compile.",
     {"scene.mrl", mast, "\\01  224000000\n", "\\01224000000\n"}, in_records("\\", short_colour)},
    {"octal-colour", warning, "a colour component that C reads as an octal number",
     "The digits are copied to the output as they are, and in C a number with a leading zero is octal.",
     {"scene.mrl", mast, "\\01  224000000\n", "\\01  224064000\n"}, {"\\", octal_colour, octal_colour_in_table}},
    {"large-colour", warning, "a colour component above 255",
     "The statements of the output take numbers from 0 to 255.",
     {"scene.mrl", mast, "\\01  224000000\n", "\\01  256000000\n"}, in_records("\\", large_colour)},
    {"colour-number", warning, "a colour number outside 1 to 60",
     "It is replaced: by 1, for the lines of a tower by 11.",
     {scene, fence, "K0107\n", "K0161\n"}, in_objects(colour_number_outside)},
    {"colour-not-in-table", error, "a colour number beyond the lines of the colour table",
     "A line that the table does not have gives an empty colour, which is no C. This is checked when\n"
     "MarlOgl.dat is named, beside which the table lies.",
     {scene, fence, "K0107\n", "K0141\n"}, in_objects(colour_not_in_table)},
};
// clang-format on

} // namespace

std::span<const Rule> colour_rules()
{
    return all_colour_rules;
}

} // namespace marlogl::check
