// A libFuzzer target: whatever the bytes, reading, building and framing end in order.
#include "framing.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Problems problems;
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const Scene scene = build_scene(read_statements(text, problems), problems);
    for (const Block &block : scene.blocks)
        if (block.first + block.count > scene.vertices.size() ||
            (block.texture != Block::untextured && block.texture >= scene.textures.size()))
            std::abort();
    for (const NamedView &view : named_views)
        for (const bool orthographic : {false, true})
            for (const double value : frame(scene, view.direction, {1.5, 1, orthographic}).projection)
                if (!(value < 1e38 && value > -1e38))
                    std::abort();
    return 0;
}
