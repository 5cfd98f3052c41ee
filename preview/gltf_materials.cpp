#include "gltf_materials.h"

#include "png_file.h"

#include <cmath>

namespace {

constexpr std::array<std::uint8_t, 3> white{255, 255, 255};

// The rows of a bitmap begin at the bottom, those of a picture at the top.
Picture upside_down(const Bitmap &bitmap)
{
    Picture picture{bitmap.width, bitmap.height, {}};
    const auto stride = static_cast<std::ptrdiff_t>(bitmap.width) * 3;
    for (auto row = bitmap.rgb.end(); row != bitmap.rgb.begin(); row -= stride)
        picture.rgb.insert(picture.rgb.end(), row - stride, row);
    return picture;
}

std::vector<std::uint8_t> png_of(const Bitmap &bitmap)
{
    PngEncoder png(bitmap.width, bitmap.height);
    std::vector<std::uint8_t> bytes;
    for (const auto &more : {png.add(upside_down(bitmap)), png.end()})
        bytes.insert(bytes.end(), more.begin(), more.end());
    return bytes;
}

std::string name_of(std::array<std::uint8_t, 3> colour)
{
    return std::to_string(colour[0]) + ' ' + std::to_string(colour[1]) + ' ' + std::to_string(colour[2]);
}

} // namespace

float linear(std::uint8_t component)
{
    const double value = component / 255.0;
    return static_cast<float>(value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4));
}

std::uint32_t GltfMaterials::number(std::uint32_t texture, std::array<std::uint8_t, 3> colour,
                                    bool double_sided)
{
    const bool is_textured = texture != Run::untextured;
    const bool is_missing = is_textured && textures_.of_name[texture] == 0;
    if (is_missing)
        colour = white;
    const auto next = static_cast<std::uint32_t>(materials.size());
    const auto [known, is_new] = numbers_.try_emplace({texture, colour, double_sided}, next);
    if (is_new) {
        GltfMaterial material{name_of(colour), {}, {}, double_sided};
        for (std::size_t i = 0; i < colour.size(); ++i)
            material.colour[i] = linear(colour[i]);
        if (is_textured)
            material.name = scene_.textures[texture].name;
        if (is_textured && !is_missing)
            material.image = image(textures_.of_name[texture], material.name);
        materials.push_back(std::move(material));
    }
    return known->second;
}

std::uint32_t GltfMaterials::image(std::uint32_t bitmap, const std::string &name)
{
    const auto [known, is_new] =
        image_numbers_.try_emplace(bitmap, static_cast<std::uint32_t>(images.size()));
    if (is_new)
        images.push_back({name, png_of(textures_.bitmaps[bitmap])});
    return known->second;
}
