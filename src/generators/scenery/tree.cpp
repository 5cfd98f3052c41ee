// Tree: one upright rectangle, or two that cross on the object's axis.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

// A code that tells the texture options apart; it is remembered with the texture, never written.
Text<2> texture_code()
{
    return text_of(hex(6 + (is_true(13) ? 16 : 0) + (is_true(14) ? 32 : 0) + (is_true(15) ? 8 : 0)));
}

void write_rectangle(int p1, int p2, int p3, int p4)
{
    write4("", "", "", 1, 1, p1, p2, p3, p4, "");
}

} // namespace

void save_tree()
{
    remember_texture("999999999");
    const Span width = centred(cell(1));
    const double low = cell(58), high = low + cell(2);
    const bool crossed = cell(16) == 0;

    record(width.low, 0, low);
    record(width.low, 0, high);
    record(width.high, 0, high);
    record(width.high, 0, low);
    if (crossed) {
        record(0, width.low, low);
        record(0, width.low, high);
        record(0, width.high, high);
        record(0, width.high, low);
    }

    override_texture_code = texture_code();
    write_rectangle(3, 2, 1, 0);
    if (crossed) {
        write_rectangle(3, 2, 1, 0);
        write_rectangle(4, 5, 6, 7);
        write_rectangle(4, 5, 6, 7);
    }
    override_texture_code = "00";
}

} // namespace marlogl
