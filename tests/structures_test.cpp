// Kinds that enclose a space, and sign boards: what holds for their faces, whatever the tables behind them
// are.
#include "support/faces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

namespace marlogl {

namespace {

// A regular polygon, and what two of them enclose.
double ring(double count, double radius)
{
    return count / 2 * radius * radius * std::sin(2 * std::numbers::pi / count);
}

double frustum(double a, double b, double height)
{
    return height / 3 * (a + b + std::sqrt(a * b));
}

struct Solid {
    const char *name;
    int type1, type2;  // 0: not in this version
    Cells cells;       // at base elevation 7
    int inside;        // which half of the faces is seen from inside: the first, the second or none (0)
    std::size_t count; // of faces per side
    double content;
    std::string box;
    std::size_t
        open; // edges at the base that no face walks back: houses have no floor, roofs one that looks up
    std::string sides; // the colours that occur outside and inside
    const Prism *prism;
};

const std::string angle = "-6 -4, 14 -4, 14 4, 2 4, 2 16, -6 16"; // counter-clockwise, 256 large
const std::string angle_turned = "-6 16, 2 16, 2 4, 14 4, 14 -4, -6 -4";
const std::string square = "-10 -10, 10 -10, 10 10, -10 10", small = "-5 -5, 5 -5, 5 5, -5 5";
const std::string triangle = "0 0, 0 12, 20 0"; // clockwise, 120 large
const Prism none, angles{angle, angle}, turned{angle_turned, angle_turned};
const Prism pieces{angle, angle, "123 134 461 456"};
const Prism turned_pieces{angle_turned, angle_turned, "654 643 316 321"};
const Prism squares{square, small, "123 134"}, wedge{triangle, triangle, "123"};

// Rings are large, so that whole coordinates do no harm. With the short pi of the converter half a turn falls
// just short of -1, which whole coordinates show.
const double A10 = ring(10, 1000), A12 = ring(12, 1000), B12 = ring(12, 500);
const double half_sphere = ring(10, 300) * 100 / 3 + frustum(ring(10, 300), ring(10, 500), 100) +
                           frustum(ring(10, 500), ring(10, 700), 100) +
                           frustum(ring(10, 700), ring(10, 800), 100);
const Cells house = "1 5, 2 9, 6 4, 7 6";
const Cells building = "1 7, 2 8, 3 5, 11 10, 12 8, 13 6, 14 4, 15 3, 16 6, 17 9, 18 12, 22 2, 23 4, 24 6, "
                       "25 6, 26 4, 27 2";
const Cells box = "1 7, 2 5, 3 7, 4 5, 5 7, 6 5, 7 7, 8 5, 9 4, 21 5000";
const Cells leaning = "1 20, 2 16, 3 20, 4 16, 5 10, 6 8, 7 10, 8 8, 9 9, 21 5000, 32 3, 33 -2";
const Cells roof_y = "1 11, 2 9, 3 6, 6 0, 7 5, 11 2002", roof_x = "1 11, 2 9, 3 6, 6 5, 7 5, 11 2002";
const Cells apex = "1 11, 2 9, 3 6, 6 1, 11 2002, 12 2001";
const Cells cylinder = "1 300, 2 500, 3 200, 4 2000, 5 1000, 7 3, 12 -1";
const Cells sphere = "1 100, 2 100, 3 100, 4 100, 5 100, 6 100, 7 100, 8 100, 9 600, 10 1000, 11 1400, "
                     "12 1600, 13 1400, 14 1000, 15 600, 20 2";
const Cells wheel = "1 2000, 2 800, 3 300, 4 100, 11 12";
const Cells cone = "1 2000, 2 600, 6 2", disc = cylinder + ", 2 0", lying = cylinder + ", 18 1, 6 40";
const Cells ngons = "2 10, 11 6", triangles = "2 10, 4 1, 11 6", stump = "2 9, 4 1, 11 4";
const Cells raised = "2 10, 4 1, 11 3, 47 2, 48 4";
// The corners of an upright cylinder and of a wheel run clockwise for who looks at them from outside.
const double cylinder_content = -A12 * 200 / 3 - frustum(A12, B12, 500) - B12 * 100;
const double lying_content = frustum(A12, B12, 1000);
const double wheel_content = -A12 * 300 - 2 * frustum(A12, ring(12, 400), 100);

const Solid solids[] = {
    {"house", 1, 23, house, 1, 8, 9 * 6 * 7, "-4..5 -3..3 7..16", 4, "O/I", &none},
    {"building", 5, 0, building, 1, 14, 204 * 7, "-10..12 -3..4 7..20", 4, " O/ I", &none},
    {"structure", 11, 6, box, 1, 6, 140, "-3..4 -2..3 7..11", 0, "O/IO", &none},
    {"leaning", 11, 6, leaning, 1, 6, 1680, "-10..10 -8..8 7..16", 0, "O/IO", &none},
    {"ridge y", 13, 9, roof_y, 2, 5, 253, "-5..6 -4..5 7..13", 4, "O/I", &none},
    {"apex", 13, 9, apex, 2, 5, 198, "-5..6 -4..5 7..13", 4, "O/I", &none},
    {"ridge x", 13, 9, roof_x, 2, 5, 243, "-5..6 -4..5 7..13", 4, "O/I", &none},
    {"cone", 14, 11, cone, 0, 20, A10 * 200, "-951..951 -999..1000 7..607", 0, "O/", &none},
    {"cylinder", 12, 7, cylinder, 2, 36, cylinder_content, "-999..999 -999..1000 7..1007", 0, "O/I", &none},
    {"disc", 12, 7, disc, 2, 24, -A12 * 500 / 3, "-999..999 -999..1000 7..507", 0, "O/I", &none},
    {"lying", 12, 7, lying, 2, 36, lying_content, "-999..999 -450..550 7..2007", 0, "O/I", &none},
    {"sphere", 15, 12, sphere, 1, 80, 2 * half_sphere, "-765..765 -799..799 7..807", 0, "O/O", &none},
    {"wheel", 22, 19, wheel, 0, 38, wheel_content, "-999..999 -250..250 7..2007", 0, " /", &none},
    {"outline", 4, 18, ngons, 0, 8, 2560, "-6..14 -4..16 7..17", 0, " O/", &angles},
    {"clockwise", 4, 18, ngons, 0, 8, 2560, "-6..14 -4..16 7..17", 0, " O/", &turned},
    {"triangles", 4, 18, triangles, 0, 14, 2560, "-6..14 -4..16 7..17", 0, "O/", &pieces},
    {"smaller top", 4, 18, stump, 0, 8, 2100, "-10..10 -10..10 7..16", 0, "O/", &squares},
    {"two-sided", 3, 5, triangles, 1, 14, 2560, "-6..14 -4..16 7..17", 0, "O/I", &pieces},
    {"turned", 3, 5, triangles, 1, 14, 2560, "-6..14 -4..16 7..17", 0, "O/I", &turned_pieces},
    {"raised", 3, 5, raised, 1, 5, 120 * 12, "0..20 0..12 7..21", 0, "O/I", &wedge},
};

Faces outside_of(const Solid &solid, const Faces &all)
{
    const auto half = all.begin() + static_cast<std::ptrdiff_t>(solid.count);
    return solid.inside == 1 ? Faces(half, all.end()) : Faces(all.begin(), half);
}

Faces inside_of(const Solid &solid, const Faces &all)
{
    const auto half = all.begin() + static_cast<std::ptrdiff_t>(solid.count);
    return solid.inside == 1 ? Faces(all.begin(), half) : Faces(half, all.end());
}

std::string sides_of(const Faces &all)
{
    std::set<char> sides;
    for (const DrawnFace &face : all)
        sides.insert(face.side);
    return {sides.begin(), sides.end()};
}

std::set<std::vector<Point3>> corners_of(const Faces &all, std::vector<Point3> (*order)(const DrawnFace &))
{
    std::set<std::vector<Point3>> corners;
    for (const DrawnFace &face : all)
        corners.insert(order(face));
    return corners;
}

Faces faces_of(const Solid &solid, const Cells &more = "")
{
    const int version = solid.type2 != 0 ? 2 : 1;
    return textured_faces(version, version == 2 ? solid.type2 : solid.type1, solid.cells + ", 58 7" + more,
                          *solid.prism);
}

// What a face looks at and where its first corner lies, as signs; its face slot and its first position slot.
// The inside face looks the other way.
struct Facing {
    std::string solid, facing, start;
    int t, s;
    std::string inside_start;
    int inside_t, inside_s;
};

const Facing facings[] = {
    {"house", "0-0", "+0-", 1, 1, "-0-", 7, 25},       {"house", "0+0", "-0-", 2, 5, "+0-", 8, 29},
    {"house", "-00", "0--", 3, 9, "0+-", 9, 33},       {"house", "+00", "0+-", 4, 13, "0--", 10, 37},
    {"house", "-0+", "+-+", 5, 17, "---", 11, 41},     {"house", "+0+", "+--", 6, 21, "--+", 12, 45},
    {"house", "0-0", "+0-", 13, 49, "-0-", 15, 55},    {"house", "0+0", "-0-", 14, 52, "+0-", 16, 58},
    {"building", "0-0", "+0-", 1, 1, "-0-", 15, 49},   {"building", "-00", "0--", 2, 5, "0+-", 16, 53},
    {"building", "0+0", "-0-", 3, 9, "+0-", 17, 57},   {"building", "+00", "0+-", 4, 13, "0--", 18, 61},
    {"structure", "0-0", "+0-", 1, 1, "-0-", 7, 25},   {"structure", "0+0", "-0-", 2, 5, "+0-", 8, 29},
    {"structure", "-00", "0--", 3, 9, "0+-", 9, 33},   {"structure", "+00", "0+-", 4, 13, "0--", 10, 37},
    {"structure", "00+", "+-0", 5, 17, "--0", 11, 41}, {"structure", "00-", "--0", 6, 21, "+-0", 12, 45},
    {"ridge y", "00+", "+-0", 6, 70, "--0", 1, 50},    {"ridge y", "0-+", "+--", 7, 25, "---", 2, 1},
    {"ridge y", "0++", "-+-", 8, 28, "++-", 3, 4},     {"ridge y", "-0+", "---", 9, 74, "-+-", 4, 54},
    {"ridge y", "+0+", "++-", 10, 78, "+--", 5, 58},   {"apex", "00+", "+-0", 6, 70, "--0", 1, 50},
    {"apex", "0-+", "+--", 7, 31, "---", 2, 7},        {"apex", "0++", "-+-", 8, 34, "++-", 3, 10},
    {"apex", "-0+", "---", 9, 37, "-+-", 4, 13},       {"apex", "+0+", "++-", 10, 40, "+--", 5, 16},
    {"ridge x", "00+", "+-0", 6, 70, "--0", 1, 50},    {"ridge x", "0-+", "+--", 7, 82, "---", 2, 62},
    {"ridge x", "0++", "-+-", 8, 86, "++-", 3, 66},    {"ridge x", "-0+", "---", 9, 43, "-+-", 4, 19},
    {"ridge x", "+0+", "++-", 10, 46, "+--", 5, 22},
};

const Solid &solid(std::string_view name)
{
    return *std::find_if(std::begin(solids), std::end(solids),
                         [&](const Solid &row) { return row.name == name; });
}

// The only face of slot `t`.
DrawnFace face_at(const Faces &all, int t)
{
    DrawnFace found;
    for (const DrawnFace &face : all)
        if (face.slot() == t) {
            EXPECT_TRUE(found.corners.empty()) << "two faces of slot " << t;
            found = face;
        }
    return found;
}

std::string falling(int first, std::size_t count)
{
    std::string text;
    for (int slot = first + static_cast<int>(count) - 1; slot >= first; --slot)
        text += ' ' + std::to_string(slot);
    return text;
}

std::string turned_round(std::string text)
{
    for (char &sign : text)
        sign = sign == '+' ? '-' : sign == '-' ? '+' : sign;
    return text;
}

std::string texture_name(int t)
{
    return (t < 10 ? "t0" : "t") + std::to_string(t);
}

} // namespace

TEST(Solids, AreEnclosedByFacesThatLookOutwardsAndInwards)
{
    for (const Solid &row : solids) {
        SCOPED_TRACE(row.name);
        const Faces all = faces_of(row);
        ASSERT_EQ(all.size(), row.count * (row.inside == 0 ? 1 : 2));
        const Faces outer = outside_of(row, all), inner = inside_of(row, all);

        const double rounding = std::abs(row.content) > 1e6 ? std::abs(row.content) / 100 : 1e-6;
        EXPECT_NEAR(volume(outer, 7), row.content, rounding);
        const auto open = open_edges(outer);
        EXPECT_EQ(open.size(), row.open);
        for (const auto &[from, to] : open)
            EXPECT_TRUE(from.z == 7 && to.z == 7) << from << to;
        EXPECT_EQ(box_text(outer), row.box);
        EXPECT_EQ(sides_of(outer) + '/' + sides_of(inner), row.sides);
        if (row.inside != 0) {
            EXPECT_EQ(corners_of(inner, opposite), corners_of(outer, in_order));
        }
    }
}

TEST(Solids, GiveEveryFaceSlotPositionsOfItsOwn)
{
    for (const Solid &row : solids) {
        SCOPED_TRACE(row.name);
        if (std::string_view(row.name) == "wheel")
            continue; // its strip of texture takes columns and rows apart
        std::map<int, std::set<int>> slots;
        for (const DrawnFace &face : faces_of(row)) {
            const std::vector<int> positions = face.position_slots();
            EXPECT_EQ(std::set(positions.begin(), positions.end()).size(), face.corners.size());
            for (const int slot : positions)
                slots[face.slot()].insert(slot % DrawnFace::flipped);
        }
        std::set<int> taken;
        for (const auto &[face, positions] : slots) {
            EXPECT_EQ(*positions.rbegin() - *positions.begin() + 1, static_cast<int>(positions.size()))
                << face;
            for (const int slot : positions)
                EXPECT_TRUE(taken.insert(slot).second) << "face " << face << " position " << slot;
        }
    }
}

TEST(Solids, RiseWithTheirGroundAndAreTheSameInBothVersions)
{
    for (const Solid &row : solids) {
        SCOPED_TRACE(row.name);
        expect_moved(faces_of(row), faces_of(row, ", 58 20"), [](const Point3 &) {
            return Point3{0, 0, 13};
        });
        if (row.type1 != 0 && row.type2 != 0) {
            EXPECT_EQ(convert(textured_design(1, row.type1, row.cells, *row.prism)).body(),
                      convert(textured_design(2, row.type2, row.cells, *row.prism)).body());
        }
    }
}

TEST(Solids, HaveTheFacesThatTheirSlotsAreFor)
{
    for (const Facing &row : facings) {
        SCOPED_TRACE(row.solid + " face slot " + std::to_string(row.t));
        const Faces all = faces_of(solid(row.solid));
        const auto expect_face = [&](int t, const std::string &signs, int first) {
            const DrawnFace face = face_at(all, t);
            ASSERT_FALSE(face.corners.empty());
            EXPECT_EQ(description(face), signs + ' ' + texture_name(t) + falling(first, face.corners.size()));
        };
        expect_face(row.t, row.facing + ' ' + row.start, row.s);
        expect_face(row.inside_t, turned_round(row.facing) + ' ' + row.inside_start, row.inside_s);
    }
}

TEST(Building, CountsItsStripsFromTheLeftAndItsGablesFromTheSecondCorner)
{
    const Faces all = faces_of(solid("building"));
    for (int strip = 0; strip < 8; ++strip) {
        const double left[] = {-10, -8, -6, -4, 0, 3, 6, 9, 12};
        for (const bool is_outside : {false, true}) {
            const DrawnFace face = face_at(all, strip + (is_outside ? 5 : 19));
            EXPECT_EQ(extents({face}).first.x, left[strip]);
            EXPECT_EQ(extents({face}).second.x, left[strip + 1]);
            EXPECT_EQ(description(face).substr(8),
                      texture_name(face.slot()) + falling(4 * strip + (is_outside ? 17 : 65), 4));
            EXPECT_EQ(description(face).substr(4, 2), is_outside ? "+-" : "--"); // right or left in front
        }
    }
    EXPECT_EQ(description(face_at(all, 13)), "0-0 +0- t13 1108 1107 1106 1105 1104 1103 1102 1101 1109");
    EXPECT_EQ(description(face_at(all, 14)), "0+0 -0- t14 1118 1117 1116 1115 1114 1113 1112 1111 1119");
    EXPECT_EQ(description(face_at(all, 27)), "0+0 +0- t27 1129 1121 1122 1123 1124 1125 1126 1127 1128");
    EXPECT_EQ(description(face_at(all, 28)), "0-0 -0- t28 1139 1131 1132 1133 1134 1135 1136 1137 1138");
}

TEST(Prism, HasAWallPerEdgeAndCapsWhosePositionsFollowTheCorners)
{
    const struct {
        const char *solid;
        int t, s, bottom_t, bottom_s, top_t, top_s; // the slots of the first wall and of the caps' corner 1
    } rows[] = {
        {"outline", 1, 41, 21, 121, 22, 141},    {"clockwise", 1, 41, 21, 121, 22, 141},
        {"triangles", 1, 41, 21, 121, 22, 141},  {"two-sided", 1, 21, 11, 101, 12, 111},
        {"two-sided", 13, 61, 23, 121, 24, 131}, {"turned", 1, 21, 11, 101, 12, 111},
        {"turned", 13, 61, 23, 121, 24, 131},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.solid) + std::to_string(row.t));
        const Solid &prism = solid(row.solid);
        std::vector<std::pair<double, double>> outline;
        std::istringstream list(prism.prism->bottom);
        for (auto [x, y, comma] = std::tuple(0., 0., ','); list >> x >> y; list >> comma)
            outline.emplace_back(x, y);
        const Faces all = faces_of(prism);
        for (int i = 0; i < 6; ++i) {
            const DrawnFace wall = face_at(all, row.t + i);
            std::set<std::pair<double, double>> edge;
            for (const Corner3 &corner : wall.corners)
                edge.emplace(corner.at.x, corner.at.y);
            EXPECT_EQ(edge, (std::set{outline[static_cast<std::size_t>(i)],
                                      outline[static_cast<std::size_t>(i + 1) % 6]}));
            EXPECT_EQ(description(wall).substr(6),
                      "- " + texture_name(row.t + i) + falling(row.s + 4 * i, 4));
            EXPECT_GT(wall.corners[1].at.z, wall.corners[0].at.z);
        }
        std::size_t cap_corners = 0;
        for (const DrawnFace &face : all) {
            const bool is_bottom = face.slot() == row.bottom_t;
            if (!is_bottom && face.slot() != row.top_t)
                continue;
            cap_corners += face.corners.size();
            for (std::size_t i = 0; i < face.corners.size(); ++i) {
                const Point3 &at = face.corners[i].at;
                EXPECT_EQ(at.z, is_bottom ? 7 : 17);
                const auto k =
                    std::find(outline.begin(), outline.end(), std::pair(at.x, at.y)) - outline.begin();
                EXPECT_EQ(face.position_slots()[i], k + (is_bottom ? row.bottom_s : row.top_s));
            }
        }
        EXPECT_EQ(cap_corners, prism.count == 8 ? 12u : 24u);
    }
}

} // namespace marlogl
