// Fixed-width texts and the fields of a line. A character is a byte; positions count from 1.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <string_view>

namespace marlogl {

/// The characters of `line` from position `first` to position `last`, both included; what lies beyond the end
/// of the line is not there.
constexpr std::string_view columns(std::string_view line, std::size_t first,
                                   std::size_t last = std::string_view::npos)
{
    return first > line.size() ? std::string_view() : line.substr(first - 1, last - first + 1);
}

/// `text` without the blanks at both ends. Only the blank counts; tabs stay.
constexpr std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// A text of exactly `Width` characters: a shorter one is padded with blanks, a longer one cut.
template <std::size_t Width> class Text {
  public:
    constexpr Text() : Text(std::string_view()) {}
    constexpr Text(const std::convertible_to<std::string_view> auto &content)
    {
        const std::string_view text = content;
        if (text.size() >= Width)
            std::copy_n(text.data(), Width, characters_.data());
        else
            for (std::size_t i = 0; i < Width; ++i)
                characters_[i] = i < text.size() ? text[i] : ' ';
    }

    constexpr std::string_view view() const { return {characters_.data(), Width}; }
    constexpr operator std::string_view() const { return view(); }

    /// Character `position`, counted from 1 to Width.
    constexpr char operator()(std::size_t position) const { return characters_[position - 1]; }
    constexpr char &operator()(std::size_t position) { return characters_[position - 1]; }

    friend constexpr bool operator==(const Text &, const Text &) = default;

  private:
    std::array<char, Width> characters_;
};

} // namespace marlogl
