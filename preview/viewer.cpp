#include "viewer.h"

#include "files.h"
#include "font.h"
#include "gl.h"
#include "marks.h"
#include "png_file.h"
#include "report.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <utility>

Viewer::Viewer(Options asked, Loaded first)
    : options(std::move(asked)), loaded(std::move(first)),
      drawing(std::make_unique<Drawing>(loaded.scene, loaded.textures)), width(options.resolution[0]),
      height(options.resolution[1]), camera(first_camera(loaded, options.look, aspect())),
      shown_title("marlogl-preview - " + options.input)
{
}

void Viewer::resize(int to_width, int to_height)
{
    width = to_width;
    height = to_height;
    is_stale = true;
}

void Viewer::turn(double to_the_right, double up)
{
    camera.turn(to_the_right, up);
    is_stale = true;
}

void Viewer::move(double right, double up)
{
    camera.move(right, up);
    is_stale = true;
}

void Viewer::approach(double factor, double x, double y)
{
    const auto hit = pick(loaded.scene, camera.ray(x, y, aspect()));
    camera.approach(factor, hit ? hit->point : camera.point_at(x, y, aspect()));
    is_stale = true;
}

void Viewer::look_at(double x, double y)
{
    if (const auto hit = pick(loaded.scene, camera.ray(x, y, aspect()))) {
        camera.focal_point = hit->point;
        is_stale = true;
    }
}

void Viewer::go_to(const NamedView &view)
{
    FirstLook look{view.direction, options.look.lens};
    look.lens.orthographic = view.is_plan;
    camera = first_camera(loaded, look, aspect());
}

bool Viewer::press(char key)
{
    constexpr double step = 1.15;
    for (const NamedView &view : named_views)
        if (view.keys.find(key) != view.keys.npos) {
            go_to(view);
            return is_stale = true;
        }
    switch (key) {
    case 'r':
        camera = first_camera(loaded, options.look, aspect());
        break;
    case '5':
    case 'p':
        camera.lens.orthographic = !camera.lens.orthographic;
        break;
    case '+':
    case '=':
        approach(1 / step, 0, 0);
        break;
    case '-':
        approach(step, 0, 0);
        break;
    case 'g':
        shows_grid = !shows_grid;
        break;
    case 'x':
        shows_axes = !shows_axes;
        break;
    case 'n':
        shows_names = !shows_names;
        break;
    case '?':
        shows_help = !shows_help;
        break;
    case 'e':
        options.appearance.edges = !options.appearance.edges;
        break;
    case 'l':
        options.appearance.lit = !options.appearance.lit;
        break;
    default:
        return false;
    }
    return is_stale = true;
}

void Viewer::select(double x, double y)
{
    note.clear();
    shown_title = "marlogl-preview - " + options.input;
    selected = pick(loaded.scene, camera.ray(x, y, aspect()));
    if (selected) {
        const Face &face = loaded.scene.faces[selected->face];
        const SceneObject &object = loaded.scene.objects[face.object];
        note = describe(loaded, face, selected->point);
        shown_title += " - " + std::to_string(object.number) + ' ' + printable(object.name);
        std::cout << note << std::endl;
    }
    is_stale = true;
}

void Viewer::draw_scene(bool smoothly)
{
    if (!smoothly) {
        draw_in_motion();
        return;
    }
    hurries = false;
    if (!smooth || smooth->width != width || smooth->height != height)
        smooth = std::make_unique<SmoothFramebuffer>(width, height);
    smooth->begin();
    drawing->draw(camera, options.appearance, width, height);
    smooth->end();
}

// What takes too long is left out from the second picture on, until the scene stands still.
void Viewer::draw_in_motion()
{
    constexpr std::chrono::milliseconds longest(50);
    Appearance in_motion = options.appearance;
    if (hurries)
        in_motion.shadows = in_motion.edges = false;
    const auto begun = std::chrono::steady_clock::now();
    drawing->draw(camera, in_motion, width, height);
    glFinish();
    hurries |= std::chrono::steady_clock::now() - begun > longest;
}

void Viewer::draw(bool smoothly)
{
    draw_scene(smoothly);
    const int dot = std::clamp(height / 300, 1, 4);
    const Overlay overlay(width, height, dot);
    const Screen screen{loaded.scene, camera, width, height};
    if (shows_grid)
        draw_grid(screen, overlay);
    if (shows_axes)
        draw_axes(screen, overlay);
    if (selected)
        draw_outline(screen, overlay, loaded.scene.faces[selected->face]);
    if (shows_names)
        draw_names(screen, overlay);
    if (!note.empty())
        overlay.panel(8, -8, in_lines(note, overlay.columns()));
    if (shows_help)
        overlay.panel(8, 8, keys_help);
    if (!message.empty())
        overlay.panel(8, 8, in_lines(message, overlay.columns()));
}

void Viewer::save_picture()
{
    std::filesystem::path file = options.input;
    file.replace_extension();
    const std::string stem = file.string();
    std::string name = stem + ".png";
    for (int number = 2; std::filesystem::exists(name); ++number)
        name = stem + '-' + std::to_string(number) + ".png";
    try {
        draw_scene(true);
        PngEncoder png(width, height);
        OutputFile to = OutputFile::replacing(name);
        to.write(png.add(read_framebuffer(width, height)));
        to.write(png.end());
        to.close();
        note = "written: " + name;
    } catch (const std::exception &error) {
        note = error.what();
    }
    is_stale = true;
}

FilesRead Viewer::reload()
{
    FilesRead files_read;
    try {
        Loaded fresh = load(options.input, options.texture_folders, files_read);
        require_whole(fresh);
        drawing.reset();
        loaded = std::move(fresh);
        drawing = std::make_unique<Drawing>(loaded.scene, loaded.textures);
        message.clear();
        selected.reset();
        note.clear();
        write_warnings(std::cerr, loaded);
    } catch (const std::exception &error) {
        message = error.what();
        std::cerr << "marlogl-preview: " << message << '\n';
    }
    is_stale = true;
    return files_read;
}
