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

constexpr Double2 operator/(Double2 a, double b)
{
    const double q = a.high / b;
    const Double2 back = product(q, b);
    return sum(q, (a.high - back.high - back.low + a.low) / b);
}

// The Taylor series of the sine (first power 1) or the cosine (first power 0).
constexpr double series(double angle, int first_power)
{
    const Double2 square = product(angle, angle);
    Double2 term = first_power == 1 ? Double2{angle, 0} : Double2{1, 0};
    Double2 total = term;
    for (int power = first_power; power < 60; power += 2) {
        term = term * square / ((power + 1) * (power + 2));
        term = {-term.high, -term.low};
        total = total + term;
    }
    return total.high;
}

using Degrees = std::array<double, 360>;

constexpr Degrees table(int first_power)
{
    Degrees values{};
    for (int degree = 0; degree < 360; ++degree)
        values[static_cast<std::size_t>(degree)] = series(degree * (3.1415926 / 180), first_power);
    return values;
}

constexpr Degrees sines = table(1), cosines = table(0);

} // namespace

double cosine(int degrees)
{
    return cosines[static_cast<std::size_t>(degrees)];
}

double sine(int degrees)
{
    return sines[static_cast<std::size_t>(degrees)];
}

} // namespace marlogl
