// Tables of fixed size, addressed by calls and always tested against their bounds.
#pragma once

#include "base/run_error.h"
#include "design/number.h"

#include <array>
#include <type_traits>

namespace marlogl {

/// The numbers from `first` to `last`, both included.
struct Range {
    int first, last;

    constexpr int size() const { return last - first + 1; }
};

/// Raises the error of place_in. Errors: index.
[[noreturn]] void raise_outside(double index, Range range, const char *name);

/// The place of `index` in `range`, counted from 0. An index is a whole number or a double, which is rounded
/// to a whole number first (halves to the even one); `name` says in messages what it counts. Errors: index.
template <typename Index> std::size_t place_in(Range range, Index index, const char *name)
{
    std::uint64_t place = 0; // below the first it becomes a very large one
    if constexpr (std::is_floating_point_v<Index>) {
        // Around here doubles are the whole numbers, and their bits count on with them: the sum is rounded,
        // halves to even. The bits of a sum that left this region, of NaN too, are far from its own.
        constexpr double whole_numbers = 1.5 * (std::int64_t{1} << 52);
        place = std::bit_cast<std::uint64_t>(index + whole_numbers) -
                std::bit_cast<std::uint64_t>(whole_numbers + range.first);
    } else {
        place = static_cast<std::uint64_t>(std::int64_t{index} - range.first);
    }
    if (place >= static_cast<std::uint64_t>(range.size())) [[unlikely]]
        raise_outside(static_cast<double>(index), range, name);
    return place;
}

template <typename T> inline constexpr T initial_value{};
/// T() at an address that the compiler has to look up: it would not copy what it knows, but write small parts
/// one by one.
template <typename T> inline const T *const volatile initial = &initial_value<T>;

/// A table of T, addressed by any index that place_in takes. Errors of every access: index.
template <typename T, Range Rows> class Table {
  public:
    /// `name` says in messages what the index counts. Every entry is T() at first.
    explicit Table(const char *name) : name_(name)
    {
        static_assert(!std::is_trivially_default_constructible_v<T>);
    }

    /// The same for small values.
    explicit Table(const char *name) requires(std::is_trivially_copyable_v<T> && sizeof(T) <= 16)
        : name_(name), entries_(*initial<Entries>)
    {
    }

    template <typename Index> T &operator()(Index index) { return entries_[place_in(Rows, index, name_)]; }
    template <typename Index> const T &operator()(Index index) const
    {
        return entries_[place_in(Rows, index, name_)];
    }

    /// Whether `index` lies within the bounds.
    static bool has(double index)
    {
        const double number = round_half_even(index);
        return number >= Rows.first && number <= Rows.last;
    }

  private:
    using Entries = std::array<T, static_cast<std::size_t>(Rows.size())>;

    const char *name_;
    Entries entries_;
};

} // namespace marlogl
