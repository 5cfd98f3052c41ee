// The rules: what a design file may hold that its author can't have meant.
#pragma once

#include "message.h"
#include "seen.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace marlogl::check {

/// An error stops the conversion or loses something that was written; a warning draws something else than the
/// author can have meant; a note tells.
enum class Severity { note, warning, error };

std::string_view name_of(Severity severity);

/// A scene that breaks the rule, and the same scene put right: `good` of it is `bad` instead. Where `good` is
/// empty, `bad` stands at the end.
struct Example {
    std::string_view file, scene, good, bad;
    std::string_view bad_file = {}; ///< when the fault is the file's name
    int times = 1;                  ///< how often `bad` stands there

    /// The scene with its fault, which stands there `copies` times.
    std::string before(int copies) const;
    std::string before() const { return before(times); }
    std::string_view before_file() const { return bad_file.empty() ? file : bad_file; }
};

/// Tells what a rule has found.
class Say {
  public:
    virtual ~Say() = default;
    virtual void operator()(LineNumber line, Columns columns, const Message &message) const = 0;
    /// Of a record with a slot, or of the line that opens an object.
    void operator()(LineNumber line, const Message &message) const { (*this)(line, {1, 3}, message); }
    /// Of a whole line, and of a field of it.
    void operator()(const LineSeen &seen, const Message &message) const
    {
        (*this)(seen, seen.field(1), message);
    }
    void operator()(const LineSeen &seen, const Field &field, const Message &message) const
    {
        (*this)(seen.number, field.at, message);
    }
    /// Of a cell: "cell 11 is 14" and the message.
    void of_cell(const ObjectSeen &seen, int cell, const Message &message) const;
};

using CheckLine = void (*)(const LineSeen &, const Say &);
using CheckObject = void (*)(const ObjectSeen &, const Say &);

/// Where a rule looks. One that looks nowhere is told by the reading, the drawing or the run itself.
struct Check {
    std::string_view keys = {}; ///< of the records that `line` looks at; empty for lines that are none
    CheckLine line = nullptr;
    CheckObject object = nullptr;
    bool of_instances = false; ///< what an instance holds itself is not drawn
};

constexpr Check in_remarks(CheckLine line)
{
    return {{}, line};
}
constexpr Check in_records(std::string_view keys, CheckLine line)
{
    return {keys, line};
}
constexpr Check in_objects(CheckObject object)
{
    return {{}, nullptr, object};
}
constexpr Check in_instances_too(CheckObject object)
{
    return {{}, nullptr, object, true};
}

struct Rule {
    std::string_view name;
    Severity severity;
    std::string_view text; ///< what is wrong, in a line
    std::string_view why;  ///< what comes of it
    Example example;
    Check check = {};
};

/// All rules, in the order in which they are listed.
const std::vector<const Rule *> &all_rules();

/// Null when there is none of this name.
const Rule *find_rule(std::string_view name);

// The rules by what they look at.
std::span<const Rule> line_rules();
std::span<const Rule> record_rules();
std::span<const Rule> number_rules();
std::span<const Rule> object_rules();
std::span<const Rule> face_rules();
std::span<const Rule> cell_rules();
std::span<const Rule> offset_rules();
std::span<const Rule> outline_rules();
std::span<const Rule> row_rules();
std::span<const Rule> colour_rules();
std::span<const Rule> file_rules();
/// These look at what the others have found.
std::span<const Rule> closing_rules();

} // namespace marlogl::check
