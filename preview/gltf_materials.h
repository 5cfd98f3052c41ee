// The materials of a glTF scene, and the textures that they show.
#pragma once

#include "gltf.h"

#include <map>
#include <tuple>

// From a component as screens take it, 0 to 255, to an amount of light, 0 to 1.
float linear(std::uint8_t component);

// Hands out numbers_ of materials, and makes those that are asked for.
class GltfMaterials {
  public:
    GltfMaterials(const Scene &of, const Textures &with) : scene_(of), textures_(with) {}

    // The index into Gltf::materials. The texture is one as in Run; where it is missing the material is
    // white. Throws std::runtime_error when the texture cannot be encoded.
    std::uint32_t number(std::uint32_t texture, std::array<std::uint8_t, 3> colour, bool double_sided);

    std::vector<GltfMaterial> materials;
    std::vector<GltfImage> images;

  private:
    std::uint32_t image(std::uint32_t bitmap, const std::string &name);

    const Scene &scene_;
    const Textures &textures_;
    std::map<std::tuple<std::uint32_t, std::array<std::uint8_t, 3>, bool>, std::uint32_t> numbers_;
    std::map<std::uint32_t, std::uint32_t> image_numbers_; // by bitmap
};
