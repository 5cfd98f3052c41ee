// A window in which the scene can be turned.
#pragma once

#include "render.h"

#include <string>

struct Look {
    Direction direction;
    Lens lens; // its aspect is that of the picture or window
};

// Shows the scene until the user leaves. The mouse turns it, the wheel zooms, the first letter of a named
// view goes there, q leaves. Width and height in screen units, at most those of the screen.
// Throws std::runtime_error without a display.
void show_window(const std::string &title, int width, int height, const Scene &scene,
                 const Textures &textures, const Look &look, const Appearance &appearance);
