#include "bmp_file.h"

#include "files.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr std::size_t file_header_size = 14, core_header_size = 12, info_header_size = 40;
constexpr std::size_t masks_at = file_header_size + info_header_size;
constexpr std::uint32_t bit_fields = 3, bit_fields_with_alpha = 6;

using Rgb = std::array<std::uint8_t, 3>;

// What is wrong with the file, to follow its name.
struct Fault {
    std::string text;
};

[[noreturn]] void refuse(const std::string &what)
{
    throw Fault{what};
}

// One colour of a pixel of 16 or 32 bits.
struct Channel {
    unsigned shift = 0;
    std::uint32_t largest = 0; // 0: the pixels have none of this colour

    explicit Channel(std::uint32_t mask = 0)
    {
        if (mask == 0)
            return;
        shift = static_cast<unsigned>(std::countr_zero(mask));
        largest = mask >> shift;
        if ((largest & (largest + 1)) != 0)
            refuse("has bit fields with gaps");
    }

    std::uint8_t of(std::uint32_t pixel) const
    {
        if (largest == 0)
            return 0;
        const std::uint64_t value = pixel >> shift & largest;
        return static_cast<std::uint8_t>((value * 255 + largest / 2) / largest);
    }
};

std::uint32_t little_endian(const std::string &bytes, std::size_t at, std::size_t count)
{
    std::uint32_t value = 0;
    for (std::size_t i = count; i-- > 0;)
        value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return value;
}

class BmpFile {
  public:
    explicit BmpFile(const std::filesystem::path &name) : file_(open_to_read(name))
    {
        std::fseek(file_.get(), 0, SEEK_END);
        file_size_ = static_cast<std::size_t>(std::max(std::ftell(file_.get()), 0L));
        const std::string start = bytes_at(0, std::min(file_size_, masks_at + 12));
        if (!start.starts_with("BM"))
            refuse("is no BMP file");
        if (start.size() < file_header_size + core_header_size)
            refuse("is cut off in its header");
        read_header(start);
        check_format();
        read_channels(start);
        check_extent();
        if (bits_ <= 8)
            read_palette();
    }

    BmpSize size() const { return {width_, height_}; }

    // Strip by strip, so that no more is held than what is left of a picture that is halved.
    Bitmap pixels(int largest) const
    {
        int times = 0;
        while (std::max(width_, height_) >> times > largest)
            ++times;
        const int strip = std::min(1 << times, height_);
        Bitmap bitmap{std::max(width_ >> times, 1), 0, {}};
        bitmap.rgb.reserve(static_cast<std::size_t>(bitmap.width) *
                           static_cast<std::size_t>(std::max(height_ >> times, 1)) * 3);
        for (int bottom = 0; bottom + strip <= height_; bottom += strip) {
            Bitmap rows = rows_from(bottom, strip);
            for (int i = 0; i < times; ++i)
                rows = halved(rows);
            bitmap.rgb.insert(bitmap.rgb.end(), rows.rgb.begin(), rows.rgb.end());
            bitmap.height += rows.height;
        }
        return bitmap;
    }

  private:
    // So many rows of the picture, counted from its lower edge.
    Bitmap rows_from(int bottom, int count) const
    {
        const auto columns = static_cast<std::size_t>(width_);
        Bitmap rows{width_, count, std::vector<std::uint8_t>(columns * static_cast<std::size_t>(count) * 3)};
        std::uint8_t *to = rows.rgb.data();
        for (int row = bottom; row < bottom + count; ++row) {
            const auto in_file = static_cast<std::size_t>(top_down_ ? height_ - 1 - row : row);
            const std::string line = bytes_at(pixels_at_ + in_file * stride(), row_size());
            for (std::size_t x = 0; x < columns; ++x, to += 3)
                std::copy_n(pixel(line, x).data(), 3, to);
        }
        return rows;
    }

    void read_header(const std::string &start)
    {
        pixels_at_ = little_endian(start, 10, 4);
        header_size_ = little_endian(start, 14, 4);
        std::int64_t wide = 0, high = 0; // the height may be the least number of all, which has no opposite
        if (header_size_ == core_header_size) {
            wide = little_endian(start, 18, 2);
            high = little_endian(start, 20, 2);
            bits_ = little_endian(start, 24, 2);
        } else if (header_size_ >= info_header_size && header_size_ <= 124) {
            if (file_size_ < file_header_size + header_size_)
                refuse("is cut off in its header");
            wide = static_cast<std::int32_t>(little_endian(start, 18, 4));
            high = static_cast<std::int32_t>(little_endian(start, 22, 4));
            bits_ = little_endian(start, 28, 2);
            compression_ = little_endian(start, 30, 4);
            colours_ = little_endian(start, 46, 4);
        } else {
            refuse("is no BMP file that can be read: its header has " + std::to_string(header_size_) +
                   " bytes, not 12 or 40 to 124");
        }
        top_down_ = high < 0;
        high = std::abs(high);
        if (wide < 1 || high < 1 || wide > largest_bmp || high > largest_bmp)
            refuse("is of " + std::to_string(wide) + " x " + std::to_string(high) +
                   " pixels; width and height must be from 1 to " + std::to_string(largest_bmp));
        width_ = static_cast<int>(wide);
        height_ = static_cast<int>(high);
    }

    bool has_masks() const { return compression_ == bit_fields || compression_ == bit_fields_with_alpha; }

    void check_format() const
    {
        constexpr std::uint32_t depths[] = {1, 4, 8, 16, 24, 32};
        if (std::find(std::begin(depths), std::end(depths), bits_) == std::end(depths))
            refuse("has " + std::to_string(bits_) + " bits a pixel, not 1, 4, 8, 16, 24 or 32");
        if (compression_ != 0 && !(has_masks() && (bits_ == 16 || bits_ == 32)))
            refuse("is compressed (method " + std::to_string(compression_) +
                   "); save it without compression");
    }

    void read_channels(const std::string &start)
    {
        if (has_masks() && start.size() < masks_at + 12)
            refuse("is cut off in its header");
        if (has_masks())
            for (std::size_t i = 0; i < 3; ++i)
                channels_[i] = Channel(little_endian(start, masks_at + 4 * i, 4));
        else
            channels_ = bits_ == 16 ? std::array{Channel(0x7c00), Channel(0x3e0), Channel(0x1f)}
                                    : std::array{Channel(0xff0000), Channel(0xff00), Channel(0xff)};
    }

    void check_extent() const
    {
        if (pixels_at_ < file_header_size + header_size_)
            refuse("is damaged: its pixels begin at byte " + std::to_string(pixels_at_) +
                   ", inside its header");
        // Some programs leave out what fills the last row up.
        const std::size_t end = pixels_at_ + (static_cast<std::size_t>(height_) - 1) * stride() + row_size();
        if (end > file_size_)
            refuse("is cut off: it has " + std::to_string(file_size_) + " of " + std::to_string(end) +
                   " bytes");
    }

    // Colours that the file leaves out stay black.
    void read_palette()
    {
        const std::size_t entry = header_size_ == core_header_size ? 3 : 4;
        const std::size_t at = file_header_size + header_size_, most = std::size_t{1} << bits_;
        const std::size_t count =
            std::min({colours_ == 0 ? most : colours_, most, (pixels_at_ - at) / entry});
        const std::string bytes = bytes_at(at, count * entry);
        for (std::size_t i = 0; i < count; ++i)
            palette_[i] = channels_of(little_endian(bytes, i * entry, 3));
    }

    Rgb channels_of(std::uint32_t value) const
    {
        return {channels_[0].of(value), channels_[1].of(value), channels_[2].of(value)};
    }

    Rgb pixel(const std::string &line, std::size_t x) const
    {
        if (bits_ > 8)
            return channels_of(little_endian(line, x * bits_ / 8, bits_ / 8));
        const std::size_t in_a_byte = 8 / bits_;
        const auto byte = static_cast<std::uint8_t>(line[x / in_a_byte]);
        const std::size_t from_the_right = in_a_byte - 1 - x % in_a_byte;
        return palette_[byte >> from_the_right * bits_ & ((1u << bits_) - 1)];
    }

    std::size_t row_size() const { return (static_cast<std::size_t>(width_) * bits_ + 7) / 8; }
    std::size_t stride() const { return (row_size() + 3) / 4 * 4; }

    std::string bytes_at(std::size_t at, std::size_t count) const
    {
        std::string bytes(count, '\0');
        if (std::fseek(file_.get(), static_cast<long>(at), SEEK_SET) != 0 ||
            std::fread(bytes.data(), 1, count, file_.get()) != count)
            refuse("cannot be read to its end");
        return bytes;
    }

    File file_;
    std::size_t file_size_ = 0, pixels_at_ = 0, header_size_ = 0;
    int width_ = 0, height_ = 0;
    bool top_down_ = false;
    std::uint32_t bits_ = 0, compression_ = 0, colours_ = 0;
    std::array<Channel, 3> channels_;
    std::array<Rgb, 256> palette_{};
};

template <class Use> auto with_name_in_faults(const std::filesystem::path &file, Use use)
{
    try {
        return use(BmpFile(file));
    } catch (const Fault &fault) {
        throw std::runtime_error(file.string() + " " + fault.text);
    }
}

} // namespace

BmpSize size_of_bmp(const std::filesystem::path &file)
{
    return with_name_in_faults(file, [](const BmpFile &bmp) { return bmp.size(); });
}

Bitmap read_bmp(const std::filesystem::path &file, int largest)
{
    return with_name_in_faults(file, [&](const BmpFile &bmp) { return bmp.pixels(largest); });
}
