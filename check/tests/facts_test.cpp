// What facts.cpp says of the kinds, against what the converter draws.
#include "drawing.h"
#include "support.h"

#include "base/run_error.h"
#include "dispatch/dispatch.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace marlogl::check {

namespace {

// An object of a kind with lengths in all cells, and the output that it draws.
class Trial {
  public:
    Trial(int version, const Kind &kind) : version_(version)
    {
        Object &object = scene_.objects.emplace_back();
        object.type = static_cast<std::int16_t>(kind.types[version - 1]);
        for (int cell = 1; cell <= 20; ++cell)
            object.parameters(cell) = cell;
        object.parameters(58) = 0;
        // An outline that runs round, and a mark for every point.
        for (int point = 0; point <= 180; ++point)
            object.points(point) = {static_cast<std::int16_t>(7 * point * (point % 3)),
                                    static_cast<std::int16_t>(5 * point * (point % 2 + 1)), "01", "123 "};
    }

    Object &object() { return scene_.objects[0]; }

    std::string output()
    {
        MemoryFiles memory;
        CheckedFiles files(memory, "");
        std::string text;
        files.written = &text;
        Configuration configuration;
        {
            Drawing drawing(files, configuration, "", "drawn", "points");
            drawing.colour_table.emplace("colour table entry");
            draw_object(drawing, scene_, 1, version_);
        }
        return text;
    }

  private:
    Scene scene_;
    int version_;
};

// Settings of cells that change which faces a kind has.
constexpr struct {
    int cell;
    double value;
} variants[] = {{0, 0},  {1, 0},  {2, 0},  {3, 0},  {6, 0},  {6, 1}, {6, 2}, {7, 5},  {7, 1},
                {13, 0}, {18, 1}, {20, 2}, {29, 1}, {29, 0}, {4, 1}, {5, 0}, {12, -1}};

constexpr int corners = 5;

// The points that change what an object draws, but for the corners of its outlines.
std::vector<int> points_drawn(Trial &trial, const Kind &kind)
{
    std::vector<int> points;
    const std::vector<Outline> outlines = outlines_of(kind);
    const auto is_corner = [&](int number) {
        return std::any_of(outlines.begin(), outlines.end(), [&](const Outline &outline) {
            return number > outline.before && number <= outline.before + corners;
        });
    };
    const std::string output = trial.output();
    // Many at once; where that draws something else, each half of them.
    std::vector<std::pair<int, int>> ranges{{0, point_numbers.last}};
    while (!ranges.empty()) {
        const auto [first, last] = ranges.back();
        ranges.pop_back();
        const auto kept = trial.object().points;
        for (int number = first; number <= last; ++number)
            if (!is_corner(number)) {
                trial.object().points(number).x = 9999;
                trial.object().points(number).y = 8888;
            }
        const bool drawn = trial.output() != output;
        trial.object().points = kept;
        const int middle = first + (last - first) / 2;
        if (drawn && first == last)
            points.push_back(first);
        else if (drawn)
            ranges.insert(ranges.end(), {{middle + 1, last}, {first, middle}});
    }
    return points;
}

void compare_faces(Trial &trial, const Kind &kind, bool with_positions)
{
    Object &object = trial.object();
    const std::string without = trial.output();
    const std::vector<int> always = with_positions ? points_drawn(trial, kind) : std::vector<int>();
    ObjectLines lines;
    const Drawn drawn;
    const ObjectSeen seen{
        Scene(), object, 1, 1, 0, &kind, lines, drawn, nullptr, false, faces_of(kind, object)};
    for (int slot = 0; slot <= face_slots.last; ++slot) {
        const Face *face = seen.face(slot);
        object.codes(slot) = "Y ";
        object.texts(slot) = "wood";
        const bool is_switch = uses_code(kind, slot) || uses_text(kind, slot);
        EXPECT_TRUE(is_switch || (trial.output() != without) == (face != nullptr)) << "face " << slot;
        if (with_positions && face != nullptr) {
            std::vector<int> wanted = always, points = points_drawn(trial, kind);
            wanted.insert(wanted.end(), face->positions.begin(), face->positions.end());
            std::sort(wanted.begin(), wanted.end());
            EXPECT_EQ(points, wanted) << face->name;
        }
        object.codes(slot) = "  ";
        object.texts(slot).clear();
    }
}

TEST(Facts, EveryFaceDrawsFromItsPositionsAndNoOtherSlotDraws)
{
    for (const int version : {1, 2})
        for (int type = 1; type < 30; ++type)
            for (const auto &[cell, value] : variants) {
                const Kind *kind = find_kind(version, type);
                if (kind == nullptr || (kind->name == "guyed mast" && cell == 6 && value == 0))
                    continue; // without segments the drawing ends
                if (version == 1 && cell != 0 && find_kind(2, kind->types[1]) == kind)
                    continue; // the same drawing
                SCOPED_TRACE(std::string(kind->name) + ", cell " + std::to_string(cell));
                Trial trial(version, *kind);
                Object &object = trial.object();
                object.parameters(8) = 1; // a sign board at the front
                object.parameters(11) = kind->name == "wheel" ? 12 : corners;
                object.parameters(cell) = value;
                compare_faces(trial, *kind, cell == 0 || cell == 6);
            }
}

TEST(Facts, RowsOfPointsAreCounted)
{
    for (const int version : {1, 2})
        for (int type = 1; type < 30; ++type)
            if (const Kind *kind = find_kind(version, type)) {
                Trial trial(version, *kind);
                trial.object().parameters(13) = 0;
                trial.object().parameters(11) = corners;
                for (int point = 0; point <= 180; ++point)
                    trial.object().points(point).attribute = "YSPH";
                const std::string none = trial.output();
                trial.object().parameters(point_count_cell) = 3;
                EXPECT_EQ(trial.output() != none, counts_points(*kind)) << kind->name;
            }
}

} // namespace

} // namespace marlogl::check
