// Rules that look at lines: which are records, and which only look like one.
#include "examples.h"
#include "lost_record.h"
#include "rules.h"

namespace marlogl::check {

namespace {

void indented_record(const LineSeen &seen, const Say &say)
{
    const std::size_t first = seen.line.find_first_not_of(" \t");
    if (first == 0 || first == seen.line.npos)
        return;
    if (const std::string record = lost_record(seen.line); !record.empty())
        say(seen, seen.field(1, first),
            {"this line begins with a blank, so it is a remark; remove the blank in front of ",
             quoted(std::string_view(record).substr(0, 3))});
}

void lower_case_key(const LineSeen &seen, const Say &say)
{
    if (seen.line.empty() || seen.line[0] < 'a' || seen.line[0] > 'z')
        return;
    if (const std::string record = lost_record(seen.line); !record.empty())
        say(seen, {"the key is a small letter, so this line is a remark; did you mean \"", record, "\"?"});
}

void byte_order_mark(const LineSeen &seen, const Say &say)
{
    if (seen.line.starts_with("\xEF\xBB\xBF"))
        say(seen, seen.field(1, 3),
            "the line begins with a byte-order mark, so it is a remark; remove the first three bytes");
}

void unused_key(const LineSeen &seen, const Say &say)
{
    say(seen,
        {"records of key \"", seen.record->key, "\" change nothing in the output; begin a remark with #"});
}

void before_first_object(const LineSeen &seen, const Say &say)
{
    if (!seen.in_object())
        say(seen, "this record stands before the first A record and is never drawn");
}

void too_many_objects(const LineSeen &seen, const Say &say)
{
    if (seen.reading.ended)
        say(seen, {"object ", most_objects + 1, ": only ", most_objects,
                   " are read; this line and all after it are ignored"});
}

void scale_level(const LineSeen &seen, const Say &say)
{
    const double level = numeric_value(seen.reading.scene.scale_level);
    if (level < 9 || level > 15)
        say(seen, {"there is no scale level ", quoted(trimmed(seen.field(2).text)),
                   ", so the scale is that of a file without a J record; levels are 9 to 15"});
}

using enum Severity;
using namespace examples;
using namespace std::string_view_literals;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_line_rules[] = {
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
     {scene, house, "P06 14\n", "\xEF\xBB\xBFP06 14\n"}, in_remarks(byte_order_mark)},
    {"indented-record", warning, "a record that begins with a blank is a remark",
     "The key of a record stands at position 1. A line that begins with a blank is skipped.",
     {scene, house, "P06 14\n", "  P06 14\n"}, in_remarks(indented_record)},
    {"lower-case-key", warning, "a record whose key is a small letter is a remark",
     R"(Keys are case-sensitive: "a23" is a remark, "A23" opens an object.)",
     {scene, house, "P06 14\n", "p06 14\n"}, in_remarks(lower_case_key)},
    {"unused-key", note, "records of this key change nothing in the output",
     "The keys W, E, L, ]1, ]2, ?, MAXI, T, @, $ and : are read, but nothing in the output depends on\n"
     "them. Most often the line is a remark that begins with such a letter.",
     {scene, house, "", "The end of the scene\n"}, in_records("MT@$:L]EW?", unused_key)},
    {"before-first-object", warning, "a record before the first A record is never drawn",
     "Records in front of the first A record go to the scene, which is not drawn.",
     {scene, house, "A23\nBOld barn\n", "BOld barn\nA23\n"}, in_records("BCDPKF\\Q?", before_first_object)},
    {"too-many-objects", error, "only 70 objects are read",
     "The 71st A record and everything after it are ignored, without a message.",
     {scene, house, "", "A23\nC90\nK3001\n", {}, 70}, in_records("A", too_many_objects)},
    {"scale-level", warning, "the scale level is none of 9 to 15",
     "Any other level gives the scale of a file without a J record, 0.3048.",
     {scene, house, "A23\n", "J5\nA23\n"}, in_records("J", scale_level)},
};
// clang-format on

} // namespace

std::span<const Rule> line_rules()
{
    return all_line_rules;
}

} // namespace marlogl::check
