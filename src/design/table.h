// Tables of limited size, addressed by calls and always tested against their bounds.
#pragma once

#include "base/run_error.h"
#include "design/number.h"

#include <memory>
#include <memory_resource>
#include <span>

namespace marlogl {

/// The numbers from `first` to `last`, both included; `counted` says in messages what they count.
struct Range {
    int first, last;
    const char *counted;

    constexpr int size() const { return last - first + 1; }
};

/// Raises the error of place_in. Errors: index.
[[noreturn]] void raise_outside(double index, Range range);

/// The place of `index` in a range, counted from 0: less than the range's size, unless it lies outside. An
/// index is a whole number or a double, which is rounded to a whole number first (halves to the even one).
template <typename Index> std::size_t any_place(Range range, Index index)
{
    if constexpr (std::is_floating_point_v<Index>) {
        // Around here doubles are the whole numbers, and their bits count on with them: the sum is rounded,
        // halves to even. The bits of a sum that left this region, of NaN too, are far from its own.
        constexpr double whole_numbers = 1.5 * (std::int64_t{1} << 52);
        return std::bit_cast<std::uint64_t>(index + whole_numbers) -
               std::bit_cast<std::uint64_t>(whole_numbers + range.first);
    } else {
        return static_cast<std::uint64_t>(std::int64_t{index} - range.first);
    }
}

/// The place of an index that must not lie outside. Errors: index.
template <typename Index> std::size_t place_in(Range range, Index index)
{
    const std::size_t place = any_place(range, index);
    if (place >= static_cast<std::size_t>(range.size())) [[unlikely]]
        raise_outside(static_cast<double>(index), range);
    return place;
}

template <typename T> inline const T initial_value{};

/// A table of T, addressed by whole numbers or doubles as place_in takes them. It has memory for what was
/// changed so far and little more: many a table is hardly used. Errors of every access: index.
template <typename T, const Range &rows> class Table {
    static_assert(std::is_trivially_copyable_v<T>);

  public:
    /// Every entry is T() at first. The memory is never given back to its resource.
    explicit Table(std::pmr::memory_resource *memory) : memory_(memory) {}
    Table(Table &&) noexcept = default;

    /// The entry, if there is memory for it already; else null, as for an index outside the table.
    template <typename Index> T *find(Index index)
    {
        const std::size_t place = any_place(rows, index);
        return place < entries_.size() ? &entries_[place] : nullptr;
    }

    template <typename Index> T &operator()(Index index)
    {
        const std::size_t place = any_place(rows, index);
        return place < entries_.size() ? entries_[place] : grow(place_in(rows, index));
    }
    template <typename Index> const T &operator()(Index index) const
    {
        if (const std::size_t place = any_place(rows, index); place < entries_.size()) [[likely]]
            return entries_[place];
        place_in(rows, index);
        return initial_value<T>;
    }

  private:
    [[gnu::noinline]] T &grow(std::size_t place)
    {
        constexpr std::size_t all = rows.size();
        const std::size_t enough = std::bit_ceil(place | 63); // rarely much more than needed
        const std::size_t size = 2 * enough > all ? all : enough;
        T *const larger = static_cast<T *>(memory_->allocate(size * sizeof(T), alignof(T)));
        std::uninitialized_value_construct(std::ranges::copy(entries_, larger).out, larger + size);
        entries_ = {larger, size};
        return entries_[place];
    }

    std::pmr::memory_resource *memory_;
    std::span<T> entries_;
};

} // namespace marlogl
