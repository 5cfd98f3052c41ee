// The faces of the kinds, as the manual's tables have them.
#include "faces.h"

#include "generators/figures.h"

#include <algorithm>

namespace marlogl::check {

namespace {

void house(Faces &faces)
{
    constexpr Faces::Row walls[] = {
        {"front wall", 4, 1, 1, 7, 25},
        {"back wall", 4, 2, 5, 8, 29},
        {"left wall", 4, 3, 9, 9, 33},
        {"right wall", 4, 4, 13, 10, 37},
    };
    constexpr Faces::Row gables[] = {
        {"front gable", 3, 13, 49, 15, 55},
        {"back gable", 3, 14, 52, 16, 58},
    };
    constexpr Faces::Row slopes[] = {
        {"left slope", 4, 5, 17, 11, 41},
        {"right slope", 4, 6, 21, 12, 45},
    };
    if (faces.cell(1) > 0)
        faces.add(walls);
    faces.add(slopes);
    if (faces.cell(6) > 0)
        faces.add(gables);
}

void structure(Faces &faces)
{
    constexpr Faces::Row rows[] = {
        {"front", 4, 1, 1, 7, 25},   {"back", 4, 2, 5, 8, 29},  {"left", 4, 3, 9, 9, 33},
        {"right", 4, 4, 13, 10, 37}, {"top", 4, 5, 17, 11, 41}, {"bottom", 4, 6, 21, 12, 45},
    };
    faces.add(rows);
}

int corner_count(const Faces &faces, int most)
{
    return static_cast<int>(std::clamp(faces.cell(11), 0.0, static_cast<double>(most)));
}

void extruded_polygon(Faces &faces)
{
    const int n = corner_count(faces, 20);
    faces.add_row(n, "wall", 1, 41, 4);
    faces.add_cap({"bottom cap", n, 21, 121, 0, 0});
    faces.add_cap({"top cap", n, 22, 141, 0, 0});
}

void two_sided_polygon(Faces &faces)
{
    const int n = corner_count(faces, 10);
    for (int i = 1; i <= n; ++i) {
        const std::string name = "wall " + std::to_string(i);
        faces.add({name.c_str(), 4, i, 4 * i + 17, 12 + i, 4 * i + 57});
    }
    faces.add_cap({"bottom cap", n, 11, 101, 23, 121});
    faces.add_cap({"top cap", n, 12, 111, 24, 131});
}

void hip_roof(Faces &faces)
{
    constexpr Faces::Row ridge_along_y[] = {{"front", 3, 7, 25, 2, 1},
                                            {"back", 3, 8, 28, 3, 4},
                                            {"left", 4, 9, 74, 4, 54},
                                            {"right", 4, 10, 78, 5, 58}};
    constexpr Faces::Row tip[] = {{"front", 3, 7, 31, 2, 7},
                                  {"back", 3, 8, 34, 3, 10},
                                  {"left", 3, 9, 37, 4, 13},
                                  {"right", 3, 10, 40, 5, 16}};
    constexpr Faces::Row ridge_along_x[] = {{"front", 4, 7, 82, 2, 62},
                                            {"back", 4, 8, 86, 3, 66},
                                            {"left", 3, 9, 43, 4, 19},
                                            {"right", 3, 10, 46, 5, 22}};
    faces.add({"bottom plate", 4, 6, 70, 1, 50});
    if (faces.cell(6) == 0)
        faces.add(ridge_along_y);
    else if (faces.cell(6) == 1)
        faces.add(tip);
    else
        faces.add(ridge_along_x);
}

void sign(Faces &faces)
{
    const double mode = faces.cell(8);
    faces.add(1, mode < 5 ? "outer side" : "face 1", 1, 4);
    faces.add(2, mode < 5 ? "inner side" : "face 2", 5, 4);
}

void cone(Faces &faces)
{
    faces.add(1, "bottom", 1, 3);
    faces.add_row(selected_ring(faces.cell(6)).count, "side", 2, 4, 3);
}

void wheel(Faces &faces)
{
    const int segments = corner_count(faces, 20);
    faces.add(1, "tread and cones", 1, 4);
    faces.add(2, "front disc", 51, segments);
    faces.add(3, "back disc", 71, segments);
}

void sphere(Faces &faces)
{
    for (int band = 1; band <= 6; ++band)
        if (faces.cell(band + 1) > 0)
            faces.add(band, "band " + std::to_string(band), 4 * band - 3, 4);
    faces.add(12, "bottom of the envelope", 50, 3);
    faces.add(13, "top of the envelope", 53, 3);
    if (faces.cell(29) == 1) {
        faces.add_row(4, "basket side", 7, 25, 4);
        faces.add(11, "basket floor", 41, 4);
    }
}

void picture(Faces &faces)
{
    faces.add(1, "picture", 1, 4);
}

void clock(Faces &faces)
{
    faces.add(1, "digits", 1, 4);
    if (faces.cell(3) > 0)
        faces.add(11, "separators", 41, 4);
}

void cylinder(Faces &faces)
{
    faces.add(1, "bottom end", 101, 3);
    faces.add(2, "top end", 104, 3);
    if (faces.cell(2) > 0)
        faces.add_row(faces.cell(7) == 5 ? 9 : selected_ring(faces.cell(7)).count, "side", 3, 9, 4);
}

void profiled_house(Faces &faces)
{
    constexpr Faces::Row walls[] = {
        {"front wall", 4, 1, 1, 15, 49},
        {"left wall", 4, 2, 5, 16, 53},
        {"back wall", 4, 3, 9, 17, 57},
        {"right wall", 4, 4, 13, 18, 61},
    };
    if (faces.cell(3) > 0)
        faces.add(walls);
    for (int j = 1; j <= 8; ++j) {
        const std::string name = "roof strip " + std::to_string(j);
        faces.add({name.c_str(), 4, 4 + j, 13 + 4 * j, 18 + j, 61 + 4 * j});
    }
    faces.add({"front gable", 9, 13, 101, 27, 121});
    faces.add({"back gable", 9, 14, 111, 28, 131});
}

constexpr struct {
    std::string_view kind;
    void (*add_to)(Faces &);
} faces_of_kinds[] = {
    {"gabled house", house},
    {"structure with antennas", structure},
    {"extruded polygon", extruded_polygon},
    {"two-sided extruded polygon", two_sided_polygon},
    {"hip roof", hip_roof},
    {"sign board", sign},
    {"cone", cone},
    {"wheel", wheel},
    {"sphere with basket", sphere},
    {"flag", picture},
    {"capped cylinder", cylinder},
    {"digital clock", clock},
    {"profiled-roof house", profiled_house},
    {"tree", picture},
};

} // namespace

std::vector<Face> faces_of(const Kind &kind, const Object &object)
{
    Faces faces(object);
    for (const auto &[name, add_to] : faces_of_kinds)
        if (name == kind.name)
            add_to(faces);
    return faces.take();
}

} // namespace marlogl::check
