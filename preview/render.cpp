#include "render.h"

#include "gl.h"
#include "gl_textures.h"
#include "light.h"
#include "other_sides.h"

#include <algorithm>

namespace {

// From the horizon below to the zenith above, where nothing is drawn yet. It is tested against the depths as
// lines are, for which drivers without a graphics card then need nothing of their own.
void draw_sky()
{
    for (const GLenum matrix : {GLenum{GL_PROJECTION}, GLenum{GL_MODELVIEW}}) {
        glMatrixMode(matrix);
        glLoadIdentity();
    }
    constexpr double farthest = 1;
    glBegin(GL_QUADS);
    glColor3ub(214, 219, 216);
    glVertex3d(-1, -1, farthest);
    glVertex3d(1, -1, farthest);
    glColor3ub(110, 150, 196);
    glVertex3d(1, 1, farthest);
    glVertex3d(-1, 1, farthest);
    glEnd();
}

// `behind` is how much farther away, in depths from -1 to 1, everything then is.
void load(Matrices matrices, double behind = 0)
{
    for (std::size_t column = 0; column < 16; column += 4)
        matrices.projection[column + 2] += behind * matrices.projection[column + 3];
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(matrices.projection.data());
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(matrices.view.data());
}

// What is drawn then leaves so much of the light that is there, whatever its own colour.
void begin_darkening(float red, float green, float blue)
{
    glEnable(GL_BLEND);
    glBlendColor(red, green, blue, 1);
    glBlendFunc(GL_ZERO, GL_CONSTANT_COLOR);
    glDepthMask(GL_FALSE);
}

void end_darkening()
{
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
}

void append(std::vector<std::uint32_t> &corners, const Scene &scene, const Face &face)
{
    const auto first = scene.corners.begin() + static_cast<std::ptrdiff_t>(face.first);
    corners.insert(corners.end(), first, first + static_cast<std::ptrdiff_t>(face.count));
}

} // namespace

Drawing::Drawing(const Scene &shown, const Textures &textures) : scene(shown)
{
    const Filter filter = usable_filter();
    for (const Bitmap &bitmap : textures.bitmaps)
        texture_names.push_back(upload_texture(bitmap, filter));
    texture_names.push_back(upload_texture({2, 2, std::vector<std::uint8_t>(12, 255)}, filter));
    std::vector<bool> in_white;
    for (const std::uint32_t number : textures.of_name) {
        texture_of.push_back(texture_names[number]);
        in_white.push_back(textures.bitmaps[number].stands_in);
    }
    mesh = make_mesh(scene, in_white);
    arrays = std::make_unique<Arrays>(mesh);
}

Drawing::~Drawing()
{
    glDeleteTextures(static_cast<int>(texture_names.size()), texture_names.data());
}

// What has no texture gets a white one: drivers without a graphics card compile what draws a face anew for
// every kind of it, which takes longer than drawing.
void Drawing::use_texture(std::uint32_t number) const
{
    glBindTexture(GL_TEXTURE_2D, number == Run::untextured ? texture_names.back() : texture_of[number]);
}

void Drawing::draw_elements(unsigned mode, const std::vector<std::uint32_t> &corners) const
{
    constexpr std::size_t most_at_once = 6 << 13; // whole lines and triangles
    for (std::size_t done = 0; done < corners.size(); done += most_at_once) {
        if (done > 0)
            glFinish(); // drivers keep all that is queued
        glDrawElements(mode, static_cast<int>(std::min(corners.size() - done, most_at_once)), GL_UNSIGNED_INT,
                       &corners[done]);
    }
}

void Drawing::draw(const Camera &camera, const Appearance &appearance, int width, int height, int left,
                   int bottom) const
{
    // The viewport may reach beyond the framebuffer: all parts of a picture are of one projection, and lines
    // and points at their borders are cut by the framebuffer only.
    glViewport(-left, -bottom, width, height);
    const auto [red, green, blue] = appearance.background.value_or(Colour{});
    glClearColor(red, green, blue, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    const bool with_shadows = appearance.lit && appearance.shadows && camera.position().z > 0;
    Bounds seen{scene.lowest, scene.highest}; // and shadows and grid on the ground
    for (const Vec3 corner : {shadow_of(scene.lowest), shadow_of(scene.highest)})
        seen = {
            {std::min(seen.lowest.x,  corner.x), std::min(seen.lowest.y,  corner.y),
             std::min(seen.lowest.z,  0.0)},
            {std::max(seen.highest.x, corner.x), std::max(seen.highest.y, corner.y),
             std::max(seen.highest.z, 0.0)}
        };
    const Matrices matrices =
        matrices_of(camera, static_cast<double>(width) / height, scene.centre(), seen.lowest, seen.highest);
    load(matrices);
    const Vec3 back = axes_of(camera.direction).back;
    const auto towards = faces_towards(mesh, scene, camera.lens.orthographic ? back : camera.position(),
                                       camera.lens.orthographic);

    constexpr float usual_height = 600;
    const float thickness = appearance.thickness,
                scale = static_cast<float>(std::min<double>(height, width / 1.5)) / thickness / usual_height;
    arrays->use_points();
    arrays->use_texture_points();
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    // All faces lie a little behind the lines and the shadows, so that these show.
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(1, 4);
    draw_ground(towards, appearance.lit);
    draw_faces(towards, appearance.lit, matrices);
    glDisable(GL_POLYGON_OFFSET_FILL);
    glDisable(GL_TEXTURE_2D);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    if (!appearance.background) {
        draw_sky();
        load(matrices);
    }
    arrays->use_colours(Light::none);
    if (appearance.edges) {
        glLineWidth(std::max(0.75f, scale) * thickness);
        draw_edges(towards);
    }
    glLineWidth(std::max(1.0f, 1.5f * scale) * thickness);
    draw_elements(GL_LINES, mesh.lines);
    glPointSize(std::max(3.0f, 5 * scale) * thickness);
    draw_elements(GL_POINTS, mesh.dots);
    if (with_shadows)
        draw_shadows();
    glDisableClientState(GL_COLOR_ARRAY);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

// From below upwards: what comes later is seen, whatever the depths say.
void Drawing::draw_ground(const std::vector<bool> &towards, bool lit) const
{
    glDepthFunc(GL_ALWAYS);
    std::vector<std::uint32_t> corners;
    for (const Light side : {Light::clockwise, Light::counter_clockwise}) {
        arrays->use_colours(lit ? side : Light::none);
        for (std::size_t i = 0; i < mesh.on_ground.size(); ++i) {
            const Face &face = scene.faces[mesh.on_ground[i]];
            if (towards[mesh.on_ground[i]] == (side == Light::counter_clockwise))
                append(corners, scene, face);
            const bool last =
                i + 1 == mesh.on_ground.size() || scene.faces[mesh.on_ground[i + 1]].texture != face.texture;
            if (!last || corners.empty())
                continue;
            use_texture(face.texture);
            draw_elements(GL_TRIANGLES, corners);
            corners.clear();
        }
    }
    glDepthFunc(GL_LEQUAL);
}

// Walls are often two faces in one plane, for the inside and the outside: the viewer is to see the one whose
// corners run counter-clockwise for him. The others are drawn a little behind.
void Drawing::draw_faces(const std::vector<bool> &towards, bool lit, const Matrices &matrices) const
{
    constexpr double little = 2e-6; // 16 steps of 24 bits
    std::vector<std::uint32_t> corners;
    const auto is_covered = [&](std::uint32_t face) { // by its other side
        const std::uint32_t other = mesh.other_sides[face];
        return !towards[face] && other != no_face && towards[other];
    };
    // What is meant for the viewer first: it hides much of the rest, which then costs nothing.
    for (const Light side : {Light::counter_clockwise, Light::clockwise}) {
        arrays->use_colours(lit ? side : Light::none);
        load(matrices, side == Light::clockwise ? little : 0);
        for (const auto &[texture, first, end] : mesh.batches) {
            corners.clear();
            for (std::size_t i = first; i < end; ++i)
                if (towards[mesh.order[i]] == (side == Light::counter_clockwise) &&
                    !is_covered(mesh.order[i]))
                    append(corners, scene, scene.faces[mesh.order[i]]);
            use_texture(texture);
            draw_elements(GL_TRIANGLES, corners);
        }
    }
    load(matrices);
}

// Each pixel gets its shadow once, however many shadows meet there.
void Drawing::draw_shadows() const
{
    arrays->use_shadows();
    glEnable(GL_STENCIL_TEST);
    glStencilFunc(GL_EQUAL, 0, 1);
    glStencilOp(GL_KEEP, GL_KEEP, GL_INCR);
    begin_darkening(0.63f, 0.64f, 0.67f);
    draw_elements(GL_TRIANGLES, mesh.shadow_corners);
    end_darkening();
    glDisable(GL_STENCIL_TEST);
    arrays->use_points();
}

void Drawing::draw_edges(const std::vector<bool> &towards) const
{
    std::vector<std::uint32_t> corners;
    const auto add = [&](const Edge &edge) {
        corners.insert(corners.end(), edge.ends.begin(), edge.ends.end());
    };
    for (const Edge &edge : mesh.edges.sharp)
        add(edge);
    for (const auto &[edge, faces, same_way] : mesh.edges.smooth)
        if ((towards[faces[0]] == towards[faces[1]]) != same_way)
            add(edge);
    begin_darkening(0.53f, 0.52f, 0.51f);
    draw_elements(GL_LINES, corners);
    end_darkening();
}
