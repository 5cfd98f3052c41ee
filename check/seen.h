// What the checker remembers of a design file while it reads it.
#pragma once

#include "design/records.h"
#include "dispatch/dispatch.h"
#include "facts.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace marlogl::check {

/// The line that set a value last, 0 for none.
using LineNumber = int;

/// The lines of an object.
struct ObjectLines {
    LineNumber opened = 0, name = 0, x = 0, y = 0;
    std::array<LineNumber, 62> cells{};
    std::array<LineNumber, 33> codes{};
    std::array<LineNumber, 29> texts{}, colours{};
    std::array<LineNumber, 181> points{};
    LineNumber counted_from = 0; ///< points of earlier lines are not counted any more
    LineNumber lost_opening = 0; ///< a remark that was to open the next object

    /// The line that sets what a record of `key` and `slot` sets; null when there is no such slot.
    LineNumber *find(char key, double slot);
};

/// The key and number of a record, which has as many digits as the record takes: "K01", "Q001".
std::string record_name(char key, int number);

/// Positions in a line, both included.
struct Columns {
    std::size_t first = 1, last = 1;
};

/// A part of a line.
struct Field {
    Columns at;
    std::string_view text;
};

/// A line, after the converter's own reader has stored it.
struct LineSeen {
    const Reading &reading;
    int version;
    Line line;
    LineNumber number;
    const Record *record; ///< null for a remark
    double slot;          ///< of a record with a slot
    LineNumber earlier;   ///< the line of the same object that set the same before, 0 for none

    /// What stands at these positions, as far as the line goes.
    Field field(std::size_t first, std::size_t last = std::string_view::npos) const
    {
        return {{first, std::max(first, std::min(last, line.size()))}, columns(line, first, last)};
    }
    bool has_slot() const { return std::string_view("PKF\\?Q").find(key()) != std::string_view::npos; }
    /// Where the number of a slot or point stands.
    Field slot_field() const { return field(2, key() == 'Q' ? 4 : 3); }
    /// A number stands there, or the record has no slot.
    bool has_slot_number() const;
    char key() const { return record == nullptr ? '\0' : record->key[0]; }
    bool in_object() const { return reading.object != &reading.scene_record; }
    const Kind *kind() const { return find_kind(version, reading.object->type); }
    bool is(std::string_view name) const { return kind() != nullptr && kind()->name == name; }
    bool counts_points() const { return kind() != nullptr && check::counts_points(*kind()); }
};

/// What the drawing of an object left in the output.
struct Drawn {
    bool stopped = false, anything = false, textures = false, lines = false;
    bool after_textures = false; ///< an object before it was textured
};

/// An object, after all has been read and it was drawn.
struct ObjectSeen {
    const Scene &scene;
    const Object &object;
    int number, version;
    double file_version; ///< times ten
    const Kind *kind;    ///< null for an unknown type
    const ObjectLines &at;
    const Drawn &drawn;
    const ColourTable *colours; ///< null when it is not known
    bool complained;            ///< a rule before has found an error or a warning in it
    std::vector<Face> faces;    ///< that the kind has with these cells

    double cell(int n) const { return object.parameters(n); }
    bool is(std::string_view name) const { return kind != nullptr && kind->name == name; }
    const Face *face(int slot) const;
    /// The face is switched on, and the slot names a texture.
    bool is_on(int slot) const { return object.codes(slot)(1) == 'Y'; }
    bool is_named(int slot) const { return !trimmed(object.texts(slot)).empty(); }
    bool is_drawn(int slot) const { return is_on(slot) && is_named(slot); }
    // The lines that set these, 0 for none.
    LineNumber code_line(int slot) const { return at.codes[static_cast<std::size_t>(slot)]; }
    LineNumber text_line(int slot) const { return at.texts[static_cast<std::size_t>(slot)]; }
    LineNumber point_line(int point) const { return at.points[static_cast<std::size_t>(point)]; }
    LineNumber cell_line(int cell) const { return at.cells[static_cast<std::size_t>(cell)]; }
    /// The line of a record, or the object's first one.
    LineNumber line_of(LineNumber record) const { return record == 0 ? at.opened : record; }
};

} // namespace marlogl::check
