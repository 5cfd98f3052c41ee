// The mesh of one object.
#pragma once

#include "gltf.h"
#include "gltf_materials.h"
#include "gltf_placement.h"
#include "twins.h"

#include <map>
#include <tuple>

// Collects what an object consists of, in the object's own coordinates.
class GltfMeshMaker {
  public:
    GltfMeshMaker(const Scene &of, GltfMaterials &with, const GltfPlacement &at)
        : scene_(of), materials_(with), placement_(at)
    {
    }

    // The face must have a side. It has the colour of its first corner.
    void add_face(const Face &face, Sides sides);

    // By the numbers of their vertices. A line has the colour of its second end.
    void add_line(std::uint32_t from, std::uint32_t to, bool solid);
    void add_point(std::uint32_t at, bool solid);

    GltfMesh mesh;

  private:
    std::vector<std::uint32_t> &indices(Primitive primitive, Outfit outfit, std::uint32_t material);
    GltfVertices &vertices(Outfit outfit) { return mesh.vertices[static_cast<std::size_t>(outfit)]; }
    Vec3 own(std::uint32_t vertex) const { return placement_.own(scene_.vertices[vertex].position); }
    std::uint32_t plain_material(std::uint32_t vertex, bool double_sided);
    void add_bare(Primitive primitive, std::uint32_t vertex, std::uint32_t material);

    const Scene &scene_;
    GltfMaterials &materials_;
    const GltfPlacement &placement_;
    std::map<std::tuple<Primitive, Outfit, std::uint32_t>, std::size_t> part_numbers_;
};
