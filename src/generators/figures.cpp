#include "generators/figures.h"

namespace marlogl {

void record_rectangle(Pen &pen, Span x, Span y, double z)
{
    pen.record(x.low, y.low, z);
    pen.record(x.low, y.high, z);
    pen.record(x.high, y.high, z);
    pen.record(x.high, y.low, z);
}

Ring selected_ring(double selector)
{
    constexpr int counts[] = {6, 8, 10, 12};
    for (int i = 0; i < 4; ++i)
        if (selector == i)
            return {counts[i], 360 / counts[i]};
    return {20, 18};
}

void draw_face(Pen &pen, Side side, const Face &face)
{
    const FaceSlots slots = face.slots[side];
    const auto [p1, p2, p3, p4] = face.points;
    if (p4 == no_point && side == inside)
        pen.triangle(slots, p3, p2, p1);
    else if (p4 == no_point)
        pen.triangle(slots, p1, p2, p3);
    else if (side == inside)
        pen.quad<int>(slots, {p4, p3, p2, p1});
    else
        pen.quad(slots, face.points);
}

void draw_lights(Pen &pen, std::span<const int> points)
{
    const std::string_view lights_switch = pen.object.codes(26);
    if (std::all_of(lights_switch.begin(), lights_switch.end(), [](unsigned char c) { return c <= ' '; }))
        return;
    colour_line(pen.out(), pen.object.colours(0), " ");
    pen.out().line("glBegin( GL_POINTS ); ");
    for (const int point : points)
        pen.vertex(point);
    pen.out().line(end_block);
}

} // namespace marlogl
