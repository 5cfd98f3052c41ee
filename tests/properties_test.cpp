// What holds for every solid, whatever its sizes: its outside faces close it and look outwards, its inside
// faces are the same, looking inwards.
#include "support/design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

namespace marlogl {

namespace {

using Corner = std::array<double, 3>;

struct DrawnFace {
    bool inside = false;
    std::vector<Corner> corners;
};

std::vector<DrawnFace> faces_of(const Converted &converted)
{
    std::vector<DrawnFace> faces;
    for (const std::string &line : converted.lines()) {
        Corner p{};
        if (line.starts_with("BindTexture"))
            faces.emplace_back();
        else if (line.starts_with("glColor3ub( 050"))
            faces.back().inside = true;
        else if (std::sscanf(line.c_str(), " glVertex3d( %lf, %lf, %lf", &p[0], &p[1], &p[2]) == 3)
            faces.back().corners.push_back(p);
    }
    return faces;
}

// Six times the volume that a face and the origin span; the faces of a closed solid add up to that of the
// solid.
double volume(const DrawnFace &face)
{
    double sum = 0;
    for (std::size_t i = 2; i < face.corners.size(); ++i) {
        const Corner &a = face.corners[0], &b = face.corners[i - 1], &c = face.corners[i];
        sum += a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
               a[2] * (b[0] * c[1] - b[1] * c[0]);
    }
    return sum;
}

// How many edges no other face walks in the opposite direction.
std::size_t open_edges(const std::vector<DrawnFace> &faces)
{
    std::map<std::pair<Corner, Corner>, int> walked;
    for (const DrawnFace &face : faces)
        for (std::size_t i = 0; i < face.corners.size(); ++i) {
            const Corner &from = face.corners[i], &to = face.corners[(i + 1) % face.corners.size()];
            if (from != to && walked[{to, from}]-- <= 0) {
                ++walked[{to, from}];
                ++walked[{from, to}];
            }
        }
    return static_cast<std::size_t>(
        std::count_if(walked.begin(), walked.end(), [](const auto &edge) { return edge.second != 0; }));
}

// The cells of an object of which every face is textured, and the edges that it leaves open: those of a house
// on the ground, and those of a hip roof whose plate looks the other way.
struct Solid {
    int version, type;
    const char *cells;
    std::size_t open = 0;
    bool one_sided = false;
};

TEST(Solids, AreClosedByFacesThatLookOutwardsAndInwards)
{
    const Solid solids[] = {
        {2, 23, "P0113/P0236/P0614/P0730", 4},
        {2, 23, "P017/P025/P063/P074/P583", 4},
        {2, 6, "P0120/P0216/P0320/P0416/P0510/P068/P0710/P088/P099/P215000/P322/P33-3"},
        {2, 9, "P0120/P0230/P039/P0710/P112003", 4},
        {2, 9, "P0120/P0230/P039/P061/P112003/P122001", 4},
        {2, 9, "P0120/P0230/P039/P062/P0710/P111998", 4},
        {2, 11, "P0140/P0230/P063", 0, true},
        {2, 12, "P019/P029/P039/P049/P059/P069/P079/P089/P0960/P1070/P1180/P1290/P1380/P1470/P1560/P202"},
    };
    for (const auto &[version, type, cells, open, one_sided] : solids) {
        // A cylinder leaves the inside in view, which the inside of a structure's bottom takes over.
        std::string design = (type == 6 ? "A7\nP021\nA" : "A") + std::to_string(type) + '\n' + cells + '\n';
        std::replace(design.begin(), design.end(), '/', '\n');
        for (const char *slot :
             {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12", "13", "14",
              "15", "16", "17", "18", "19", "20", "21", "22", "23", "24", "25", "26", "27", "28"})
            design += std::string("K") + slot + "Y\nF" + slot + "x\n";
        std::vector<DrawnFace> faces = faces_of(convert(given(version, design)));
        // A sphere's inside faces have the colour of the outside; they come first.
        if (type == 12)
            std::for_each_n(faces.begin(), faces.size() / 2, [](DrawnFace &face) { face.inside = true; });
        const auto half =
            std::stable_partition(faces.begin(), faces.end(), [](const DrawnFace &f) { return f.inside; });
        const std::vector<DrawnFace> sides[] = {{faces.begin(), half}, {half, faces.end()}};
        double volumes[] = {0, 0};
        for (int side = one_sided ? 1 : 0; side < 2; ++side) {
            EXPECT_EQ(open_edges(sides[side]), open) << design;
            for (const DrawnFace &face : sides[side])
                volumes[side] += volume(face);
        }
        EXPECT_GT(volumes[1], 0) << design;
        EXPECT_EQ(volumes[0], one_sided ? 0 : -volumes[1]) << design;
    }
}

} // namespace

} // namespace marlogl
