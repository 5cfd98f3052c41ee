// What facts.cpp says of the kinds, against what the converter draws.
#include "drawing.h"
#include "support.h"

#include "base/run_error.h"
#include "dispatch/dispatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>
#include <utility>

namespace marlogl::check {

namespace {

// An object of a kind with lengths in all cells, and the output that it draws.
class Trial {
  public:
    Trial(int version, const Kind &kind) : version_(version)
    {
        Object &object = scene_.objects.emplace_back(scene_.memory.get());
        object.type = static_cast<std::int16_t>(kind.types[version - 1]);
        for (int cell = 1; cell <= 20; ++cell)
            object.parameters(cell) = cell;
        object.parameters(58) = 0;
        // An outline that runs round, and a mark for every point.
        for (int point = 0; point <= 180; ++point) {
            object.points(point) = {static_cast<std::int16_t>(7 * point * (point % 3)),
                                    static_cast<std::int16_t>(5 * point * (point % 2 + 1))};
            object.point_texts(point) = {"01", "123 "};
        }
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
            Drawing drawing{files, configuration, "", Output(files, "drawn"), NgonFile(files, "points")};
            drawing.colour_table.emplace();
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

// The numbers of all points but the corners of a kind's outlines.
std::vector<int> free_points(const Kind &kind)
{
    std::vector<int> points;
    const std::vector<Outline> outlines = outlines_of(kind);
    for (int number = 0; number <= point_numbers.last; ++number)
        if (std::none_of(outlines.begin(), outlines.end(), [&](const Outline &outline) {
                return number > outline.before && number <= outline.before + corners;
            }))
            points.push_back(number);
    return points;
}

using Points = std::span<const int>;

// Whether an object draws something else where some of its points lie elsewhere.
bool draws(Trial &trial, Points points, const std::string &output)
{
    std::vector<Point> kept;
    for (const int number : points)
        kept.push_back(std::exchange(trial.object().points(number), {9999, 8888}));
    const bool differs = trial.output() != output;
    for (std::size_t i = 0; i < kept.size(); ++i)
        trial.object().points(points[i]) = kept[i];
    return differs;
}

// Those of some points that an object draws from: where it draws from any, those of each half.
std::vector<int> points_drawn(Trial &trial, Points points, const std::string &output)
{
    if (points.empty() || !draws(trial, points, output))
        return {};
    if (points.size() == 1)
        return {points[0]};
    const std::size_t half = points.size() / 2;
    std::vector<int> drawn = points_drawn(trial, points.first(half), output);
    for (const int number : points_drawn(trial, points.subspan(half), output))
        drawn.push_back(number);
    return drawn;
}

void compare_faces(Trial &trial, const Kind &kind, bool with_positions)
{
    Object &object = trial.object();
    const std::string without = trial.output();
    const std::vector<int> points = with_positions ? free_points(kind) : std::vector<int>();
    const std::vector<int> always = points_drawn(trial, points, without);
    ObjectLines lines;
    const Drawn drawn;
    const ObjectSeen seen{
        Scene(), object, 1, 1, 0, &kind, lines, drawn, nullptr, false, faces_of(kind, object)};
    std::set<int> slots;
    for (const Face &face : seen.faces)
        EXPECT_TRUE(slots.insert(face.slot).second) << face.name << " has the slot of another face";
    const auto is_switch = [&kind](int slot) { return uses_code(kind, slot) || uses_text(kind, slot); };
    const auto set = [&object](int slot, const char *code, const char *text) {
        object.codes(slot) = code;
        object.texts(slot) = text;
    };
    for (int slot = 0; slot <= last_face_slot; ++slot) {
        const Face *face = seen.face(slot);
        if (face == nullptr)
            continue;
        set(slot, "Y ", "wood");
        const std::string with = trial.output();
        EXPECT_TRUE(is_switch(slot) || with != without) << "face " << slot;
        std::vector<int> others;
        for (const int point : points)
            if (std::count(face->positions.begin(), face->positions.end(), point) > 0)
                EXPECT_TRUE(draws(trial, {&point, 1}, with)) << face->name << ", point " << point;
            else if (std::count(always.begin(), always.end(), point) == 0)
                others.push_back(point);
        EXPECT_FALSE(draws(trial, others, with)) << face->name;
        set(slot, "", "");
    }
    for (int slot = 0; slot <= last_face_slot; ++slot)
        if (seen.face(slot) == nullptr && !is_switch(slot))
            set(slot, "Y ", "wood");
    EXPECT_EQ(trial.output(), without) << "a slot without a face draws";
}

// Each kind with a version that has it.
std::vector<std::pair<int, const Kind *>> kinds()
{
    std::vector<std::pair<int, const Kind *>> all;
    for (const int version : {2, 1})
        for (int type = 1; type < 30; ++type)
            if (const Kind *kind = find_kind(version, type);
                kind != nullptr && (version == 2 || find_kind(2, kind->types[1]) != kind))
                all.emplace_back(version, kind);
    return all;
}

TEST(Facts, EveryFaceDrawsFromItsPositionsAndNoOtherSlotDraws)
{
    for (const auto &[version, kind] : kinds())
        for (const auto &[cell, value] : variants) {
            if (kind->name == "guyed mast" && cell == 6 && value == 0)
                continue; // without segments the drawing ends
            SCOPED_TRACE(std::string(kind->name) + ", cell " + std::to_string(cell));
            Trial trial(version, *kind);
            Object &object = trial.object();
            object.parameters(8) = 1; // a sign board at the front
            object.parameters(11) = kind->name == "wheel" ? 12 : corners;
            object.parameters(cell) = value;
            compare_faces(trial, *kind, cell == 0 || cell == 6);
        }
}

TEST(Facts, SwitchesAreCellsWhereOneValueDrawsMore)
{
    int switches = 0;
    for (const auto &[version, kind] : kinds()) {
        if (kind->name == "wheel" || kind->name == "guyed mast")
            continue; // without a width or segments the drawing ends
        Trial trial(version, *kind);
        Object &object = trial.object();
        for (int slot = 0; slot <= last_face_slot; ++slot) {
            object.codes(slot) = uses_code(*kind, slot) ? "01" : "Y ";
            object.texts(slot) = "wood";
            object.point_texts(slot).attribute = "Y P ";
        }
        // What the switches need to show.
        for (const int cell : {4, 17, 18})
            object.parameters(cell) = 0;
        for (const int cell : {36, 37, 38, 39})
            object.parameters(cell) = -1;
        object.parameters(13) = object.parameters(31) = 1;
        object.parameters(11) = kind->name == "beam" ? 1 : corners;
        object.parameters(point_count_cell) = counts_points(*kind) ? 3 : 0;
        for (int cell = 1; cell <= 61; ++cell) {
            const double kept = object.parameters(cell);
            const auto output_of = [&](double value) {
                object.parameters(cell) = value;
                return trial.output();
            };
            const std::string off = output_of(0);
            const bool one_value = output_of(2) == off && output_of(3) == off;
            const std::string record = (cell < 10 ? "\nP0" : "\nP") + std::to_string(cell) + " 2\n",
                              design = "V1.2\nA" + std::to_string(kind->types[version - 1]) + record,
                              all = told(version == 1 ? "s.mrl" : "s.mr2", design);
            for (const int on : {-1, 1}) {
                const bool is_switch = one_value && output_of(on) != off;
                EXPECT_EQ(all.find("; only " + std::to_string(on) + " switches it on") != all.npos, is_switch)
                    << kind->name << " cell " << cell;
                switches += is_switch;
            }
            object.parameters(cell) = kept;
        }
    }
    EXPECT_EQ(switches, 20);
}

TEST(Facts, RowsOfPointsAreCounted)
{
    for (const auto &[version, kind] : kinds()) {
        Trial trial(version, *kind);
        trial.object().parameters(13) = 0;
        trial.object().parameters(11) = corners;
        for (int point = 0; point <= 180; ++point)
            trial.object().point_texts(point).attribute = "YSPH";
        const std::string none = trial.output();
        trial.object().parameters(point_count_cell) = 3;
        EXPECT_EQ(trial.output() != none, counts_points(*kind)) << kind->name;
    }
}

} // namespace

} // namespace marlogl::check
