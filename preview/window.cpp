#include "window.h"

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
        glfwWindowHint(GLFW_SAMPLES, 4);
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

// What the user sees, changed by mouse and keys.
class Viewer {
  public:
    Viewer(GLFWwindow *in, const Scene &shown, const Drawing &drawn, const Look &first_look)
        : window(in), scene(shown), drawing(drawn), look(first_look)
    {
        glfwSetWindowUserPointer(window, this);
        glfwSetKeyCallback(window, [](GLFWwindow *from, int key, int scancode, int action, int) {
            if (action == GLFW_PRESS)
                viewer_of(from).press(key, scancode);
        });
        glfwSetCursorPosCallback(window,
                                 [](GLFWwindow *from, double x, double y) { viewer_of(from).move(x, y); });
        glfwSetScrollCallback(window,
                              [](GLFWwindow *from, double, double ticks) { viewer_of(from).zoom(ticks); });
        glfwSetWindowRefreshCallback(window, [](GLFWwindow *from) { viewer_of(from).is_stale = true; });
        glfwSetFramebufferSizeCallback(window,
                                       [](GLFWwindow *from, int, int) { viewer_of(from).is_stale = true; });
    }

    void run()
    {
        while (glfwWindowShouldClose(window) == GLFW_FALSE) {
            if (std::exchange(is_stale, false))
                draw();
            glfwWaitEvents();
        }
    }

  private:
    static Viewer &viewer_of(GLFWwindow *window)
    {
        return *static_cast<Viewer *>(glfwGetWindowUserPointer(window));
    }

    void press(int key, int scancode)
    {
        const char letter = letter_of(key, scancode);
        if (letter == 'q' || key == GLFW_KEY_ESCAPE)
            glfwSetWindowShouldClose(window, GLFW_TRUE);
        for (const NamedView &view : named_views)
            if (view.name.front() == letter) {
                look.direction = view.direction;
                look.lens.zoom = 1;
                is_stale = true;
            }
    }

    void move(double x, double y)
    {
        constexpr double degrees_per_unit = 0.4;
        if (glfwGetMouseButton(window, GLFW_MOUSE_BUTTON_LEFT) == GLFW_PRESS) {
            look.direction.azimuth -= (x - mouse_x) * degrees_per_unit;
            look.direction.elevation =
                std::clamp(look.direction.elevation + (y - mouse_y) * degrees_per_unit, -90.0, 90.0);
            is_stale = true;
        }
        mouse_x = x;
        mouse_y = y;
    }

    void zoom(double ticks)
    {
        look.lens.zoom = std::clamp(look.lens.zoom * std::pow(1.15, ticks), 0.05, 200.0);
        is_stale = true;
    }

    void draw()
    {
        int width = 0, height = 0;
        glfwGetFramebufferSize(window, &width, &height);
        if (width > 0 && height > 0) {
            look.lens.aspect = static_cast<double>(width) / height;
            drawing.draw(frame(scene, look.direction, look.lens), width, height);
        }
        glfwSwapBuffers(window);
    }

    GLFWwindow *window;
    const Scene &scene;
    const Drawing &drawing;
    Look look;
    double mouse_x = 0, mouse_y = 0;
    bool is_stale = true; // the window shows something else than the look
};

} // namespace

void show_window(const std::string &title, int width, int height, const Scene &scene,
                 const Textures &textures, const Look &look, const Appearance &appearance)
{
    const Window window(title, width, height);
    const Drawing drawing(scene, textures, appearance);
    Viewer(window.handle, scene, drawing, look).run();
}
