// A libFuzzer target: whatever the bytes, reading, building and camera end in order.
#include "camera.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Problems problems;
    const Scene scene = read_scene({reinterpret_cast<const char *>(data), size}, problems);
    for (const Run &run : scene.runs)
        if (run.first + run.count > scene.corners.size() ||
            (run.texture != Run::untextured && run.texture >= scene.textures.size()))
            std::abort();
    for (const std::uint32_t corner : scene.corners)
        if (corner >= scene.vertices.size())
            std::abort();
    for (const NamedView &view : named_views)
        for (const bool orthographic : {false, true})
            for (const double value :
                 matrices_of(frame(scene.vertices, view.direction, {0.268, orthographic}, 1.5), 1.5,
                             scene.centre(), scene.lowest, scene.highest)
                     .projection)
                if (!(value < 1e38 && value > -1e38))
                    std::abort();
    return 0;
}
