// Scenes without a fault: the checker has nothing to say of them but notes.
#include "examples.h"
#include "support.h"

#include <gtest/gtest.h>

namespace marlogl::check {

namespace {

// The fenced blocks of a language in a document.
std::vector<std::string> blocks(const std::string &document, const std::string &language)
{
    std::vector<std::string> found;
    const std::string begin = "\n```" + language + '\n';
    for (std::size_t at = document.find(begin); at != document.npos; at = document.find(begin, at + 1)) {
        const std::size_t start = at + begin.size();
        found.push_back(document.substr(start, document.find("\n```\n", start) + 1 - start));
    }
    return found;
}

TEST(Clean, Examples)
{
    for (const std::string folder : {"examples/village/", "examples/hamlet/"}) {
        Files files;
        const std::string design = design_files(folder).at(0);
        for (const char *name : {"MarlOgl.dat", "appl/colors.tab"})
            files[folder + name] = read_whole(folder + name);
        files[design] = read_whole(design);
        EXPECT_EQ(told(check(files, folder + "MarlOgl.dat"), Severity::warning), "");
        EXPECT_EQ(told(check(files, design), Severity::warning), "");
    }
}

TEST(Clean, Manual)
{
    int scenes = 0;
    for (const std::string &path : design_files("docs/gallery")) {
        EXPECT_EQ(told(path, read_whole(path)), "");
        ++scenes;
    }
    for (const std::string path : {"docs/design-files.md", "README.md"})
        for (const std::string ending : {"mr2", "mrl"})
            for (const std::string &block : blocks(read_whole(path), ending)) {
                EXPECT_EQ(told("scene." + ending, block), "") << block;
                ++scenes;
            }
    EXPECT_GT(scenes, 35);
}

// Puts a scene together from the objects of the manual and the gallery: each with other records in another
// order, moved, turned, renamed, repeated as an instance.
class Generator {
  public:
    explicit Generator(unsigned seed) : random_{std::mt19937(seed)} {}

    std::string scene(const std::vector<std::vector<std::string>> &objects, const std::string &head)
    {
        std::string text = random_.below(2) ? "# a remark\n" + head : head;
        int count = 0;
        for (const int most = random_.below(20) ? random_.from_to(1, 20) : 70; count < most;) {
            text +=
                object(objects[static_cast<std::size_t>(random_.below(static_cast<int>(objects.size())))]);
            const int drawn = ++count;
            if (random_.below(4) == 0 && count < most) {
                text += "A23\nBInstance\n" + place() + "K30" + (drawn < 10 ? "0" : "") +
                        std::to_string(drawn) + '\n';
                ++count;
            }
        }
        return text;
    }

  private:
    std::string place()
    {
        return 'C' + std::to_string(random_.from_to(-900, 900)) + "\nD" +
               std::to_string(random_.from_to(-900, 900)) + "\nP61 " +
               std::to_string(random_.from_to(-359, 359)) + '\n';
    }

    std::string object(std::vector<std::string> records)
    {
        std::shuffle(records.begin() + 1, records.end(), random_.engine);
        std::string text;
        for (const std::string &record : records) {
            text += record + (random_.below(8) ? "\n" : "\r\n");
            if (random_.below(20) == 0)
                text += random_.below(2) ? "\n" : "' a remark\n";
        }
        return text + place();
    }

    Random random_;
};

// The objects of a scene, without what the generator gives them.
void add_objects(const std::string &scene, std::vector<std::vector<std::string>> &objects)
{
    for (std::size_t at = 0, end; at < scene.size(); at = end + 1) {
        end = std::min(scene.find('\n', at), scene.size());
        const std::string line = scene.substr(at, end - at);
        if (line.starts_with("A"))
            objects.emplace_back();
        if (!objects.empty() && line.find_first_of("ABPKFQ\\") == 0 && !line.starts_with("P61"))
            objects.back().push_back(line);
        if (line.starts_with("K30"))
            objects.pop_back();
    }
}

TEST(Clean, GeneratedScenes)
{
    std::vector<std::vector<std::string>> objects[2];
    for (const std::string &path : design_files("docs/gallery"))
        add_objects(read_whole(path), objects[path.ends_with("mr2")]);
    for (const std::string_view scene :
         {examples::sign, examples::meadow, examples::triangles, examples::flag})
        add_objects(std::string(scene), objects[1]);
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const bool version_2 = seed % 2 == 0;
        const std::string scene = Generator(seed).scene(objects[version_2], version_2 ? "J15\n" : "V1.2\n");
        const std::string name = version_2 ? "scene.mr2" : "scene.mrl";
        ASSERT_EQ(told(name, scene), "") << scene;
        ASSERT_EQ(conversion_fault(name, scene), "");
    }
}

} // namespace

} // namespace marlogl::check
