#include "checker.h"

#include "base/letters.h"
#include "base/run_error.h"
#include "checked_files.h"
#include "configuration_check.h"
#include "drawing.h"
#include "reading.h"
#include "run/convert.h"
#include "texture_check.h"

#include <filesystem>

namespace marlogl::check {

namespace {

// What the report calls an object.
std::string description(const Scene &scene, int number, int version)
{
    const Object &object = scene.objects[static_cast<std::size_t>(number - 1)];
    const Kind *kind = find_kind(version, object.type);
    const int drawn = source_of(scene, number);
    return marlogl::quoted(object.name) + ", " +
           (drawn != number ? "instance of object " + std::to_string(drawn)
            : kind != nullptr
                ? std::string(kind->name)
                : (object.type == 0 ? "" : "unknown ") + std::string("type ") + std::to_string(object.type));
}

class ObjectChecks {
  public:
    ObjectChecks(CheckedFiles &files, DesignSeen &seen, int version, const Surroundings &surroundings,
                 FileReport &report)
        : seen_(seen), version_(version), report_(report),
          drawings_(files, seen.scene, version, surroundings.colour_table),
          textures_(files, surroundings.texture_folders)
    {
    }

    void check_all()
    {
        for (int number = 1; number <= static_cast<int>(seen_.scene.objects.size()); ++number)
            check(number);
    }

  private:
    void check(int number)
    {
        const auto index = static_cast<std::size_t>(number - 1);
        const Object &object = seen_.scene.objects[index];
        Drawn drawn;
        if (object.type != 0)
            drawn = draw(number, seen_.lines[index].opened);
        const bool is_instance = source_of(seen_.scene, number) != number;
        const Kind *kind = is_instance ? nullptr : find_kind(version_, object.type);
        ObjectSeen object_seen{seen_.scene,
                               object,
                               number,
                               version_,
                               seen_.file_version,
                               kind,
                               seen_.lines[index],
                               drawn,
                               drawings_.colours(),
                               false,
                               {}};
        if (kind != nullptr)
            object_seen.faces = faces_of(*kind, object);
        for (const Rule *each : all_rules()) {
            object_seen.complained = seen_.complained[index + 1];
            if (each->check.object != nullptr && (!is_instance || each->check.of_instances))
                each->check.object(object_seen, say(*each, number));
        }
        if (kind != nullptr)
            textures_.check(object_seen, [&](std::string_view name) { return say(rule(name), number); });
    }

    SayTo say(const Rule &each, int number) { return {report_, each, number, &seen_.complained}; }

    Drawn draw(int number, LineNumber opened)
    {
        std::string fault;
        const Drawn drawn = drawings_.draw(number, fault);
        if (drawn.stopped)
            say(rule("stops-drawing"), number)(opened, fault);
        if (const std::string table = drawings_.take_table_fault(); !table.empty())
            say(rule("colour-table-missing"), number)(opened, table);
        return drawn;
    }

    DesignSeen &seen_;
    int version_;
    FileReport &report_;
    Drawings drawings_;
    TextureCheck textures_;
};

bool is_configuration(const std::string &path)
{
    return same_letters(std::filesystem::path(path).filename().string(), "MarlOgl.dat");
}

} // namespace

void check_design(CheckedFiles &files, const std::string &path, int version, const Surroundings &surroundings,
                  FileReport &report)
{
    LineReader file(files, path);
    if (file.at_end()) {
        SayTo(report, rule("empty-file"), 0)(1, {1, 1}, "the file is empty, which stops the conversion");
        return;
    }
    DesignSeen seen;
    read_design(file, version, seen, report);
    std::vector<std::string> objects;
    for (int number = 1; number <= static_cast<int>(seen.scene.objects.size()); ++number)
        objects.push_back(description(seen.scene, number, version));
    report.describe(std::move(objects));
    if (seen.is_text)
        ObjectChecks(files, seen, version, surroundings, report).check_all();
    report.sort();
}

std::vector<FileReport> check_file(FileSystem &files, const std::string &path, const Settings &settings)
{
    if (is_configuration(path))
        return check_configuration(files, path, settings);
    CheckedFiles checked(files, "");
    std::vector<FileReport> reports;
    FileReport &report = reports.emplace_back(path, settings.disabled);
    const bool is_input = path == CheckedFiles::standard_input;
    const int version = is_input ? settings.version_of_input : design_version(path);
    if (version == 0) {
        const LineReader there(checked, path); // a file that is not there is told first
        SayTo(report, rule("wrong-ending"),
              0)(1, {1, 1}, "the name ends in neither .mrl nor .mr2; the output will be empty");
        return reports;
    }
    Surroundings surroundings;
    if (!is_input)
        surroundings.texture_folders.push_back(folder_of(path));
    check_design(checked, path, version, surroundings, report);
    return reports;
}

} // namespace marlogl::check
