// Tables of fixed size, addressed by calls and always tested against their bounds.
#pragma once

#include "design/number.h"
#include "host/run_error.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace marlogl {

/// The numbers from `first` to `last`, both included.
struct Range {
    int first, last;

    constexpr int size() const { return last - first + 1; }
};

/// The range of a table that has one index only.
inline constexpr Range single{0, 0};

/// A table of T with one index or two. An index is a whole number or a double, which is rounded to a whole
/// number first (halves to the even one). The first index runs fastest in storage.
///
/// Errors of every access: index, when the first or second index lies outside Rows or Columns.
template <typename T, Range Rows, Range Columns = single> class Table {
  public:
    /// `row_name` says in messages what the first index counts; `initial` is what an entry holds at first and
    /// after clear.
    constexpr explicit Table(const char *row_name, const T &initial = T())
        : row_name_(row_name), initial_(initial)
    {
        entries_.fill(initial);
    }

    template <typename Row, typename Column = int> T &operator()(Row row, Column column = Columns.first)
    {
        return entries_[offset(row, Rows, row_name_) +
                        static_cast<std::size_t>(Rows.size()) * offset(column, Columns, "object")];
    }

    template <typename Row, typename Column = int>
    const T &operator()(Row row, Column column = Columns.first) const
    {
        return const_cast<Table &>(*this)(row, column);
    }

    /// Whether `row` lies within the bounds.
    static bool has(double row) { return within(round_half_even(row), Rows); }

    /// Puts the entries of the columns up to `last` back to what they held at first.
    void clear(int last = Columns.last)
    {
        std::fill_n(entries_.begin(), Rows.size() * (last - Columns.first + 1), initial_);
    }

  private:
    template <typename Number> static bool within(Number number, Range range)
    {
        return number >= range.first && number <= range.last;
    }

    template <typename Index> static std::size_t offset(Index index, Range range, const char *name)
    {
        if constexpr (std::is_floating_point_v<Index>) {
            const double number = round_half_even(index);
            // The test comes before the conversion, which is undefined for large numbers.
            if (!within(number, range))
                outside(index, range, name);
            return static_cast<std::size_t>(static_cast<int>(number) - range.first);
        } else {
            if (!within(index, range))
                outside(index, range, name);
            return static_cast<std::size_t>(index - range.first);
        }
    }

    [[noreturn]] static void outside(double index, Range range, const char *name)
    {
        throw RunError(Fault::index, std::string(name) + ' ' + message_number(index) + " is outside " +
                                         std::to_string(range.first) + " to " + std::to_string(range.last));
    }

    const char *row_name_;
    T initial_;
    std::array<T, static_cast<std::size_t>(Rows.size() * Columns.size())> entries_{};
};

} // namespace marlogl
