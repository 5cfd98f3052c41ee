#include "emit/number_text.h"

#include "base/run_error.h"

#include <algorithm>
#include <charconv>

namespace marlogl {

namespace {

constexpr int significant_digits = 15;

// A number that is not negative as 0.digits * 10^point.
struct Decimal {
    char digits[significant_digits];
    int point;

    // The digit `place` places behind the first; zeros surround the significant ones.
    char digit(int place) const { return place >= 0 && place < significant_digits ? digits[place] : '0'; }
};

Decimal significant(double size)
{
    char text[significant_digits + 8]; // 1.23456789012345e+123
    const char *end =
        std::to_chars(text, text + sizeof text, size, std::chars_format::scientific, significant_digits - 1)
            .ptr;
    const char *exponent_sign = text + significant_digits + 2;
    int exponent = 0;
    std::from_chars(exponent_sign + 1, end, exponent);

    Decimal number;
    number.digits[0] = text[0];
    std::copy_n(text + 2, significant_digits - 1, number.digits + 1);
    number.point = (*exponent_sign == '-' ? -exponent : exponent) + 1;
    return number;
}

// `number` rounded to `decimals` decimals, halves up.
Decimal rounded(Decimal number, int decimals)
{
    const int kept = number.point + decimals;
    if (kept >= significant_digits)
        return number;
    const bool up = number.digit(kept) >= '5';
    std::fill(number.digits + std::max(kept, 0), number.digits + significant_digits, '0');
    if (!up)
        return number;
    for (int i = kept - 1; i >= 0; --i) {
        if (number.digits[i] != '9') {
            ++number.digits[i];
            return number;
        }
        number.digits[i] = '0';
    }
    // The carry has passed all digits and is a new first one.
    number.digits[0] = '1';
    ++number.point;
    return number;
}

} // namespace

double round_decimals(double x, int decimals)
{
    double p = 1;
    for (int i = 0; i < decimals; ++i)
        p *= 10;
    const double s = x < 0 ? -1 : 1;
    return s * std::floor((std::abs(x) + 5 / (p * 10)) * p) / p;
}

namespace output {

char *put_rounded(char *at, double value, int decimals)
{
    const Decimal number = rounded(significant(std::abs(require_finite(value))), decimals);
    const bool zero =
        std::all_of(number.digits, number.digits + significant_digits, [](char c) { return c == '0'; });
    if (value < 0 && !zero)
        *at++ = '-';
    for (int place = std::min(number.point - 1, 0); place < number.point; ++place)
        *at++ = number.digit(place);
    if (decimals > 0)
        *at++ = '.';
    for (int place = number.point; place < number.point + decimals; ++place)
        *at++ = number.digit(place);
    return at;
}

char *put_by_millionths(char *at, double value)
{
    char text[most_of_number];
    const char *end = put_rounded(text, value, 6);
    return put_rounded(at, numeric_value({text, static_cast<std::size_t>(end - text)}), 2);
}

char *put_beyond_texture(char *at, double pixel)
{
    if (const double size = std::abs(pixel); size < 1e5) {
        const auto millionths = static_cast<unsigned>(texture_millionths(static_cast<std::uint64_t>(size)));
        *at = '-';
        at = put_whole(at + (pixel < 0), millionths / 1000000);
        *at = '.';
        at = put_three(put_three(at + 1, millionths / 1000), millionths);
    } else {
        at = put_rounded(at, round_decimals(pixel / 255, 6), 6);
    }
    *at = 'f';
    return at + 1;
}

char *put(char *at, NumberText<Form::general> text)
{
    const double value = require_finite(text.value) + 0.0; // no sign for zero
    if (std::abs(value) < 1e9 && value == std::trunc(value))
        return put(at, p0(value));
    if (std::abs(value) < 1e15)
        return std::to_chars(at, at + most_of_number, value, std::chars_format::fixed).ptr;
    char *end = std::to_chars(at, at + most_of_number, value, std::chars_format::scientific).ptr;
    std::replace(at, end, 'e', 'E');
    return end;
}

char *put(char *at, NumberText<Form::spaced> text)
{
    if (text.value >= 0)
        *at++ = ' ';
    return put(at, general(text.value));
}

char *put(char *at, HexText text)
{
    constexpr double exact_whole_numbers = 9007199254740992.0; // 2^53
    const double number = std::max(round_half_even(text.value), 0.0);
    if (number > exact_whole_numbers)
        throw RunError(Fault::overflow,
                       "the number " + message_number(number) + " is too large for hexadecimal digits");
    char digits[16];
    char *end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint64_t>(number), 16).ptr;
    std::transform(digits, end, digits,
                   [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    at = std::fill_n(at, std::max(text.least_digits - static_cast<int>(end - digits), 0), '0');
    return std::copy(digits, end, at);
}

} // namespace output

} // namespace marlogl
