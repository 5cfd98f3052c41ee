// Tree: one upright rectangle, or two that cross on the object's axis, drawn twice.
#include "generators/figures.h"

namespace marlogl {

void draw_tree(Pen &pen)
{
    const Span width = centred(pen.cell(1));
    const double low = pen.cell(58), high = low + pen.cell(2);
    const bool crossed = pen.cell(16) == 0;

    pen.record(width.low, 0, low);
    pen.record(width.low, 0, high);
    pen.record(width.high, 0, high);
    pen.record(width.high, 0, low);
    if (crossed) {
        pen.record(0, width.low, low);
        pen.record(0, width.low, high);
        pen.record(0, width.high, high);
        pen.record(0, width.high, low);
    }

    constexpr FaceSlots slots{1, 1};
    pen.picture(slots, {3, 2, 1, 0});
    if (crossed) {
        pen.picture(slots, {3, 2, 1, 0});
        pen.picture(slots, {4, 5, 6, 7});
        pen.picture(slots, {4, 5, 6, 7});
    }
}

} // namespace marlogl
