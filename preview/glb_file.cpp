#include "glb_file.h"

#include "glb_json.h"

#include <algorithm>
#include <list>

namespace {

class Writer {
  public:
    explicit Writer(const Gltf &from) : gltf_(from)
    {
        json_["asset"]["version"] = "2.0";
        json_["asset"]["generator"] = "marlogl-preview " MARLOGL_PREVIEW_VERSION;
        json_["scene"] = 0;
        json_["scenes"][0]["nodes"][0] = 0;
        if (gltf_.unlit && !gltf_.materials.empty())
            json_["extensionsUsed"][0] = "KHR_materials_unlit";
        add_nodes();
        for (const GltfMesh &mesh : gltf_.meshes)
            add_mesh(mesh);
        for (const GltfMaterial &material : gltf_.materials)
            add_material(material);
        for (const GltfImage &image : gltf_.images)
            add_image(image);
        add_views();
    }

    void write(const TakeBytes &take) const { write_chunks(json_.dump(), buffer_, take); }

  private:
    // The first node is the root: there y is up and a unit is a metre.
    void add_nodes()
    {
        const Json unit = number(gltf_.unit), minus_unit = number(-gltf_.unit);
        Json &nodes = json_["nodes"];
        nodes[0]["name"] = "scene";
        nodes[0]["matrix"] = {unit, 0, 0, 0, 0, 0, minus_unit, 0, 0, unit, 0, 0, 0, 0, 0, 1};
        for (const GltfNode &each : gltf_.nodes) {
            nodes[0]["children"].push_back(nodes.size());
            Json node = Json::object();
            if (!each.name.empty())
                node["name"] = in_utf8(each.name);
            if (each.mesh)
                node["mesh"] = *each.mesh;
            if (each.translation != GltfNode{}.translation)
                node["translation"] = list_of(each.translation);
            if (each.rotation != GltfNode{}.rotation)
                node["rotation"] = list_of(each.rotation);
            if (each.scale != 1)
                node["scale"] = list_of(std::array{each.scale, each.scale, each.scale});
            node["extras"]["number"] = each.number;
            if (!each.kind.empty())
                node["extras"]["kind"] = each.kind;
            nodes.push_back(std::move(node));
        }
    }

    void add_mesh(const GltfMesh &mesh)
    {
        std::array<Json, 3> attributes; // by outfit
        for (std::size_t outfit = 0; outfit < attributes.size(); ++outfit) {
            const auto &[positions, normals, texture_points] = mesh.vertices[outfit];
            if (positions.empty())
                continue;
            attributes[outfit]["POSITION"] = add_vertices(positions, "VEC3");
            add_bounds(positions);
            if (!normals.empty())
                attributes[outfit]["NORMAL"] = add_vertices(normals, "VEC3");
            if (!texture_points.empty())
                attributes[outfit]["TEXCOORD_0"] = add_vertices(texture_points, "VEC2");
        }
        Json parts = Json::array();
        for (const GltfPart &part : mesh.parts) {
            const auto outfit = static_cast<std::size_t>(part.outfit);
            Json entry;
            entry["attributes"] = attributes[outfit];
            entry["indices"] = add_indices(part.indices, mesh.vertices[outfit].positions.size());
            entry["material"] = part.material;
            if (part.primitive != Primitive::triangles)
                entry["mode"] = part.primitive == Primitive::lines ? 1 : 0;
            parts.push_back(std::move(entry));
        }
        json_["meshes"].emplace_back()["primitives"] = std::move(parts);
    }

    template <class Values> std::size_t add_vertices(const Values &values, const char *type)
    {
        constexpr unsigned floats = 5126;
        const auto place = buffer_.add_numbers(GlbUse::vertices, sizeof(values[0]), bytes_of(values));
        return add_accessor(place, floats, values.size(), type);
    }

    void add_bounds(const std::vector<std::array<float, 3>> &positions)
    {
        auto lowest = positions.front(), highest = lowest;
        for (const auto &position : positions)
            for (std::size_t i = 0; i < 3; ++i) {
                lowest[i] = std::min(lowest[i], position[i]);
                highest[i] = std::max(highest[i], position[i]);
            }
        json_["accessors"].back()["min"] = list_of(lowest);
        json_["accessors"].back()["max"] = list_of(highest);
    }

    std::size_t add_indices(const std::vector<std::uint32_t> &indices, std::size_t vertices)
    {
        constexpr unsigned shorts = 5123, integers = 5125;
        constexpr std::size_t most_short = 0xffff; // vertices; the number 0xffff itself means something else
        const auto add = [&](const auto &numbers, unsigned component) {
            const auto place = buffer_.add_numbers(GlbUse::indices, sizeof(numbers[0]), bytes_of(numbers));
            return add_accessor(place, component, numbers.size(), "SCALAR");
        };
        if (vertices > most_short)
            return add(indices, integers);
        return add(short_indices_.emplace_back(indices.begin(), indices.end()), shorts);
    }

    std::size_t add_accessor(GlbBuffer::Place place, unsigned component, std::size_t count, const char *type)
    {
        Json &accessor = json_["accessors"].emplace_back();
        accessor["bufferView"] = place.view;
        accessor["byteOffset"] = place.offset;
        accessor["componentType"] = component;
        accessor["count"] = count;
        accessor["type"] = type;
        return json_["accessors"].size() - 1;
    }

    void add_material(const GltfMaterial &material)
    {
        Json &entry = json_["materials"].emplace_back();
        if (!material.name.empty())
            entry["name"] = in_utf8(material.name);
        Json &surface = entry["pbrMetallicRoughness"];
        surface["baseColorFactor"] = list_of(material.colour);
        surface["baseColorFactor"].push_back(1);
        if (material.image)
            surface["baseColorTexture"]["index"] = *material.image;
        surface["metallicFactor"] = 0;
        surface["roughnessFactor"] = 1;
        if (material.double_sided)
            entry["doubleSided"] = true;
        if (gltf_.unlit)
            entry["extensions"]["KHR_materials_unlit"] = Json::object();
    }

    void add_image(const GltfImage &image)
    {
        if (json_["samplers"].empty()) {
            constexpr int repeat = 10497, linear = 9729, linear_mipmaps = 9987;
            Json &sampler = json_["samplers"].emplace_back();
            sampler["magFilter"] = linear;
            sampler["minFilter"] = linear_mipmaps;
            sampler["wrapS"] = repeat;
            sampler["wrapT"] = repeat;
        }
        Json &texture = json_["textures"].emplace_back();
        texture["sampler"] = 0;
        texture["source"] = json_["images"].size();
        Json &entry = json_["images"].emplace_back();
        if (!image.name.empty())
            entry["name"] = in_utf8(image.name);
        entry["mimeType"] = "image/png";
        entry["bufferView"] = buffer_.add_picture(image.png);
    }

    void add_views()
    {
        std::size_t offset = 0;
        for (const GlbView &view : buffer_.views()) {
            Json &entry = json_["bufferViews"].emplace_back();
            entry["buffer"] = 0;
            entry["byteOffset"] = offset;
            entry["byteLength"] = view.size;
            if (view.use == GlbUse::vertices)
                entry["byteStride"] = view.stride;
            if (view.use != GlbUse::picture)
                entry["target"] = view.use;
            offset += aligned(view.size);
        }
        if (offset > 0)
            json_["buffers"][0]["byteLength"] = offset;
    }

    const Gltf &gltf_;
    Json json_;
    GlbBuffer buffer_;
    std::list<std::vector<std::uint16_t>> short_indices_;
};

} // namespace

void write_glb(const Gltf &gltf, const TakeBytes &take)
{
    Writer(gltf).write(take);
}
