// The numbers of a design file: the number of a text, and the conversions to whole numbers.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace marlogl {

/// The leading number of `text`: an optional sign, digits with at most one point, an optional exponent;
/// blanks and tabs are passed over wherever they stand. Reading stops where the number can't go on; no digits
/// give 0. Errors: overflow when the number is too large for a double.
double numeric_value(std::string_view text);

/// The number of a field of four characters that holds blanks and then digits, as nearly all fields of points
/// do; -1 for every other field, also for one that holds a sign.
inline int plain_number(const char *field)
{
    // Each character is a byte of `word`. Digits are 0x30 to 0x39, and a blank is 0x20: the bits that tell
    // them apart mark the blanks, which must come first.
    std::uint32_t word = 0; // the first character in the lowest byte
    for (int i = 3; i >= 0; --i)
        word = word << 8 | static_cast<unsigned char>(field[i]);
    const std::uint32_t blanks = (~word & 0x10101010) >> 4, digits = (word | 0x10101010) - 0x30303030;
    const bool blanks_first = (blanks & ~(blanks << 8 | 1)) == 0;
    const bool all_plain =
        (((digits + 0x76767676) | digits) & 0x80808080) == 0 && (digits & (blanks * 15)) == 0;
    if (!blanks_first || !all_plain)
        return -1;
    const std::uint32_t pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FF;
    return static_cast<int>((pairs & 0xFF) * 100 + (pairs >> 16));
}

/// `x` rounded to a whole number, halves to the even one.
inline double round_half_even(double x)
{
    // Beyond 2^52 a double has no fraction; below, the sum has none, rounded as all sums are: halves to even.
    constexpr double no_fraction = 4503599627370496.0;
    if (!(std::abs(x) < no_fraction))
        return x;
    return x < 0 ? x - no_fraction + no_fraction : x + no_fraction - no_fraction;
}

/// Raises the error of whole_16.
[[noreturn]] void outside_16(double x, std::string_view what);

/// `x` as a 16-bit whole number, halves rounded to the even one; `what` names it in a message.
/// Errors: overflow outside -32768 to 32767.
inline std::int16_t whole_16(double x, std::string_view what)
{
    const double rounded = round_half_even(x);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
          rounded <= std::numeric_limits<std::int16_t>::max())) [[unlikely]]
        outside_16(x, what);
    return static_cast<std::int16_t>(rounded);
}

/// Raises the error of require_finite.
[[noreturn]] void not_finite();

/// Errors: overflow when `x` is not finite. Returns `x`.
inline double require_finite(double x)
{
    if (!std::isfinite(x)) [[unlikely]]
        not_finite();
    return x;
}

/// `dividend` / `divisor`; `what` names the divisor in a message.
/// Errors: division when the divisor is 0.
double quotient(double dividend, double divisor, std::string_view what);

/// `x` as a message shows it: the shortest text that reads back as `x`.
std::string message_number(double x);

} // namespace marlogl
