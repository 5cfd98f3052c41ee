#include "dispatch/dispatch.h"

#include "generators/generators.h"

namespace marlogl {

namespace {

constexpr int none = 1 << 16; // beyond all type codes

constexpr Kind kinds[] = {
    {"gabled house",               {1, 23},    draw_gabled_house     },
    {"structure with antennas",    {11, 6},    draw_structure        },
    {"extruded polygon",           {4, 18},    draw_extruded_polygon },
    {"two-sided extruded polygon", {3, 5},     draw_two_sided_polygon},
    {"hip roof",                   {13, 9},    draw_hip_roof         },
    {"sign board",                 {16, 4},    draw_sign             },
    {"cone",                       {14, 11},   draw_cone             },
    {"tower",                      {7, 22},    draw_tower            },
    {"wheel",                      {22, 19},   draw_wheel            },
    {"sphere with basket",         {15, 12},   draw_basket_sphere    },
    {"flag",                       {none, 13}, draw_flag             },
    {"capped cylinder",            {12, 7},    draw_cylinder         },
    {"roads",                      {17, 21},   draw_roads            },
    {"fence",                      {20, 20},   draw_fence            },
    {"fence",                      {21, none}, draw_fence            },
    {"fence",                      {23, none}, draw_fence            },
    {"digital clock",              {none, 2},  draw_clock            },
    {"profiled-roof house",        {5, none},  draw_profiled_house   },
    {"beam",                       {2, none},  draw_beam             },
    {"guyed mast",                 {6, none},  draw_mast             },
    {"pole with pennant",          {9, none},  draw_pennant          },
    {"tree",                       {19, none}, draw_tree             },
};

void translation_line(Output &out, double x, double y, double z)
{
    out.line("glTranslated( ", p0(x), ", ", p0(y), ", ", p0(z), " );");
}

void rotation_line(Output &out, double angle, int version)
{
    constexpr std::string_view blank_of_version[] = {" ", ""};
    out.line("glRotated( ", p0(angle), blank_of_version[version - 1], ",0 ,0 , 1 );");
}

int type_of(const Scene &scene, int number)
{
    const auto index = static_cast<std::size_t>(number - 1);
    return index < scene.objects.size() ? scene.objects[index].type : 0;
}

// What a message calls an object: object 12 "Water tower" (type 18, extruded polygon).
std::string description(const Scene &scene, int number, int version)
{
    const int drawn = source_of(scene, number), type = type_of(scene, drawn);
    const Kind *kind = find_kind(version, type);
    return "object " + std::to_string(number) + ' ' +
           quoted(scene.objects[static_cast<std::size_t>(number - 1)].name) + " (" +
           (drawn == number ? "" : "drawn as object " + std::to_string(drawn) + ", ") + "type " +
           std::to_string(type) + (kind != nullptr ? ", " + std::string(kind->name) : "") + ')';
}

void draw(Drawing &drawing, const Scene &scene, int number, int version)
{
    Output &out = drawing.out;
    const Object &object = scene.objects[static_cast<std::size_t>(number - 1)];
    out.line(comment_prefix, "*** Sequence ", p00(number));
    out.line(comment_prefix, "*** ", object.name);

    const double x = numeric_value(object.x), y = numeric_value(object.y), angle = object.parameters(61);
    const bool moved = x != 0 || y != 0;
    if (moved)
        translation_line(out, x, y, 0);
    if (angle != 0)
        rotation_line(out, -angle, version);

    const int drawn = source_of(scene, number);
    if (const Kind *kind = find_kind(version, type_of(scene, drawn))) {
        drawing.vertices.restart();
        Pen pen{drawing, scene.objects[static_cast<std::size_t>(drawn - 1)], drawn};
        kind->draw(pen);
    }

    if (angle != 0)
        rotation_line(out, angle, version);
    if (moved)
        translation_line(out, -x, -y, 0);
}

} // namespace

const Kind *find_kind(int version, int type)
{
    for (const Kind &kind : kinds)
        if (kind.types[version - 1] == type)
            return &kind;
    return nullptr;
}

int source_of(const Scene &scene, int number)
{
    const Object &object = scene.objects[static_cast<std::size_t>(number - 1)];
    const double reference = numeric_value(object.codes(30));
    return reference < 1 || reference > most_objects ? number : static_cast<int>(reference);
}

void draw_object(Drawing &drawing, const Scene &scene, int number, int version)
{
    try {
        draw(drawing, scene, number, version);
    } catch (const RunError &error) {
        // A file's error names the file, and is nobody's fault in the scene.
        if (error.fault == Fault::input_output)
            throw;
        throw error.at(description(scene, number, version));
    }
}

} // namespace marlogl
