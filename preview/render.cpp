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
    return primitive == Primitive::points ? GL_POINTS : primitive == Primitive::lines ? GL_LINES : GL_POLYGON;
}

void set(GLenum capability, bool on)
{
    on ? glEnable(capability) : glDisable(capability);
}

void play(const Scene &scene, const Block &block, bool in_white)
{
    constexpr std::uint8_t white[] = {255, 255, 255};
    const Vec3 centre = scene.centre();
    glBegin(mode_of(block.primitive));
    for (std::size_t i = block.first; i < block.first + block.count; ++i) {
        const Vertex &vertex = scene.vertices[i];
        const Vec3 position = vertex.position - centre;
        glColor3ubv(in_white ? white : vertex.colour.data());
        glNormal3d(vertex.normal.x, vertex.normal.y, vertex.normal.z);
        glTexCoord2d(vertex.s, vertex.t);
        glVertex3d(position.x, position.y, position.z);
    }
    glEnd();
}

// Walls are often two faces in one plane, for the inside and the outside: the viewer is to see the one whose
// corners run counter-clockwise for him. The others are drawn a little behind. All faces lie a little behind
// the lines, so that lines on them show.
void draw_both_sides(unsigned list)
{
    glFrontFace(GL_CW); // the written normals point to the viewer of clockwise corners
    glEnable(GL_CULL_FACE);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glCullFace(GL_FRONT);
    glPolygonOffset(1, 1);
    glCallList(list);
    glCullFace(GL_BACK);
    glPolygonOffset(2, 8);
    glCallList(list);
}

} // namespace

Drawing::Drawing(const Scene &scene, const std::vector<Bitmap> &textures, const Appearance &look)
    : appearance(look)
{
    std::vector<unsigned> names;
    for (const Bitmap &bitmap : textures)
        names.push_back(upload_texture(bitmap));
    list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    for (const Block &block : scene.blocks) {
        const bool textured = block.texture != Block::untextured;
        set(GL_LIGHTING, appearance.lit && block.primitive == Primitive::polygon);
        set(GL_TEXTURE_2D, textured);
        if (textured)
            glBindTexture(GL_TEXTURE_2D, names[block.texture]);
        play(scene, block, textured && textures[block.texture].stands_in);
    }
    glEndList();
}

void Drawing::draw(const Camera &camera, int width, int height) const
{
    glViewport(0, 0, width, height);
    const auto [red, green, blue] = appearance.background;
    glClearColor(red, green, blue, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glLineWidth(1.5f * appearance.thickness);
    glPointSize(5 * appearance.thickness);
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(camera.projection.data());
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    place_lights();
    glLoadMatrixd(camera.view.data());
    draw_both_sides(list);
}
