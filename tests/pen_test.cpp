// What no scene shows alone: the turns and the normals of points, and errors within a face.
#include "emit/pen.h"
#include "host/memory_files.h"
#include "support/cases.h"

namespace marlogl {

namespace {

// A drawing in memory, and a pen for an object whose face 1 is textured.
struct Sheet {
    MemoryFiles files;
    Configuration configuration{"", "", "1, 2, 3", "4, 5, 6"};
    std::pmr::monotonic_buffer_resource memory;
    Object object{&memory};
    Drawing drawing{files, configuration, "", Output(files, "out"), NgonFile(files, "points")};
    Pen pen{drawing, object, 1};

    explicit Sheet(std::initializer_list<Vertex> points)
    {
        object.codes(1) = "Y";
        object.texts(1) = " Wall ";
        for (const auto &[x, y, z] : points)
            pen.record(x, y, z);
    }
};

TEST(Points, TurnClockwiseOrStraight)
{
    Sheet sheet{{0, 0, 5}, {10, 0, 10}, {10, 10, 0}, {20, 0, 15}};
    const struct {
        int i, j, k;
        bool xy, xz;
    } rows[] = {{0, 1, 2, false, true}, {2, 1, 0, true, false},  {0, 1, 3, true, true},
                {0, 2, 2, true, true},  {300, 1, 2, true, true}, {0, 1, -2, true, true},
                {0, 999, 2, true, true}};
    for (const auto &[i, j, k, xy, xz] : rows) {
        EXPECT_EQ(sheet.drawing.vertices.turns_clockwise_xy(i, j, k), xy) << i << j << k;
        EXPECT_EQ(sheet.drawing.vertices.turns_clockwise_xz(i, j, k), xz) << i << j << k;
    }
}

TEST(Points, HaveNormalsAwayFromTheViewerOfCounterClockwiseCorners)
{
    const struct {
        Vertex a, b, c;
        const char *normal;
    } rows[] = {
        {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, "      glNormal3d( 0.00, 0.00, -1.00 );\r\n"},
        {{0, 0, 0}, {0, 9, 0}, {0, 9, 1}, "      glNormal3d( -1.00, 0.00, 0.00 );\r\n"},
        {{0, 0, 0}, {0, 0, 9}, {1, 0, 9}, "      glNormal3d( 0.00, -1.00, 0.00 );\r\n"},
        {{0, 0, 0}, {1, 0, 0}, {1, 1, 1}, "      glNormal3d( 0.00, 0.71, -0.71 );\r\n"},
        {{0, 0, 0}, {1, 0, 0}, {1, 1000, 4}, "      glNormal3d( 0.00, 0.00, -1.00 );\r\n"},
        {{1, 2, 3}, {2, 4, 6}, {3, 6, 9}, ""},
        {{1, 2, 3}, {1, 2, 3}, {3, 6, 8}, ""},
    };
    for (const auto &row : rows) {
        Sheet sheet{row.a, row.b, row.c};
        sheet.pen.normal(0, 1, 2);
        sheet.drawing.out.close();
        EXPECT_EQ(sheet.files.files["out"], row.normal);
    }
}

TEST(Pen, RefusesSlotsPointsAndCoordinatesOutsideTheirBounds)
{
    Sheet sheet{{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}};
    Pen &pen = sheet.pen;
    EXPECT_THROW(pen.triangle({29, 1}, 0, 1, 2), RunError);
    EXPECT_THROW(pen.quad<int>({1, 178}, {0, 1, 2, 3}), RunError);
    EXPECT_THROW(pen.picture({1, 178}, {0, 1, 2, 3}), RunError);
    EXPECT_THROW(pen.reversed_quad({1, 1}, {0, 1, 2, 300}), RunError);
    EXPECT_THROW(pen.polygon(1, std::array{0, 1, -2}, std::array{1, 2, 3}), RunError);
    EXPECT_NO_THROW(pen.quad<int>({1, 177}, {299, 1, 2, 3}));
    pen.short_coordinates = true;
    for (const auto &[x, y, z] : {Vertex{40000, 0, 0}, {0, 40000, 0}, {0, 0, 40000}})
        EXPECT_THROW(pen.record(x, y, z), RunError);
}

} // namespace

} // namespace marlogl
