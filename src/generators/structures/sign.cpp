// Sign board: two faces, back to back, upright on one of four sides or lying, tilted if wanted.
#include "generators/figures.h"

namespace marlogl {

namespace {

// Cell 8: 1 to 4 stand upright on a side of the origin, 5 and 6 lie, and every number above 5 that is not 6
// is level.
enum class Mode { unknown, front, right, back, left, tiltable, turned, level };

Mode mode_of(double number)
{
    for (const Mode mode : {Mode::front, Mode::right, Mode::back, Mode::left, Mode::tiltable, Mode::turned})
        if (number == static_cast<int>(mode))
            return mode;
    return number > static_cast<int>(Mode::tiltable) ? Mode::level : Mode::unknown;
}

// Positions along the board's edges, at the bottom (or in front) and at the top (or behind).
struct Board {
    Span bottom, top;
    double distance, low, high;
};

//   1 --- 2
//   |     |      seen from the front
//   0 --- 3
void record_upright(Pen &pen, Mode mode, const Board &b)
{
    const double d = mode == Mode::front || mode == Mode::left ? -b.distance : b.distance;
    const auto corner = [&](double along, double z) {
        if (mode == Mode::front || mode == Mode::back)
            pen.record(along, d, z);
        else
            pen.record(d, along, z);
    };
    // Seen from outside, the back and the left board run the other way.
    const bool mirrored = mode == Mode::back || mode == Mode::left;
    corner(mirrored ? b.bottom.high : b.bottom.low, b.low);
    corner(mirrored ? b.top.high : b.top.low, b.high);
    corner(mirrored ? b.top.low : b.top.high, b.high);
    corner(mirrored ? b.bottom.low : b.bottom.high, b.low);
}

//   1 --- 2    ^ y
//   |     |    |      seen from above
//   0 --- 3    +--> x
void record_lying(Pen &pen, Mode mode, const Board &b)
{
    constexpr int edges[][2] = {
        {1, 2}, // back
        {0, 3}, // front
        {2, 3}, // right
        {0, 1}, // left
    };
    double raised[4] = {};
    const double amount = pen.cell(19), edge = pen.cell(20);
    if (mode == Mode::tiltable && amount > 0)
        for (int i = 0; i < 4; ++i)
            if (edge == i)
                for (const int corner : edges[i])
                    raised[corner] = pen.cell(21) == 0 ? amount : -amount;

    const Span y = centred(pen.cell(4));
    const double z = pen.cell(58) + b.distance;
    pen.record(b.bottom.low, y.low, z + raised[0]);
    pen.record(b.top.low, y.high, z + raised[1]);
    pen.record(b.top.high, y.high, z + raised[2]);
    pen.record(b.bottom.high, y.low, z + raised[3]);
}

} // namespace

void draw_sign(Pen &pen)
{
    const Mode mode = mode_of(pen.cell(8));
    if (mode == Mode::unknown)
        return;
    const double ground = pen.cell(58);
    const Board board{centred(pen.cell(1)), centred(pen.cell(2)), pen.cell(3), ground, ground + pen.cell(4)};
    if (mode < Mode::tiltable)
        record_upright(pen, mode, board);
    else
        record_lying(pen, mode, board);

    constexpr FaceSlots face1{1, 1}, face2{2, 5};
    constexpr std::array forward{0, 1, 2, 3}, backward{3, 2, 1, 0};
    if (mode == Mode::tiltable) {
        pen.quad(face2, forward);
        pen.quad(face1, backward);
    } else if (mode == Mode::turned) {
        pen.quad(face2, backward);
        pen.quad(face1, forward);
    } else {
        pen.quad(face1, backward);
        pen.quad(face2, forward);
    }
}

} // namespace marlogl
