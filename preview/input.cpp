#include "input.h"

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <algorithm>
#include <cmath>

namespace {

// The letter on a key of the keyboard layout, or 0. Layouts without Latin letters (Greek, Cyrillic, Hebrew)
// have those of an American keyboard instead.
char letter_of(int key, int scancode)
{
    const auto is_letter = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto named = [](int of_key, int of_scancode) {
        const char *const name = glfwGetKeyName(of_key, of_scancode);
        return name != nullptr ? *name : '\0';
    };
    if (const char letter = named(key, scancode); is_letter(letter))
        return letter;
    for (int other = GLFW_KEY_A; other <= GLFW_KEY_Z; ++other)
        if (is_letter(named(other, 0)))
            return '\0';
    return key >= GLFW_KEY_A && key <= GLFW_KEY_Z ? static_cast<char>(key - GLFW_KEY_A + 'a') : '\0';
}

} // namespace

Input::Input(GLFWwindow *in, Viewer &of) : window_(in), viewer_(of)
{
    glfwSetWindowUserPointer(window_, this);
    glfwSetKeyCallback(window_, [](GLFWwindow *from, int key, int scancode, int action, int modifiers) {
        if (action != GLFW_RELEASE)
            input_of(from).press(key, scancode, modifiers);
    });
    glfwSetCharCallback(window_, [](GLFWwindow *from, unsigned code) {
        if (code < 'A') // letters come as keys, which lie where they lie in any alphabet
            input_of(from).viewer_.press(static_cast<char>(code));
    });
    glfwSetMouseButtonCallback(window_, [](GLFWwindow *from, int button, int action, int) {
        if (button == GLFW_MOUSE_BUTTON_LEFT)
            action == GLFW_PRESS ? input_of(from).press_button() : input_of(from).release_button();
    });
    glfwSetCursorPosCallback(window_,
                             [](GLFWwindow *from, double x, double y) { input_of(from).move(x, y); });
    glfwSetScrollCallback(window_,
                          [](GLFWwindow *from, double, double ticks) { input_of(from).scroll(ticks); });
    glfwSetWindowRefreshCallback(window_, [](GLFWwindow *from) { input_of(from).viewer_.is_stale = true; });
    glfwSetFramebufferSizeCallback(window_, [](GLFWwindow *from, int width, int height) {
        if (width > 0 && height > 0)
            input_of(from).viewer_.resize(width, height);
    });
}

Input &Input::input_of(GLFWwindow *window)
{
    return *static_cast<Input *>(glfwGetWindowUserPointer(window));
}

bool Input::holds(int button) const
{
    return glfwGetMouseButton(window_, button) == GLFW_PRESS;
}

bool Input::holds_shift() const
{
    return glfwGetKey(window_, GLFW_KEY_LEFT_SHIFT) == GLFW_PRESS ||
           glfwGetKey(window_, GLFW_KEY_RIGHT_SHIFT) == GLFW_PRESS;
}

void Input::press(int key, int scancode, int modifiers)
{
    constexpr double degrees = 5;
    const char letter = letter_of(key, scancode);
    const bool control = (modifiers & GLFW_MOD_CONTROL) != 0;
    if ((letter == 'q' && !control) || key == GLFW_KEY_ESCAPE)
        glfwSetWindowShouldClose(window_, GLFW_TRUE);
    else if (letter != '\0' && !control)
        viewer_.press(letter);
    else if (key == GLFW_KEY_ENTER || key == GLFW_KEY_KP_ENTER)
        viewer_.press('r');
    else if (key == GLFW_KEY_LEFT || key == GLFW_KEY_RIGHT)
        viewer_.turn(key == GLFW_KEY_LEFT ? -degrees : degrees, 0);
    else if (key == GLFW_KEY_UP || key == GLFW_KEY_DOWN)
        viewer_.turn(0, key == GLFW_KEY_UP ? degrees : -degrees);
    else if (key == GLFW_KEY_F1)
        viewer_.press('?');
    else if (key == GLFW_KEY_F5)
        wants_reload = true;
    else if (key == GLFW_KEY_F12 || (letter == 's' && control))
        viewer_.save_picture();
    else if (key == GLFW_KEY_F11)
        toggle_full_screen();
}

void Input::toggle_full_screen()
{
    GLFWmonitor *const monitor = glfwGetPrimaryMonitor();
    if (glfwGetWindowMonitor(window_) != nullptr) {
        const auto [x, y, width, height] = before_full_screen_;
        glfwSetWindowMonitor(window_, nullptr, x, y, width, height, 0);
    } else if (const GLFWvidmode *mode = monitor != nullptr ? glfwGetVideoMode(monitor) : nullptr) {
        auto &[x, y, width, height] = before_full_screen_;
        glfwGetWindowPos(window_, &x, &y);
        glfwGetWindowSize(window_, &width, &height);
        glfwSetWindowMonitor(window_, monitor, 0, 0, mode->width, mode->height, mode->refreshRate);
    }
}

std::array<double, 2> Input::cursor() const
{
    int width = 1, height = 1;
    glfwGetWindowSize(window_, &width, &height);
    return {2 * mouse_x_ / std::max(width, 1) - 1, 1 - 2 * mouse_y_ / std::max(height, 1)};
}

void Input::press_button()
{
    constexpr double most_seconds = 0.4;
    const double now = glfwGetTime();
    const bool is_double = now - pressed_at_ < most_seconds && is_where_pressed();
    pressed_at_ = is_double ? -1 : now;
    pressed_x_ = mouse_x_;
    pressed_y_ = mouse_y_;
    if (const auto [x, y] = cursor(); is_double)
        viewer_.look_at(x, y);
}

void Input::release_button()
{
    if (!is_where_pressed())
        pressed_at_ = -1; // a drag is not the first half of a double click
    else if (const auto [x, y] = cursor(); pressed_at_ > 0)
        viewer_.select(x, y);
}

bool Input::is_where_pressed() const
{
    constexpr double most_way = 4;
    return std::hypot(mouse_x_ - pressed_x_, mouse_y_ - pressed_y_) < most_way;
}

void Input::move(double x, double y)
{
    constexpr double degrees_per_unit = 0.4;
    int width = 1, height = 1;
    glfwGetWindowSize(window_, &width, &height);
    const double right = x - mouse_x_, down = y - mouse_y_;
    const bool left_button = holds(GLFW_MOUSE_BUTTON_LEFT);
    mouse_x_ = x;
    mouse_y_ = y;
    if (holds(GLFW_MOUSE_BUTTON_RIGHT) || holds(GLFW_MOUSE_BUTTON_MIDDLE) || (left_button && holds_shift()))
        viewer_.move(2 * right / std::max(height, 1), -2 * down / std::max(height, 1));
    else if (left_button)
        viewer_.turn(-right * degrees_per_unit, down * degrees_per_unit);
}

void Input::scroll(double ticks)
{
    const auto [x, y] = cursor();
    viewer_.approach(std::pow(1.15, std::clamp(-ticks, -20.0, 20.0)), x, y);
}
