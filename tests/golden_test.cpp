// Whole conversions, byte for byte: beside each scene of golden/ stands the output that is expected, folded.
// With MARLOGL_REWRITE_GOLDEN=1 in the environment the expected outputs are written anew.
#include "run/configuration.h"
#include "run/convert.h"
#include "support/cases.h"
#include "support/design.h"
#include "support/folded.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <thread>

namespace marlogl {

namespace {

namespace fs = std::filesystem;

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

struct GoldenScene {
    Given given;
    fs::path expected;
};

std::vector<GoldenScene> golden_scenes()
{
    std::vector<GoldenScene> scenes;
    for (const fs::directory_entry &entry :
         fs::directory_iterator(fs::path(__FILE__).parent_path() / "golden")) {
        fs::path path = entry.path();
        if (path.extension() != ".mr2" && path.extension() != ".mrl")
            continue;
        // The colour table has one line more than is read.
        scenes.push_back({{.design_path = "scene" + path.extension().string(),
                           .design = content_of(path),
                           .colour_table = colour_table(61)},
                          path.replace_extension(".txt")});
    }
    return scenes;
}

TEST(Golden, ScenesConvertToTheOutputsBesideThem)
{
    const char *rewrite = std::getenv("MARLOGL_REWRITE_GOLDEN");
    const std::vector<GoldenScene> scenes = golden_scenes();
    EXPECT_GE(scenes.size(), 8u);
    for (const auto &[given, expected] : scenes) {
        const Converted converted = convert(given);
        EXPECT_FALSE(converted.error) << expected << ": " << converted.error->what();
        const std::string written = folded(converted.output);
        if (rewrite != nullptr && rewrite == std::string("1"))
            std::ofstream(expected, std::ios::binary) << written;
        const std::string content = content_of(expected);
        EXPECT_TRUE(content == written) << expected.string() << ", " << first_difference(content, written);
    }
}

TEST(Golden, ExamplesAndScenesOfTheManualConvertAsEver)
{
    const fs::path tests = fs::path(__FILE__).parent_path(), sums = tests / "golden/checksums";
    std::ostringstream found;
    for (const char *folder : {"examples/hamlet", "examples/village", "docs/gallery"}) {
        std::set<fs::path> scenes;
        for (const fs::directory_entry &entry : fs::directory_iterator(tests / ".." / folder))
            if (entry.path().extension() == ".mr2" || entry.path().extension() == ".mrl")
                scenes.insert(entry.path());
        for (const fs::path &scene : scenes) {
            const Converted converted = convert({.design_path = "scene" + scene.extension().string(),
                                                 .design = content_of(scene),
                                                 .colour_table = colour_table(61)});
            found << std::hex << checksum(converted.output) << ' ' << scene.filename().string() << '\n';
        }
    }
    expect_content(sums, found.str());
}

TEST(Golden, ScenesConvertBesideEachOther)
{
    const std::vector<GoldenScene> scenes = golden_scenes();
    std::vector<std::string> alone;
    for (const auto &[given, expected] : scenes)
        alone.push_back(convert(given).output);
    std::atomic<int> differences = 0;
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < 8; ++thread)
        threads.emplace_back([&, thread] {
            for (std::size_t i = 0; i < 5 * scenes.size(); ++i) {
                const std::size_t scene = (i + thread) % scenes.size();
                MemoryFiles memory = files_of(scenes[scene].given);
                marlogl::convert(memory, read_configuration(memory));
                differences += memory.files["scene.ogl"] != alone[scene];
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(differences, 0);
}

} // namespace

} // namespace marlogl
