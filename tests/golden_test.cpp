// Whole conversions, byte for byte: each folder of golden/ holds a scene and the output that is expected.
// With MARLOGL_REWRITE_GOLDEN=1 in the environment the expected outputs are written anew.
#include "support/design.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace marlogl {

namespace {

namespace fs = std::filesystem;

std::string content_of(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The first line in which two texts differ, with its number.
std::string first_difference(const std::string &expected, const std::string &written)
{
    std::size_t number = 1, start = 0, i = 0;
    for (; i < expected.size() && i < written.size() && expected[i] == written[i]; ++i)
        if (expected[i] == '\n') {
            ++number;
            start = i + 1;
        }
    const auto line = [&](const std::string &text) {
        return text.substr(start, text.find('\n', start) - start);
    };
    return "line " + std::to_string(number) + "\nexpected: " + line(expected) +
           "\nwritten:  " + line(written);
}

} // namespace

TEST(Golden, ScenesConvertToTheOutputsBesideThem)
{
    const char *rewrite = std::getenv("MARLOGL_REWRITE_GOLDEN");
    int scenes = 0;
    for (const fs::directory_entry &folder :
         fs::directory_iterator(fs::path(__FILE__).parent_path() / "golden")) {
        for (const char *name : {"scene.mr2", "scene.mrl"}) {
            if (!fs::exists(folder.path() / name))
                continue;
            ++scenes;
            Given given;
            given.design_path = name;
            given.design = content_of(folder.path() / name);
            given.colour_table = colour_table(61); // one more than is read
            const Converted converted = convert(given);
            EXPECT_FALSE(converted.error) << folder.path() << ": " << converted.error->what();
            const fs::path expected = folder.path() / "expected.ogl";
            if (rewrite != nullptr && rewrite == std::string("1"))
                std::ofstream(expected, std::ios::binary) << converted.output;
            const std::string content = content_of(expected);
            EXPECT_TRUE(content == converted.output)
                << expected.string() << ", " << first_difference(content, converted.output);
        }
    }
    EXPECT_GE(scenes, 8);
}

} // namespace marlogl
