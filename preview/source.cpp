#include "source.h"

#include "base/letters.h"
#include "base/run_error.h"
#include "design/colour_table.h"
#include "design/reader.h"
#include "dispatch/dispatch.h"
#include "files.h"
#include "host/lines.h"
#include "host/memory_files.h"
#include "host/paths.h"
#include "run/configuration.h"
#include "run/convert.h"

#include <optional>

namespace fs = std::filesystem;

namespace {

// The largest file that MarlOgl itself writes has about 12 MB. One of this size is still shown within 1 GB.
constexpr std::size_t most_megabytes = 64;

// Reads from the disk and writes into memory.
class SourceFiles : public marlogl::FileSystem {
  public:
    explicit SourceFiles(FilesRead &to) : files_read_(to) {}

    marlogl::MemoryFiles written;
    std::string configuration_folder = "."; // where MarlOgl.dat is looked for

    std::unique_ptr<marlogl::InputFile> open(const std::string &path) override
    {
        files_read_.note(path);
        return disk_->open(path);
    }
    std::unique_ptr<marlogl::OutputFile> create(const std::string &path) override
    {
        return written.create(path);
    }
    void remove(const std::string &path) override { written.remove(path); }
    std::string identity(const std::string &path) override
    {
        files_read_.note(path);
        return disk_->identity(path);
    }
    std::vector<std::string> names_in(const std::string &folder) override { return disk_->names_in(folder); }
    std::string executable_folder() override { return configuration_folder; }
    std::string current_folder() override { return disk_->current_folder(); }

  private:
    FilesRead &files_read_;
    const std::unique_ptr<marlogl::FileSystem> disk_ = marlogl::system_files();
};

bool is_configuration(const std::string &path)
{
    return marlogl::same_letters(fs::path(path).filename().string(), "MarlOgl.dat");
}

std::string folder_of(const std::string &file)
{
    const fs::path folder = fs::path(file).parent_path();
    return folder.empty() ? "." : folder.string();
}

// The design file that a configuration in a folder names: as a run in that folder finds it or, when the
// program lies there, one in the current folder.
std::string design_of(SourceFiles &files, const marlogl::Configuration &configuration)
{
    std::string named = marlogl::native_path(configuration.design);
    if (fs::path(named).is_absolute() || configuration.folder == ".")
        return named;
    const auto [beside, identity] = marlogl::find_file(files, '/' + named, configuration.folder);
    return !identity.empty() ? beside : named;
}

// The configuration in a folder; nothing when there is none that can be read.
std::optional<marlogl::Configuration> configuration_in(SourceFiles &files, const std::string &folder)
{
    files.configuration_folder = folder;
    try {
        marlogl::Configuration configuration = marlogl::read_configuration(files);
        if (configuration.folder != folder)
            return {};
        return configuration;
    } catch (const marlogl::RunError &) {
        return {};
    }
}

marlogl::Configuration configuration_of(SourceFiles &files, const std::string &path)
{
    marlogl::Configuration result;
    if (is_configuration(path)) {
        files.configuration_folder = folder_of(path);
        result = marlogl::read_configuration(files);
        if (files.identity(result.file) != files.identity(path))
            throw std::runtime_error("MarlOgl reads " + marlogl::quoted_path(result.file) + " rather than " +
                                     marlogl::quoted_path(path));
        result.design = design_of(files, result);
        return result;
    }
    result.colour_outside = result.colour_inside = "255, 255, 255";
    const std::string identity = files.identity(path);
    for (const std::string &folder : {folder_of(path), folder_of(path) + "/..", std::string(".")}) {
        const auto found = configuration_in(files, folder);
        if (found && !identity.empty() &&
            marlogl::find_file(files, design_of(files, *found)).identity == identity) {
            result = *found;
            break;
        }
    }
    result.design = path;
    return result;
}

// The objects of the design file, which were read before without a fault.
std::vector<DesignObject> objects_of(SourceFiles &files, const std::string &design, int version)
{
    const marlogl::Scene scene = marlogl::read_design(files, design, version);
    std::vector<DesignObject> objects;
    for (int number = 1; const marlogl::Object &object : scene.objects) {
        const auto drawn = static_cast<std::size_t>(marlogl::source_of(scene, number) - 1);
        const int type = drawn < scene.objects.size() ? scene.objects[drawn].type : object.type;
        const marlogl::Kind *const kind = marlogl::find_kind(version, type);
        objects.push_back({kind != nullptr ? kind->name : "", 0, drawn, {}});
        ++number;
    }
    marlogl::LineReader lines(files, marlogl::find_file(files, design).path);
    std::size_t begun = 0;
    for (std::uint32_t number = 1; !lines.at_end(); ++number) {
        const std::string_view line = lines.read_line();
        if (line.starts_with('A')) {
            if (begun == objects.size())
                break;
            objects[begun++].line = number;
        } else if (line.starts_with('F') && begun > 0) {
            const auto slot = static_cast<int>(marlogl::numeric_value(marlogl::columns(line, 2, 3)));
            const std::string name(marlogl::trimmed(marlogl::columns(line, 4)));
            objects[begun - 1].textures.push_back({slot, name + ".bmp", number});
        }
    }
    return objects;
}

Source convert_in_memory(const std::string &path, FilesRead &files_read)
{
    SourceFiles files(files_read);
    marlogl::Configuration configuration = configuration_of(files, path);
    const int version = marlogl::design_version(configuration.design);
    if (version == 0)
        throw std::runtime_error("the design file " + marlogl::quoted_path(configuration.design) +
                                 " is not converted: its name ends in neither MRL nor MR2");
    for (const std::string &folder :
         {configuration.folder, folder_of(configuration.design), std::string(".")})
        if (!marlogl::find_colour_table(files, folder).identity.empty()) {
            configuration.folder = folder;
            break;
        }
    const std::string output = "converted.ogl";
    configuration.output = output;
    marlogl::convert(files, configuration);

    Source source;
    source.text = std::move(files.written.files[output]);
    source.design = configuration.design;
    source.objects = objects_of(files, configuration.design, version);
    source.warning = configuration.warning;
    for (const std::string &file : {path, configuration.design})
        source.texture_folders.emplace_back(folder_of(file));
    return source;
}

} // namespace

bool is_converted(const std::string &path)
{
    return is_configuration(path) || marlogl::design_version(path) != 0;
}

Source read_source(const std::string &path, FilesRead &files_read)
{
    if (is_converted(path))
        return convert_in_memory(path, files_read);
    files_read.note(path);
    Source source;
    source.text = read_file(path, most_megabytes);
    return source;
}
