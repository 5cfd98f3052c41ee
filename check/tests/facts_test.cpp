// What facts.cpp says of the kinds, against what the converter draws.
#include "drawing.h"
#include "support.h"

#include "base/run_error.h"
#include "dispatch/dispatch.h"

#include <gtest/gtest.h>

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
            Drawing drawing{files, configuration, "", {files, "drawn"}, {files, "points"}};
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

TEST(Facts, EveryFaceSlotDrawsAndNoOther)
{
    int faces = 0;
    for (const int version : {1, 2})
        for (int type = 1; type < 30; ++type) {
            const Kind *kind = find_kind(version, type);
            if (kind == nullptr)
                continue;
            for (const auto &[cell, value] : variants) {
                if (kind->name == "guyed mast" && cell == 6 && value == 0)
                    continue; // ends the drawing
                Trial trial(version, *kind);
                Object &object = trial.object();
                object.parameters(8) = 1; // a sign board at the front
                object.parameters(11) = kind->name == "wheel" ? 12 : 5;
                object.parameters(cell) = value;
                SCOPED_TRACE(std::string(kind->name) + ", cell " + std::to_string(cell));
                const std::vector<Face> table = faces_of(*kind, object);
                for (int slot = 0; slot <= face_slots.last; ++slot) {
                    const std::string without = trial.output();
                    object.codes(slot) = "Y ";
                    object.texts(slot) = "wood";
                    const std::string with = trial.output();
                    const auto face = std::find_if(table.begin(), table.end(),
                                                   [&](const Face &each) { return each.slot == slot; });
                    const bool is_switch = uses_code(*kind, slot) || uses_text(*kind, slot);
                    EXPECT_TRUE(is_switch || (with != without) == (face != table.end())) << "face " << slot;
                    if (with != without && face != table.end()) {
                        ++faces;
                        // Every position of the face changes what is drawn, as a texture coordinate.
                        for (const int position : face->positions) {
                            const Point kept = object.points(position);
                            object.points(position).x = 9999;
                            object.points(position).y = 8888;
                            EXPECT_NE(trial.output(), with) << face->name << ", point " << position;
                            object.points(position) = kept;
                        }
                    }
                    object.codes(slot) = "  ";
                    object.texts(slot).clear();
                }
            }
        }
    EXPECT_GT(faces, 1000);
}

TEST(Facts, RowsOfPointsAreCounted)
{
    for (const int version : {1, 2})
        for (int type = 1; type < 30; ++type)
            if (const Kind *kind = find_kind(version, type)) {
                Trial trial(version, *kind);
                trial.object().parameters(13) = 0;
                trial.object().parameters(11) = 5;
                for (int point = 0; point <= 180; ++point)
                    trial.object().points(point).attribute = "YSPH";
                const std::string none = trial.output();
                trial.object().parameters(point_count_cell) = 3;
                EXPECT_EQ(trial.output() != none, counts_points(*kind)) << kind->name;
            }
}

} // namespace

} // namespace marlogl::check
