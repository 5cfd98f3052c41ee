// Mouse and keys of a window, handed on to what it shows.
#pragma once

#include "viewer.h"

#include <array>

struct GLFWwindow;

// Lives as long as the window takes input.
class Input {
  public:
    Input(GLFWwindow *in, Viewer &of);
    Input(const Input &) = delete;
    Input &operator=(const Input &) = delete;

    bool wants_reload = false;

  private:
    static Input &input_of(GLFWwindow *window);

    bool holds(int button) const;
    bool holds_shift() const;
    void press(int key, int scancode, int modifiers);
    void toggle_full_screen();
    std::array<double, 2> cursor() const; // as a place in the picture
    void press_button();
    void release_button();
    bool is_where_pressed() const;
    void move(double x, double y);
    void scroll(double ticks);

    GLFWwindow *window_;
    Viewer &viewer_;
    double mouse_x_ = 0, mouse_y_ = 0;
    double pressed_at_ = -1, pressed_x_ = 0, pressed_y_ = 0;
    std::array<int, 4> before_full_screen_{}; // its place, width and height
};
