// The rules: what a design file may hold that its author can't have meant.
#pragma once

#include "seen.h"

#include <algorithm>
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

/// Positions in a line, both included.
struct Columns {
    std::size_t first = 1, last = 1;
};

/// Tells what a rule has found.
class Say {
  public:
    virtual ~Say() = default;
    virtual void operator()(LineNumber line, Columns columns, std::string message) const = 0;
    /// Of a record with a slot, or of the line that opens an object.
    void operator()(LineNumber line, std::string message) const { (*this)(line, {1, 3}, std::move(message)); }
    /// Of a whole line.
    void operator()(const LineSeen &seen, std::string message) const
    {
        (*this)(seen.number, {1, std::max<std::size_t>(seen.line.size(), 1)}, std::move(message));
    }
};

/// A rule and what checks it. A rule without a check is told by the reading or the drawing itself.
struct Rule {
    std::string_view name;
    Severity severity;
    std::string_view text; ///< what is wrong, in a line
    std::string_view why;  ///< what comes of it
    Example example;

    /// Keys of the records that `line` looks at; empty for all lines.
    std::string_view keys = {};
    void (*line)(const LineSeen &, const Say &) = nullptr;
    void (*object)(const ObjectSeen &, const Say &) = nullptr;
    /// Instances are looked at, too. What they hold themselves is not drawn.
    bool of_instances = false;
};

/// All rules, in the order in which they are listed.
const std::vector<const Rule *> &all_rules();

/// Null when there is none of this name.
const Rule *find_rule(std::string_view name);

// The rules by what they look at.
std::span<const Rule> line_rules();
std::span<const Rule> number_rules();
std::span<const Rule> object_rules();
std::span<const Rule> face_rules();
std::span<const Rule> cell_rules();
std::span<const Rule> point_rules_of_kinds();
std::span<const Rule> colour_rules();
std::span<const Rule> file_rules();
/// These look at what the others have found.
std::span<const Rule> closing_rules();

} // namespace marlogl::check
