// The numbers of a design file: the number of a text, and the conversions to whole numbers.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace marlogl {

/// The leading number of `text`: an optional sign, digits with at most one point, an optional exponent;
/// blanks and tabs are passed over wherever they stand. Reading stops where the number can't go on; no digits
/// give 0. Errors: overflow when the number is too large for a double.
double numeric_value(std::string_view text);

/// The numbers of a field of four characters (std::uint32_t) or of two neighbouring ones (std::uint64_t),
/// when each holds blanks and then digits, as nearly all fields of points do.
template <typename Word> struct PlainFields {
    bool plain;   ///< no field holds anything else, a sign neither; otherwise `numbers` means nothing
    Word numbers; ///< that of the first field in the lower 16 bits, that of a second one in bits 32 to 47

    /// `characters` holds the fields, the first character in the lowest byte.
    constexpr explicit PlainFields(Word characters);
};

/// The characters at `text` as a word, the first one in the lowest byte.
template <typename Word> Word characters_at(const char *text)
{
    Word word = 0;
    if constexpr (std::endian::native == std::endian::little)
        std::memcpy(&word, text, sizeof word);
    else
        for (std::size_t i = sizeof word; i-- > 0;)
            word = word << 8 | static_cast<unsigned char>(text[i]);
    return word;
}

template <typename Word> constexpr PlainFields<Word>::PlainFields(Word characters)
{
    constexpr auto in_each_byte = [](Word value) { return static_cast<Word>(~Word{0} / 255 * value); };
    constexpr auto in_each_half = [](Word value) {
        return static_cast<Word>(sizeof(Word) == 4 ? value : value << 16 << 16 | value);
    };
    // Digits are 0x30 to 0x39, and a blank is 0x20: the bits that tell them apart mark the blanks, which must
    // come first in each field.
    const Word blanks = (~characters & in_each_byte(0x10)) >> 4;
    const Word digits = (characters | in_each_byte(0x10)) - in_each_byte(0x30);
    const Word blanks_behind = blanks & ~(blanks << 8 | in_each_half(1));
    const Word above_nine = ((digits + in_each_byte(0x76)) | digits) & in_each_byte(0x80);
    plain = (blanks_behind | above_nine | (digits & (blanks * 15))) == 0;
    const Word pairs = (digits * 10 + (digits >> 8)) & in_each_half(0x00FF00FF);
    numbers = (pairs * 100 + (pairs >> 16)) & in_each_half(0xFFFF);
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
