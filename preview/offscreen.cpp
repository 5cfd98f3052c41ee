#include "offscreen.h"

#include "gl.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>

#ifdef __GLIBC__
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace {

// The driver's framebuffers are some 20 MB that are hardly used more than once: in small pages the system
// would take longer to hand them out than the driver to draw. And a driver without a graphics card takes
// longer to find its best code than to draw with its first.
void prepare_for_few_pictures()
{
#ifdef __GLIBC__
    setenv("GALLIVM_PERF", "nopt", 0);
    constexpr int most_at_once = 32 << 20, spare = 64 << 20;
    // What is smaller then comes from one region, which grows by the spare room.
    mallopt(M_MMAP_THRESHOLD, most_at_once);
    mallopt(M_TOP_PAD, spare);
    char *const begin = static_cast<char *>(sbrk(0));
    void *volatile const grown_for = std::malloc(1 << 20);
    std::free(grown_for);
    const auto grown = static_cast<char *>(sbrk(0)) - begin;
    const auto beyond_page =
        reinterpret_cast<std::uintptr_t>(begin) % static_cast<std::size_t>(getpagesize());
    if (grown > 0)
        madvise(begin - beyond_page, static_cast<std::size_t>(grown) + beyond_page, MADV_HUGEPAGE);
#endif
}

template <class Function> Function extension(const char *name)
{
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

std::vector<EGLDisplay> candidate_displays()
{
    std::vector<EGLDisplay> displays;
    const auto platform_display = extension<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    if (platform_display != nullptr) {
        displays.push_back(platform_display(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
        const auto query_devices = extension<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
        EGLDeviceEXT devices[16];
        EGLint count = 0;
        if (query_devices != nullptr && query_devices(16, devices, &count) == EGL_TRUE)
            for (EGLint i = 0; i < count; ++i)
                displays.push_back(platform_display(EGL_PLATFORM_DEVICE_EXT, devices[i], nullptr));
    }
    displays.push_back(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    return displays;
}

// Makes a context with a framebuffer of that size current. False when this display cannot.
bool make_current(EGLDisplay display, EGLint width, EGLint height)
{
    // clang-format off
    constexpr EGLint wanted[] = {
        EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT,
        EGL_RED_SIZE, 8, EGL_GREEN_SIZE, 8, EGL_BLUE_SIZE, 8, EGL_DEPTH_SIZE, 24, EGL_STENCIL_SIZE, 8, EGL_NONE};
    // clang-format on
    const EGLint size[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
    EGLConfig configs[100];
    EGLint count = 0;
    if (eglBindAPI(EGL_OPENGL_API) == EGL_FALSE ||
        eglChooseConfig(display, wanted, configs, 100, &count) == EGL_FALSE || count == 0)
        return false;
    // The configurations with most bits come first, and are slow to read.
    void *const config = *std::find_if(configs, configs + count - 1, [&](EGLConfig candidate) {
        EGLint red = 0;
        return eglGetConfigAttrib(display, candidate, EGL_RED_SIZE, &red) == EGL_TRUE && red == 8;
    });
    // Without attributes, EGL gives the old profile with all of OpenGL 1.1.
    void *const context = eglCreateContext(display, config, EGL_NO_CONTEXT, nullptr);
    void *const surface = eglCreatePbufferSurface(display, config, size);
    return context != EGL_NO_CONTEXT && surface != EGL_NO_SURFACE &&
           eglMakeCurrent(display, surface, surface, context) == EGL_TRUE;
}

// Filters the pixels under a row of the picture down. They are of four bytes.
void mix_samples(const std::uint8_t *from, std::size_t columns, std::uint8_t *to)
{
    static_assert(oversampling == 2);
    const std::size_t stride = columns * 8;
    const auto mix_pixel = [=](const std::uint8_t *corner) {
        // Every other byte of the two samples in a row, with room for the sum of four.
        constexpr std::uint64_t every_other = 0x00ff00ff00ff00ff;
        std::uint64_t even = 0, odd = 0;
        for (const std::size_t row : {std::size_t{0}, stride}) {
            std::uint64_t pair = 0;
            std::memcpy(&pair, corner + row, 8);
            even += pair & every_other;
            odd += pair >> 8 & every_other;
        }
        constexpr std::uint64_t half_of_four = 0x20002; // which rounds
        const auto mixed = [](std::uint64_t sums) {
            return static_cast<std::uint32_t>((sums + (sums >> 32) + half_of_four) >> 2 & 0xff00ff);
        };
        return mixed(even) | mixed(odd) << 8;
    };
    for (std::size_t x = 0; x < columns; ++x, to += 3) {
        const std::uint32_t pixel = mix_pixel(from + 8 * x);
        std::memcpy(to, &pixel, 3);
    }
}

void refuse_errors()
{
    if (const GLenum error = glGetError(); error != GL_NO_ERROR)
        throw std::runtime_error("the OpenGL driver reports error " + std::to_string(error));
}

} // namespace

void draw_in_one_thread()
{
#ifdef __GLIBC__
    setenv("LP_NUM_THREADS", "0", 0);
#endif
}

Offscreen::Offscreen(int picture_width, int picture_height) : width(picture_width), height(picture_height)
{
    prepare_for_few_pictures();
    bool any_driver = false;
    for (EGLDisplay candidate : candidate_displays()) {
        if (candidate == EGL_NO_DISPLAY || eglInitialize(candidate, nullptr, nullptr) == EGL_FALSE)
            continue;
        any_driver = true;
        if (make_current(candidate, width * oversampling, height * oversampling)) {
            display = candidate;
            return;
        }
        eglTerminate(candidate);
    }
    throw std::runtime_error(any_driver ? "the OpenGL driver cannot draw a picture of " +
                                              std::to_string(width) + "," + std::to_string(height) + " pixels"
                                        : "no OpenGL driver found (on Debian: libegl1 and libgl1-mesa-dri)");
}

Offscreen::~Offscreen()
{
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglTerminate(display);
}

Picture Offscreen::read() const
{
    constexpr std::size_t n = oversampling;
    const auto columns = static_cast<std::size_t>(width), rows = static_cast<std::size_t>(height);
    const std::size_t stride = columns * n * 4;
    constexpr int rows_at_once = 16; // of the picture; each reading has a price of its own
    std::vector<std::uint8_t> band(stride * n * rows_at_once);
    Picture picture{width, height, std::vector<std::uint8_t>(columns * rows * 3)};
    for (int bottom = 0; bottom < height; bottom += rows_at_once) {
        const int count = std::min(rows_at_once, height - bottom);
        glReadPixels(0, bottom * oversampling, width * oversampling, count * oversampling, GL_RGBA,
                     GL_UNSIGNED_BYTE, band.data());
        for (int row = 0; row < count; ++row)
            mix_samples(band.data() + static_cast<std::size_t>(row) * n * stride, columns,
                        &picture.rgb[static_cast<std::size_t>(height - 1 - bottom - row) * columns * 3]);
    }
    refuse_errors();
    return picture;
}

Picture read_framebuffer(int width, int height)
{
    const auto stride = static_cast<std::size_t>(width) * 3, rows = static_cast<std::size_t>(height);
    Picture picture{width, height, std::vector<std::uint8_t>(stride * rows)};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    for (std::size_t row = 0; row < rows; ++row)
        glReadPixels(0, height - 1 - static_cast<int>(row), width, 1, GL_RGB, GL_UNSIGNED_BYTE,
                     picture.rgb.data() + row * stride);
    refuse_errors();
    return picture;
}
