#include "png_file.h"

#include <png.h>
#include <zlib.h>

#include <stdexcept>
#include <utility>

namespace {

void append(png_structp png, png_bytep data, png_size_t size)
{
    auto &bytes = *static_cast<std::vector<std::uint8_t> *>(png_get_io_ptr(png));
    bytes.insert(bytes.end(), data, data + size);
}

// False on an error. libpng leaves by longjmp, so nothing with a destructor may live in the steps.
template <class Step> bool succeeds(png_structp png, Step step)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    step();
    return true;
}

} // namespace

struct PngEncoder::State {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    std::vector<std::uint8_t> bytes;

    State() = default;
    ~State() { png_destroy_write_struct(&png, &info); }
    State(const State &) = delete;
    State &operator=(const State &) = delete;

    template <class Step> std::vector<std::uint8_t> bytes_of(Step step)
    {
        if (info == nullptr || !succeeds(png, step))
            throw std::runtime_error("cannot encode the picture as PNG");
        return std::exchange(bytes, {});
    }
};

PngEncoder::PngEncoder(int width, int height) : state(std::make_unique<State>())
{
    state->bytes = state->bytes_of([&] {
        png_structp png = state->png;
        png_set_write_fn(png, &state->bytes, append, nullptr);
        png_set_IHDR(png, state->info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(height), 8,
                     PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                     PNG_FILTER_TYPE_DEFAULT);
        png_set_compression_level(png, 1);
        png_set_compression_strategy(png, Z_RLE); // faster, and no larger
        png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
        png_write_info(png, state->info);
    });
}

PngEncoder::~PngEncoder() = default;

std::vector<std::uint8_t> PngEncoder::add(const Picture &rows)
{
    return state->bytes_of([&] {
        const auto stride = static_cast<std::size_t>(rows.width) * 3;
        for (std::size_t row = 0; row < static_cast<std::size_t>(rows.height); ++row)
            png_write_row(state->png, rows.rgb.data() + row * stride);
    });
}

std::vector<std::uint8_t> PngEncoder::end()
{
    return state->bytes_of([&] { png_write_end(state->png, state->info); });
}
