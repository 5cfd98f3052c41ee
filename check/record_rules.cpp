// Rules that look at what a record says: its slot, and its text.
#include "base/letters.h"
#include "examples.h"
#include "lost_record.h"
#include "rules.h"

namespace marlogl::check {

namespace {

void slot_not_two_digits(const LineSeen &seen, const Say &say)
{
    const Field slot = seen.slot_field();
    if (seen.has_slot_number())
        return;
    const bool point = seen.key() == 'Q';
    const bool is_short = !point && !slot.text.empty() && all_digits(slot.text.substr(0, 1));
    say(seen, slot,
        {"columns 2 to ", point ? 4 : 3, " hold no ", point ? "point" : "slot", " number but ",
         quoted(slot.text), ", which is read as ", seen.slot, is_short ? "; write \"" : "",
         is_short ? std::string(1, seen.key()) + '0' + std::string(seen.line.substr(1, 17)) + '"' : ""});
}

void slot_too_large(const LineSeen &seen, const Say &say)
{
    const bool code = seen.key() == 'K';
    const int last = code ? 31 : last_face_slot;
    if (seen.slot > last)
        say(seen, seen.slot_field(),
            {code ? "code slot " : "text slot ", seen.slot, " is outside 0 to ", last,
             "; the record is skipped"});
}

void point_skipped(const LineSeen &seen, const Say &say)
{
    if (seen.version == 2 && seen.slot > point_numbers.last)
        say(seen, seen.slot_field(),
            {"point ", seen.slot, " is outside 0 to ", point_numbers.last, "; the record is skipped"});
}

void code_shifted(const LineSeen &seen, const Say &say)
{
    const Field text = seen.field(4);
    const std::string_view code = trimmed(text.text);
    if (text.text.starts_with(' ') && (code == "Y" || code == "y"))
        say(seen, text,
            {"the text begins with a blank, so nothing is switched on; write \"", seen.field(1, 3).text,
             "Y\""});
}

void code_cut(const LineSeen &seen, const Say &say)
{
    const std::string_view code = trimmed(seen.field(4).text);
    if (code.size() > 2 && all_digits(code))
        say(seen, seen.field(4),
            {"only two characters are read, \"", seen.field(4, 5).text, "\" of ", quoted(code, 20)});
}

void given_twice(const LineSeen &seen, const Say &say)
{
    if (seen.earlier == 0 || (seen.key() == 'Q' && seen.counts_points()) || !seen.has_slot_number())
        return;
    const std::string_view record = seen.line.substr(0, seen.has_slot() ? seen.slot_field().at.last : 1);
    say(seen, {'"', record, "\" is given again; line ", seen.earlier, " has no effect"});
}

void cell_50(const LineSeen &seen, const Say &say)
{
    if (seen.slot != point_count_cell || !seen.in_object() || seen.reading.object->parameters(50) != 0)
        return;
    if (const double value = numeric_value(seen.field(4).text); value != 0)
        say(seen,
            {"cell 50 counts the points, so the ", value, " is not stored; the count begins at 0 again"});
}

void name_backslash(const LineSeen &seen, const Say &say)
{
    // Some compilers look behind blanks as well.
    if (const std::size_t last = seen.line.find_last_not_of(' '); seen.line[last] == '\\')
        say(seen, seen.field(last + 1, last + 1),
            "the name ends with a backslash, which makes the next line of the output a comment");
}

void texture_ending(const LineSeen &seen, const Say &say)
{
    const std::string_view name = trimmed(seen.field(4).text);
    const std::string_view ending = name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
    if (name.size() > 4 && same_letters(ending, ".bmp"))
        say(seen, seen.field(4), {"the output will ask for \"", name, ".bmp\"; leave \"", ending, "\" out"});
}

void texture_with(char wrong, const LineSeen &seen, const Say &say, const Message &message)
{
    if (const std::size_t at = seen.line.find(wrong, 3); at != seen.line.npos)
        say(seen, seen.field(at + 1, at + 1), message);
}

void name_quote(const LineSeen &seen, const Say &say)
{
    texture_with('"', seen, say, "the texture name holds a quote, which ends the text in C");
}

void texture_backslash(const LineSeen &seen, const Say &say)
{
    texture_with('\\', seen, say, "a backslash in a texture name means something else in C; write /");
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_record_rules[] = {
    {"slot-not-two-digits", error, "columns 2 and 3 hold no slot number",
     "Cell and slot numbers take two digits, or a blank and a digit; point numbers take three. A\n"
     "number that is one digit short moves all that follows it.",
     {scene, house, "K01Y\n", "K1Y\n"}, in_records("PKF\\?Q", slot_not_two_digits)},
    {"slot-too-large", error, "a record of a slot beyond the last one is skipped",
     "Code slots end at 31, text slots at 28.",
     {scene, house, "", "F29tiles\n"}, in_records("KF", slot_too_large)},
    {"point-skipped", error, "a point beyond the last one is skipped",
     "Points end at 180. (In version 1 such a record ends the run.)",
     {scene, house, "", "Q181 255 255\n"}, in_records("Q", point_skipped)},
    {"given-twice", warning, "a record is given again; the one before has no effect",
     "When a record of an object comes twice, the later one counts.",
     {scene, house, "", "P06 14\n"}, in_records("BCDPKF\\QJV", given_twice)},
    {"cell-50", warning, "cell 50 takes no value",
     "It counts the Q records of an object, and a P50 record sets the count back to 0. (Only a two-sided\n"
     "extruded polygon of version 1 keeps what is written.)",
     {scene, house, "", "P50 6\n"}, in_records("P", cell_50)},
    {"code-shifted", warning, "the text of a K record begins with a blank",
     R"(The text of a K record starts at position 4. "K01Y" switches face 1 on; "K01 Y" does not.)",
     {scene, house, "K01Y\n", "K01 Y\n"}, in_records("K", code_shifted)},
    {"code-cut", error, "a K record holds two characters; the rest is cut off",
     "Numbers in K records (colours, instances) have two digits.",
     {scene, two_houses, "K3001\n", "K30010\n"}, in_records("K", code_cut)},
    {"name-backslash", error, "the name ends with a backslash",
     "The name stands in the output as a comment. In C, a backslash at its end makes the next line a\n"
     "part of the comment, and that line is lost.",
     {scene, house, "BOld barn\n", "BOld barn\\\n"}, in_records("B", name_backslash)},
    {"texture-ending", error, "the texture name ends with .bmp, which the output adds itself",
     "The name `brick` means the file `brick.bmp`.",
     {scene, house, "F01front\n", "F01front.bmp\n"}, in_records("F", texture_ending)},
    {"name-quote", error, "the texture name holds a quote",
     "The name stands in the output between quotes: BindTexture( \"brick.bmp\" ).",
     {scene, house, "F01front\n", "F01\"front\"\n"}, in_records("F", name_quote)},
    {"texture-backslash", error, "the texture name holds a backslash",
     "In C a backslash and the character after it mean another character, so the name is lost that was\n"
     "written. Separate folders with /.",
     {scene, house, "F01front\n", "F01town\\front\n"}, in_records("F", texture_backslash)},
};
// clang-format on

} // namespace

std::span<const Rule> record_rules()
{
    return all_record_rules;
}

} // namespace marlogl::check
