// The bytes of a .glb file: its two chunks, JSON and a buffer. The buffer has parts that glTF calls views:
// numbers of one kind, or a picture.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

using TakeBytes = std::function<void(std::span<const std::uint8_t>)>;

// The bytes of some numbers, as they lie in memory.
template <class Numbers> std::span<const std::uint8_t> bytes_of(const Numbers &numbers)
{
    return {reinterpret_cast<const std::uint8_t *>(numbers.data()), numbers.size() * sizeof(numbers[0])};
}

// Chunks and views begin at multiples of four bytes.
constexpr std::size_t aligned(std::size_t size)
{
    return (size + 3) / 4 * 4;
}

// How a view is used, by the number that OpenGL has for it.
enum class GlbUse : unsigned { picture = 0, vertices = 34962, indices = 34963 };

struct GlbView {
    GlbUse use = GlbUse::picture;
    std::size_t stride = 0; // the bytes of a vertex or an index
    std::size_t size = 0;
    std::vector<std::span<const std::uint8_t>> pieces = {};
};

// Refers to the bytes that it is given: they must live on.
class GlbBuffer {
  public:
    struct Place {
        std::size_t view, offset;
    };

    // Numbers of the same use and stride share a view.
    Place add_numbers(GlbUse use, std::size_t stride, std::span<const std::uint8_t> bytes);

    // Returns the number of the view.
    std::size_t add_picture(std::span<const std::uint8_t> bytes);

    const std::vector<GlbView> &views() const { return views_; }
    std::size_t size() const; // of all views, each aligned
    void write(const TakeBytes &take) const;

  private:
    std::vector<GlbView> views_;
};

// Writes a whole file; the buffer may be empty. Throws std::runtime_error when it would be too large.
void write_chunks(std::string json, const GlbBuffer &buffer, const TakeBytes &take);
