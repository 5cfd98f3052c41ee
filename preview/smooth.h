// A framebuffer with several samples for each pixel, whose edges come out smooth. Drawing into it takes
// several times as long on drivers without a graphics card, so it is for pictures that stand still.
#pragma once

// A context must be current for the whole life.
class SmoothFramebuffer {
  public:
    // Where the driver has none of this kind, drawing goes to the window as it is.
    SmoothFramebuffer(int width, int height);
    ~SmoothFramebuffer();
    SmoothFramebuffer(const SmoothFramebuffer &) = delete;
    SmoothFramebuffer &operator=(const SmoothFramebuffer &) = delete;

    // What is drawn between these two calls comes to the window with the second one.
    void begin() const;
    void end() const;

    const int width, height;

  private:
    unsigned framebuffer = 0, buffers[2] = {0, 0};
    bool is_usable = false;
};
