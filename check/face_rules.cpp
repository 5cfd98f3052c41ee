// Rules that look at faces: switches, textures, positions.
#include "examples.h"
#include "rules.h"

#include <algorithm>

namespace marlogl::check {

namespace {

std::string face_name(const Face &face)
{
    return "face " + std::to_string(face.slot) + " (" + face.name + ')';
}

void face_without_texture(const ObjectSeen &seen, const Say &say)
{
    for (const Face &face : seen.faces)
        if (seen.is_on(face.slot) && !seen.is_named(face.slot))
            say(seen.code_line(face.slot), {face_name(face), " is on but has no texture name; add an ",
                                            record_name('F', face.slot), " record"});
}

void texture_without_face(const ObjectSeen &seen, const Say &say)
{
    // Whoever has written another code has switched the face off.
    for (const Face &face : seen.faces)
        if (seen.is_named(face.slot) && seen.code_line(face.slot) == 0)
            say(seen.text_line(face.slot),
                {face_name(face), " has the texture ", quoted(trimmed(seen.object.texts(face.slot)), 20),
                 " but is not on; add ", record_name('K', face.slot), 'Y'});
}

void small_y(const ObjectSeen &seen, const Say &say)
{
    for (const Face &face : seen.faces)
        if (seen.object.codes(face.slot)(1) == 'y')
            say(seen.code_line(face.slot), {"\"y\" does not switch ", face_name(face), " on; write \"Y\""});
}

void face_slot_unused(const ObjectSeen &seen, const Say &say)
{
    if (seen.kind == nullptr)
        return;
    for (int slot = 0; slot <= code_slots.last; ++slot) {
        if (seen.face(slot) != nullptr || uses_code(*seen.kind, slot))
            continue;
        const bool is_text = slot <= last_face_slot;
        const bool named = is_text && seen.is_named(slot) && !uses_text(*seen.kind, slot);
        if (seen.is_on(slot) || named)
            say(std::max(seen.code_line(slot), named ? seen.text_line(slot) : 0),
                {"with its cells this object (", seen.kind->name, ") has no face ", slot});
    }
}

// How many of a face's positions have a record, and the first that has none.
struct Given {
    int count = 0, missing = 0;
};

Given given_positions(const ObjectSeen &seen, const Face &face)
{
    Given given;
    for (const int position : face.positions)
        if (seen.point_line(position) != 0)
            ++given.count;
        else if (given.missing == 0)
            given.missing = position;
    return given;
}

void no_positions(const ObjectSeen &seen, const Say &say)
{
    for (const Face &face : seen.faces)
        if (seen.is_drawn(face.slot) && !face.positions.empty() && given_positions(seen, face).count == 0)
            say(seen.code_line(face.slot),
                {face_name(face), " has no positions ", record_name('Q', face.positions.front()), " to ",
                 record_name('Q', face.positions.back()), "; it takes one colour"});
}

void positions_partly(const ObjectSeen &seen, const Say &say)
{
    for (const Face &face : seen.faces)
        if (const Given given = given_positions(seen, face);
            seen.is_drawn(face.slot) && given.count > 0 && given.missing != 0)
            say(seen.code_line(face.slot),
                {record_name('Q', given.missing), " of ", face_name(face), " is missing; it counts as 0,0"});
}

void faces_in_one_place(const ObjectSeen &seen, const Say &say)
{
    for (const Face &face : seen.faces)
        if (face.slot < face.twin && seen.is_drawn(face.slot) && seen.is_drawn(face.twin))
            say(std::max(seen.code_line(face.slot), seen.code_line(face.twin)),
                {face_name(face), " and face ", face.twin, " are both on and lie in one place"});
}

void road_side_untextured(const ObjectSeen &seen, const Say &say)
{
    if (!seen.is("roads") || seen.cell(point_count_cell) == 0 || !(seen.cell(2) > 0) || seen.cell(31) == 3)
        return;
    for (const int slot : {1, 2})
        if (!seen.is_named(slot))
            say(seen.at.opened,
                {"the ", slot == 1 ? "upper" : "lower", " side of the road has no texture (text slot ", slot,
                 "); it is not drawn, but its glEnd is written"});
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_face_rules[] = {
    {"face-without-texture", warning, "a face is on but has no texture name",
     "A face is drawn only when the code of its slot begins with Y and the text of the same slot names\n"
     "a texture. One without the other is left out without a message.",
     {scene, house, "", "K05Y\n"}, in_objects(face_without_texture)},
    {"texture-without-face", warning, "a texture is named, but its face is not on",
     "A face is drawn only when the code of its slot begins with Y and the text of the same slot names\n"
     "a texture. Another code (K05N) says that the face is to stay off.",
     {scene, house, "", "F05tiles\n"}, in_objects(texture_without_face)},
    {"small-y", warning, "a small y does not switch a face on",
     "Codes are case-sensitive: the first character must be Y.",
     {scene, house, "K01Y\n", "K01y\n"}, in_objects(small_y)},
    {"face-slot-unused", warning, "the kind has no face in this slot",
     "The tables of the kinds give the face slots. Some faces are there with certain cells only: a\n"
     "house has walls when cell 1 is above 0, a cylinder as many sides as cell 7 says.",
     {scene, house, "", "K17Y\nF17tiles\n"}, in_objects(face_slot_unused)},
    {"no-positions", warning, "a face has no texture positions",
     "A face whose positions are left out takes the colour of the picture's top left corner all over.",
     {scene, house, "", "K05Y\nF05tiles\n"}, in_objects(no_positions)},
    {"positions-partly", warning, "a texture position is missing among others",
     "What is left out counts as 0,0, and the picture is bent towards its top left corner.",
     {scene, house, "Q003 255   0\n", ""}, in_objects(positions_partly)},
    {"faces-in-one-place", warning, "an outside and an inside face lie in one place",
     "The two flicker unless the program that shows the scene leaves out the backs of faces. Switch on\n"
     "only what can be seen.",
     {scene, house, "", "K07Y\nF07front\nQ025   0 255\nQ026   0   0\nQ027 255   0\nQ028 255 255\n"},
     in_objects(faces_in_one_place)},
    {"road-side-untextured", warning, "a side of a road has no texture",
     "A side without a texture is not drawn, but its closing glEnd is still written, and OpenGL notes\n"
     "an error.",
     {scene, road, "F02stone\n", ""}, in_objects(road_side_untextured)},
};
// clang-format on

} // namespace

std::span<const Rule> face_rules()
{
    return all_face_rules;
}

} // namespace marlogl::check
