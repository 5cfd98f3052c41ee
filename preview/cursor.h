// A reading position in one line: the words, numbers and names that statements are made of.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

// Every function skips blanks first. Those that return false leave the position anywhere in the line.
class Cursor {
  public:
    explicit Cursor(std::string_view line) : rest(line) {}

    bool at_end()
    {
        skip_blanks();
        return rest.empty();
    }

    bool starts_with(std::string_view text)
    {
        skip_blanks();
        return rest.starts_with(text);
    }

    std::string_view remainder()
    {
        skip_blanks();
        return rest;
    }

    bool take(char c)
    {
        skip_blanks();
        if (rest.empty() || rest.front() != c)
            return false;
        rest.remove_prefix(1);
        return true;
    }

    std::string_view word()
    {
        skip_blanks();
        const auto end = std::find_if_not(rest.begin(), rest.end(), is_word);
        return cut(static_cast<std::size_t>(end - rest.begin()));
    }

    // A finite number; a suffix f, as C has it, goes with it.
    bool number(double &value)
    {
        skip_blanks();
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
        if (error != std::errc{} || !std::isfinite(value))
            return false;
        cut(static_cast<std::size_t>(end - rest.data()));
        if (rest.starts_with('f'))
            cut(1);
        return true;
    }

    // A whole number from 0 to 255; leading zeros do not make it octal.
    bool byte(double &value)
    {
        skip_blanks();
        unsigned whole = 0;
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), whole);
        if (error != std::errc{} || whole > 255)
            return false;
        cut(static_cast<std::size_t>(end - rest.data()));
        value = whole;
        return true;
    }

    // A name between quotes, which may itself hold quotes: it ends at the last one of the line.
    bool quoted(std::string_view &name)
    {
        if (!take('"'))
            return false;
        const std::size_t closing = rest.rfind('"');
        if (closing == std::string_view::npos)
            return false;
        name = cut(closing);
        cut(1);
        return true;
    }

  private:
    // ASCII only, whatever the locale.
    static bool is_word(char c)
    {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    }

    void skip_blanks()
    {
        while (!rest.empty() && (rest.front() == ' ' || rest.front() == '\t'))
            rest.remove_prefix(1);
    }

    std::string_view cut(std::size_t size)
    {
        const std::string_view piece = rest.substr(0, size);
        rest.remove_prefix(size);
        return piece;
    }

    std::string_view rest;
};
