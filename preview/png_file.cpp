#include "png_file.h"

#include <png.h>

#include <stdexcept>

namespace {

void append(png_structp png, png_bytep data, png_size_t size)
{
    auto &bytes = *static_cast<std::vector<std::uint8_t> *>(png_get_io_ptr(png));
    bytes.insert(bytes.end(), data, data + size);
}

// False on an error. libpng leaves by longjmp, so nothing with a destructor may live in here.
bool write_png(png_structp png, png_infop info, const Picture &picture)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    const auto width = static_cast<png_uint_32>(picture.width),
               height = static_cast<png_uint_32>(picture.height);
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_compression_level(png, 3);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    png_write_info(png, info);
    for (std::size_t row = 0; row < height; ++row)
        png_write_row(png, picture.rgb.data() + row * width * 3);
    png_write_end(png, info);
    return true;
}

} // namespace

std::vector<std::uint8_t> encode_png(const Picture &picture)
{
    std::vector<std::uint8_t> bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    bool written = false;
    if (info != nullptr) {
        png_set_write_fn(png, &bytes, append, nullptr);
        written = write_png(png, info, picture);
    }
    png_destroy_write_struct(&png, &info);
    if (!written)
        throw std::runtime_error("cannot encode the picture as PNG");
    return bytes;
}
