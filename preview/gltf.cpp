#include "gltf.h"

#include "gltf_mesh.h"

#include <algorithm>
#include <map>
#include <span>

namespace {

// What the scene holds of an object.
struct Share {
    std::vector<std::size_t> faces;           // indices into Scene::faces
    std::vector<std::uint32_t> lines, points; // numbers of vertices; of lines both ends
};

std::vector<Share> shares_of_objects(const Scene &scene)
{
    std::vector<Share> shares(scene.objects.size());
    for (std::size_t i = 0; i < scene.faces.size(); ++i)
        shares[scene.faces[i].object].faces.push_back(i);
    std::size_t object = 0;
    for (const Run &run : scene.runs) {
        if (run.primitive == Primitive::triangles)
            continue;
        for (const std::uint32_t vertex : std::span(scene.corners).subspan(run.first, run.count)) {
            while (vertex >= scene.objects[object].end_vertex)
                ++object;
            Share &share = shares[object];
            (run.primitive == Primitive::lines ? share.lines : share.points).push_back(vertex);
        }
    }
    return shares;
}

class Converter {
  public:
    Converter(const Loaded &from, const GltfStyle &with)
        : loaded_(from), style_(with), sides_(sides_of_faces(from.scene)),
          materials_(from.scene, from.textures)
    {
    }

    Gltf convert()
    {
        const Scene &scene = loaded_.scene;
        gltf_.unit = scene.unit;
        gltf_.unlit = style_.unlit;
        gltf_.equal_faces = static_cast<std::size_t>(std::count(sides_.begin(), sides_.end(), Sides::none));
        const std::vector<Share> shares = shares_of_objects(scene);
        for (std::size_t i = 0; i < shares.size(); ++i)
            if (i > 0 || scene.objects[i].end_vertex > 0)
                add_node(scene.objects[i], shares[i]);
        gltf_.materials = std::move(materials_.materials);
        gltf_.images = std::move(materials_.images);
        gltf_.meshes.resize(mesh_numbers_.size());
        while (!mesh_numbers_.empty()) {
            auto mesh = mesh_numbers_.extract(mesh_numbers_.begin());
            gltf_.meshes[mesh.mapped()] = std::move(mesh.key());
        }
        return std::move(gltf_);
    }

  private:
    void add_node(const SceneObject &object, const Share &share)
    {
        const GltfPlacement placement(object.placement, loaded_.scene.unit);
        const DesignObject *const design = design_object(loaded_, object);
        gltf_.nodes.push_back({object.name,
                               object.number,
                               design != nullptr ? design->kind : std::string_view(),
                               {},
                               placement.translation(),
                               placement.rotation(),
                               placement.scale()});
        GltfMesh mesh = mesh_of(share, placement);
        if (mesh.parts.empty())
            return;
        const auto number = static_cast<std::uint32_t>(mesh_numbers_.size());
        gltf_.nodes.back().mesh = mesh_numbers_.try_emplace(std::move(mesh), number).first->second;
    }

    GltfMesh mesh_of(const Share &share, const GltfPlacement &placement)
    {
        GltfMeshMaker maker(loaded_.scene, materials_, placement);
        for (const std::size_t face : share.faces)
            if (sides_[face] != Sides::none)
                maker.add_face(loaded_.scene.faces[face], sides_[face]);
        for (std::size_t i = 0; i + 1 < share.lines.size(); i += 2)
            maker.add_line(share.lines[i], share.lines[i + 1], style_.solid_lines);
        for (const std::uint32_t point : share.points)
            maker.add_point(point, style_.solid_lines);
        return std::move(maker.mesh);
    }

    const Loaded &loaded_;
    const GltfStyle &style_;
    const std::vector<Sides> sides_;
    GltfMaterials materials_;
    Gltf gltf_;
    std::map<GltfMesh, std::uint32_t> mesh_numbers_; // equal meshes are one
};

} // namespace

Gltf make_gltf(const Loaded &loaded, const GltfStyle &style)
{
    return Converter(loaded, style).convert();
}

void write_report(std::ostream &to, const Gltf &gltf)
{
    std::size_t corners = 0;
    for (const GltfNode &node : gltf.nodes)
        if (node.mesh)
            for (const GltfPart &part : gltf.meshes[*node.mesh].parts)
                corners += part.primitive == Primitive::triangles ? part.indices.size() : 0;
    to << "equal faces left out    " << gltf.equal_faces << '\n'
       << "meshes                  " << gltf.meshes.size() << '\n'
       << "triangles               " << corners / 3 << '\n';
}
