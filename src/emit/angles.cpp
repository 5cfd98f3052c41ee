// Sine and cosine of whole degrees. The C libraries differ in the last bit for a few of them, and a vertex
// coordinate that is cut to a whole number shows such a bit; so the compiler works them out, with twice the
// digits.
#include "emit/angles.h"

#include <array>

namespace marlogl {

namespace {

// An unevaluated sum of two doubles, the second below half a unit in the last place of the first.
struct Double2 {
    double high, low;
};

constexpr Double2 sum(double a, double b)
{
    const double s = a + b;
    const double from_b = s - a;
    return {s, (a - (s - from_b)) + (b - from_b)};
}

constexpr Double2 product(double a, double b)
{
    // The two halves of each factor multiply without rounding.
    const auto upper_half = [](double x) {
        const double shifted = 134217729 * x; // 2^27 + 1
        return shifted - (shifted - x);
    };
    const double p = a * b;
    const double a1 = upper_half(a), a2 = a - a1, b1 = upper_half(b), b2 = b - b1;
    return {p, ((a1 * b1 - p) + a1 * b2 + a2 * b1) + a2 * b2};
}

constexpr Double2 operator+(Double2 a, Double2 b)
{
    const Double2 s = sum(a.high, b.high);
    return sum(s.high, s.low + a.low + b.low);
}

constexpr Double2 operator*(Double2 a, Double2 b)
{
    const Double2 p = product(a.high, b.high);
    return sum(p.high, p.low + a.high * b.low + a.low * b.high);
}

// A point that goes round in steps of a degree.
struct Turn {
    std::array<double, 360> cosines, sines;
};

constexpr Turn whole_turn()
{
    constexpr double step = 3.1415926 / 180;
    // Of a step, to thirty digits.
    constexpr Double2 cosine{0.9998476951615872, -3.60577414769112e-17};
    constexpr Double2 sine{0.017452406139607784, -4.395024230014537e-19};
    constexpr Double2 minus_sine{-sine.high, -sine.low};
    Turn turn{};
    Double2 x{1, 0}, y{0, 0};
    for (std::size_t degree = 0; degree < 360; ++degree) {
        // So many steps are an angle before it is rounded. What is rounded off is turned back: so small, its
        // sine is itself and its cosine 1.
        const double rest = product(static_cast<double>(degree), step).low;
        turn.cosines[degree] = (x + y * Double2{rest, 0}).high;
        turn.sines[degree] = (y + x * Double2{-rest, 0}).high;
        const Double2 next_x = x * cosine + y * minus_sine;
        y = y * cosine + x * sine;
        x = next_x;
    }
    return turn;
}

constexpr Turn turn = whole_turn();

} // namespace

double cosine(int degrees)
{
    return turn.cosines[static_cast<std::size_t>(degrees)];
}

double sine(int degrees)
{
    return turn.sines[static_cast<std::size_t>(degrees)];
}

} // namespace marlogl
