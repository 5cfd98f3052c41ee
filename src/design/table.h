// Tables of fixed size, addressed by calls and always tested against their bounds.
#pragma once

#include "design/number.h"
#include "host/run_error.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
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
    static bool has(double row)
    {
        const double number = round_half_even(row);
        return number >= Rows.first && number <= Rows.last;
    }

    /// Puts the entries of the columns up to `last` back to what they held at first.
    void clear(int last = Columns.last)
    {
        std::fill_n(entries_.begin(), Rows.size() * (last - Columns.first + 1), initial_);
    }

  private:
    template <typename Index> static std::size_t offset(Index index, Range range, const char *name)
    {
        std::uint64_t number = 0; // from range.first on; one below it becomes a very large one
        if constexpr (std::is_floating_point_v<Index>) {
            // Around here doubles are the whole numbers, and their bits count on with them: the sum is
            // rounded, halves to even. The bits of a sum that left this region, of NaN too, are far from its
            // own.
            constexpr double whole_numbers = 1.5 * (std::int64_t{1} << 52);
            number = std::bit_cast<std::uint64_t>(index + whole_numbers) -
                     std::bit_cast<std::uint64_t>(whole_numbers + range.first);
        } else {
            number = static_cast<std::uint64_t>(std::int64_t{index} - range.first);
        }
        if (number >= static_cast<std::uint64_t>(range.size())) [[unlikely]]
            outside(index, range, name);
        return number;
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
