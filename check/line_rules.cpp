// Rules that look at lines: which are records, and which only look like one.
#include "base/letters.h"
#include "examples.h"
#include "number_field.h"
#include "rules.h"

namespace marlogl::check {

namespace {

constexpr std::string_view blanks = " \t";

bool all_digits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

// A remark seldom looks like this, so whoever wrote it meant a record.
bool looks_like_record(std::string_view text)
{
    if (text.empty())
        return false;
    const std::string_view rest = columns(text, 4);
    switch (text[0]) {
    case 'A':
    case 'C':
    case 'D':
        return read_number_field(columns(text, 2)).whole();
    case 'P':
        return all_digits(columns(text, 2, 3)) && read_number_field(rest).whole();
    case 'K':
        return all_digits(columns(text, 2, 3)) && !rest.empty() && rest.size() <= 2;
    case 'F':
    case '\\':
        return text.size() > 3 && all_digits(columns(text, 2, 3));
    case 'Q':
        return all_digits(columns(text, 2, 4)) && text.size() > 4;
    default:
        return false;
    }
}

void indented_record(const LineSeen &seen, const Say &say)
{
    const std::size_t first = seen.line.find_first_not_of(blanks);
    if (seen.record != nullptr || first == 0 || first == seen.line.npos)
        return;
    if (looks_like_record(seen.line.substr(first)))
        say(seen.number, {1, first},
            "this line begins with a blank, so it is a remark; remove the blank in front of \"" +
                std::string(seen.line.substr(first, 3)) + '"');
}

void lower_case_key(const LineSeen &seen, const Say &say)
{
    std::string record(seen.line.substr(0, 40));
    if (seen.record != nullptr || record.empty() || upper(record[0]) == record[0])
        return;
    record[0] = upper(record[0]);
    const bool shape = looks_like_record(record);
    if (shape)
        say(seen, "the key is a small letter, so this line is a remark; did you mean \"" + record + "\"?");
}

void byte_order_mark(const LineSeen &seen, const Say &say)
{
    if (seen.line.starts_with("\xEF\xBB\xBF"))
        say(seen.number, {1, 3},
            "the line begins with a byte-order mark, so it is a remark; remove the first three bytes");
}

void unused_key(const LineSeen &seen, const Say &say)
{
    if (seen.record != nullptr)
        say(seen, "records of key \"" + std::string(seen.record->key) +
                      "\" change nothing in the output; begin a remark with #");
}

void before_first_object(const LineSeen &seen, const Say &say)
{
    if (seen.record != nullptr && !seen.in_object())
        say(seen, "this record stands before the first A record and is never drawn");
}

void too_many_objects(const LineSeen &seen, const Say &say)
{
    if (seen.reading.scene.objects.size() == object_numbers.last)
        say(seen, "object " + std::to_string(object_numbers.last + 1) + ": only " +
                      std::to_string(object_numbers.last) +
                      " are read; this line and all after it are ignored");
}

// The text of the slot number, and whether it is one.
struct SlotText {
    explicit SlotText(const LineSeen &seen)
        : last(seen.key() == 'Q' ? 4 : 3), text(columns(seen.line, 2, last)),
          is_number(all_digits(trimmed(text)))
    {
    }

    std::size_t last; // position
    std::string_view text;
    bool is_number;
};

void slot_not_two_digits(const LineSeen &seen, const Say &say)
{
    const auto [last, slot, is_number] = SlotText(seen);
    if (seen.record == nullptr || is_number)
        return;
    const bool point = seen.key() == 'Q';
    std::string message = "columns 2 to " + std::to_string(last) + " hold no " + (point ? "point" : "slot") +
                          " number but " + quoted(slot) + ", which is read as " + message_number(seen.slot);
    if (!point && !slot.empty() && all_digits(slot.substr(0, 1)))
        message +=
            "; write \"" + std::string(1, seen.key()) + '0' + std::string(seen.line.substr(1, 17)) + '"';
    say(seen.number, {2, last}, message);
}

void slot_too_large(const LineSeen &seen, const Say &say)
{
    const bool code = seen.key() == 'K';
    const int last = code ? 31 : face_slots.last;
    if (seen.slot > last)
        say(seen.number, {2, 3},
            (code ? "code slot " : "text slot ") + message_number(seen.slot) + " is outside 0 to " +
                std::to_string(last) + "; the record is skipped");
}

void point_skipped(const LineSeen &seen, const Say &say)
{
    if (seen.version == 2 && seen.slot > point_numbers.last)
        say(seen.number, {2, 4},
            "point " + message_number(seen.slot) + " is outside 0 to 180; the record is skipped");
}

void code_shifted(const LineSeen &seen, const Say &say)
{
    const std::string_view text = columns(seen.line, 4);
    const std::string_view code = trimmed(text);
    if (text.starts_with(' ') && (code == "Y" || code == "y"))
        say(seen.number, {4, seen.line.size()},
            "the text begins with a blank, so nothing is switched on; write \"" +
                std::string(columns(seen.line, 1, 3)) + "Y\"");
}

void code_cut(const LineSeen &seen, const Say &say)
{
    const std::string_view code = trimmed(columns(seen.line, 4));
    if (code.size() > 2 && all_digits(code))
        say(seen.number, {4, seen.line.size()},
            "only two characters are read, \"" + std::string(columns(seen.line, 4, 5)) + "\" of \"" +
                std::string(code.substr(0, 20)) + '"');
}

void given_twice(const LineSeen &seen, const Say &say)
{
    const bool has_slot = seen.key() > 'D';
    if (seen.earlier != 0 && !(seen.key() == 'Q' && seen.counts_points()) &&
        (!has_slot || SlotText(seen).is_number))
        say(seen, '"' +
                      std::string(columns(seen.line, 1,
                                          seen.key() == 'Q'   ? 4
                                          : seen.key() <= 'D' ? 1
                                                              : 3)) +
                      "\" is given again; line " + std::to_string(seen.earlier) + " has no effect");
}

void name_backslash(const LineSeen &seen, const Say &say)
{
    if (seen.line.ends_with('\\'))
        say(seen.number, {seen.line.size(), seen.line.size()},
            "the name ends with a backslash, which makes the next line of the output a comment");
}

void texture_ending(const LineSeen &seen, const Say &say)
{
    const std::string_view name = trimmed(columns(seen.line, 4));
    if (name.size() > 4 && same_letters(name.substr(name.size() - 4), ".bmp"))
        say(seen.number, {4, seen.line.size()},
            "the output will ask for \"" + std::string(name) + ".bmp\"; leave \"" +
                std::string(name.substr(name.size() - 4)) + "\" out");
}

void name_quote(const LineSeen &seen, const Say &say)
{
    if (const std::size_t quote = seen.line.find('"'); quote != seen.line.npos)
        say(seen.number, {quote + 1, quote + 1}, "the texture name holds a quote, which ends the text in C");
}

void texture_backslash(const LineSeen &seen, const Say &say)
{
    if (const std::size_t at = columns(seen.line, 4).find('\\'); at != seen.line.npos)
        say(seen.number, {at + 4, at + 4},
            "a backslash in a texture name means something else in C; write /");
}

using enum Severity;
using namespace examples;
using namespace std::string_view_literals;

constexpr std::string_view scene = "scene.mr2";

// The records that go to an object, and those that have a slot.
constexpr std::string_view of_objects = "BCDPKF\\Q?", with_slot = "PKF\\?Q";

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule rules[] = {
    {"stops-reading", error, "the conversion stops at this record",
     "A cell, slot or point that does not exist, or a number that is too large, ends the run. What was\n"
     "written up to that point stays in the output file.",
     {scene, house, "", "P72 15\n"}},
    {"wrong-ending", error, "the name ends in neither .mrl nor .mr2; the output will be empty",
     "The last three characters of the file's name decide its version: .mrl is version 1, .mr2 is\n"
     "version 2.",
     {scene, house, "", "", "scene.txt"}},
    {"empty-file", error, "the file is empty",
     "A design file without a line ends the run.",
     {scene, house, house, ""}},
    {"line-ends", error, "only CR ends a line; what follows it belongs to the same record",
     "Lines end with CR LF or with LF. With CR alone the whole file is one line.",
     {scene, house, "A23\nBOld barn\n", "A23\rBOld barn\r"}},
    {"not-text", error, "the line holds a NUL byte: this is no plain text",
     "Editors that save UTF-16 write such files. Save the file as ASCII, Latin-1 or UTF-8.",
     {scene, house, "P06 14\n", "P\0000\0006\000\n"sv}},
    {"long-line", error, "the line has more than 10,000 bytes, of which no more are checked",
     "Nothing that a record can hold is that long.",
     {scene, house, "", "J15 ", {}, 2501}},
    {"byte-order-mark", warning, "a line inside the file begins with a byte-order mark",
     "Files that were put together keep the marks of their parts. Only the first one of a file is\n"
     "passed over; a line that begins with another one is a remark.",
     {scene, house, "P06 14\n", "\xEF\xBB\xBFP06 14\n"}, "", byte_order_mark},
    {"indented-record", warning, "a record that begins with a blank is a remark",
     "The key of a record stands at position 1. A line that begins with a blank is skipped.",
     {scene, house, "P06 14\n", "  P06 14\n"}, "", indented_record},
    {"lower-case-key", warning, "a record whose key is a small letter is a remark",
     "Keys are case-sensitive: \"a23\" is a remark, \"A23\" opens an object.",
     {scene, house, "P06 14\n", "p06 14\n"}, "", lower_case_key},
    {"unused-key", note, "records of this key change nothing in the output",
     "The keys W, E, L, ]1, ]2, ?, MAXI, T, @, $ and : are read, but nothing in the output depends on\n"
     "them. Most often the line is a remark that begins with such a letter.",
     {scene, house, "", "The end of the scene\n"}, "MT@$:L]EW?", unused_key},
    {"before-first-object", warning, "a record before the first A record is never drawn",
     "Records in front of the first A record go to the scene, which is not drawn.",
     {scene, house, "A23\nBOld barn\n", "BOld barn\nA23\n"}, of_objects, before_first_object},
    {"too-many-objects", error, "only 70 objects are read",
     "The 71st A record and everything after it are ignored, without a message.",
     {scene, house, "", "A23\nC90\nK3001\n", {}, 70}, "A", too_many_objects},
    {"slot-not-two-digits", error, "columns 2 and 3 hold no slot number",
     "Cell and slot numbers take two digits, or a blank and a digit; point numbers take three. A\n"
     "number that is one digit short moves all that follows it.",
     {scene, house, "K01Y\n", "K1Y\n"}, with_slot, slot_not_two_digits},
    {"slot-too-large", error, "a record of a slot beyond the last one is skipped",
     "Code slots end at 31, text slots at 28.",
     {scene, house, "", "F29tiles\n"}, "KF", slot_too_large},
    {"point-skipped", error, "a point beyond the last one is skipped",
     "Points end at 180. (In version 1 such a record ends the run.)",
     {scene, house, "", "Q181 255 255\n"}, "Q", point_skipped},
    {"given-twice", warning, "a record is given again; the one before has no effect",
     "When a record of an object comes twice, the later one counts.",
     {scene, house, "", "P06 14\n"}, "BCDPKF\\Q", given_twice},
    {"code-shifted", warning, "the text of a K record begins with a blank",
     "The text of a K record starts at position 4. \"K01Y\" switches face 1 on; \"K01 Y\" does not.",
     {scene, house, "K01Y\n", "K01 Y\n"}, "K", code_shifted},
    {"code-cut", error, "a K record holds two characters; the rest is cut off",
     "Numbers in K records (colours, instances) have two digits.",
     {scene, two_houses, "K3001\n", "K30010\n"}, "K", code_cut},
    {"name-backslash", error, "the name ends with a backslash",
     "The name stands in the output as a comment. In C, a backslash at its end makes the next line a\n"
     "part of the comment.",
     {scene, house, "BOld barn\n", "BOld barn\\\n"}, "B", name_backslash},
    {"texture-ending", error, "the texture name ends with .bmp, which the output adds itself",
     "The name `brick` means the file `brick.bmp`.",
     {scene, house, "F01front\n", "F01front.bmp\n"}, "F", texture_ending},
    {"name-quote", error, "the texture name holds a quote",
     "The name stands in the output between quotes: BindTexture( \"brick.bmp\" ).",
     {scene, house, "F01front\n", "F01\"front\"\n"}, "F", name_quote},
    {"texture-backslash", error, "the texture name holds a backslash",
     "In C a backslash and the character after it mean another character. Separate folders with /.",
     {scene, house, "F01front\n", "F01town\\front\n"}, "F", texture_backslash},
};
// clang-format on

} // namespace

std::span<const Rule> line_rules()
{
    return rules;
}

} // namespace marlogl::check
