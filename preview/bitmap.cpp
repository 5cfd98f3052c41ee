#include "bitmap.h"

#include "files.h"

#include <algorithm>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_BMP
#define STBI_NO_STDIO
#define STBI_MAX_DIMENSIONS 8192
#include <stb_image.h>

std::optional<Bitmap> read_bmp(const std::filesystem::path &file)
{
    const std::optional<std::string> bytes = read_file(file);
    if (!bytes || bytes->size() > 1u << 30)
        return {};
    int width = 0, height = 0, channels = 0;
    stbi_set_flip_vertically_on_load(1);
    stbi_uc *const pixels =
        stbi_load_from_memory(reinterpret_cast<const stbi_uc *>(bytes->data()),
                              static_cast<int>(bytes->size()), &width, &height, &channels, 3);
    if (pixels == nullptr)
        return {};
    const std::size_t size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3;
    Bitmap bitmap{width, height, std::vector<std::uint8_t>(pixels, pixels + size), false};
    stbi_image_free(pixels);
    return bitmap;
}

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
