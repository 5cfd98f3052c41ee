// Which face a ray meets first.
#pragma once

#include "camera.h"

struct Hit {
    std::size_t face; // index into Scene::faces
    Vec3 point;
};

// Nothing when the ray meets no face. Faces have no inside: they are met from both sides.
std::optional<Hit> pick(const Scene &scene, const Ray &ray);
