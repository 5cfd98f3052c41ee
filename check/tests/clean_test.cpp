// Scenes without a fault: the checker has nothing to say of them but notes.
#include "support.h"
#include "support/cases.h"

#include <gtest/gtest.h>

namespace marlogl::check {

namespace {

TEST(Clean, Examples)
{
    for (const std::string folder : {"examples/village/", "examples/hamlet/"}) {
        Files files;
        const std::string design = design_files(folder).at(0);
        for (const char *name : {"MarlOgl.dat", "appl/colors.tab"})
            files[folder + name] = content_of(folder + name);
        files[design] = content_of(design);
        EXPECT_EQ(told(check(files, folder + "MarlOgl.dat"), Severity::warning), "");
        EXPECT_EQ(told(check(files, design), Severity::warning), "");
    }
}

TEST(Clean, Manual)
{
    const auto scenes = manual_scenes();
    for (const auto &[name, scene] : scenes)
        EXPECT_EQ(told(name, scene), "") << scene;
    EXPECT_GT(scenes.size(), 35u);
}

TEST(Clean, GeneratedScenes)
{
    const SceneGenerator generator;
    for (int seed = 1; seed <= 200 / one_in; ++seed) {
        const auto [name, scene] = generator.scene(static_cast<unsigned>(seed));
        ASSERT_EQ(told(name, scene), "") << scene;
        ASSERT_EQ(conversion_fault(name, scene), "");
    }
}

} // namespace

} // namespace marlogl::check
