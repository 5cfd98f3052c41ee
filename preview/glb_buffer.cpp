#include "glb_buffer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <stdexcept>
#include <utility>

static_assert(std::endian::native == std::endian::little, "numbers are written as they lie in memory");

GlbBuffer::Place GlbBuffer::add_numbers(GlbUse use, std::size_t stride, std::span<const std::uint8_t> bytes)
{
    auto view = std::find_if(views_.begin(), views_.end(), [&](const GlbView &known) {
        return known.use == use && known.stride == stride;
    });
    if (view == views_.end())
        view = views_.insert(view, {use, stride});
    view->pieces.push_back(bytes);
    return {static_cast<std::size_t>(view - views_.begin()),
            std::exchange(view->size, view->size + bytes.size())};
}

std::size_t GlbBuffer::add_picture(std::span<const std::uint8_t> bytes)
{
    views_.push_back({GlbUse::picture, 0, bytes.size(), {bytes}});
    return views_.size() - 1;
}

std::size_t GlbBuffer::size() const
{
    std::size_t sum = 0;
    for (const GlbView &view : views_)
        sum += aligned(view.size);
    return sum;
}

void GlbBuffer::write(const TakeBytes &take) const
{
    constexpr std::array<std::uint8_t, 4> zeros{};
    for (const GlbView &view : views_) {
        for (const auto &piece : view.pieces)
            take(piece);
        take(std::span(zeros).first(aligned(view.size) - view.size));
    }
}

void write_chunks(std::string json, const GlbBuffer &buffer, const TakeBytes &take)
{
    constexpr std::uint32_t magic = 0x46546c67, version = 2, json_chunk = 0x4e4f534a,
                            binary_chunk = 0x004e4942;
    json.resize(aligned(json.size()), ' ');
    const std::size_t buffer_size = buffer.size();
    const std::size_t size = 12 + 8 + json.size() + (buffer_size > 0 ? 8 + buffer_size : 0);
    if (size > std::numeric_limits<std::uint32_t>::max())
        throw std::runtime_error("the scene is too large for a .glb file: it would have " +
                                 std::to_string(size) + " bytes, the most is 4294967295");
    const auto put = [&](std::initializer_list<std::size_t> numbers) {
        std::vector<std::uint32_t> words;
        for (const std::size_t value : numbers)
            words.push_back(static_cast<std::uint32_t>(value));
        take(bytes_of(words));
    };
    put({magic, version, size, json.size(), json_chunk});
    take(bytes_of(json));
    if (buffer_size == 0)
        return;
    put({buffer_size, binary_chunk});
    buffer.write(take);
}
