#include "viewer.h"

#include "font.h"
#include "overlay.h"
#include "report.h"

#include <algorithm>
#include <iostream>
#include <utility>

Viewer::Viewer(const Options &asked, Loaded first)
    : options(asked), loaded(std::move(first)),
      drawing(std::make_unique<Drawing>(loaded.scene, loaded.textures)), width(options.resolution[0]),
      height(options.resolution[1]), camera(first_camera(loaded, options.look, aspect()))
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

void Viewer::draw()
{
    drawing->draw(camera, options.appearance, width, height);
    const int dot = std::clamp(height / 300, 1, 4);
    const Overlay overlay(width, height, dot);
    if (!message.empty())
        overlay.panel(8, 8, in_lines(message, overlay.columns()));
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
        write_warnings(std::cerr, loaded);
    } catch (const std::exception &error) {
        message = error.what();
        std::cerr << "marlogl-preview: " << message << '\n';
    }
    is_stale = true;
    return files_read;
}
