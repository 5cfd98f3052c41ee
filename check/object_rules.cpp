// Rules that look at an object as a whole: its type, instances, whether anything is drawn.
#include "examples.h"
#include "rules.h"

namespace marlogl::check {

namespace {

void unknown_type(const ObjectSeen &seen, const Say &say)
{
    if (seen.kind != nullptr || seen.object.type == 0)
        return;
    const int other = 3 - seen.version;
    const Kind *meant = find_kind(other, seen.object.type);
    const std::string fault = "type " + std::to_string(seen.object.type) + " is no kind in version ";
    if (meant == nullptr) {
        say(seen.at.opened, {fault, seen.version});
        return;
    }
    const int type = meant->types[seen.version - 1];
    const bool exists = find_kind(seen.version, type) == meant;
    say(seen.at.opened,
        {fault, seen.version, "; in version ", other, " it is ", quoted(meant->name),
         exists ? ", which is type " + std::to_string(type) + " here" : ", which is not there here"});
}

void type_zero(const ObjectSeen &seen, const Say &say)
{
    if (seen.object.type == 0 && !seen.complained)
        say(seen.at.opened, {"type 0 takes number ", seen.number, " and draws nothing"});
}

void draws_nothing(const ObjectSeen &seen, const Say &say)
{
    if (seen.object.type != 0 && !seen.drawn.anything && !seen.drawn.stopped && !seen.complained)
        say(seen.at.opened, seen.faces.empty()
                                ? "this object draws nothing"
                                : "this object draws nothing: none of its faces has both K..Y and F");
}

void instance_of_nothing(const ObjectSeen &seen, const Say &say)
{
    const int drawn = source_of(seen.scene, seen.number);
    const auto count = static_cast<int>(seen.scene.objects.size());
    if (drawn > count)
        say(seen.code_line(30),
            {"K30 names object ", drawn, count == 1 ? "; there is " : "; there are ", count});
    else if (drawn != seen.number && seen.scene.objects[static_cast<std::size_t>(drawn - 1)].type == 0)
        say(seen.code_line(30), {"K30 names object ", drawn, ", which is of type 0"});
}

void instance_of_instance(const ObjectSeen &seen, const Say &say)
{
    const int drawn = source_of(seen.scene, seen.number);
    if (drawn == seen.number || drawn > static_cast<int>(seen.scene.objects.size()))
        return;
    if (const int next = source_of(seen.scene, drawn); next != drawn)
        say(seen.code_line(30),
            {"K30 names object ", drawn, ", which is an instance itself; name object ", next});
}

void instance_of_itself(const ObjectSeen &seen, const Say &say)
{
    // Two characters are never too large a number.
    const std::string_view code = trimmed(seen.object.codes(30));
    if (source_of(seen.scene, seen.number) == seen.number && numeric_value(code) != 0)
        say(seen.code_line(30), {"K30 holds ", quoted(code), ", which means the object itself"});
}

void version_missing(const ObjectSeen &seen, const Say &say)
{
    if (seen.version == 1 && seen.file_version < 12 && seen.is("structure with antennas"))
        say(seen.at.opened, "the file has no V1.2, so the antenna cells of this structure are moved");
}

void lines_after_texture(const ObjectSeen &seen, const Say &say)
{
    if (seen.drawn.after_textures && seen.drawn.lines)
        say(seen.at.opened, "this object stands behind textured faces, and its lines take their texture; put "
                            "objects made of lines first");
}

using enum Severity;
using namespace examples;

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_object_rules[] = {
    {"stops-drawing", error, "the conversion stops at this object",
     "Nothing can be divided by 0, a cap has at most 20 corners, an object at most 300 corner points,\n"
     "and slots end at 28. What was written up to that point stays in the output file.",
     {"scene.mrl", mast, "P06 7\n", ""}},
    {"unknown-type", error, "the type is no kind in this version",
     "The type codes of the two versions differ. An object of an unknown type draws nothing.",
     {scene, house, "A23\n", "A1\n"}, in_objects(unknown_type)},
    {"type-zero", note, "an object of type 0 takes a number and draws nothing",
     "Objects are counted all the same, for the instances that name them.",
     {scene, house, "", "A0\n"}, in_instances_too(type_zero)},
    {"instance-of-nothing", error, "an instance names an object that is not there",
     "Code slot 30 names the number of another object, counted from 1 in the order of the A records.",
     {scene, two_houses, "K3001\n", "K3009\n"}, in_instances_too(instance_of_nothing)},
    {"instance-of-instance", error, "an instance names an object that is an instance itself",
     "Instances do not chain. An instance of an instance is drawn from that object's own tables, which\n"
     "are usually empty.",
     {scene, two_houses, "", "A23\nC190\nK3002\n"}, in_instances_too(instance_of_instance)},
    {"instance-of-itself", warning, "code slot 30 names no other object",
     "A slot 30 that names its own object, or a number above 70, is no instance.",
     {scene, two_houses, "K01Y\n", "K3001\nK01Y\n"}, in_objects(instance_of_itself)},
    {"version-missing", warning, "structures of files before version 1.2 are converted",
     "Below 1.2, or without a V record, the antennas of every structure stand in other cells. Begin a\n"
     "new file of version 1 with V1.2.",
     {"scene.mrl", box, "V1.2\n", "V1.0\n"}, in_objects(version_missing)},
    {"lines-after-texture", note, "lines behind textured faces take their texture",
     "The output switches texturing on with the first textured face and never off again.",
     {scene, flag, "", "A20\nP01 5\nK0107\nQ00150005000     P\n"}, in_instances_too(lines_after_texture)},
};
// clang-format on

// Looks at what the others have found.
// A row is a rule, and reads as one.
// clang-format off
constexpr Rule last_rule[] = {
    {"draws-nothing", warning, "the object draws nothing",
     "A face is drawn only when it has both a K record with Y at position 4 and an F record with a\n"
     "texture.",
     {scene, house, "K01Y\nF01front\nQ001   0 255\nQ002   0   0\nQ003 255   0\nQ004 255 255\n", ""},
     in_objects(draws_nothing)},
};
// clang-format on

} // namespace

std::span<const Rule> object_rules()
{
    return all_object_rules;
}

std::span<const Rule> closing_rules()
{
    return last_rule;
}

} // namespace marlogl::check
