#include "window.h"

#include "input.h"
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
    Viewer viewer(std::move(in_window), std::move(loaded));
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
