// What switches, selectors and amounts do to the structures, and what one kind leaves for the next.
#include "support/faces.h"

#include <gtest/gtest.h>

#include <sstream>

namespace marlogl {

namespace {

const Cells box = "1 20, 2 20, 3 20, 4 20, 5 20, 6 20, 7 20, 8 20, 9 6, 21 5000";
const Cells tapered = "1 20, 2 16, 3 20, 4 16, 5 10, 6 8, 7 10, 8 8, 9 9, 21 5000";
const Cells spreading = "1 10, 2 8, 3 10, 4 8, 5 20, 6 16, 7 20, 8 16, 9 9, 21 5000";
const Cells sphere =
    "1 9, 2 9, 3 9, 4 9, 5 9, 6 9, 7 9, 8 9, 9 60, 10 70, 11 80, 12 90, 13 80, 14 70, 15 60, 16 4";
const std::string square = "-10 -10, 10 -10, 10 10, -10 10", square_turned = "-10 10, 10 10, 10 -10, -10 -10";

// The faces of slot `t` in the order of writing.
Faces faces_at(const Faces &all, int t)
{
    Faces found;
    for (const DrawnFace &face : all)
        if (face.slot() == t)
            found.push_back(face);
    return found;
}

bool on_side(const Point3 &p, std::string_view side)
{
    return side == "front"   ? p.y < 0
           : side == "back"  ? p.y > 0
           : side == "left"  ? p.x < 0
           : side == "right" ? p.x > 0
                             : side == "all";
}

} // namespace

TEST(Generators, WriteAsManyFacesAsTheirSwitchesAndSelectorsSay)
{
    const Cells ring = "1 90, 2 90, 3 90, 4 90, 5 90", wheel = "1 90, 2 40, 3 20, 4 5";
    const struct {
        int version, type;
        Cells cells;
        std::size_t count;
    } rows[] = {
        {2, 23, "1 0, 2 4, 6 2, 7 4", 8},
        {2, 23, "1 3, 2 4, 6 0, 7 4", 12},
        {2, 23, "1 3, 2 4, 6 -1, 7 4", 12},
        {2, 23, "1 -2, 2 4, 6 0, 7 4", 4},
        {1, 5, "1 4, 3 0, 11 4, 18 4", 20},
        {1, 5, "1 4, 3 1, 11 4, 18 4", 28},
        {2, 11, "1 90, 6 0", 12},
        {2, 11, "1 90, 6 1", 16},
        {2, 11, "1 90, 6 3", 24},
        {2, 11, "1 90, 6 4", 40},
        {2, 11, "1 90, 6 -1", 40},
        {2, 7, ring + ", 7 0", 18},
        {2, 7, ring + ", 7 1", 24},
        {2, 7, ring + ", 7 2", 30},
        {2, 7, ring + ", 7 3", 36},
        {2, 7, ring + ", 7 4", 60},
        {2, 7, ring + ", 7 5", 27},
        {2, 7, ring + ", 7 0, 12 -1", 36},
        {2, 7, ring + ", 7 0, 12 1", 18},
        {2, 7, ring + ", 7 0, 2 -1", 12},
        {2, 12, sphere, 96},
        {2, 12, sphere + ", 20 1", 128},
        {2, 12, sphere + ", 20 3", 192},
        {2, 12, sphere + ", 20 4", 320},
        {2, 12, sphere + ", 19 1", 48},
        {2, 12, sphere + ", 4 0", 84},
        {2, 12, sphere + ", 1 0", 96},
        {2, 12, sphere + ", 29 1", 106},
        {2, 12, sphere + ", 29 2", 96},
        {2, 19, wheel + ", 11 18", 56},
        {2, 19, wheel + ", 11 15", 47},
        {2, 19, wheel + ", 11 10", 32},
        {2, 13, "1 8, 2 6", 1},
        {2, 13, "1 8, 2 6, 8 -1", 2},
        {2, 13, "1 8, 2 6, 8 1", 1},
        {2, 2, "1 8, 2 9, 3 4", 8},
        {2, 2, "1 8, 2 9, 3 0", 6},
        {2, 2, "1 8, 2 9, 3 -2", 6},
        {2, 4, "1 5, 2 5, 4 5, 8 0", 0},
        {2, 4, "1 5, 2 5, 4 5, 8 4.5", 0},
        {2, 4, "1 5, 2 5, 4 5, 8 5.5", 2},
        {1, 19, "1 8, 2 9", 4},
        {1, 19, "1 8, 2 9, 16 1", 1},
        {2, 6, box, 12},
        {2, 6, box + ", 51 -1, 52 -1", 12},
        {2, 6, tapered + ", 51 -1", 16},
        {2, 6, tapered + ", 51 -1, 54 1", 16},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textured_faces(row.version, row.type, row.cells).size(), row.count)
            << row.type << ": " << row.cells;
}

TEST(Generators, CutFractionsTowardsZeroAndFloorHalves)
{
    EXPECT_EQ(box_text(textured_faces(2, 23, "1 1, 2 5.5, 6 0.9, 7 -5, 58 -3.7")), "-2..3 -2..3 -3..-1");
    EXPECT_EQ(box_text(textured_faces(2, 9, "1 -5, 2 5.5, 3 2.5, 6 1, 11 2000, 12 2000, 58 -0.5")),
              "-2..3 -2..3 0..2");
}

TEST(Structure, MovesTheCornersThatItsCellsName)
{
    const struct {
        Cells cells;
        const char *side, *level;
        Point3 move;
    } rows[] = {
        {"21 5003, 23 0", "back", "", {0, 0, 3}},
        {"21 5003, 23 1", "front", "", {0, 0, 3}},
        {"21 4996, 23 2", "right", "", {0, 0, -4}},
        {"21 5003, 23 3", "left", "", {0, 0, 3}},
        {"22 4, 24 0", "back", "lower", {0, 4, 0}},
        {"22 4, 24 1", "front", "lower", {0, -4, 0}},
        {"22 4, 24 2", "right", "lower", {4, 0, 0}},
        {"22 4, 24 3", "left", "lower", {-4, 0, 0}},
        {"34 6, 35 0", "back", "upper", {0, 0, 6}},
        {"34 6, 35 1", "front", "upper", {0, 0, 6}},
        {"34 6, 35 2", "right", "upper", {0, 0, 6}},
        {"34 6, 35 3", "left", "upper", {0, 0, 6}},
        {"32 2, 33 -3", "all", "upper", {2, -3, 0}},
        {"10 4", "front", "", {-4, 0, 0}},
        {"10 4, 11 1", "back", "", {-4, 0, 0}},
        {"10 4, 11 1, 12 1", "back", "", {4, 0, 0}},
        {"10 4, 12 1", "front", "", {4, 0, 0}},
        {"10 -4, 12 1", "", "", {0, 0, 0}},
        {"14 3", "left", "", {0, 3, 0}},
        {"14 3, 16 1", "left", "", {0, -3, 0}},
        {"15 3", "right", "", {0, 3, 0}},
        {"15 3, 17 1", "right", "", {0, -3, 0}},
        {"21 5003, 23 4, 22 4, 24 4, 34 6, 35 4", "", "", {0, 0, 0}},
    };
    const Faces before = textured_faces(2, 6, box);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.cells);
        expect_moved(before, textured_faces(2, 6, box + ", 22 0, " + row.cells), [&](const Point3 &p) {
            const std::string_view level = row.level;
            return on_side(p, row.side) && (level.empty() || (level == "upper") == (p.z > 0)) ? row.move
                                                                                              : Point3{};
        });
    }
}

TEST(Structure, CutsAStraightSideIntoARectangleAndTwoTriangles)
{
    const struct {
        const char *cell, *first_end; // where the first triangle lies as seen from the middle
        int t, s, inside_t, inside_s;
    } walls[] = {{"51", "left", 1, 1, 7, 25},
                 {"52", "front", 4, 13, 10, 37},
                 {"53", "right", 2, 5, 8, 29},
                 {"54", "back", 3, 9, 9, 33}};
    const auto slots_of = [](const DrawnFace &face) {
        std::string text;
        for (const int slot : face.position_slots())
            text += ' ' + std::to_string(slot);
        return text;
    };
    for (const Cells &solid : {tapered, spreading})
        for (const auto &wall : walls) {
            const Faces all = textured_faces(2, 6, solid + ", " + wall.cell + " -1");
            ASSERT_EQ(all.size(), 16u);
            EXPECT_NEAR(volume(Faces(all.begin() + 8, all.end()), 0), 1680, 1e-6);
            EXPECT_NEAR(volume(Faces(all.begin(), all.begin() + 8), 0), -1680, 1e-6);
            for (const auto &[t, s] : {std::pair(wall.t, wall.s), std::pair(wall.inside_t, wall.inside_s)}) {
                const Faces pieces = faces_at(all, t);
                ASSERT_EQ(pieces.size(), 3u);
                const auto &r = pieces[0].corners;
                ASSERT_EQ(r.size(), 4u);
                for (std::size_t i = 0; i < 4; ++i) {
                    const Point3 a = r[(i + 1) % 4].at - r[i].at, b = r[(i + 2) % 4].at - r[(i + 1) % 4].at;
                    EXPECT_EQ(a.x * b.x + a.y * b.y + a.z * b.z, 0) << "no right angle";
                }
                EXPECT_GT(r[1].at.z, r[0].at.z);
                const auto digits = [](int i) { return ' ' + std::to_string(i); };
                EXPECT_EQ(slots_of(pieces[0]), digits(s + 3) + digits(s + 2) + digits(s + 1) + digits(s));
                EXPECT_EQ(slots_of(pieces[1]), digits(s) + digits(s + 1) + digits(s + 2));
                EXPECT_EQ(slots_of(pieces[2]), digits(s + 1) + digits(s + 2) + digits(s + 3));
                EXPECT_TRUE(on_side(pieces[1].corners[1].at, wall.first_end));
                EXPECT_FALSE(on_side(pieces[2].corners[1].at, wall.first_end));
            }
        }
}

TEST(Structure, AnnouncesAntennasAfterTheFeetOfStraightSides)
{
    Design design;
    design.object(6).line("\\1300007255016").point(52, 2010, 1990).point(54, 1, 1).line("V1.2");
    design.params(
        {{1, 20}, {5, 10}, {9, 20}, {21, 5000}, {37, -1}, {38, 1}, {39, -1}, {47, 30}, {51, -1}, {58, 5}});
    const std::vector<std::string> expected = {"Dbx( 2E 00 07 EF FF 10 )  ; Antenna's", "MoveToPt(  10 )",
                                               "DrawToPt(  11 )", "MoveToPt(  12 )", "DrawToPt(  13 )"};
    EXPECT_EQ(convert(design).body(), expected);
}

TEST(Lights, StandOnTheUpperCornersAndTheUpperRing)
{
    const auto lights = [](int type, const Cells &cells, const std::string &lights_switch) {
        Design design;
        design.object(type).line("K26" + lights_switch).line("\\00  001022133");
        std::istringstream list(cells);
        int cell = 0;
        double value = 0;
        for (char comma = 0; list >> cell >> value; list >> comma)
            design.params({{cell, value}});
        return convert(design).body();
    };
    const std::vector<std::string> on_box = {"glColor3ub( 001, 022, 133 ); ",
                                             "glBegin( GL_POINTS ); ",
                                             "      glVertex3d( -10, -10, 6 );",
                                             "      glVertex3d( -10, 10, 6 );",
                                             "      glVertex3d( 10, 10, 6 );",
                                             "      glVertex3d( 10, -10, 6 );",
                                             "glEnd();"};
    EXPECT_EQ(lights(6, box + ", 31 1", "A"), on_box);
    EXPECT_EQ(lights(6, box + ", 31 1", "\x01z"), on_box);
    for (const auto &[cells, lights_switch] :
         {std::pair(", 31 1", "\x01\x1f"), std::pair(", 31 1", "  "), std::pair(", 31 2", "A")})
        EXPECT_TRUE(lights(6, box + cells, lights_switch).empty()) << cells;

    const Cells cylinder = "1 4, 2 50, 3 6, 4 80, 5 40, 31 1, 7 ";
    for (const auto &[selector, count] : {std::pair("0", 6u), std::pair("1", 8u), std::pair("2", 10u),
                                          std::pair("3", 12u), std::pair("4", 20u)}) {
        const auto lines = lights(7, cylinder + selector, "A");
        ASSERT_EQ(lines.size(), count + 3) << selector;
        EXPECT_EQ(lines[2], "      glVertex3d( 0, 20, 56 );");
        for (std::size_t i = 2; i < count + 2; ++i)
            EXPECT_TRUE(lines[i].ends_with(", 56 );")) << lines[i];
    }
    EXPECT_TRUE(lights(7, cylinder + "5", "A").empty());
    EXPECT_EQ(lights(7, cylinder + "0, 2 0", "A")[2], "      glVertex3d( 0, 40, 6 );"); // ring 1 stands in
}

TEST(Sign, StandsOnItsSideOrLies)
{
    const struct {
        double mode;
        const char *box, *first, *second, *narrow; // the narrow edge lies on top or behind
    } rows[] = {
        {1, "-2..3 -6..-6 1..5", "0-0 +0- t01 4 3 2 1", "0+0 -0- t02 8 7 6 5", "-1..2 -6..-6 5..5"},
        {2, "6..6 -2..3 1..5", "+00 0+- t01 4 3 2 1", "-00 0-- t02 8 7 6 5", "6..6 -1..2 5..5"},
        {3, "-2..3 6..6 1..5", "0+0 -0- t01 4 3 2 1", "0-0 +0- t02 8 7 6 5", "-1..2 6..6 5..5"},
        {4, "-6..-6 -2..3 1..5", "-00 0-- t01 4 3 2 1", "+00 0+- t02 8 7 6 5", "-6..-6 -1..2 5..5"},
        {5, "-2..3 -2..2 7..7", "00- --0 t02 8 7 6 5", "00+ +-0 t01 4 3 2 1", "-1..2 2..2 7..7"},
        {6, "-2..3 -2..2 7..7", "00+ +-0 t02 8 7 6 5", "00- --0 t01 4 3 2 1", "-1..2 2..2 7..7"},
        {7, "-2..3 -2..2 7..7", "00+ +-0 t01 4 3 2 1", "00- --0 t02 8 7 6 5", "-1..2 2..2 7..7"},
    };
    for (const auto &row : rows) {
        const Faces all =
            textured_faces(2, 4, "1 5, 2 3, 3 6, 4 4, 19 0, 58 1, 8 " + std::to_string(row.mode));
        ASSERT_EQ(all.size(), 2u);
        EXPECT_EQ(box_text(all), row.box);
        EXPECT_EQ(description(all[0]), row.first);
        EXPECT_EQ(description(all[1]), row.second);
        DrawnFace narrow;
        for (const Corner3 &corner : all[0].corners)
            if (row.mode < 5 ? corner.at.z == 5 : corner.at.y == 2)
                narrow.corners.push_back(corner);
        EXPECT_EQ(box_text({narrow}), row.narrow);
    }
}

TEST(Sign, TiltsOneEdgeInModeFive)
{
    const struct {
        const char *cells, *edge;
        double rise;
    } rows[] = {{"8 5, 19 2, 20 0", "back", 2},
                {"8 5, 19 2, 20 1", "front", 2},
                {"8 5, 19 2, 20 2", "right", 2},
                {"8 5, 19 2, 20 3", "left", 2},
                {"8 5, 19 2, 20 3, 21 1", "left", -2},
                {"8 5, 19 2, 20 4", "", 0},
                {"8 5, 19 -2, 20 0", "", 0}};
    const Faces before = textured_faces(2, 4, "1 8, 2 6, 3 5, 4 6, 8 5");
    for (const auto &row : rows)
        expect_moved(before, textured_faces(2, 4, std::string("1 8, 2 6, 3 5, 4 6, ") + row.cells),
                     [&](const Point3 &p) {
                         return Point3{0, 0, on_side(p, row.edge) ? row.rise : 0};
                     });
    EXPECT_EQ(box_text(textured_faces(2, 4, "1 8, 2 6, 3 5, 4 6, 8 6, 19 2, 20 0")), "-4..4 -3..3 5..5");
}

TEST(UprightOutline, IsShiftedAndLifted)
{
    const struct {
        const char *cells, *side;
        Point3 move;
    } rows[] = {{"16 3, 18 0", "front", {-3, 0, 0}},
                {"16 3, 18 1", "front", {3, 0, 0}},
                {"16 3, 18 2", "back", {-3, 0, 0}},
                {"16 3, 18 3", "back", {3, 0, 0}},
                {"16 3, 18 4", "", {}},
                {"17 4, 18 4", "front", {0, 0, 4}},
                {"17 4, 19 1", "back", {0, 0, 4}},
                {"17 4, 19 2", "", {}}};
    for (const std::string &outline : {square, square_turned})
        for (const char *caps : {"4 0, ", "4 1, "}) {
            const Prism board{outline, outline, "123 134"};
            const Faces before = textured_faces(2, 5, std::string(caps) + "2 5, 11 4, 13 1, 58 2", board);
            EXPECT_EQ(box_text(before), "-10..10 -2..3 -8..12");
            for (const auto &row : rows)
                expect_moved(
                    before,
                    textured_faces(2, 5, std::string(caps) + "2 5, 11 4, 13 1, 58 2, " + row.cells, board),
                    [&](const Point3 &p) { return on_side(p, row.side) ? row.move : Point3{}; });
        }
}

TEST(UprightOutline, TurnsTheInsideCapsThatAskForIt)
{
    const Prism board{square, square};
    const Faces plain = textured_faces(2, 5, "2 5, 11 4, 13 1", board);
    for (const auto &[cells, t] : {std::pair("13 1, 43 1", 23), std::pair("13 1, 44 1", 24),
                                   std::pair("13 2, 43 1", 0), std::pair("13 1, 43 2", 0)}) {
        const Faces all = textured_faces(2, 5, std::string("2 5, 11 4, ") + cells, board);
        ASSERT_EQ(all.size(), plain.size());
        for (std::size_t i = 0; i < all.size(); ++i) {
            EXPECT_EQ(in_order(all[i]), all[i].slot() == t ? opposite(plain[i]) : in_order(plain[i]));
            EXPECT_EQ(all[i].normal, plain[i].normal);
        }
    }
    EXPECT_EQ(box_text(textured_faces(2, 18, "2 5, 11 4, 13 1, 58 2", board)), "-10..10 -2..3 -8..12");
}

TEST(TriangleCaps, SkipWhatNamesNoCorner)
{
    std::string outline = "0 0, 40 0, 40 1";
    for (int i = 4; i <= 20; ++i)
        outline += ", " + std::to_string(44 - 2 * i) + ' ' + std::to_string(i);
    const struct {
        int type, corners;
        const char *attribute;
        std::size_t drawn;
    } rows[] = {{18, 4, "134", 1},  {18, 4, "13", 0},   {18, 4, "135", 0}, {18, 20, "1JK", 1},
                {18, 20, "1jk", 0}, {18, 20, "1IL", 0}, {5, 10, "19A", 1}, {5, 10, "19a", 0},
                {5, 9, "19A", 0},   {5, 10, "01B", 0}};
    for (const auto &row : rows) {
        const Faces all = textured_faces(2, row.type, "2 5, 4 1, 11 " + std::to_string(row.corners),
                                         {outline, "", row.attribute});
        EXPECT_EQ(faces_at(all, row.type == 5 ? 11 : 21).size(), row.drawn) << row.attribute;
        EXPECT_EQ(faces_at(all, row.type == 5 ? 24 : 22).size(), row.drawn) << row.attribute;
    }
}

// The colour of a board and the like, drawn after other kinds.
TEST(ViewSide, OfSignConeFlagAndStructureBottomIsWhatTheKindBeforeLeft)
{
    const struct {
        int type;
        char side; // what it leaves, ' ' when it leaves all as it is
    } kinds[] = {{23, 'O'}, {6, 'O'},  {7, 'I'},  {9, 'I'},  {5, 'O'},
                 {18, 'O'}, {12, 'O'}, {19, ' '}, {22, ' '}, {20, ' '}};
    for (const int type : {4, 11, 13, 6})
        for (const auto &kind : kinds) {
            Design design;
            design.object(7).object(kind.type).object(type).textured(1, 12, "t12");
            design.params({{1, 8}, {2, 8}, {4, 8}, {8, 1}, {9, 8}, {21, 5000}});
            const Faces all = faces(convert(design));
            ASSERT_FALSE(all.empty());
            EXPECT_EQ(all[0].side, kind.side == ' ' ? 'I' : kind.side) << type << " after " << kind.type;
        }
    EXPECT_EQ(textured_faces(2, 4, "1 8, 8 1, 4 8")[0].side, 'O');
}

// Rows of the vertex table that a kind names without having recorded them hold what an earlier object left:
// here the points of a sphere.
TEST(VertexTable, KeepsRowsForKindsThatNameMoreThanTheyRecord)
{
    const auto after = [](double height, double diameter, const Design &object) {
        Design design(object.version());
        design.object(object.version() == 1 ? 15 : 12).params({{1, height}, {3, height}, {9, diameter}});
        return faces(convert(design.params({{20, 4}}).line(object.text())));
    };
    // Two corners: the third point of the turn test is missing.
    const Design two = textured_design(2, 18, "2 5, 11 2", {"0 0, 10 0", "0 0, 10 0"});
    EXPECT_NE(in_order(after(0, 90, two)[0]), in_order(after(0, -90, two)[0]));
    // Fourteen segments on rings of twelve points: the last corners lie beyond the wheel.
    const Design wheel = textured_design(2, 19, "1 90, 2 40, 3 20, 4 5, 11 14");
    // The first point starts no run, so that the last number of the fan is one too high.
    Design beam(1);
    beam.object(2).params({{2, 3}});
    for (int i = 1; i <= 3; ++i)
        beam.point(i, 5000 + i, 5000 + i * i, "", "  P ");
    for (const double height : {150, 170}) {
        EXPECT_EQ(extents(after(height, 4, wheel)).second.z, 2 * height);
        EXPECT_EQ(extents(after(height, 4, beam)).second.z, height);
    }
}

} // namespace marlogl
