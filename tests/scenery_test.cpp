// Kinds of lines and single faces: the lines they write, blanks included, and where things lie.
#include "support/faces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace marlogl {

namespace {

// The body of an output as one text, every line ended by a line feed.
std::string body_of(const Design &design)
{
    std::string text;
    for (const std::string &line : convert(design).body())
        text += line + '\n';
    return text;
}

std::vector<std::string> descriptions(const Faces &all)
{
    std::vector<std::string> texts;
    for (const DrawnFace &face : all)
        texts.push_back(description(face));
    return texts;
}

// The angle of a point on a ring, from 0 at the back (+y) clockwise to 359.
double bearing(const Point3 &p)
{
    return std::fmod(std::atan2(p.x, p.y) * 180 / 3.14159265358979 + 360.5, 360) - 0.5;
}

Design member(Design design, std::initializer_list<std::tuple<int, int, const char *, const char *>> points)
{
    int number = 0;
    for (const auto &[x, y, code, attribute] : points)
        design.point(++number, x + 5000, y + 5000, code, attribute);
    return design;
}

} // namespace

TEST(Beam, DrawsEachRunAsAFanSeenFromBothSides)
{
    const struct {
        bool upright, doubled;
        const char *second_start, *last, *box;
        std::size_t count; // of the triangles, each seen from both sides
    } rows[] = {
        {false, false, " SP ", "  P ", "-50..9 0..9 24..27", 5},
        {false, false, " SPV", "  P ", "-50..9 0..9 24..27", 4},
        {false, false, " SPV", "  PV", "-50..9 0..9 24..27", 3},
        {true, false, " SP ", "  P ", "-50..9 7..24 20..29", 5},
        {true, true, " SP ", "  P ", "-50..9 7..24 20..29", 10},
        {false, true, " SP ", "  P ", "-50..9 0..9 24..27", 5},
    };
    for (const auto &row : rows) {
        Design beam(1);
        beam.object(2).params({{2, 3}, {5, 20}, {11, row.upright}, {12, row.doubled ? -1 : 0}, {58, 7}});
        const Faces all = faces(convert(member(beam, {{0, 0, "", " SP "},
                                                      {9, 0, "", "  P "},
                                                      {9, 9, "", "   "},
                                                      {9, 9, "", "  P "},
                                                      {0, 9, "", "  P "},
                                                      {-50, 0, "", row.second_start},
                                                      {-40, 0, "", "  P "},
                                                      {-40, 9, "", row.last}})));
        ASSERT_EQ(all.size(), 2 * row.count);
        EXPECT_EQ(box_text(all), row.box);
        for (std::size_t i = 0; i < all.size(); i += 2) {
            EXPECT_EQ(in_order(all[i]), opposite(all[i + 1]));
            const Point3 &apex = all[i].corners[1].at;
            EXPECT_TRUE((apex.x == 0 || apex.x == -50) && (row.upright ? apex.y == 7 : apex.z == 27)) << apex;
        }
        if (row.second_start[3] ==
            ' ') { // the pair that closes the first fan ends at the second copy of its start
            const Point3 first = row.upright ? Point3{0, 24, 20} : Point3{0, 0, 24};
            EXPECT_EQ(all[2 * row.count * 3 / 5 - 2].corners[2].at, first);
        }
    }
    Design beam(1);
    beam.object(2).line("\\01xx001022133");
    EXPECT_EQ(body_of(member(beam, {{0, 0, "", "   V"}})), "");
    EXPECT_EQ(body_of(member(beam, {{0, 0, "", " SPV"}})), "glColor3ub( 001, 022, 133 );\n");
}

TEST(Mast, StacksColouredSegmentsAndIsHeldByGuyLines)
{
    Design mast(1);
    mast.object(6).params({{1, 100}, {2, 50}, {3, 10}, {4, 20}, {5, 30}, {6, 9}, {58, 5}});
    for (int slot = 1; slot <= 4; ++slot)
        mast.line("\\0" + std::to_string(slot) + "xx00" + std::to_string(slot) + "022133");
    const Converted without = convert(mast);
    const Faces all = faces(without);
    ASSERT_EQ(all.size(), 36u);
    EXPECT_EQ(box_text(all), "-1..1 -1..1 10..130");
    double low = 10;
    for (std::size_t segment = 0; segment < 9; ++segment) {
        const Faces four(all.begin() + static_cast<std::ptrdiff_t>(4 * segment),
                         all.begin() + static_cast<std::ptrdiff_t>(4 * segment + 4));
        const double height = extents(four).second.z - low;
        EXPECT_EQ(extents(four).first.z, low);
        EXPECT_NEAR(height, 120. / 9, 1);
        EXPECT_NEAR(volume(four, low + height / 2) * 6, 4 * 4 * height, 0.01); // the walls alone
        EXPECT_EQ(open_edges(four).size(), 8u);
        low += height;
    }
    const auto colours_of = [](const Converted &converted) {
        std::string colours;
        for (const std::string &line : converted.lines())
            if (line.starts_with("glColor3ub( 00") && line.ends_with("022, 133 );"))
                colours += line[14];
        return colours;
    };
    EXPECT_EQ(colours_of(without), "12121212234");

    const auto guys_of = [](const Converted &converted) {
        std::string text;
        const std::vector<std::string> lines = converted.body();
        for (auto line = std::find(lines.begin(), lines.end(), "glBegin( GL_LINES ); "); line != lines.end();
             ++line)
            if (line->starts_with("      glVertex3d( "))
                text += line->substr(18, line->size() - 21) + '|';
        return text;
    };
    const std::string edges =
        "-1, -1, 10|-1, -1, 23|-1, 1, 10|-1, 1, 23|1, 1, 10|1, 1, 23|1, -1, 10|1, -1, 23|";
    const std::string far =
        "142, 142, 10|1, 1, 30|-140, 140, 10|1, -1, 30|-142, -142, 10|-1, -1, 30|140, -140, 10|-1, 1, 30|";
    const std::string near =
        "71, 71, 10|1, 1, 70|-69, 69, 10|1, -1, 70|-71, -71, 10|-1, -1, 70|69, -69, 10|-1, 1, 70|";
    EXPECT_EQ(guys_of(without), edges + edges);
    EXPECT_EQ(guys_of(convert(Design(mast).line("K03x"))), far + edges);
    EXPECT_EQ(guys_of(convert(Design(mast).line("K04 x"))), edges + near);
    EXPECT_EQ(guys_of(convert(Design(mast).line("K03x").line("K04x"))), far + near);
}

TEST(Cylinder, HasARailingOfPostsAndOpenRails)
{
    Design cylinder;
    cylinder.object(7)
        .params({{1, 4}, {2, 50}, {3, 6}, {4, 80}, {5, 40}, {6, 10}, {58, 3}})
        .line("\\23xx001022133");
    const std::string railing = body_of(cylinder);
    EXPECT_TRUE(railing.starts_with("glColor3ub( 001, 022, 133 ); \nglBegin( GL_LINES ); \n"
                                    "      glVertex3d( 0, 20, 59 );\n      glVertex3d( 0, 20, 69 );\n"
                                    "      glVertex3d( 17, 10, 59 );\n      glVertex3d( 17, 10, 69 );\n"));
    const std::string comment = "//" + std::string(50, ' ') + "DrawToPt(  ";
    std::size_t at = railing.find(comment);
    EXPECT_EQ(std::count(railing.begin(), railing.begin() + static_cast<std::ptrdiff_t>(at), '\n'), 2 + 12);
    for (int i = 14; i <= 18; ++i) {
        EXPECT_TRUE(railing.substr(at).starts_with(comment + std::to_string(i) + " )\n"));
        at = railing.find(comment, at + 1);
    }
    EXPECT_TRUE(
        railing.ends_with("      glVertex3d( -17, -10, 59 );\n      glVertex3d( -17, 9, 59 );\nglEnd();\n"));
    EXPECT_EQ(std::count(railing.begin(), railing.end(), '\n'), 2 + 12 + 15 + 1);
    const std::string disc = body_of(Design(cylinder).params({{2, 0}}));
    EXPECT_NE(disc.find("      glVertex3d( 0, 40, 9 );\n      glVertex3d( 0, 20, 19 );\n"), disc.npos);
    EXPECT_NE(disc.find(comment + "8 )\n"), disc.npos);
    EXPECT_EQ(body_of(cylinder.params({{18, 1}})), "");
}

TEST(Rings, BeginAtTheBackAndRunClockwise)
{
    const struct {
        int type;
        const char *cells;
        int first_slot, count;
    } rows[] = {{11, "1 2000, 2 600, 6 2", 2, 10}, {7, "1 300, 2 500, 3 200, 4 2000, 5 1000, 7 5", 3, 9}};
    for (const auto &row : rows)
        for (const DrawnFace &face : textured_faces(2, row.type, row.cells)) {
            const int i = face.slot() - row.first_slot;
            const double from = 360. / row.count * i, to = 360. / row.count * ((i + 1) % row.count);
            for (const Corner3 &corner : face.corners)
                if (i >= 0 && (corner.at.x != 0 || corner.at.y != 0)) {
                    EXPECT_TRUE(std::abs(bearing(corner.at) - from) < 0.2 ||
                                std::abs(bearing(corner.at) - to) < 0.2)
                        << "face slot " << face.slot() << ", bearing " << bearing(corner.at);
                }
        }
}

TEST(BasketSphere, HangsABasketOnFourRopes)
{
    const std::string cells = "1 100, 2 90, 8 9, 9 2000, 10 2100, 16 7, 17 5, 18 20, 19 1, 58 3, ";
    const Faces all = textured_faces(2, 12, cells + "29 1");
    const std::vector<std::string> basket = {"-00 0-- t07 28 27 26 25", "0+0 -0- t08 32 31 30 29",
                                             "+00 0+- t09 36 35 34 33", "0-0 +0- t10 40 39 38 37",
                                             "00- ++0 t11 44 43 42 41", "+00 0+- t07 28 27 26 25",
                                             "0-0 +0- t08 32 31 30 29", "-00 0-- t09 36 35 34 33",
                                             "0+0 -0- t10 40 39 38 37", "00+ -+0 t11 44 43 42 41"};
    EXPECT_EQ(descriptions(Faces(all.begin(), all.begin() + 10)), basket);
    EXPECT_EQ(box_text(Faces(all.begin(), all.begin() + 10)), "-3..4 -3..4 3..8");
    EXPECT_EQ(all[0].side, 'I');
    EXPECT_EQ(all[5].side, 'O');
    const auto base_of = [&](const std::string &more) {
        Faces envelope;
        for (const DrawnFace &face : textured_faces(2, 12, cells + more))
            if (face.slot() >= 12 || face.slot() < 7)
                envelope.push_back(face);
        return extents(envelope);
    };
    EXPECT_EQ(base_of("29 1").first.z, 28);
    EXPECT_EQ(base_of("29 2").first.z, 28);
    EXPECT_EQ(base_of("29 0").first.z, 3);
    EXPECT_EQ(base_of("29 0").second.z, 3 + 100 + 90 + 9);

    const struct {
        const char *selector;
        int step, points[4];
    } rings[] = {{"0", 60, {1, 2, 4, 5}},
                 {"1", 45, {1, 3, 5, 7}},
                 {"2", 36, {2, 3, 7, 8}},
                 {"3", 30, {2, 4, 8, 10}},
                 {"4", 18, {4, 6, 14, 16}}};
    const Point3 corners[] = {{4, 4, 8}, {4, -3, 8}, {-3, -3, 8}, {-3, 4, 8}};
    for (const auto &ring : rings) {
        Design design = textured_design(2, 12, cells + "29 1, 20 " + ring.selector);
        const std::vector<std::string> lines = convert(design).body();
        EXPECT_EQ(lines[0] + lines[1] + lines[10],
                  "glColor3ub( 255, 255, 255 ); glBegin( GL_LINES ); glEnd();");
        for (std::size_t i = 0; i < 4; ++i) {
            Point3 end{}, corner{};
            std::sscanf(lines[2 + 2 * i].c_str(), " glVertex3d( %lf, %lf, %lf", &end.x, &end.y, &end.z);
            std::sscanf(lines[3 + 2 * i].c_str(), " glVertex3d( %lf, %lf, %lf", &corner.x, &corner.y,
                        &corner.z);
            EXPECT_NEAR(bearing(end), 1 + ring.step * ring.points[i], 0.2);
            EXPECT_EQ(end.z, 128);
            EXPECT_EQ(corner, corners[i]);
        }
    }
}

TEST(Wheel, SharesTheColumnsOfItsTextureOutByWidth)
{
    Design design = textured_design(2, 19, "1 2000, 2 800, 3 20, 4 10, 11 12");
    design.point(1, 8, 1).point(2, 0, 2).point(3, 210, 3).point(4, 0, 4);
    const Faces all = faces(convert(design));
    EXPECT_EQ(description(all[0]), "0+0 00+ t02 1051 1052 1053 1054 1055 1056 1057 1058 1059 1060 1061 1062");
    EXPECT_EQ(description(all[1]), "0-0 -0+ t03 1082 1081 1080 1079 1078 1077 1076 1075 1074 1073 1072 1071");
    const std::map<double, double> columns = {{-20, 8}, {-10, 59}, {10, 159}, {20, 210}};
    for (std::size_t i = 2; i < all.size(); ++i)
        for (std::size_t row = 0; row < 4; ++row) {
            const Corner3 &corner = all[i].corners[row];
            EXPECT_NEAR(corner.u, columns.at(corner.at.y), 0.01);
            EXPECT_NEAR(corner.v, static_cast<double>(row + 1), 0.01);
        }
    EXPECT_EQ(faces(convert(design.line("K01N"))).size(), 2u);
}

// The picture of a flag, a clock and a tree stands upright: its left edge is in x field 1, then top, right,
// bottom.
TEST(Pictures, StandUprightOnTheirRectangles)
{
    const struct {
        int version, type, first_slot;
        const char *cells, *box;
        std::size_t first, count;
        const char *across; // where the picture's right edge lies
    } rows[] = {
        {2, 13, 1, "1 5, 2 8, 8 -1, 58 2", "-2..3 0..0 2..10", 0, 1, "+x"},
        {2, 13, 1, "1 5, 2 8, 8 -1, 58 2", "-2..3 0..0 2..10", 1, 1, "-x"},
        {1, 19, 1, "1 7, 2 8, 58 2", "-3..4 0..0 2..10", 0, 2, "-x"},
        {1, 19, 1, "1 7, 2 8, 58 2", "0..0 -3..4 2..10", 2, 2, "+y"},
        {2, 2, 41, "1 10, 2 20, 3 4, 58 100", "-14..-10 0..0 100..120", 0, 1, "+x"},
        {2, 2, 41, "1 10, 2 20, 3 4, 58 100", "10..14 0..0 100..120", 1, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "-34..-24 0..0 100..120", 2, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "-24..-14 0..0 100..120", 3, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "-10..0 0..0 100..120", 4, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "0..10 0..0 100..120", 5, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "14..24 0..0 100..120", 6, 1, "+x"},
        {2, 2, 1, "1 10, 2 20, 3 4, 58 100", "24..34 0..0 100..120", 7, 1, "+x"},
    };
    for (const auto &row : rows) {
        const Faces all = textured_faces(row.version, row.type, row.cells);
        for (std::size_t i = row.first; i < row.first + row.count; ++i) {
            EXPECT_EQ(box_text({all[i]}), row.box);
            EXPECT_EQ(all[i].slot(), row.first_slot == 1 ? 1 : 11);
            const auto [low, high] = extents({all[i]});
            for (const Corner3 &corner : all[i].corners) {
                const bool far = row.across[1] == 'x' ? corner.at.x == high.x : corner.at.y == high.y;
                EXPECT_NEAR(corner.u, row.first_slot + (far == (row.across[0] == '+') ? 2 : 0), 0.01);
                EXPECT_NEAR(corner.v, row.first_slot + (corner.at.z == low.z ? 3 : 1), 0.01);
            }
            const bool is_back = row.across[0] == '-';
            EXPECT_EQ(signs(area_vector(all[i])), row.across[1] == 'y' ? "-00" : is_back ? "0-0" : "0+0");
        }
    }
    const Faces lying = textured_faces(2, 13, "1 5, 2 7, 7 1, 8 -1, 58 2");
    EXPECT_EQ(box_text(lying), "-2..3 -3..4 2..2");
    EXPECT_EQ(signs(area_vector(lying[0])) + signs(area_vector(lying[1])), "00-00+");
    Design bare;
    bare.object(13).params({{1, 4}, {2, 4}, {8, -1}}).textured(9, 9, "t09");
    EXPECT_EQ(body_of(bare), "");
}

} // namespace marlogl
