// The host window's list boxes: ordered lists of texts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace marlogl {

/// An ordered list of texts, numbered from 0 in the order of their adding.
class ListBox {
  public:
    void clear()
    {
        texts_.clear();
        ends_.clear();
    }

    void add(std::string_view text)
    {
        texts_ += text;
        ends_.push_back(texts_.size());
    }

    std::size_t count() const { return ends_.size(); }

    /// The text of entry `i`, 0 to count() - 1; valid until the next add or clear.
    std::string_view text(std::size_t i) const
    {
        const std::size_t start = i == 0 ? 0 : ends_[i - 1];
        return std::string_view(texts_).substr(start, ends_[i] - start);
    }

  private:
    std::string texts_; // all entries, one after the other
    std::vector<std::size_t> ends_;
};

} // namespace marlogl
