#include "design/records.h"

namespace marlogl {

namespace {

constexpr int shifted_types_1[] = {2, 3, 4, 7, 17, 20, 21, 23};
constexpr int shifted_types_2[] = {1, 5, 18, 20, 21, 22};

// The records of the scene, and some others, have no effect; but their numbers must be numbers. A field of
// less than five characters can't hold one that is too large.
template <std::size_t first> void read_number(Reading &, Line line)
{
    numeric_value(columns(line, first));
}

void read_scene(Reading &, Line line)
{
    for (const std::size_t first : {41u, 46u, 51u, 56u, 61u, 66u, 71u, 77u})
        numeric_value(columns(line, first, first + 4));
}

void ignore(Reading &, Line) {}

void store_scale_level(Reading &reading, Line line)
{
    reading.scene.scale_level = columns(line, 2);
}

void store_version(Reading &reading, Line line)
{
    reading.file_version = numeric_value(columns(line, 2)) * 10;
}

void open_next_object(Reading &reading, Line line)
{
    std::vector<Object> &objects = reading.scene.objects;
    reading.ended = objects.size() == most_objects;
    if (reading.ended)
        return;
    reading.object = &objects.emplace_back(reading.scene.memory.get());
    reading.shift = 0; // if the type is none
    reading.object->type = whole_16(numeric_value(columns(line, 2)), "type");
    reading.shift = std::ranges::count(reading.rules.shifted_types, reading.object->type) > 0 ? 5000 : 0;
}

// Lets a text of an object be that of a line. The same text often comes several times in a row, as that of
// one face after the other.
void keep(Reading &reading, std::string_view &kept, std::string_view text)
{
    if (text != reading.last_text) {
        char *const place = static_cast<char *>(reading.scene.memory->allocate(text.size(), 1));
        reading.last_text = {std::copy(text.begin(), text.end(), place) - text.size(), text.size()};
    }
    kept = reading.last_text;
}

// The rest of the line goes to a text of the object.
template <std::string_view Object::*text> void store_object_text(Reading &reading, Line line)
{
    keep(reading, reading.object->*text, columns(line, 2));
}

double slot_of(Line line)
{
    const auto digit = [line](std::size_t at) { return static_cast<unsigned>(line[at] - '0'); };
    if (line.size() > 2 && digit(1) < 10 && digit(2) < 10)
        return 10 * digit(1) + digit(2);
    return round_half_even(numeric_value(columns(line, 2, 3)));
}

void store_parameter(Reading &reading, Line line)
{
    constexpr int counted_by_parameter = 3; // the type whose parameter stays, in either version
    const double cell = slot_of(line);
    double &parameter = reading.object->parameters(cell);
    parameter = numeric_value(columns(line, 4));
    if (cell == point_count_cell && reading.object->type != counted_by_parameter)
        parameter = 0;
}

void store_text(Reading &reading, Line line)
{
    if (const double slot = slot_of(line); slot <= last_face_slot)
        keep(reading, reading.object->texts(slot), columns(line, 4));
}

void store_code(Reading &reading, Line line)
{
    constexpr int last_slot_in_files = 31;
    if (const double slot = slot_of(line); slot <= last_slot_in_files)
        reading.object->codes(slot) = columns(line, 4, 5);
}

void store_colour(Reading &reading, Line line)
{
    reading.object->colours(slot_of(line)) = columns(line, 4);
}

// The flag of a colour has no effect.
void read_colour_flag(Reading &, Line line)
{
    place_in(Range{0, last_face_slot, "colour flag slot"}, slot_of(line));
}

std::int16_t coordinate(Line line, std::size_t first, int shift)
{
    const std::int16_t stored = whole_16(numeric_value(columns(line, first, first + 3)), "coordinate");
    return whole_16(stored - shift, "coordinate (less 5000)");
}

void count_point(Reading &reading)
{
    if (reading.object->type != reading.rules.uncounted_type)
        ++reading.object->parameters(point_count_cell);
}

constexpr std::size_t point_numbers_end = 12;

void store_point_text(Object &object, auto number, Line line)
{
    if (line.size() > point_numbers_end || object.point_texts.find(number))
        object.point_texts(number) = {columns(line, 13, 14), columns(line, 15, 18)};
}

// Any point, whose numbers may be any texts.
[[gnu::noinline]] void store_written_point(Reading &reading, Line line)
{
    const double number = round_half_even(numeric_value(columns(line, 2, 4)));
    if (reading.rules.skips_points_beyond_table && number > point_numbers.last)
        return;
    const std::int16_t x = coordinate(line, 5, reading.shift);
    count_point(reading);
    Point &point = reading.object->points(number);
    point.x = x;
    point.y = coordinate(line, 9, reading.shift);
    store_point_text(*reading.object, number, line);
}

// Most points: their numbers are plain.
void store_point(Reading &reading, Line line)
{
    if (line.size() < point_numbers_end)
        return store_written_point(reading, line);
    // With the key, which a blank replaces, the three characters of the number are a field of four.
    const PlainFields number(characters_at<std::uint32_t>(line.data()) - 'Q' + ' ');
    const PlainFields place(characters_at<std::uint64_t>(line.data() + 4));
    if (!number.plain || !place.plain || number.numbers > point_numbers.last)
        return store_written_point(reading, line);
    count_point(reading);
    Point &point = reading.object->points(number.numbers);
    point.x = static_cast<std::int16_t>(static_cast<int>(place.numbers & 0xFFFF) - reading.shift);
    point.y = static_cast<std::int16_t>(static_cast<int>(place.numbers >> 32) - reading.shift);
    store_point_text(*reading.object, number.numbers, line);
}

// The first row whose key begins the line decides; a line without one is skipped. The records that a design
// file has most of come first.
// clang-format off
constexpr Record records[] = {
    {"Q",    store_point},
    {"P",    store_parameter},
    {"K",    store_code},
    {"F",    store_text},
    {"\\",   store_colour},
    {"MAXI", ignore},
    {"V",    store_version, read_number<2>},
    {"T",    ignore},
    {"@",    ignore},
    {"J",    store_scale_level},
    {"L",    nullptr, read_number<2>},
    {"A",    open_next_object},
    {"B",    store_object_text<&Object::name>},
    {"C",    store_object_text<&Object::x>},
    {"D",    store_object_text<&Object::y>},
    {"$",    read_number<2>},
    {"E",    read_number<2>, ignore},
    {":",    ignore},
    {"W",    read_scene},
    {"]1",   read_number<3>},
    {"]2",   read_number<3>},
    {"?",    read_colour_flag},
};
// clang-format on

// Before version 1.2 the positions of a structure's antennas stood in cells, and a height of 0 meant none.
void convert_antennas(Object &object, const std::string &place)
{
    const auto position = [&](int cell) {
        return whole_16(object.parameters(cell),
                        place + ": antenna position (cell " + std::to_string(cell) + ')');
    };
    for (int j = 38; j <= 41; ++j) {
        object.points(j + 13).x = position(j);
        object.points(j + 13).y = position(j + 4);
        if (object.parameters(j + 8) == 0)
            object.parameters(j - 2) = 0;
    }
}

} // namespace

constinit const PointRules point_rules[2] = {
    {3, shifted_types_1, false},
    {5, shifted_types_2, true }
};

constinit const std::array<const Record *, 256> first_records = [] {
    std::array<const Record *, 256> firsts{};
    for (std::size_t row = std::size(records); row-- > 0;)
        firsts[static_cast<unsigned char>(records[row].key[0])] = &records[row];
    return firsts;
}();

const Record *find_longer_key(const Record *first, Line line)
{
    const auto found = std::find_if(first, std::end(records),
                                    [line](const Record &record) { return line.starts_with(record.key); });
    return found == std::end(records) ? nullptr : found;
}

void end_reading(Reading &reading, const std::string &path, int version)
{
    constexpr int structure = 11;
    if (version != 1 || reading.file_version >= 12)
        return;
    for (int number = 1; Object & object : reading.scene.objects) {
        if (object.type == structure)
            convert_antennas(object, path + ": object " + std::to_string(number));
        ++number;
    }
}

} // namespace marlogl
