// Letters for messages in the picture: ASCII, five dots wide and seven high.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

inline constexpr int glyph_width = 5, glyph_height = 7, glyph_advance = 6, line_advance = 10;

// The columns of a character from the left; the lowest bit is the top dot. Others than ASCII look like "?".
const std::array<std::uint8_t, glyph_width> &glyph_of(char c);

// The text in ASCII, in lines of at most so many characters, broken at blanks where there are any.
std::string in_lines(std::string_view text, std::size_t most);
