#include "edges.h"
#include "other_sides.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string problem_texts(const Problems &problems)
{
    std::string texts;
    for (const Problem &problem : problems.list())
        texts += std::to_string(problem.line) + ": " + problem.text + "\n";
    return texts;
}

struct Reading {
    std::string statements;
    Counts counts;
};

std::string described(const Statement &statement)
{
    constexpr const char *names[] = {"object", "mode",   "identity", "push",  "pop",   "translate",
                                     "rotate", "scale",  "bind",     "on",    "off",   "begin",
                                     "end",    "colour", "normal",   "coord", "vertex"};
    constexpr const char *symbols[] = {"modelview", "texture", "projection", "2d",
                                       "points",    "lines",   "polygon",    "other"};
    constexpr std::size_t values[] = {1, 0, 0, 0, 0, 3, 4, 3, 0, 0, 0, 0, 0, 3, 3, 2, 3};
    const auto kind = static_cast<std::size_t>(statement.operation);
    std::ostringstream text;
    text << names[kind];
    for (std::size_t i = 0; i < values[kind]; ++i)
        text << ' ' << statement.values[i];
    if (!statement.name.empty())
        text << ' ' << statement.name;
    if (statement.symbol != Symbol::other)
        text << ' ' << symbols[static_cast<std::size_t>(statement.symbol)];
    return text.str() + ';';
}

Reading read(std::string_view text, Problems &problems)
{
    Reading reading;
    reading.counts = read_statements(
        text, problems, [&](const Statement &statement) { reading.statements += described(statement); });
    return reading;
}

TEST(Statements, EveryLineIsReadSkippedOrReported)
{
    const std::string digits(300, '9');
    // clang-format off
    const struct {
        std::string line, statements, problem;
        std::size_t skipped = 0;
    } rows[] = {
        {"glMatrixMode( GL_TEXTURE );", "mode texture;", ""},
        {"glMatrixMode( GL_MODELVIEW );\r", "mode modelview;", ""},
        {"glScalef( 0.3048, 0.3048, 0.3048 );", "scale 0.3048 0.3048 0.3048;", ""},
        {"glRotated( -90 ,0 ,0 , 1 );", "rotate -90 0 0 1;", ""},
        {"glRotated( -90,0 ,0 , 1 );", "rotate -90 0 0 1;", ""},
        {"glTranslatef(1.5f,-2.F,3e2f);", "", "glTranslatef: a comma is missing"},
        {"glTranslatef(1.5f,-2.f,3e2f);", "translate 1.5 -2 300;", ""},
        {"glColor3ub(255, 014, 000  ); ", "colour 255 14 0;", ""},
        {"glColor3ub(  8,  0, 99 ) ;  ", "colour 8 0 99;", ""},
        {"glColor3ub( 1, , 1 ); ", "", "glColor3ub: argument 2 cannot be read"},
        {"glColor3ub( 1, 2, tra );", "", "glColor3ub: argument 3 cannot be read"},
        {"glColor3ub( 256, 0, 0 );", "", "glColor3ub: argument 1 cannot be read"},
        {"glColor3ub( 0, 0, 2.5 );", "", "glColor3ub: ) or ; is missing"},
        {"\t glVertex3d( -180, -108, 0 ) ;", "vertex -180 -108 0;", ""},
        {"glVertex3d( 1, 2, -" + digits + " );", "vertex 1 2 -1e+300;", ""},
        {"glVertex3d( 1, 2, 3" + digits + digits + " );", "", "glVertex3d: argument 3 cannot be read"},
        {"glVertex3d( 1, nan, 3 );", "", "glVertex3d: argument 2 cannot be read"},
        {"glVertex3d( 1, 2 );", "", "glVertex3d: a comma is missing"},
        {"glVertex3d( 1, 2, 3 )", "", "glVertex3d: ) or ; is missing"},
        {"glVertex3d 1, 2, 3 );", "", "glVertex3d: ( is missing"},
        {"glVertex3dd( 1, 2, 3 );", "", "no statement is known that starts like this"},
        {"glTexCoord2f( 0.403922f, -1.000000f );", "coord 0.403922 -1;", ""},
        {"glTexCoord2d( 0.5, 2 ); glVertex3f( 1, 2, 3 );", "coord 0.5 2;vertex 1 2 3;", ""},
        {"glEnd(); glBegin( GL_LINES ); // and so on", "end;begin lines;", ""},
        {"glEnd(); nonsense", "end;", "no statement is known that starts like this"},
        {"glEnable( GL_FOG ); glDisable( GL_TEXTURE_2D );", "on;off 2d;", ""},
        {"glEnable( 3553 );", "", "glEnable: argument 1 cannot be read"},
        {R"(BindTexture( "x"y" );.bmp" );)", R"(bind x"y" );.bmp;)", ""},
        {"BindTexture( \"sub\\dir\\caf\xe9\" );", "bind sub\\dir\\caf\xe9;", ""},
        {R"(BindTexture( "open );)", "", "BindTexture: argument 1 cannot be read"},
        {"//    *** glEnd();", "", "", 1},
        {"    TransformCall( :towerV01 9 0 0 )    ; Vertical structure 1", "", "", 1},
        {"Dbx( 2E 00 FF EF 85 86 )  ; Antenna's", "", "", 1},
        {":lights01", "", "", 1},
        {"; Draw Horizontal structures", "", "", 1},
        {"Return", "", "", 1},
        {"Returns", "", "no statement is known that starts like this"},
        {std::string("\0\xff\x1b", 3), "", "no statement is known that starts like this"},
        {"", "", ""},
        {" \t \r", "", ""},
    };
    // clang-format on
    for (const auto &row : rows) {
        Problems problems;
        const Reading reading = read("\n" + row.line, problems);
        EXPECT_EQ(reading.statements, row.statements) << row.line;
        EXPECT_EQ(problem_texts(problems), row.problem.empty() ? "" : "2: " + row.problem + "\n") << row.line;
        EXPECT_EQ(reading.counts.skipped_lines, row.skipped) << row.line;
    }
}

const std::string polygon = "glBegin( GL_POLYGON );\nglVertex3d( 0, 0, 0 );\nglVertex3d( 4, 0, 0 );\n"
                            "glVertex3d( 4, 4, 0 );\nglVertex3d( 0, 4, 0 );\nglEnd();\n";

std::string summary(const Scene &scene)
{
    std::ostringstream text;
    text << scene.faces.size() << ' ' << scene.lines << ' ' << scene.points << ' '
         << scene.unbalanced_matrix_calls << ", x " << scene.lowest.x << ".." << scene.highest.x << ", y "
         << scene.lowest.y << ".." << scene.highest.y;
    return text.str();
}

TEST(Scene, StatementsMeanWhatOpenGlMakesOfThem)
{
    // clang-format off
    const struct {
        std::string text, summary, problems;
    } rows[] = {
        {polygon, "1 0 0 0, x 0..4, y 0..4", ""},
        {"glTranslated( 9, 0, 0 ); glRotated( 90, 0, 0, 2 ); glScalef( 2, 1, 1 );" + polygon,
         "1 0 0 0, x 5..9, y 0..8", ""},
        {"glPushMatrix(); glTranslated( 9, 0, 0 ); glPopMatrix();" + polygon, "1 0 0 0, x 0..4, y 0..4", ""},
        {"glPushMatrix(); glPushMatrix();" + polygon, "1 0 0 2, x 0..4, y 0..4", ""},
        {"glPopMatrix();" + polygon, "1 0 0 1, x 0..4, y 0..4", "1: glPopMatrix without glPushMatrix\n"},
        {"glTranslated( 9, 0, 0 ); glMatrixMode( GL_TEXTURE ); glLoadIdentity(); glPopMatrix();" + polygon,
         "1 0 0 0, x 9..13, y 0..4", ""},
        {"glTranslated( 9, 0, 0 ); glLoadIdentity();" + polygon, "1 0 0 0, x 0..4, y 0..4", ""},
        {"glBegin( GL_POLYGON ); glVertex3d( 7, 7, 7 ); glVertex3d( 8, 8, 8 ); glEnd();" + polygon,
         "1 0 0 0, x 0..4, y 0..4", ""},
        {"glBegin( GL_LINES ); glVertex3d( 1, 1, 1 ); glVertex3d( 2, 2, 2 ); glVertex3d( 9, 9, 9 ); glEnd();",
         "0 1 0 0, x 1..2, y 1..2", ""},
        {"glBegin( GL_POINTS ); glVertex3d( 3, 3, 3 );\n" + polygon, "1 0 1 0, x 0..4, y 0..4",
         "2: glEnd is missing before this statement\n"},
        {"glBegin( GL_POINTS ); glVertex3d( 3, 3, 3 );", "0 0 1 0, x 3..3, y 3..3",
         "1: glEnd is missing at the end of the file\n"},
        {"glEnd(); glVertex3d( 3, 3, 3 );", "0 0 0 0, x 0..0, y 0..0",
         "1: glEnd without glBegin\n1: glVertex3d outside of glBegin and glEnd\n"},
        {"glBegin( GL_TEXTURE ); glEnd();", "0 0 0 0, x 0..0, y 0..0",
         "1: glBegin: only GL_POLYGON, GL_LINES and GL_POINTS can be shown\n1: glEnd without glBegin\n"},
        {"glPushMatrix(); glScalef( 1e300, 1e300, 1 );\n" + polygon + "glPopMatrix();" + polygon,
         "1 0 0 0, x 0..4, y 0..4", "7: the block that ends here has coordinates too large to be shown\n"},
    };
    // clang-format on
    for (const auto &row : rows) {
        Problems problems;
        const Scene scene = read_scene(row.text, problems);
        EXPECT_EQ(summary(scene), row.summary) << row.text;
        EXPECT_EQ(problem_texts(problems), row.problems) << row.text;
    }
}

// Away from the viewer of counter-clockwise corners.
TEST(Scene, NormalsFollowTheFaceAndAreMadeUpWhereTheyAreMissing)
{
    const std::string with_normal = "glBegin( GL_POLYGON ); glNormal3d( 0, 0, -5 );" + polygon.substr(23);
    const struct {
        std::string text;
        Vec3 normal;
    } rows[] = {
        {polygon,                                                               {0, 0, -1}           },
        {with_normal,                                                           {0, 0, -1}           },
        {"glBegin( GL_POLYGON ); glNormal3d( 0, 0, 7 );" + polygon.substr(23),  {0, 0, -1}           },
        {"glRotated( 90, 1, 0, 0 );" + with_normal,                             {0, 1, 0}            },
        {"glRotated( 45, 0, 1, 0 ); glScalef( 1, 1, 9 );" + with_normal,        {-0.7071, 0, -0.7071}},
        {"glBegin( GL_POLYGON ); glNormal3d( 0, 3, -4 );" + polygon.substr(23), {0, 0.6, -0.8}       },
        {"glBegin( GL_POLYGON ); glNormal3d( 0, 0, 0 );" + polygon.substr(23),  {0, 0, -1}           },
    };
    for (const auto &row : rows) {
        Problems problems;
        const Scene scene = read_scene(row.text, problems);
        ASSERT_EQ(scene.vertices.size(), 4u) << row.text;
        const auto [x, y, z] = scene.vertices[3].normal;
        EXPECT_LT(length(Vec3{x, y, z} - row.normal), 1e-3) << row.text;
    }
}

TEST(Scene, TheOtherSideOfAFaceHasItsCornersTheOtherWayRound)
{
    const auto face = [](const std::string &corners) {
        std::string text = "glBegin( GL_POLYGON );";
        for (const char corner : corners)
            text += std::string("glVertex3d( ") + (corner == 'b' || corner == 'c' ? "4" : "0") + ", 0, " +
                    (corner == 'c' || corner == 'd' ? "4" : "0") + " );";
        return text + "glEnd();\n";
    };
    Problems problems;
    const Scene scene =
        read_scene(face("abcd") + face("bcda") + face("badc") + face("acbd") + face("bad"), problems);
    EXPECT_EQ(find_other_sides(scene), (std::vector{no_face, 2u, 1u, no_face, no_face}));
}

TEST(Scene, HasEdgesWhereFacesEndOrBend)
{
    struct {
        int height;
        std::size_t sharp, smooth;
    } rows[] = {
        {0, 6, 0},
        {1, 6, 1},
        {4, 7, 0}
    };
    for (const auto &[height, sharp, smooth] : rows) {
        const std::string up = ", " + std::to_string(height) + " );";
        Problems problems;
        const std::string flat = "glBegin( GL_POLYGON ); glVertex3d( 0, 0, 0 ); glVertex3d( 4, 0, 0 ); "
                                 "glVertex3d( 4, 4, 0 ); glVertex3d( 0, 4, 0 ); glEnd();\n";
        const std::string bent = "glBegin( GL_POLYGON ); glVertex3d( 4, 0, 0 ); glVertex3d( 8, 0" + up +
                                 " glVertex3d( 8, 4" + up + " glVertex3d( 4, 4, 0 ); glEnd();\n";
        const Scene scene = read_scene(flat + flat + bent, problems); // two sides of one wall
        const Vec3 upwards{0, 0, 1};
        const Edges edges = find_edges(scene, {upwards, upwards, unit({-1.0 * height, 0, 4})});
        EXPECT_EQ(edges.sharp.size(), sharp) << height;
        EXPECT_EQ(edges.smooth.size(), smooth) << height;
    }
}

TEST(Scene, ObjectsAreCountedByTheirNumberLines)
{
    Problems problems;
    const std::string named_like_a_number = "// *** Sequence 01\r\n// *** Sequence 99\r\n";
    const Reading reading =
        read(named_like_a_number + polygon + "// *** Sequence 02\r\n// *** barn\r\n" + polygon, problems);
    EXPECT_EQ(reading.counts.objects, 2u);
    EXPECT_TRUE(reading.statements.starts_with("object 1 Sequence 99;begin")) << reading.statements;
    EXPECT_EQ(reading.counts.skipped_lines, 4u);
}

TEST(Statements, EveryPrefixOfAFileIsTaken)
{
    const std::string file = "glPushMatrix();\r\n// *** Sequence 01\r\nBindTexture( \"a\"b.bmp\" );\r\n" +
                             polygon + "glPopMatrix();\r\n";
    for (std::size_t size = 0; size <= file.size(); ++size) {
        Problems problems;
        const Scene scene = read_scene(file.substr(0, size), problems);
        EXPECT_LE(problems.count(), 2u) << size; // the line that is cut, and the missing glEnd
        EXPECT_LE(scene.faces.size(), 1u);
    }
}

} // namespace
