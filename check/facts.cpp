#include "facts.h"

#include "generators/figures.h"

#include <algorithm>

namespace marlogl::check {

namespace {

std::vector<int> slots_from(int first, int count)
{
    std::vector<int> slots;
    for (int i = 0; i < count; ++i)
        slots.push_back(first + i);
    return slots;
}

// A face as the manual's tables have it, outside and inside. A slot 0 is none.
struct Row {
    const char *name;
    int corners;
    int outside, outside_position, inside, inside_position;
};

class Faces {
  public:
    explicit Faces(const Object &object) : object_(object) {}

    double cell(int n) const { return object_.parameters(n); }

    void add(int slot, std::string name, std::vector<int> positions, int twin = 0)
    {
        faces_.push_back({slot, std::move(name), std::move(positions), twin});
    }
    void add(int slot, std::string name, int first, int corners, int twin = 0)
    {
        add(slot, std::move(name), slots_from(first, corners), twin);
    }
    void add(const Row &row)
    {
        if (row.outside != 0)
            add(row.outside, row.name, row.outside_position, row.corners, row.inside);
        if (row.inside != 0)
            add(row.inside, std::string(row.name) + (row.outside != 0 ? ", inside" : ""), row.inside_position,
                row.corners, row.outside);
    }
    template <std::size_t Size> void add(const Row (&rows)[Size])
    {
        for (const Row &row : rows)
            add(row);
    }
    /// `count` faces whose slots and positions follow each other.
    void add_row(int count, const char *name, int slot, int first, int corners)
    {
        for (int i = 0; i < count; ++i)
            add(slot + i, name + (' ' + std::to_string(i + 1)), first + corners * i, corners);
    }
    /// The cap of an extruded polygon; the attributes of points name the corners of its triangles.
    void add_cap(const Row &cap, std::string_view codes)
    {
        for (const bool outside : {true, false}) {
            const int slot = outside ? cap.outside : cap.inside;
            const int first = outside ? cap.outside_position : cap.inside_position;
            if (slot == 0)
                continue;
            std::vector<int> positions = slots_from(first, cap.corners);
            if (cell(4) == 1)
                std::erase_if(positions, [&](int slot_of_position) {
                    return !names_corner(codes.substr(0, static_cast<std::size_t>(cap.corners)),
                                         static_cast<std::size_t>(slot_of_position - first));
                });
            add(slot, cap.name + std::string(outside ? "" : ", inside"), positions,
                outside ? cap.inside : cap.outside);
        }
    }
    std::vector<Face> take() { return std::move(faces_); }

  private:
    // Whether a triangle has a corner, counted from 0, of those that the codes name.
    bool names_corner(std::string_view codes, std::size_t corner) const
    {
        for (int triangle = 1; triangle + 2 <= static_cast<int>(codes.size()); ++triangle) {
            const std::string_view names = std::string_view(object_.points(triangle).attribute).substr(0, 3);
            if (names.find_first_not_of(codes) == names.npos && names.find(codes[corner]) != names.npos)
                return true;
        }
        return false;
    }

    const Object &object_;
    std::vector<Face> faces_;
};

void house(Faces &faces)
{
    constexpr Row walls[] = {
        {"front wall", 4, 1, 1, 7, 25},
        {"back wall", 4, 2, 5, 8, 29},
        {"left wall", 4, 3, 9, 9, 33},
        {"right wall", 4, 4, 13, 10, 37},
    };
    constexpr Row gables[] = {
        {"front gable", 3, 13, 49, 15, 55},
        {"back gable", 3, 14, 52, 16, 58},
    };
    constexpr Row slopes[] = {
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
    constexpr Row rows[] = {
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
    constexpr std::string_view codes = "123456789ABCDEFGHIJK";
    faces.add_cap({"bottom cap", n, 21, 121, 0, 0}, codes);
    faces.add_cap({"top cap", n, 22, 141, 0, 0}, codes);
}

void two_sided_polygon(Faces &faces)
{
    const int n = corner_count(faces, 10);
    for (int i = 1; i <= n; ++i) {
        const std::string name = "wall " + std::to_string(i);
        faces.add({name.c_str(), 4, i, 4 * i + 17, 12 + i, 4 * i + 57});
    }
    constexpr std::string_view codes = "123456789A";
    faces.add_cap({"bottom cap", n, 11, 101, 23, 121}, codes);
    faces.add_cap({"top cap", n, 12, 111, 24, 131}, codes);
}

void hip_roof(Faces &faces)
{
    constexpr Row ridge_along_y[] = {{"front", 3, 7, 25, 2, 1},
                                     {"back", 3, 8, 28, 3, 4},
                                     {"left", 4, 9, 74, 4, 54},
                                     {"right", 4, 10, 78, 5, 58}};
    constexpr Row tip[] = {{"front", 3, 7, 31, 2, 7},
                           {"back", 3, 8, 34, 3, 10},
                           {"left", 3, 9, 37, 4, 13},
                           {"right", 3, 10, 40, 5, 16}};
    constexpr Row ridge_along_x[] = {{"front", 4, 7, 82, 2, 62},
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
    constexpr Row walls[] = {
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

void no_faces(Faces &) {}

// By the names of the kinds. Code and text slots are those that the kind takes for something else than a
// face.
constexpr struct KindFacts {
    std::string_view name;
    void (*faces)(Faces &);
    bool counts_points = false;
    int codes[2] = {}, texts[2] = {};
} facts[] = {
    {"gabled house", house},
    {"structure with antennas", structure, false, {26}},
    {"extruded polygon", extruded_polygon},
    {"two-sided extruded polygon", two_sided_polygon},
    {"hip roof", hip_roof},
    {"sign board", sign},
    {"cone", cone},
    {"tower", no_faces, true, {2}},
    {"wheel", wheel},
    {"sphere with basket", sphere},
    {"flag", picture},
    {"capped cylinder", cylinder, false, {26}},
    {"roads", no_faces, true, {1, 2}, {1, 2}},
    {"fence", no_faces, true, {1}},
    {"digital clock", clock},
    {"profiled-roof house", profiled_house},
    {"beam", no_faces, true},
    {"guyed mast", no_faces, false, {3, 4}},
    {"pole with pennant", no_faces, false, {1}},
    {"tree", picture},
};

const KindFacts &facts_of(const Kind &kind)
{
    return *std::find_if(std::begin(facts), std::end(facts),
                         [&](const KindFacts &each) { return each.name == kind.name; });
}

bool holds(const int (&slots)[2], int slot)
{
    return slot > 0 && (slots[0] == slot || slots[1] == slot);
}

} // namespace

std::vector<Face> faces_of(const Kind &kind, const Object &object)
{
    Faces faces(object);
    facts_of(kind).faces(faces);
    return faces.take();
}

bool counts_points(const Kind &kind)
{
    return facts_of(kind).counts_points;
}

bool uses_code(const Kind &kind, int slot)
{
    return slot == 30 || holds(facts_of(kind).codes, slot);
}

bool uses_text(const Kind &kind, int slot)
{
    return holds(facts_of(kind).texts, slot);
}

std::vector<Outline> outlines_of(const Kind &kind)
{
    if (kind.name == "extruded polygon")
        return {{0, "bottom outline"}, {20, "top outline"}};
    if (kind.name == "two-sided extruded polygon")
        return {{0, "bottom outline"}, {10, "top outline"}};
    return {};
}

int most_corners(const Kind &kind)
{
    return kind.name == "two-sided extruded polygon" ? 10 : 20;
}

} // namespace marlogl::check
