#include "dispatch/dispatch.h"

#include "design/scene.h"
#include "emit/output.h"
#include "emit/vertex_table.h"
#include "generators/generators.h"

#include <span>

namespace marlogl {

namespace {

struct Kind {
    int type;
    std::string_view name;
    void (*save)();
};

constexpr Kind version1[] = {
    {1,  "save_house",         save_house        },
    {2,  "save_beam",          save_beam         },
    {3,  "save_poly",          save_poly         },
    {4,  "save_bigpoly",       save_bigpoly      },
    {5,  "save_building",      save_building     },
    {6,  "save_mast",          save_mast         },
    {7,  "save_tower",         save_tower        },
    {9,  "save_panel",         save_panel        },
    {11, "save_structure",     save_structure    },
    {12, "save_cylinder",      save_cylinder     },
    {13, "save_base",          save_base         },
    {14, "save_cone",          save_cone         },
    {15, "save_basket_sphere", save_basket_sphere},
    {16, "save_sign",          save_sign         },
    {17, "save_roads",         save_roads        },
    {19, "save_tree",          save_tree         },
    {20, "save_fence",         save_fence        },
    {21, "save_fence",         save_fence        },
    {23, "save_fence",         save_fence        },
    {22, "save_wheel",         save_wheel        },
};

constexpr Kind version2[] = {
    {2,  "save_digital",       save_digital      },
    {4,  "save_sign",          save_sign         },
    {5,  "save_poly",          save_poly         },
    {6,  "save_structure",     save_structure    },
    {7,  "save_cylinder",      save_cylinder     },
    {9,  "save_base",          save_base         },
    {11, "save_cone",          save_cone         },
    {12, "save_basket_sphere", save_basket_sphere},
    {13, "save_flag",          save_flag         },
    {18, "save_bigpoly",       save_bigpoly      },
    {19, "save_wheel",         save_wheel        },
    {20, "save_fence",         save_fence        },
    {21, "save_roads",         save_roads        },
    {22, "save_tower",         save_tower        },
    {23, "save_house",         save_house        },
};

const Kind *find_kind(std::span<const Kind> kinds, int type)
{
    for (const Kind &kind : kinds)
        if (kind.type == type)
            return &kind;
    return nullptr;
}

void translation_line(double x, double y, double z)
{
    write_line("glTranslated( ", p0(x), ", ", p0(y), ", ", p0(z), " );");
}

void rotation_line_1(double angle)
{
    write_line("glRotated( ", p0(angle), " ,0 ,0 , 1 );");
}

void rotation_line_2(double angle)
{
    write_line("glRotated( ", p0(angle), ",0 ,0 , 1 );");
}

void save_object(int object, std::span<const Kind> kinds, void (*rotation_line)(double))
{
    List1.clear();
    List2.clear();
    work_flag = false;
    current_object = object;
    const int drawn = instance_of(object);

    placement_x = numeric_value(object_x(object));
    placement_y = numeric_value(object_y(object));
    placement_z = 0;
    placement_moved = placement_x != 0 || placement_y != 0;
    const double angle = object_param(61, object);
    if (placement_moved)
        translation_line(placement_x, placement_y, placement_z);
    if (angle != 0)
        rotation_line(-angle);

    texture_active = false;
    current_object = drawn;
    if (const Kind *kind = find_kind(kinds, object_type(drawn)))
        kind->save();
    current_object = object;

    if (angle != 0)
        rotation_line(angle);
    if (placement_moved)
        translation_line(-placement_x, -placement_y, -placement_z);
    texture_active = false;
}

} // namespace

void Save_MARL1(int www)
{
    save_object(www, version1, rotation_line_1);
}

void Save_MARL2(int www)
{
    save_object(www, version2, rotation_line_2);
}

std::string generator_name(int version, int type)
{
    const Kind *kind = version == 1 ? find_kind(version1, type) : find_kind(version2, type);
    return kind != nullptr ? std::string(kind->name) : std::string();
}

int instance_of(int object)
{
    const double reference = numeric_value(object_code(30, object));
    return reference < 1 || reference > objects.last ? object : static_cast<int>(reference);
}

} // namespace marlogl
