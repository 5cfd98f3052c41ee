#include "glb_buffer.h"

#include <algorithm>
#include <array>
#include <utility>

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

void GlbBuffer::write(const TakeBytes &take) const
{
    constexpr std::array<std::uint8_t, 4> zeros{};
    for (const GlbView &view : views_) {
        for (const auto &piece : view.pieces)
            take(piece);
        take(std::span(zeros).first(aligned(view.size) - view.size));
    }
}
