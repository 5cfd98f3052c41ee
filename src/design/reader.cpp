#include "design/reader.h"

#include "design/scene.h"
#include "host/lines.h"
#include "host/paths.h"

#include <algorithm>
#include <span>

namespace marlogl {

namespace {

// Which types differ in how their points are stored.
struct PointRules {
    int uncounted_type;                 // whose points do not add to cell 50
    int copied_count_type;              // whose cell 59 follows cell 50
    std::span<const int> shifted_types; // whose coordinates stand in the file with 5000 added
    bool skips_points_beyond_table;

    bool shifts(int type) const
    {
        return std::find(shifted_types.begin(), shifted_types.end(), type) != shifted_types.end();
    }
};

constexpr int shifted_types_1[] = {2, 3, 4, 7, 17, 20, 21, 23};
constexpr int shifted_types_2[] = {1, 5, 18, 20, 21, 22};
constexpr PointRules point_rules_1{3, 7, shifted_types_1, false};
constexpr PointRules point_rules_2{5, 22, shifted_types_2, true};

// The reading so far.
struct Reading {
    const PointRules &point_rules;
    int object = 0;          // the object that the records belong to
    double file_version = 0; // times ten
    bool ended = false;      // an object too many ends the reading
};

using Line = std::string_view;

struct Record {
    std::string_view key;
    void (*store)(Reading &reading, Line line);
};

// A piece of the scene record's line, and the cell of object 0 that it fills.
struct SceneField {
    std::size_t first, last;
    int cell;
};

// The fields that both versions share.
constexpr SceneField scene_fields[] = {
    {38, 40, 0 },
    {41, 45, 53},
    {46, 50, 59},
    {51, 55, 30},
    {56, 60, 31},
    {61, 65, 32},
    {66, 70, 33},
    {71, 75, 34},
    {76, 76, 45},
    {77, 81, 46},
};
constexpr SceneField scene_fields_2[] = {
    {82, 84, 47},
    {85, 85, 48},
};
constexpr SceneField extent_fields[] = {
    {2,  5,  35},
    {6,  9,  36},
    {10, 13, 37},
    {14, 17, 38},
};

constexpr int point_count_cell = 50;

void store_fields(Line line, std::span<const SceneField> fields)
{
    for (const SceneField &field : fields)
        object_param(field.cell, 0) = numeric_value(columns(line, field.first, field.last));
}

void store_scene(Line line, std::span<const SceneField> further_fields, std::size_t name_position)
{
    object_x(0) = columns(line, 2, 19);
    object_y(0) = columns(line, 20, 37);
    store_fields(line, scene_fields);
    store_fields(line, further_fields);
    object_name(0) = columns(line, name_position);
    object_type(0) = 99;
}

void store_scene_1(Reading &, Line line)
{
    store_scene(line, {}, 82);
}

void store_scene_2(Reading &, Line line)
{
    store_scene(line, scene_fields_2, 86);
}

// The number from position `first` on goes to a cell of the scene record.
template <int cell, std::size_t first> void store_scene_cell(Reading &, Line line)
{
    object_param(cell, 0) = numeric_value(columns(line, first));
}

void store_extents(Reading &, Line line)
{
    store_fields(line, extent_fields);
}

void store_scale_level(Reading &, Line line)
{
    scale_level = columns(line, 2);
}

void store_version(Reading &reading, Line line)
{
    reading.file_version = numeric_value(columns(line, 2)) * 10;
}

// The record has no effect, but its number must be one.
void read_number(Reading &, Line line)
{
    numeric_value(columns(line, 2));
}

void ignore(Reading &, Line) {}

void open_next_object(Reading &reading, Line line)
{
    reading.ended = reading.object == objects.last;
    if (reading.ended)
        return;
    open_object(++reading.object);
    object_type(reading.object) = whole_16(numeric_value(columns(line, 2)), "type");
}

// The rest of the line goes to a text of the object.
template <Table<std::string, objects> &texts> void store_object_text(Reading &reading, Line line)
{
    texts(reading.object) = columns(line, 2);
}

double slot_of(Line line)
{
    return round_half_even(numeric_value(columns(line, 2, 3)));
}

void store_parameter(Reading &reading, Line line)
{
    const double cell = slot_of(line);
    double &parameter = object_param(cell, reading.object);
    parameter = numeric_value(columns(line, 4));
    // The points count themselves, except where the count is given.
    if (cell == point_count_cell && object_type(reading.object) != 3)
        parameter = 0;
}

void store_text(Reading &reading, Line line)
{
    if (const double slot = slot_of(line); slot <= face_slots.last)
        object_text(slot, reading.object) = columns(line, 4);
}

void store_code(Reading &reading, Line line)
{
    constexpr int last_slot_in_files = 31;
    if (const double slot = slot_of(line); slot <= last_slot_in_files)
        object_code(slot, reading.object) = columns(line, 4, 5);
}

void store_colour(Reading &reading, Line line)
{
    object_colour(slot_of(line), reading.object) = columns(line, 4);
}

void store_colour_flag(Reading &reading, Line line)
{
    object_colour_flag(slot_of(line), reading.object) = columns(line, 4);
}

std::int16_t coordinate(Line field, bool shifted)
{
    const std::int16_t stored = whole_16(numeric_value(field), "coordinate");
    return shifted ? whole_16(stored - 5000, "coordinate (less 5000)") : stored;
}

void store_point(Reading &reading, Line line)
{
    const PointRules &rules = reading.point_rules;
    const int object = reading.object, type = object_type(object);
    const double point = round_half_even(numeric_value(columns(line, 2, 4)));
    if (rules.skips_points_beyond_table && point > points.last)
        return;
    if (type != rules.uncounted_type)
        ++object_param(point_count_cell, object);
    if (type == rules.copied_count_type)
        object_param(59, object) = object_param(point_count_cell, object);
    const bool shifted = rules.shifts(type);
    point_x(point, object) = coordinate(columns(line, 5, 8), shifted);
    point_y(point, object) = coordinate(columns(line, 9, 12), shifted);
    point_code(point, object) = columns(line, 13, 14);
    point_attr(point, object) = columns(line, 15, 18);
}

constexpr auto store_cell_35 = store_scene_cell<35, 2>;
constexpr auto store_cell_40 = store_scene_cell<40, 3>;
constexpr auto store_cell_41 = store_scene_cell<41, 3>;
constexpr auto store_cell_49 = store_scene_cell<49, 2>;
constexpr auto store_name = store_object_text<object_name>;
constexpr auto store_x = store_object_text<object_x>;
constexpr auto store_y = store_object_text<object_y>;

// The first row whose key begins the line decides; a line without one is skipped. The records that a design
// file has most of come first.
constexpr Record version1[] = {
    {"Q",    store_point      },
    {"P",    store_parameter  },
    {"K",    store_code       },
    {"F",    store_text       },
    {"\\",   store_colour     },
    {"MAXI", ignore           },
    {"V",    store_version    },
    {"T",    ignore           },
    {"@",    ignore           },
    {"J",    store_scale_level},
    {"A",    open_next_object },
    {"B",    store_name       },
    {"C",    store_x          },
    {"D",    store_y          },
    {"$",    read_number      },
    {"E",    store_cell_35    },
    {":",    ignore           },
    {"W",    store_scene_1    },
    {"]1",   store_cell_40    },
    {"]2",   store_cell_41    },
    {"?",    store_colour_flag},
};

constexpr Record version2[] = {
    {"Q",    store_point      },
    {"P",    store_parameter  },
    {"K",    store_code       },
    {"F",    store_text       },
    {"\\",   store_colour     },
    {"MAXI", ignore           },
    {"V",    read_number      },
    {"T",    ignore           },
    {"@",    ignore           },
    {"J",    store_scale_level},
    {"L",    store_cell_49    },
    {"A",    open_next_object },
    {"B",    store_name       },
    {"C",    store_x          },
    {"D",    store_y          },
    {"$",    read_number      },
    {"E",    store_extents    },
    {":",    ignore           },
    {"W",    store_scene_2    },
    {"]1",   store_cell_40    },
    {"]2",   store_cell_41    },
    {"?",    store_colour_flag},
};

const Record *find_record(std::span<const Record> records, Line line)
{
    if (line.empty())
        return nullptr;
    for (const Record &record : records)
        // The first character alone sorts out nearly all rows.
        if (record.key[0] == line[0] && line.starts_with(record.key))
            return &record;
    return nullptr;
}

void read_records(Reading &reading, std::span<const Record> records)
{
    LineReader file(find_file(native_path(input_path)));
    int number = 0;
    try {
        do {
            const Line line = file.read_line();
            ++number;
            if (const Record *record = find_record(records, line))
                try {
                    record->store(reading, line);
                } catch (const RunError &error) {
                    throw error.at("record " + quoted(line, 20));
                }
        } while (!reading.ended && !file.at_end());
    } catch (const RunError &error) {
        // A file's own errors name the file.
        if (error.fault == Fault::input_output || error.fault == Fault::past_end)
            throw;
        throw error.at(file.path() + ':' + std::to_string(number));
    }
}

// Before version 1.2 the positions of a structure's antennas stood in cells, and a height of 0 meant none.
void convert_antennas(int object)
{
    const auto position = [object](int cell) {
        return whole_16(object_param(cell, object), "antenna position (cell " + std::to_string(cell) + ')');
    };
    for (int j = 38; j <= 41; ++j) {
        point_x(j + 13, object) = position(j);
        point_y(j + 13, object) = position(j + 4);
        if (object_param(j + 8, object) == 0)
            object_param(j - 2, object) = 0;
    }
}

} // namespace

void Load_MRL2()
{
    Reading reading{point_rules_2};
    read_records(reading, version2);
}

void Load_MRL1()
{
    constexpr int structure = 11;
    clear_all();
    Reading reading{point_rules_1};
    read_records(reading, version1);
    if (reading.file_version >= 12)
        return;
    for (int object = 1; object <= reading.object; ++object)
        if (object_type(object) == structure)
            try {
                convert_antennas(object);
            } catch (const RunError &error) {
                throw error.at(input_path + ": object " + std::to_string(object));
            }
}

} // namespace marlogl
