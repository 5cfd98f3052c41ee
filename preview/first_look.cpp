#include "first_look.h"

#include "base/letters.h"

#include <stdexcept>

namespace {

const SceneObject &find_object(const Loaded &loaded, const std::string &wanted)
{
    const auto &objects = loaded.scene.objects;
    for (const SceneObject &object : objects)
        if (object.number > 0 && std::to_string(object.number) == wanted)
            return object;
    for (const SceneObject &object : objects)
        if (object.number > 0 && marlogl::same_letters(object.name, wanted))
            return object;
    std::string has = objects.size() == 1 ? "none"
                                          : std::to_string(objects[1].number) + " to " +
                                                std::to_string(objects.back().number);
    throw std::runtime_error(loaded.file + ": there is no object \"" + wanted + "\"; the objects are " + has);
}

} // namespace

Camera first_camera(const Loaded &loaded, const FirstLook &look, double aspect)
{
    const Scene &scene = loaded.scene;
    std::span<const Vertex> framed = scene.vertices;
    if (!look.object.empty()) {
        const SceneObject &object = find_object(loaded, look.object);
        framed = framed.subspan(object.first_vertex, object.end_vertex - object.first_vertex);
        if (framed.empty())
            throw std::runtime_error(loaded.file + ": there is nothing to see of object " +
                                     std::to_string(object.number) + " \"" + object.name + '"');
    }
    Camera camera = frame(framed, look.direction, look.lens, aspect);
    const auto in_the_scene = [&](const std::array<double, 3> &point) {
        return Vec3{point[0], point[1], point[2]} * scene.unit;
    };
    if (look.focal_point)
        camera.focal_point = in_the_scene(*look.focal_point);
    if (look.position)
        camera.stand_at(in_the_scene(*look.position));
    camera.lens.tan_y /= look.zoom;
    return camera;
}
