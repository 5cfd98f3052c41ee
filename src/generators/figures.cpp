#include "generators/figures.h"

namespace marlogl {

void record_rectangle(Span x, Span y, double z)
{
    record(x.low, y.low, z);
    record(x.low, y.high, z);
    record(x.high, y.high, z);
    record(x.high, y.low, z);
}

Ring selected_ring(double selector)
{
    constexpr Ring rings[] = {
        {6,  60},
        {8,  45},
        {10, 36},
        {12, 30},
    };
    for (int i = 0; i < 4; ++i)
        if (selector == i)
            return rings[i];
    return {20, 18};
}

void write_face(Side side, const Face &face)
{
    const FaceSlots &slots = face.slots[side];
    auto [p1, p2, p3, p4] = face.points;
    if (p4 == no_point) {
        if (side == inside)
            std::swap(p1, p3);
        write3("", "", "", slots.t, slots.bit1, p1, p2, p3, face.name);
    } else {
        if (side == inside) {
            std::swap(p1, p4);
            std::swap(p2, p3);
        }
        write4a("", slots.t, p1, p2, p3, p4, slots.bit1, face.name);
    }
}

void make_lights(std::string_view lightss)
{
    Text<2> &lights_switch = object_code(26, current_object);
    for (std::size_t i = 1; i <= 2; ++i)
        if (static_cast<unsigned char>(lights_switch(i)) < ' ')
            lights_switch(i) = ' ';
    if (trimmed(lights_switch).empty())
        return;

    colour_line_blank(object_colour(0, current_object));
    work_flag = false;
    write_line("glBegin( GL_POINTS ); ");
    std::string_view selected;
    for (; lightss.size() >= 2; lightss.remove_prefix(2)) {
        const double number = numeric_value(lightss.substr(0, 2));
        if (number < static_cast<double>(List2.count()))
            selected = List2.text(static_cast<std::size_t>(number));
        if (!selected.empty())
            write_line("      glVertex3d( ", selected, " );");
    }
    gl_end_line();
    List2.clear();
}

} // namespace marlogl
