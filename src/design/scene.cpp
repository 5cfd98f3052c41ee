#include "design/scene.h"

#include <algorithm>

namespace marlogl {

constinit Table<std::int16_t, objects> object_type{"object"};
constinit Table<double, cells, objects> object_param{"parameter cell"};
constinit Table<Text<2>, code_slots, objects> object_code{"code slot"};
constinit Table<Text<11>, face_slots, objects> object_colour{"colour slot", "00255255255"};
constinit Table<Text<1>, face_slots, objects> object_colour_flag{"colour flag slot", "N"};
Table<std::string, face_slots, objects> object_text{"text slot"};
Table<std::string, objects> object_name{"object"};
Table<std::string, objects> object_x{"object"}, object_y{"object"};
constinit Table<std::int16_t, points, objects> point_x{"point"}, point_y{"point"};
constinit Table<Text<2>, points, objects> point_code{"point"};
constinit Table<Text<4>, points, objects> point_attr{"point"};

constinit Text<2> scale_level("00");

std::string input_path, output_path, colour_outside, colour_inside;

int current_object = 0;
bool work_flag = false;
bool placement_moved = false;
double placement_x = 0, placement_y = 0;
std::int16_t placement_z = 0;
bool texture_active = false;
constinit Text<1> view_side;

namespace {

int last_opened = 0;

} // namespace

void open_object(int object)
{
    last_opened = std::max(last_opened, object);
}

void clear_all()
{
    scale_level = "00";
    object_param.clear(last_opened);
    object_code.clear(last_opened);
    object_text.clear(last_opened);
    object_colour.clear(last_opened);
    object_colour_flag.clear(last_opened);
    object_type.clear();
    object_name.clear();
    object_x.clear();
    object_y.clear();
    point_x.clear(last_opened);
    point_y.clear(last_opened);
    point_code.clear(last_opened);
    point_attr.clear(last_opened);
    object_param(35, 0) = 50;
    last_opened = 0;
}

void reset_run_state()
{
    for (std::string *setting : {&input_path, &output_path, &colour_outside, &colour_inside})
        setting->clear();
    current_object = 0;
    work_flag = placement_moved = texture_active = false;
    placement_x = placement_y = 0;
    placement_z = 0;
    view_side = {};
}

} // namespace marlogl
