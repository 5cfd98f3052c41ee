#include "arrays.h"

#include "gl.h"

Arrays::Arrays(const Mesh &mesh)
{
    glGenBuffers(array_count, buffers_.data());
    upload(points, mesh.points);
    upload(shadows, mesh.shadows);
    upload(texture_points, mesh.texture_points);
    for (std::size_t light = 0; light < mesh.colours.size(); ++light)
        upload(colours + light, mesh.colours[light]);
}

Arrays::~Arrays()
{
    glDeleteBuffers(array_count, buffers_.data());
}

void Arrays::upload(std::size_t array, const auto &elements) const
{
    glBindBuffer(GL_ARRAY_BUFFER, buffers_[array]);
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(elements.size() * sizeof elements[0]),
                 elements.data(), GL_STATIC_DRAW);
}

void Arrays::use_places(Array array) const
{
    glBindBuffer(GL_ARRAY_BUFFER, buffers_[array]);
    glVertexPointer(3, GL_FLOAT, 0, nullptr);
    glEnableClientState(GL_VERTEX_ARRAY);
}

void Arrays::use_texture_points() const
{
    glBindBuffer(GL_ARRAY_BUFFER, buffers_[texture_points]);
    glTexCoordPointer(2, GL_FLOAT, 0, nullptr);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
}

void Arrays::use_colours(Light light) const
{
    glBindBuffer(GL_ARRAY_BUFFER, buffers_[colours + static_cast<std::size_t>(light)]);
    glColorPointer(4, GL_UNSIGNED_BYTE, 0, nullptr);
    glEnableClientState(GL_COLOR_ARRAY);
}
