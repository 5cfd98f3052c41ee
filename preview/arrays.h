// What a mesh holds of each vertex, in the memory of OpenGL. A context must be current for every call.
#pragma once

#include "mesh.h"

class Arrays {
  public:
    explicit Arrays(const Mesh &mesh);
    ~Arrays();
    Arrays(const Arrays &) = delete;
    Arrays &operator=(const Arrays &) = delete;

    // What glDrawElements draws from then on.
    void use_points() const { use_places(points); }
    void use_shadows() const { use_places(shadows); }
    void use_texture_points() const;
    void use_colours(Light light) const;

  private:
    enum Array { points, shadows, texture_points, colours, array_count = colours + 3 };

    void upload(std::size_t array, const auto &elements) const;
    void use_places(Array array) const;

    std::array<unsigned, array_count> buffers_{};
};
