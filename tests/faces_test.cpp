// The face writers one by one: their lines, texture positions, normals and turn tests.
#include "emit/faces.h"

#include "design/scene.h"
#include "emit/lines.h"
#include "emit/point_file.h"
#include "generators/figures.h"
#include "run/run.h"
#include "support/design.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

namespace marlogl {

namespace {

class FaceWriter : public testing::Test {
  protected:
    FaceWriter()
    {
        use_file_system(&memory_);
        reset();
        current_object = 7;
        open_object(7);
        colour_outside = "1, 2, 3";
        colour_inside = "4, 5, 6";
        view_side = "O";
        for (int slot = 0; slot <= 28; ++slot) {
            object_code(slot, 7) = "Y";
            object_text(slot, 7) = " Wall ";
        }
        for (int slot = 0; slot <= 180; ++slot) {
            point_x(slot, 7) = static_cast<std::int16_t>(slot);
            point_y(slot, 7) = static_cast<std::int16_t>(250 - slot);
        }
        // Point n stands at (n, 10 n n, 100 + n).
        for (int n = 0; n < 8; ++n)
            record_point(n, 100 + n, 10 * n * n);
    }
    ~FaceWriter() override
    {
        reset();
        use_file_system(nullptr);
    }

    std::string text_after(const std::function<void()> &write)
    {
        open_output("out");
        write();
        close_output();
        std::string text;
        for (const char c : memory_.files["out"])
            if (c != '\r')
                text += c;
        return text;
    }

    // The corners of a face: "point (u, v)", u and v in pixels.
    std::string corners_after(const std::function<void()> &write)
    {
        std::string corners;
        double u = 0, v = 0, x = 0, y = 0, z = 0;
        std::istringstream lines(text_after(write));
        for (std::string line; std::getline(lines, line);) {
            std::sscanf(line.c_str(), " glTexCoord2f( %lf%*[f], %lf", &u, &v);
            if (std::sscanf(line.c_str(), " glVertex3d( %lf, %lf, %lf", &x, &y, &z) == 3)
                corners += text_of(p0(x)) + (z == 100 + x ? " (" : "^" + text_of(p0(z - 100)) + " (") +
                           text_of(p0(u * 255)) + ", " + text_of(p0(255 - v * 255)) + ") ";
        }
        return corners;
    }

    MemoryFiles memory_;
};

} // namespace

TEST_F(FaceWriter, WritesWholeBlocks)
{
    const char *block = R"(BindTexture( "Wall.bmp" );
glEnable( GL_TEXTURE_2D );
glBegin( GL_POLYGON );
glColor3ub(1, 2, 3 ); 
      glNormal3d( 0.71, 0.00, -0.71 );
      glTexCoord2f( 0.160784f, 0.180392f );
      glVertex3d( 0, 0, 100 );
      glTexCoord2f( 0.156863f, 0.176471f );
      glVertex3d( 1, 10, 101 );
      glTexCoord2f( 0.152941f, 0.172549f );
      glVertex3d( 2, 40, 102 );
glEnd();
)";
    EXPECT_EQ(text_after([] { write3("", "", "", 3, 39, 0, 1, 2, ""); }), block);
    view_side = "I";
    EXPECT_NE(text_after([] { write3("", "", "", 3, 39, 0, 1, 2, ""); }).find("\nglColor3ub( 4, 5, 6 ); \n"),
              std::string::npos);
}

TEST_F(FaceWriter, GivesEveryCornerItsPosition)
{
    point_file::open();
    for (const char *line : {"   5  12 200", "(1 2) ", "", "6 -3 4.5 ", "7", "0 1 2"})
        write_point_line(std::string_view(line));
    EXPECT_EQ(corners_after([] { writen(1, "Y"); }), "0 (1, 2) 7 (0, 0) 6 (-3, 4) 5 (12, 200) ");
    const struct {
        std::function<void()> write;
        const char *corners;
    } rows[] = {
        {[] { write3("", "", "", 1, 20, 4, 5, 6, ""); }, "4 (22, 228) 5 (21, 229) 6 (20, 230) "},
        {[] { write4("", "", "", 1, 20, 4, 5, 6, 7, ""); }, "4 (20, 23) 5 (20, 21) 6 (22, 21) 7 (22, 23) "},
        {[] { write3a("", "", "", 1, 4, 5, 6, 30, 10, 20); }, "4 (30, 220) 5 (10, 240) 6 (20, 230) "},
        {[] { write4a("", 1, 4, 5, 6, 7, 20, ""); }, "4 (23, 227) 5 (22, 228) 6 (21, 229) 7 (20, 230) "},
        {[] { write4ar("", 1, 4, 5, 6, 7, 20, ""); },
         "7^4 (23, 227) 6^5 (22, 228) 5^6 (21, 229) 4^7 (20, 230) "},
    };
    for (const auto &row : rows)
        EXPECT_EQ(corners_after(row.write), row.corners);
}

TEST_F(FaceWriter, WritesNothingWithoutATextureAndLeavesThePointFile)
{
    point_file::open();
    write_point_line("1 2 3");
    const std::function<void()> writers[] = {
        [] { write3("", "", "", 1, 1, 0, 1, 2, ""); },    [] { write4("", "", "", 1, 1, 0, 1, 2, 3, ""); },
        [] { write3a("", "", "", 1, 0, 1, 2, 1, 2, 3); }, [] { write4a("", 1, 0, 1, 2, 3, 1, ""); },
        [] { write4ar("", 1, 0, 1, 2, 3, 1, ""); },       [] { writen(1, "N"); },
    };
    for (const auto &[code, name] :
         {std::pair("N", "x"), std::pair(" Y", "x"), std::pair("y", "x"), std::pair("Y", "  ")}) {
        object_code(1, 7) = std::string_view(code);
        object_text(1, 7) = name;
        for (const auto &write : writers)
            EXPECT_EQ(text_after(write), "") << code << name;
    }
    object_code(1, 7) = "YN";
    object_text(1, 7) = "x";
    EXPECT_EQ(text_after(writers[5]), R"(BindTexture( "x.bmp" );
glEnable( GL_TEXTURE_2D );
glBegin( GL_POLYGON );
      glTexCoord2f( 0.007843f, 0.988235f );
      glVertex3d( 1, 10, 101 );
glEnd();
)");
    EXPECT_THROW(writen(1, "N"), RunError) << "the point file is read once";
}

TEST_F(FaceWriter, WritesRoadsFromCellsUpwardsAndDownwards)
{
    for (int cell = 11; cell <= 18; ++cell)
        object_param(cell, 7) = cell + 0.9;
    object_code(1, 7) = object_code(2, 7) = "N";
    EXPECT_EQ(corners_after([] { write_roads(1, "", 0, 0, 1); }),
              "3 (13, 14) 2 (13, 12) 1 (11, 12) 0 (11, 14) ");
    EXPECT_EQ(corners_after([] { write_roads(2, "", 0, 0, -1); }),
              "0 (15, 18) 1 (15, 16) 2 (17, 16) 3 (17, 18) ");
    EXPECT_EQ(object_param(11, 7), 11);
    const std::string lines = text_after([] { write_roads(1, "", 0, 0, 1); });
    EXPECT_LT(lines.find("1, 10, 101"), lines.find("glNormal3d( 0.00, 0.00, 1.00 );"));
    EXPECT_LT(lines.find("glNormal3d"), lines.find("0.043137f, 0.945098f"));
    EXPECT_LT(text_after([] { write_roads(2, "", 0, 0, 2); }).find("glNormal3d"),
              text_after([] { write_roads(2, "", 0, 0, 2); }).find("glTexCoord2f"));
    object_text(1, 7) = " ";
    EXPECT_EQ(text_after([] { write_roads(1, "", 0, 0, 1); }), "");
}

TEST_F(FaceWriter, WritesNormalsAwayFromTheViewerOfCounterClockwiseCorners)
{
    const struct {
        Vertex a, b, c;
        const char *normal;
    } rows[] = {
        {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, "      glNormal3d( 0.00, 0.00, -1.00 );\n"},
        {{10, 10, 0}, {10, 0, 0}, {0, 0, 0}, "      glNormal3d( 0.00, 0.00, 1.00 );\n"},
        {{0, 0, 0}, {0, 9, 0}, {0, 9, 1}, "      glNormal3d( -1.00, 0.00, 0.00 );\n"},
        {{0, 0, 0}, {0, 0, 9}, {1, 0, 9}, "      glNormal3d( 0.00, -1.00, 0.00 );\n"},
        {{0, 0, 0}, {1, 0, 0}, {1, 1, 1}, "      glNormal3d( 0.00, 0.71, -0.71 );\n"},
        {{0, 0, 0}, {1, 0, 0}, {1, 1000, 4}, "      glNormal3d( 0.00, 0.00, -1.00 );\n"},
        {{1, 2, 3}, {2, 4, 6}, {3, 6, 9}, ""},
        {{1, 2, 3}, {1, 2, 3}, {3, 6, 8}, ""},
    };
    for (const auto &row : rows) {
        vertex_table(1) = row.a;
        vertex_table(2) = row.b;
        vertex_table(3) = row.c;
        EXPECT_EQ(text_after([] { fnVector(0, 1, 2, "ai;"); }), row.normal);
    }
}

TEST_F(FaceWriter, RefusesSlotsAndPointsOutsideTheirTables)
{
    const std::function<void()> calls[] = {[] { write3("", "", "", 29, 1, 0, 1, 2, ""); },
                                           [] { write4a("", -1, 0, 1, 2, 3, 1, ""); },
                                           [] { write4("", "", "", 1, 178, 0, 1, 2, 3, ""); },
                                           [] { write4a("", 1, 0, 1, 2, 3, 178, ""); },
                                           [] { write4ar("", 1, 0, 1, 2, 300, 1, ""); },
                                           [] { write3a("", "", "", 1, 0, 1, -2, 1, 2, 3); }};
    for (const auto &call : calls)
        EXPECT_THROW(text_after(call), RunError);
    EXPECT_NO_THROW(text_after([] { write4a("", 28, 299, 1, 2, 3, 177, ""); }));
}

TEST_F(FaceWriter, RecordsPointsCutTowardsZeroInBothLists)
{
    vertex_count = 0;
    List1.clear();
    vertex_copy_flag = "Y";
    record_point(10.9, -3.5, 7);
    EXPECT_EQ(List1.text(0), "10/-3@7");
    EXPECT_EQ(List2.text(0), "10, 7, -3");
    EXPECT_EQ(std::tuple(vertex(0).x, vertex(0).y, vertex(0).z), std::tuple(10., 7., -3.));
    EXPECT_EQ(std::tuple(vertex_copy(1).x, vertex_copy(1).y, vertex_copy(1).z), std::tuple(10, 7, -3));
    EXPECT_THROW(record_point(40000, 0, 0), RunError);
    vertex_copy_flag = "N";
    vertex_count = 299;
    record_point(40000, 0, -0.9);
    EXPECT_EQ(vertex(299).x, 40000);
    EXPECT_THROW(record_point(0, 0, 0), RunError);
}

TEST_F(FaceWriter, TurnsAreClockwiseOrStraight)
{
    vertex_table(1) = {0, 0, 5};
    vertex_table(2) = {10, 0, 10};
    vertex_table(3) = {10, 10, 0};
    vertex_table(4) = {20, 0, 15};
    const struct {
        int i, j, k;
        bool xy, xz;
    } rows[] = {{0, 1, 2, false, true}, {2, 1, 0, true, false},  {0, 1, 3, true, true},
                {0, 2, 2, true, true},  {300, 1, 2, true, true}, {0, 1, -2, true, true},
                {0, 999, 2, true, true}};
    for (const auto &row : rows) {
        EXPECT_EQ(fnturn_xy(row.i, row.j, row.k), row.xy) << row.i << row.j << row.k;
        EXPECT_EQ(fnturn_xz(row.i, row.j, row.k), row.xz) << row.i << row.j << row.k;
    }
}

TEST_F(FaceWriter, LightsRepeatTheOneBeforeForAMissingNumber)
{
    object_colour(0, 7) = "xx001022133";
    object_code(26, 7) = "\tA";
    for (const char *point : {"0, 0, 0", "1, 1, 1", "2, 2, 2"})
        List2.add(point);
    EXPECT_EQ(text_after([] { make_lights("9902 1xx990"); }),
              "glColor3ub( 001, 022, 133 ); \nglBegin( GL_POINTS ); \n"
              "      glVertex3d( 2, 2, 2 );\n      glVertex3d( 1, 1, 1 );\n"
              "      glVertex3d( 0, 0, 0 );\n      glVertex3d( 0, 0, 0 );\nglEnd();\n");
    EXPECT_EQ(List2.count(), 0u);
    EXPECT_EQ(object_code(26, 7).view(), " A");
    object_code(26, 7) = "\x01\x02";
    List2.add("kept");
    EXPECT_EQ(text_after([] { make_lights("00"); }), "");
    EXPECT_EQ(List2.count(), 1u);
}

} // namespace marlogl
