// The records of design files: a line each, whose first characters say what its fields mean.
#pragma once

#include "design/scene.h"

#include <span>

namespace marlogl {

using Line = std::string_view;

/// Which types differ in how their points are stored.
struct PointRules {
    int uncounted_type;                 // whose points do not add to cell 50
    std::span<const int> shifted_types; // whose coordinates stand in the file with 5000 added
    bool skips_points_beyond_table;
};

/// Of version 1 and version 2.
extern const PointRules point_rules[2];

/// A design file, read so far.
struct Reading {
    Scene &scene;
    const PointRules &rules;
    /// Nothing of the scene record is ever drawn; it only has to take what stands before the first object.
    Object scene_record{scene.memory.get()};
    Object *object = &scene_record;  ///< the object that the records belong to
    int shift = 0;                   ///< what stands in the file above the coordinates of that object
    std::string_view last_text = ""; ///< the one that was kept last
    double file_version = 0;         ///< times ten
    bool ended = false;              ///< an object too many ends the reading
};

/// What a record does. Errors: index, overflow.
using Store = void (*)(Reading &reading, Line line);

/// A kind of record; a version whose column is empty skips it.
struct Record {
    std::string_view key;
    Store stores[2]; // version 1, version 2

    constexpr Record(std::string_view begins_with, Store both) : key(begins_with), stores{both, both} {}
    constexpr Record(std::string_view begins_with, Store version1, Store version2)
        : key(begins_with), stores{version1, version2}
    {
    }
};

/// For each character the first record whose key begins with it; null where there is none.
extern const std::array<const Record *, 256> first_records;

/// Of the records from `first` on, the first one whose key begins the line; null when there is none.
const Record *find_longer_key(const Record *first, Line line);

/// The record that a line is; null for a line that is none.
inline const Record *find_record(Line line)
{
    if (line.empty())
        return nullptr;
    const Record *first = first_records[static_cast<unsigned char>(line[0])];
    return first == nullptr || first->key.size() == 1 ? first : find_longer_key(first, line);
}

/// What is left to do after the last record: structures of files before version 1.2 are converted. Errors:
/// overflow, whose message names `path` and the object.
void end_reading(Reading &reading, const std::string &path, int version);

} // namespace marlogl
