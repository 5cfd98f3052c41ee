// Every number of the output: its pattern, and the helpers that texture positions and colours go through.
#pragma once

#include "design/number.h"

#include <array>
#include <cstddef>

namespace marlogl {

// Number texts are parts of a line; the number becomes text where the line is built. All patterns use "."
// as decimal separator, group nothing, write a digit before the point, and round in decimal: the value is
// taken to 15 significant digits and then rounded, halves away from zero. A value that rounds to zero has no
// sign. Errors, when the text is made: overflow for a value that is not finite.

enum class Form { whole, hundredths, two_digits, general, spaced };
template <Form> struct NumberText {
    double value;
};
template <typename Number> struct TextureText {
    Number pixel;
};
struct HexText {
    double value;
    int least_digits;
};

/// "0": a whole number.
constexpr NumberText<Form::whole> p0(double x)
{
    return {x};
}

/// "00": a whole number of at least two digits, 0 to 999.
constexpr NumberText<Form::two_digits> p00(double x)
{
    return {x};
}

/// "0.00" of the number that the text "0.000000" of `x` is.
constexpr NumberText<Form::hundredths> p2(double x)
{
    return {x};
}

/// The general format: the shortest text that reads back as the same number, with an exponent (1E+15) from a
/// magnitude of 1e15 on.
constexpr NumberText<Form::general> general(double x)
{
    return {x};
}

/// A number converted to text: the general format, with a blank before a value of zero or more.
constexpr NumberText<Form::spaced> spaced(double x)
{
    return {x};
}

/// Upper-case hexadecimal digits of `x`, rounded half to even, and zeros in front where they are fewer than
/// asked for; a negative number counts as 0. Errors, when the text is made: overflow for a number above 2^53.
constexpr HexText hex(double x, int least_digits = 1)
{
    return {x, least_digits};
}

/// Texture coordinate of a pixel position, whose whole part counts: 0 to 255 become 0 to 1 with texture_u
/// and, the vertical axis being flipped, 1 to 0 with texture_v. Nothing is clamped. Six decimals and the
/// letter f.
inline TextureText<double> texture_u(double x)
{
    return {std::floor(x)};
}

inline TextureText<double> texture_v(double x)
{
    return {255 - std::floor(x)};
}

constexpr TextureText<int> texture_u(int x)
{
    return {x};
}

constexpr TextureText<int> texture_v(int x)
{
    return {255 - x};
}

/// `x` rounded to `decimals` decimals (0 to 15), halves away from zero.
double round_decimals(double x, int decimals);

namespace output {

/// The room that put needs for a number text, which may write beyond the end of the text. No text is longer:
/// 309 digits before the point, or 326 characters in the general format.
inline constexpr std::size_t most_of_number = 340;

constexpr void put_digits(char *text, int count, std::uint64_t number)
{
    for (; count > 0; number /= 10)
        text[--count] = static_cast<char>('0' + number % 10);
}

// The texts of 0 to Size - 1, which `write` writes.
template <std::size_t Size, std::size_t Width> constexpr auto texts_of(void (*write)(char *, std::uint64_t))
{
    std::array<char[Width], Size> texts{};
    for (std::size_t i = 0; i < Size; ++i)
        write(texts[i], i);
    return texts;
}

// The digits of 0 to 999: all three, zeros in front.
inline constexpr auto three_digits =
    texts_of<1000, 4>([](char *text, std::uint64_t i) { put_digits(text, 3, i); });

// The digits of 0 to 999 without zeros in front; the last character is how many there are.
inline constexpr auto short_digits = texts_of<1000, 4>([](char *text, std::uint64_t i) {
    text[3] = i < 10 ? 1 : i < 100 ? 2 : 3;
    put_digits(text, text[3], i);
});

// "0.00" to "1.00".
inline constexpr auto hundredths = texts_of<101, 4>([](char *text, std::uint64_t i) {
    put_digits(text, 1, i / 100);
    text[1] = '.';
    put_digits(text + 2, 2, i);
});

/// The texture coordinate of a whole pixel position in millionths, rounded; 255 being odd, none is a tie.
constexpr std::uint64_t texture_millionths(std::uint64_t pixel)
{
    return (2 * 1000000 * pixel + 255) / (2 * 255);
}

// The texture coordinates of the pixel positions 0 to 255.
constexpr std::size_t texture_width = 9;
inline constexpr auto texture_texts = texts_of<256, texture_width>([](char *text, std::uint64_t pixel) {
    const std::uint64_t number = texture_millionths(pixel);
    put_digits(text, 1, number / 1000000);
    text[1] = '.';
    put_digits(text + 2, 6, number);
    text[8] = 'f';
});

/// Writes `value` with `decimals` decimals, by way of its 15 significant digits. Errors: overflow.
char *put_rounded(char *at, double value, int decimals);
/// Writes hundredths by way of the text with six decimals. Errors: overflow.
char *put_by_millionths(char *at, double value);

/// Writes the texture coordinate of a whole pixel position outside 0 to 255. Errors: overflow.
char *put_beyond_texture(char *at, double pixel);

char *put(char *at, NumberText<Form::general> text);
char *put(char *at, NumberText<Form::spaced> text);
char *put(char *at, HexText text);

/// Writes the last three digits of a number.
inline char *put_three(char *at, unsigned number)
{
    std::memcpy(at, three_digits[number % 1000], 4);
    return at + 3;
}

/// Writes a whole number from 0 to 999999999.
inline char *put_whole(char *at, unsigned number)
{
    if (number >= 1000)
        return put_three(put_whole(at, number / 1000), number);
    const char *text = short_digits[number];
    const char count = text[3];
    std::memcpy(at, text, 4);
    return at + count;
}

inline char *put(char *at, NumberText<Form::whole> text)
{
    if (std::abs(text.value) < 1e9) [[likely]] {
        const int number = static_cast<int>(text.value);
        if (number == text.value) [[likely]] {
            *at = '-';
            return put_whole(at + (number < 0), static_cast<unsigned>(std::abs(number)));
        }
    }
    return put_rounded(at, text.value, 0);
}

inline char *put(char *at, NumberText<Form::two_digits> text)
{
    if (text.value < 10)
        *at++ = '0';
    return put_whole(at, static_cast<unsigned>(text.value));
}

inline char *put(char *at, NumberText<Form::hundredths> text)
{
    // Two roundings in a row: the hundredth is reached once the millionths round up to its half, which is at
    // half a millionth before that. Only very near to that place the digits themselves have to decide.
    const double size = std::abs(text.value) * 100 + 0.50005;
    if (size < static_cast<double>(hundredths.size())) [[likely]] {
        const int number = static_cast<int>(size);
        const double beyond = size - number;
        if (beyond > 1e-9 && beyond < 1 - 1e-9) [[likely]] {
            *at = '-';
            at += text.value < 0 && number > 0;
            std::memcpy(at, hundredths[static_cast<unsigned>(number)], 4);
            return at + 4;
        }
    }
    return put_by_millionths(at, text.value);
}

template <typename Number> char *put(char *at, TextureText<Number> text)
{
    if (text.pixel >= 0 && text.pixel <= 255) [[likely]] {
        std::memcpy(at, texture_texts[static_cast<std::size_t>(text.pixel)], texture_width);
        return at + texture_width;
    }
    return put_beyond_texture(at, text.pixel);
}

template <typename NumberText>
requires requires(NumberText text)
{
    put(nullptr, text);
}
constexpr std::size_t most_characters(NumberText)
{
    return most_of_number;
}

} // namespace output

} // namespace marlogl
