#include "textures.h"

#include "bmp_file.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string joined(const std::vector<fs::path> &folders)
{
    std::string text;
    for (const fs::path &folder : folders)
        text += (text.empty() ? "" : ", ") + folder.string();
    return text;
}

// The largest edge, a power of two, with which bitmaps of these sizes fit into memory together.
int largest_edge_for(const std::vector<BmpSize> &sizes)
{
    for (int edge = largest_bmp; edge > 1; edge /= 2) {
        std::size_t pixels = 0;
        for (BmpSize size : sizes) {
            for (; std::max(size.width, size.height) > edge; size.width /= 2, size.height /= 2)
                ;
            pixels += static_cast<std::size_t>(std::max(size.width, 1)) *
                      static_cast<std::size_t>(std::max(size.height, 1));
        }
        if (pixels <= most_texture_pixels)
            return edge;
    }
    return 1;
}

// Gives every name the number of its file.
class TextureLoader {
  public:
    TextureLoader(FileFinder &in, Problems &to) : finder_(in), problems_(to) {}

    Textures load(const std::vector<TextureName> &names)
    {
        for (const TextureName &texture : names) {
            const std::uint32_t number = number_of(texture);
            textures_.of_name.push_back(number);
            textures_.missing += number == 0;
        }
        textures_.bitmaps.push_back(checkerboard());
        const int edge = largest_edge_for(sizes_);
        if (edge < largest_bmp)
            problems_.add(0, "the textures are too large together; they are shown at " +
                                 std::to_string(edge) + " pixels or less");
        for (const fs::path &file : files_)
            textures_.bitmaps.push_back(read_bmp(file, edge));
        return std::move(textures_);
    }

  private:
    // 0 where there is no bitmap.
    std::uint32_t number_of(const TextureName &texture)
    {
        const std::string quoted = "texture \"" + texture.name + '"';
        const auto file = finder_.find(texture.name);
        if (!file) {
            problems_.add(texture.line,
                          quoted + " is missing; it was looked for in " + joined(finder_.places()));
            return 0;
        }
        const auto known = numbers_.try_emplace(file->lexically_normal(), 0).first;
        if (known->second == 0)
            try {
                known->second = add(*file);
            } catch (const std::exception &error) {
                problems_.add(texture.line, quoted + ": " + error.what());
            }
        return known->second;
    }

    std::uint32_t add(const fs::path &file)
    {
        if (files_.size() == most_bitmaps)
            throw std::runtime_error("more than " + std::to_string(most_bitmaps) +
                                     " bitmaps cannot be shown");
        sizes_.push_back(size_of_bmp(file));
        files_.push_back(file);
        return static_cast<std::uint32_t>(files_.size());
    }

    FileFinder &finder_;
    Problems &problems_;
    Textures textures_;
    std::map<fs::path, std::uint32_t> numbers_;
    std::vector<fs::path> files_;
    std::vector<BmpSize> sizes_;
};

} // namespace

Textures load_textures(const std::vector<TextureName> &names, FileFinder &finder, Problems &problems)
{
    return TextureLoader(finder, problems).load(names);
}
