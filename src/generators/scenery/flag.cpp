// Flag: one textured rectangle, standing or lying, with a back face if wanted.
#include "generators/figures.h"

namespace marlogl {

void draw_flag(Pen &pen)
{
    const Span x = centred(pen.cell(1)), y = centred(pen.cell(2));
    const double low = pen.cell(58), high = low + pen.cell(2);
    const bool standing = pen.cell(7) == 0;
    if (standing) {
        pen.record(x.low, 0, low);
        pen.record(x.low, 0, high);
        pen.record(x.high, 0, high);
        pen.record(x.high, 0, low);
    } else {
        pen.record(x.high, y.low, low);
        pen.record(x.low, y.low, low);
        pen.record(x.low, y.high, low);
        pen.record(x.high, y.high, low);
    }
    pen.picture({1, 1}, {0, 1, 2, 3});
    if (pen.is_true(8))
        pen.picture({1, 1}, {3, 2, 1, 0});
}

} // namespace marlogl
