#include "window.h"

#include "watcher.h"

#define GLFW_INCLUDE_NONE
#include <GLFW/glfw3.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

// Ends GLFW and says why there is no window.
[[noreturn]] void give_up()
{
    const char *reason = nullptr;
    glfwGetError(&reason);
    const std::string details = reason != nullptr ? reason : "no reason given";
    glfwTerminate();
    throw std::runtime_error("cannot open a window; is there a display? (" + details +
                             ") With --output=FILE a picture is written without one");
}

// What is beyond the screen would only cost memory.
void keep_on_screen(int &width, int &height)
{
    GLFWmonitor *const monitor = glfwGetPrimaryMonitor();
    const GLFWvidmode *const mode = monitor != nullptr ? glfwGetVideoMode(monitor) : nullptr;
    if (mode == nullptr)
        return;
    width = std::min(width, mode->width);
    height = std::min(height, mode->height);
}

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

class Window {
  public:
    Window(const std::string &title, int width, int height)
    {
        if (glfwInit() == GLFW_FALSE)
            give_up();
        keep_on_screen(width, height);
        for (const int api : {GLFW_NATIVE_CONTEXT_API, GLFW_EGL_CONTEXT_API}) {
            glfwWindowHint(GLFW_CONTEXT_CREATION_API, api);
            if (handle == nullptr)
                handle = glfwCreateWindow(width, height, title.c_str(), nullptr, nullptr);
        }
        if (handle == nullptr)
            give_up();
        glfwMakeContextCurrent(handle);
    }
    ~Window() { glfwTerminate(); }
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;

    GLFWwindow *handle = nullptr;
};

// Hands mouse and keys on.
class Input {
  public:
    Input(GLFWwindow *in, Viewer &of) : window(in), viewer(of)
    {
        glfwSetWindowUserPointer(window, this);
        glfwSetKeyCallback(window, [](GLFWwindow *from, int key, int scancode, int action, int modifiers) {
            if (action != GLFW_RELEASE)
                input_of(from).press(key, scancode, modifiers);
        });
        glfwSetCharCallback(window, [](GLFWwindow *from, unsigned code) {
            if (code < 'A') // letters come as keys, which lie where they lie in any alphabet
                input_of(from).viewer.press(static_cast<char>(code));
        });
        glfwSetMouseButtonCallback(window, [](GLFWwindow *from, int button, int action, int) {
            if (button == GLFW_MOUSE_BUTTON_LEFT)
                action == GLFW_PRESS ? input_of(from).press_button() : input_of(from).release_button();
        });
        glfwSetCursorPosCallback(window,
                                 [](GLFWwindow *from, double x, double y) { input_of(from).move(x, y); });
        glfwSetScrollCallback(window,
                              [](GLFWwindow *from, double, double ticks) { input_of(from).scroll(ticks); });
        glfwSetWindowRefreshCallback(window, [](GLFWwindow *from) { input_of(from).viewer.is_stale = true; });
        glfwSetFramebufferSizeCallback(window, [](GLFWwindow *from, int width, int height) {
            if (width > 0 && height > 0)
                input_of(from).viewer.resize(width, height);
        });
    }

    bool wants_reload = false;

  private:
    static Input &input_of(GLFWwindow *window)
    {
        return *static_cast<Input *>(glfwGetWindowUserPointer(window));
    }

    bool holds(int button) const { return glfwGetMouseButton(window, button) == GLFW_PRESS; }
    bool holds_shift() const
    {
        return glfwGetKey(window, GLFW_KEY_LEFT_SHIFT) == GLFW_PRESS ||
               glfwGetKey(window, GLFW_KEY_RIGHT_SHIFT) == GLFW_PRESS;
    }

    void press(int key, int scancode, int modifiers)
    {
        constexpr double degrees = 5;
        const char letter = letter_of(key, scancode);
        const bool control = (modifiers & GLFW_MOD_CONTROL) != 0;
        if ((letter == 'q' && !control) || key == GLFW_KEY_ESCAPE)
            glfwSetWindowShouldClose(window, GLFW_TRUE);
        else if (letter != '\0' && !control)
            viewer.press(letter);
        else if (key == GLFW_KEY_ENTER || key == GLFW_KEY_KP_ENTER)
            viewer.press('r');
        else if (key == GLFW_KEY_LEFT || key == GLFW_KEY_RIGHT)
            viewer.turn(key == GLFW_KEY_LEFT ? -degrees : degrees, 0);
        else if (key == GLFW_KEY_UP || key == GLFW_KEY_DOWN)
            viewer.turn(0, key == GLFW_KEY_UP ? degrees : -degrees);
        else if (key == GLFW_KEY_F1)
            viewer.press('?');
        else if (key == GLFW_KEY_F5)
            wants_reload = true;
        else if (key == GLFW_KEY_F12 || (letter == 's' && control))
            viewer.save_picture();
        else if (key == GLFW_KEY_F11)
            toggle_full_screen();
    }

    void toggle_full_screen()
    {
        GLFWmonitor *const monitor = glfwGetPrimaryMonitor();
        if (glfwGetWindowMonitor(window) != nullptr) {
            glfwSetWindowMonitor(window, nullptr, 80, 80, before_full_screen[0], before_full_screen[1], 0);
        } else if (const GLFWvidmode *mode = monitor != nullptr ? glfwGetVideoMode(monitor) : nullptr) {
            glfwGetWindowSize(window, &before_full_screen[0], &before_full_screen[1]);
            glfwSetWindowMonitor(window, monitor, 0, 0, mode->width, mode->height, mode->refreshRate);
        }
    }

    // The cursor, as a place in the picture.
    std::array<double, 2> cursor() const
    {
        int width = 1, height = 1;
        glfwGetWindowSize(window, &width, &height);
        return {2 * mouse_x / std::max(width, 1) - 1, 1 - 2 * mouse_y / std::max(height, 1)};
    }

    void press_button()
    {
        constexpr double most_seconds = 0.4;
        const double now = glfwGetTime();
        const bool is_double = now - pressed_at < most_seconds && is_where_pressed();
        pressed_at = is_double ? -1 : now;
        pressed_x = mouse_x;
        pressed_y = mouse_y;
        if (const auto [x, y] = cursor(); is_double)
            viewer.look_at(x, y);
    }

    void release_button()
    {
        if (const auto [x, y] = cursor(); pressed_at > 0 && is_where_pressed())
            viewer.select(x, y);
    }

    bool is_where_pressed() const
    {
        constexpr double most_way = 4;
        return std::hypot(mouse_x - pressed_x, mouse_y - pressed_y) < most_way;
    }

    void move(double x, double y)
    {
        constexpr double degrees_per_unit = 0.4;
        int width = 1, height = 1;
        glfwGetWindowSize(window, &width, &height);
        const double right = x - mouse_x, down = y - mouse_y;
        const bool left_button = holds(GLFW_MOUSE_BUTTON_LEFT);
        mouse_x = x;
        mouse_y = y;
        if (holds(GLFW_MOUSE_BUTTON_RIGHT) || holds(GLFW_MOUSE_BUTTON_MIDDLE) ||
            (left_button && holds_shift()))
            viewer.move(2 * right / std::max(height, 1), -2 * down / std::max(height, 1));
        else if (left_button)
            viewer.turn(-right * degrees_per_unit, down * degrees_per_unit);
    }

    void scroll(double ticks)
    {
        const auto [x, y] = cursor();
        viewer.approach(std::pow(1.15, std::clamp(-ticks, -20.0, 20.0)), x, y);
    }

    GLFWwindow *window;
    Viewer &viewer;
    double mouse_x = 0, mouse_y = 0;
    double pressed_at = -1, pressed_x = 0, pressed_y = 0;
    int before_full_screen[2] = {1000, 600};
};

// Waits for what there is to do next: for a smooth picture, while nothing moves, and for the next look at
// files.
void wait_for_events(bool is_rough, bool watches, const Viewer &viewer)
{
    constexpr double stands_still = 0.15;
    if (is_rough) {
        const double until = glfwGetTime() + stands_still;
        for (double left = stands_still; left > 0 && !viewer.is_stale; left = until - glfwGetTime())
            glfwWaitEventsTimeout(left);
    } else if (watches) {
        glfwWaitEventsTimeout(Watcher::seconds_between_looks);
    } else {
        glfwWaitEvents();
    }
}

} // namespace

void show_window(const Options &options, Loaded loaded, FilesRead files_read)
{
    const Window window("marlogl-preview - " + options.input, options.resolution[0], options.resolution[1]);
    int width = 1, height = 1;
    glfwGetFramebufferSize(window.handle, &width, &height);
    Options in_window = options;
    in_window.resolution = {std::max(width, 1), std::max(height, 1)};
    Viewer viewer(in_window, std::move(loaded));
    Input input(window.handle, viewer);
    Watcher watcher;
    watcher.watch(std::move(files_read));
    double looked_at = glfwGetTime();
    bool is_rough = false; // what the window shows was drawn in motion
    while (glfwWindowShouldClose(window.handle) == GLFW_FALSE) {
        const bool moves = std::exchange(viewer.is_stale, false);
        if (moves || is_rough) {
            viewer.draw(!moves);
            glfwSwapBuffers(window.handle);
            is_rough = moves;
        }
        if (moves)
            glfwSetWindowTitle(window.handle, viewer.title().c_str());
        wait_for_events(is_rough, options.watch, viewer);
        bool changed = std::exchange(input.wants_reload, false);
        if (options.watch && glfwGetTime() - looked_at >= Watcher::seconds_between_looks) {
            looked_at = glfwGetTime();
            changed |= watcher.finds_change();
        }
        if (changed)
            watcher.watch(viewer.reload());
    }
}
