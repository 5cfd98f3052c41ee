// What the user sees in a window, changed by mouse and keys. It knows no window system.
#pragma once

#include "loading.h"
#include "options.h"
#include "picking.h"
#include "smooth.h"

#include <memory>

// A context must be current for the whole life.
class Viewer {
  public:
    Viewer(Options asked, Loaded first);

    // Places are in parts of the picture, as Camera has them; ways in degrees, or parts of half its height.
    void resize(int to_width, int to_height);
    void turn(double to_the_right, double up);
    void move(double right, double up);
    void approach(double factor, double x, double y);
    void look_at(double x, double y);
    // Tells about the face there, over the picture and on standard output.
    void select(double x, double y);

    // A key by what is written on it. False when it has no meaning.
    bool press(char key);

    // Smoothly, or as fast as can be for a picture that moves.
    void draw(bool smoothly);

    // Loads the files again, and says which. When that fails the scene stays, with a message over it.
    FilesRead reload();

    // Writes what is seen beside the file that is shown.
    void save_picture();

    const std::string &title() const { return shown_title; }

    bool is_stale = true; // the window shows something else

  private:
    double aspect() const { return static_cast<double>(width) / height; }
    void draw_scene(bool smoothly);
    void draw_in_motion();
    void go_to(const NamedView &view);

    Options options;
    Loaded loaded;
    std::unique_ptr<Drawing> drawing;
    std::unique_ptr<SmoothFramebuffer> smooth;
    int width, height; // in pixels
    Camera camera;
    std::string message, note; // of a fault, and of what was just done
    std::string shown_title;
    std::optional<Hit> selected;
    bool hurries = false; // while the scene moves
    bool shows_grid = false, shows_axes = false, shows_names = false, shows_help = false;
};
