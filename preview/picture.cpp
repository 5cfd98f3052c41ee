#include "picture.h"

#include "gl.h"

#include <algorithm>
#include <stdexcept>
#include <string>

void draw_picture(const Offscreen &tile, const Drawing &drawing, const Camera &camera,
                  const Appearance &appearance, int width, int height,
                  const std::function<void(const Picture &)> &take)
{
    Appearance doubled = appearance;
    doubled.thickness *= oversampling;
    int largest[2] = {0, 0};
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, largest);
    if (width * oversampling > largest[0] || height * oversampling > largest[1])
        throw std::runtime_error("the OpenGL driver cannot draw a picture of " + std::to_string(width) + "," +
                                 std::to_string(height) + " pixels");
    const auto row_size = static_cast<std::size_t>(width) * 3;
    for (int top = 0; top < height; top += tile.height) {
        Picture band{width, std::min(tile.height, height - top), {}};
        for (int left = 0; left < width; left += tile.width) {
            drawing.draw(camera, doubled, width * oversampling, height * oversampling, left * oversampling,
                         (height - top - tile.height) * oversampling);
            Picture piece = tile.read();
            if (tile.width == width) {
                band.rgb = std::move(piece.rgb);
                break;
            }
            band.rgb.resize(row_size * static_cast<std::size_t>(band.height));
            const auto stride = static_cast<std::size_t>(tile.width) * 3,
                       at = static_cast<std::size_t>(left) * 3;
            for (std::size_t row = 0; row < static_cast<std::size_t>(band.height); ++row)
                std::copy_n(piece.rgb.data() + row * stride, std::min(stride, row_size - at),
                            band.rgb.data() + row * row_size + at);
        }
        take(band);
    }
}
