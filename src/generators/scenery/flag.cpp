// Flag: one textured rectangle, standing or lying, with a back face if wanted.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

void save_flag()
{
    forget_texture_code();
    const Span x = centred(cell(1)), y = centred(cell(2));
    const double low = cell(58), high = low + cell(2);
    const bool standing = cell(7) == 0;
    if (standing) {
        record(x.low, 0, low);
        record(x.low, 0, high);
        record(x.high, 0, high);
        record(x.high, 0, low);
    } else {
        record(x.high, y.low, low);
        record(x.low, y.low, low);
        record(x.low, y.high, low);
        record(x.high, y.high, low);
    }

    work_flag = false;
    for (int slot = 1; slot <= 8; ++slot)
        if (is_textured(slot))
            work_flag = true;
    if (!work_flag)
        return;
    write4("", "", "", 1, 1, 0, 1, 2, 3, "");
    if (is_true(8))
        write4("", "", "", 1, 1, 3, 2, 1, 0, "");
}

} // namespace marlogl
