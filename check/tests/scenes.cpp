#include "scenes.h"

#include "examples.h"
#include "run/convert.h"
#include "support/cases.h"

#include <algorithm>
#include <filesystem>

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

class Mixer {
  public:
    explicit Mixer(unsigned seed) : random_{std::mt19937(seed)} {}

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
        std::string records;
        for (const auto &[key, most] : {std::pair{"C", 900}, {"D", 900}, {"P61 ", 359}})
            records += key + std::to_string(random_.from_to(-most, most)) + '\n';
        return records;
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

} // namespace

std::vector<std::string> design_files(const std::string &folder)
{
    std::vector<std::string> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        if (design_version(entry.path().string()) != 0)
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end()); // folders have no order of their own
    return paths;
}

std::map<std::string, std::string> manual_scenes()
{
    std::map<std::string, std::string> scenes;
    for (const std::string &path : design_files("docs/gallery"))
        scenes[std::filesystem::path(path).filename().string()] = content_of(path);
    for (const std::string path : {"docs/design-files.md", "README.md"})
        for (const std::string ending : {"mr2", "mrl"})
            for (const std::string &block : blocks(content_of(path), ending))
                scenes["block" + std::to_string(scenes.size()) + '.' + ending] = block;
    return scenes;
}

SceneGenerator::SceneGenerator()
{
    for (const std::string &path : design_files("docs/gallery"))
        add_objects(content_of(path), objects[path.ends_with("mr2")]);
    for (const std::string_view scene :
         {examples::sign, examples::meadow, examples::triangles, examples::flag})
        add_objects(std::string(scene), objects[1]);
}

std::pair<std::string, std::string> SceneGenerator::scene(unsigned seed) const
{
    const bool version_2 = seed % 2 == 0;
    return {version_2 ? "scene.mr2" : "scene.mrl",
            Mixer(seed).scene(objects[version_2], version_2 ? "J15\n" : "V1.2\n")};
}

} // namespace marlogl::check
