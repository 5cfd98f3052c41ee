#include "render.h"

#include <GL/gl.h>

#include <algorithm>
#include <tuple>

namespace {

unsigned upload_texture(const Bitmap &bitmap)
{
    unsigned name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    int largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    Bitmap level = bitmap;
    while (std::max(level.width, level.height) > largest)
        level = halved(level);
    for (int number = 0;; ++number) {
        glTexImage2D(GL_TEXTURE_2D, number, GL_RGB, level.width, level.height, 0, GL_RGB, GL_UNSIGNED_BYTE,
                     level.rgb.data());
        if (level.width == 1 && level.height == 1)
            return name;
        level = halved(level);
    }
}

// Two lamps that go with the camera: one over its left shoulder, a weak one from the right.
void place_lights()
{
    constexpr float ambient[] = {0.4f, 0.4f, 0.4f, 1}, black[] = {0, 0, 0, 1};
    constexpr float key[] = {0.6f, 0.6f, 0.6f, 1}, from_upper_left[] = {-0.5f, 0.7f, 1, 0};
    constexpr float fill[] = {0.25f, 0.25f, 0.25f, 1}, from_right[] = {1, -0.2f, 0.4f, 0};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
    for (const auto &[lamp, strength, direction] : {
             std::tuple{GL_LIGHT0, key,  from_upper_left},
             std::tuple{GL_LIGHT1, fill, from_right     }
    }) {
        glLightfv(static_cast<GLenum>(lamp), GL_DIFFUSE, strength);
        glLightfv(static_cast<GLenum>(lamp), GL_SPECULAR, black);
        glLightfv(static_cast<GLenum>(lamp), GL_POSITION, direction);
        glEnable(static_cast<GLenum>(lamp));
    }
    glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
    glEnable(GL_COLOR_MATERIAL);
    glEnable(GL_NORMALIZE);
}

GLenum mode_of(Primitive primitive)
{
    return primitive == Primitive::points  ? GL_POINTS
           : primitive == Primitive::lines ? GL_LINES
                                           : GL_TRIANGLES;
}

void set(GLenum capability, bool on)
{
    on ? glEnable(capability) : glDisable(capability);
}

} // namespace

Drawing::Drawing(const Scene &shown, const Textures &textures) : scene(shown)
{
    for (const Bitmap &bitmap : textures.bitmaps)
        texture_names.push_back(upload_texture(bitmap));
    for (const std::uint32_t number : textures.of_name)
        paints.push_back({texture_names[number], textures.bitmaps[number].stands_in});
    const Vec3 centre = scene.centre();
    corners.reserve(scene.vertices.size());
    for (const auto &[position, normal, s, t, colour] : scene.vertices) {
        const Vec3 at = position - centre;
        corners.push_back({
            {static_cast<float>(at.x), static_cast<float>(at.y), static_cast<float>(at.z)},
            normal,
            {              s,                       t                        },
            { colour[0],                     colour[1],                                             colour[2],                 255}
        });
    }
}

Drawing::~Drawing()
{
    glDeleteTextures(static_cast<int>(texture_names.size()), texture_names.data());
}

void Drawing::draw(const Camera &camera, const Appearance &appearance, int width, int height, int left,
                   int bottom) const
{
    // The viewport may reach beyond the framebuffer: all parts of a picture are of one projection, and lines
    // and points at their borders are cut by the framebuffer only.
    glViewport(-left, -bottom, width, height);
    const auto [red, green, blue] = appearance.background;
    glClearColor(red, green, blue, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glLineWidth(1.5f * appearance.thickness);
    glPointSize(5 * appearance.thickness);
    const Matrices matrices =
        matrices_of(camera, static_cast<double>(width) / height, scene.centre(), scene.lowest, scene.highest);
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(matrices.projection.data());
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    place_lights();
    glLoadMatrixd(matrices.view.data());
    draw_both_sides(appearance.lit);
}

// Walls are often two faces in one plane, for the inside and the outside: the viewer is to see the one whose
// corners run counter-clockwise for him. The others are drawn a little behind. All faces lie a little behind
// the lines, so that lines on them show.
void Drawing::draw_both_sides(bool lit) const
{
    glFrontFace(GL_CW); // the written normals point to the viewer of clockwise corners
    glEnable(GL_CULL_FACE);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glCullFace(GL_FRONT);
    glPolygonOffset(1, 1);
    draw_runs(lit);
    glCullFace(GL_BACK);
    glPolygonOffset(2, 8);
    draw_runs(lit);
}

void Drawing::draw_runs(bool lit) const
{
    if (corners.empty())
        return;
    constexpr int step = sizeof(Corner);
    constexpr std::size_t most_at_once = 6 << 13; // whole lines and triangles
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_TEXTURE_COORD_ARRAY})
        glEnableClientState(array);
    glVertexPointer(3, GL_FLOAT, step, corners.front().position.data());
    glNormalPointer(GL_FLOAT, step, corners.front().normal.data());
    glTexCoordPointer(2, GL_FLOAT, step, corners.front().texture_point.data());
    glColorPointer(4, GL_UNSIGNED_BYTE, step, corners.front().colour.data());
    std::size_t queued = 0; // draws and corners; drivers keep them all until they are finished
    for (const Run &run : scene.runs) {
        const bool textured = run.texture != Run::untextured;
        const bool in_white = textured && paints[run.texture].in_white;
        set(GL_LIGHTING, lit && run.primitive == Primitive::triangles);
        set(GL_TEXTURE_2D, textured);
        if (textured)
            glBindTexture(GL_TEXTURE_2D, paints[run.texture].name);
        in_white ? glDisableClientState(GL_COLOR_ARRAY) : glEnableClientState(GL_COLOR_ARRAY);
        glColor3ub(255, 255, 255);
        for (std::size_t done = 0; done < run.count; done += most_at_once) {
            const std::size_t count = std::min(run.count - done, most_at_once);
            glDrawElements(mode_of(run.primitive), static_cast<int>(count), GL_UNSIGNED_INT,
                           &scene.corners[run.first + done]);
            queued += 50 + count;
            if (queued > most_at_once) {
                glFinish();
                queued = 0;
            }
        }
    }
}
