#include "bitmap.h"

#include <algorithm>

Bitmap halved(const Bitmap &bitmap)
{
    Bitmap half{std::max(bitmap.width / 2, 1), std::max(bitmap.height / 2, 1), {}, bitmap.stands_in};
    half.rgb.reserve(static_cast<std::size_t>(half.width) * static_cast<std::size_t>(half.height) * 3);
    const auto sample = [&](int x, int y, int channel) -> int {
        x = std::min(x, bitmap.width - 1);
        y = std::min(y, bitmap.height - 1);
        return bitmap.rgb[(static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width) +
                           static_cast<std::size_t>(x)) *
                              3 +
                          static_cast<std::size_t>(channel)];
    };
    for (int y = 0; y < half.height * 2; y += 2)
        for (int x = 0; x < half.width * 2; x += 2)
            for (int channel = 0; channel < 3; ++channel)
                half.rgb.push_back(static_cast<std::uint8_t>(
                    (sample(x, y, channel) + sample(x + 1, y, channel) + sample(x, y + 1, channel) +
                     sample(x + 1, y + 1, channel) + 2) /
                    4));
    return half;
}

Bitmap checkerboard()
{
    constexpr int size = 64, square = 8;
    Bitmap board{size, size, {}, true};
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const std::uint8_t green = (x / square + y / square) % 2 == 0 ? 255 : 0;
            board.rgb.insert(board.rgb.end(), {255, green, 255});
        }
    return board;
}
