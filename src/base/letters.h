// Letters without regard to case. Only ASCII letters have a case here: a character is a byte.
#pragma once

#include <algorithm>
#include <string_view>

namespace marlogl {

constexpr char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool same_letters(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return upper(x) == upper(y); });
}

} // namespace marlogl
