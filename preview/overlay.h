// What lies over the picture: texts on dark plates. A context must be current for every call.
#pragma once

#include "camera.h"

#include <string_view>

// Draws into a framebuffer of so many pixels; a dot of a letter is `dot` pixels wide and high. Whatever it
// sets of the context, it leaves as it was.
class Overlay {
  public:
    Overlay(int width, int height, int dot);
    ~Overlay();
    Overlay(const Overlay &) = delete;
    Overlay &operator=(const Overlay &) = delete;

    // Between these two calls the matrices are those of the scene again.
    void use_world() const;
    void use_screen() const;

    double width_of(std::string_view text) const;
    double line_height() const;

    // How many characters fit on a line.
    std::size_t columns() const;

    // Lines of text with their plate. The place is that of the plate's upper left corner, in pixels from the
    // upper left corner of the picture; below 0 it counts from the opposite edge.
    void panel(int left, int top, std::string_view text) const;

    // A line of text alone, with its lower edge in the middle there.
    void label(double x, double y, std::string_view text) const;

  private:
    void write(double left, double top, std::string_view text) const;

    int width, height, dot;
};
