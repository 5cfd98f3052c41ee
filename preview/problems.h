// What could not be read or shown, each with its line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct Problem {
    std::uint32_t line; // counted from 1; 0 for the file as a whole
    std::string text;
};

// Keeps the first hundred problems and counts the rest, so that a file of garbage stays cheap.
class Problems {
  public:
    void add(std::uint32_t line, std::string text)
    {
        ++total;
        if (kept.size() < 100)
            kept.push_back({line, std::move(text)});
    }
    void leave_out(std::size_t more) { total += more; }
    const std::vector<Problem> &list() const { return kept; }
    std::size_t count() const { return total; }

  private:
    std::vector<Problem> kept;
    std::size_t total = 0;
};
