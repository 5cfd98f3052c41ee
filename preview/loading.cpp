#include "loading.h"

#include <algorithm>
#include <stdexcept>

namespace {

// The same problems with the lines of the objects in the design file.
Problems in_design_file(const Problems &problems, const Loaded &loaded)
{
    Problems placed;
    for (const auto &[line, text] : problems.list()) {
        const auto &objects = loaded.scene.objects;
        const auto after = std::find_if(objects.begin(), objects.end(),
                                        [at = line](const SceneObject &object) { return object.line > at; });
        const DesignObject *const object = design_object(loaded, *std::prev(after));
        placed.add(object != nullptr && line > 0 ? object->line : 0, text);
    }
    placed.leave_out(problems.count() - problems.list().size());
    return placed;
}

} // namespace

Loaded load(const std::string &path, const std::vector<std::string> &texture_dirs, FilesRead &files_read)
{
    Loaded loaded;
    loaded.source = read_source(path, files_read);
    loaded.scene = read_scene(loaded.source.text, loaded.problems);
    loaded.source.text = {};
    if (loaded.scene.counts.statements == 0)
        throw std::runtime_error(path + " is no output file of MarlOgl: it holds no statement");
    std::vector<std::filesystem::path> more = loaded.source.texture_folders;
    more.insert(more.end(), texture_dirs.begin(), texture_dirs.end());
    FileFinder finder(texture_folders(path, more, files_read), files_read);
    loaded.textures = load_textures(loaded.scene.textures, finder, loaded.texture_problems);
    loaded.file = path;
    if (!loaded.source.design.empty()) {
        loaded.file = loaded.source.design;
        for (Problems *problems : {&loaded.problems, &loaded.texture_problems})
            *problems = in_design_file(*problems, loaded);
    }
    return loaded;
}

void require_whole(const Loaded &loaded)
{
    if (!loaded.scene.is_whole)
        throw std::runtime_error(loaded.file + " is not complete: its last four lines are missing");
}

const DesignObject *design_object(const Loaded &loaded, const SceneObject &object)
{
    const auto index = static_cast<std::size_t>(object.number) - 1; // wraps where there is no number
    return index < loaded.source.objects.size() ? &loaded.source.objects[index] : nullptr;
}
