// OpenGL without a display: an EGL context with a framebuffer in memory.
#pragma once

#include <cstdint>
#include <vector>

struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb; // three bytes a pixel, the top row first
};

// The framebuffer of a window, from its lower left corner. Throws std::runtime_error when OpenGL reports an
// error.
Picture read_framebuffer(int width, int height);

// The pictures are drawn at this multiple of their size and filtered down, which smooths the edges.
inline constexpr int oversampling = 2;

// Has the software driver draw without threads, in contexts that come later. They bring a small picture
// little sooner, for a tenth more work in all.
void draw_in_one_thread();

// A current OpenGL context whose framebuffer is `oversampling` times as wide and high as the picture.
class Offscreen {
  public:
    // Width and height of the picture in pixels. Throws std::runtime_error when no driver gives a context or
    // the driver cannot hold a picture of that size.
    Offscreen(int picture_width, int picture_height);
    ~Offscreen();
    Offscreen(const Offscreen &) = delete;
    Offscreen &operator=(const Offscreen &) = delete;

    // What has been drawn, at the size of the picture. Throws std::runtime_error when OpenGL reports an
    // error, as for too little memory.
    Picture read() const;

    const int width, height; // of the picture

  private:
    void *display = nullptr;
};
