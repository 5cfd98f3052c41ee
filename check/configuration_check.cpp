#include "configuration_check.h"

#include "base/run_error.h"
#include "checked_files.h"
#include "colours.h"
#include "design/colour_table.h"
#include "host/lines.h"
#include "host/paths.h"
#include "reading.h"
#include "run/configuration.h"
#include "run/convert.h"
#include "texture_check.h"

#include <filesystem>

namespace marlogl::check {

namespace {

constexpr int line_count = 4;

class ConfigurationCheck {
  public:
    ConfigurationCheck(CheckedFiles &files, FileReport &report) : files_(files), report_(report) {}

    // Reads and checks the lines; false when the run cannot go on with them.
    bool check_lines(const std::string &path)
    {
        LineReader file(files_, path);
        for (int number = 1; number <= line_count; ++number) {
            if (file.at_end()) {
                tell("configuration-line", number, 1,
                     "line " + std::to_string(number) + " is missing; the run configuration has four lines");
                return false;
            }
            const std::string line(file.read_line(4096));
            if (number == 2)
                check_output(line);
            else if (number > 2)
                check_colour(line, number);
        }
        return true;
    }

    void tell(std::string_view name, int line, std::size_t length, const std::string &message)
    {
        SayTo(report_, rule(name), 0)(line, {1, std::max<std::size_t>(length, 1)}, message);
    }

  private:
    void check_output(const std::string &line)
    {
        const std::string output = native_path(trimmed(line));
        constexpr std::size_t ending = 4; // with its point
        if (output.size() >= ending && output[output.size() - ending] != '.')
            tell("output-ending", 2, line.size(),
                 "the last three characters are replaced: the output is " +
                     quoted_path(output.substr(0, output.size() - 3) + "ogl"));
        const std::string folder = std::filesystem::path(output).parent_path().string();
        if (!folder.empty() && !files_.exists(folder))
            tell("output-folder", 2, line.size(),
                 "there is no folder " + quoted_path(folder) + " for the output");
    }

    void check_colour(const std::string &line, int number)
    {
        if (!is_whole_colour(line))
            tell("configuration-colour", number, line.size(),
                 "the colour " + marlogl::quoted(line) + " is not nine digits");
        if (const std::string fault = octal_fault(line); !fault.empty())
            tell("octal-colour", number, line.size(), fault);
        if (const std::string fault = large_fault(line); !fault.empty())
            tell("large-colour", number, line.size(), fault);
    }

    CheckedFiles &files_;
    FileReport &report_;
};

} // namespace

std::vector<FileReport> check_configuration(FileSystem &files, const std::string &path,
                                            const Settings &settings)
{
    CheckedFiles checked(files, folder_of(path));
    std::vector<FileReport> reports;
    reports.reserve(2); // reports stay where they are
    FileReport &report = reports.emplace_back(path, settings.disabled);
    ConfigurationCheck check(checked, report);
    const std::string name = path.substr(folder_of(path).size());
    if (!check.check_lines(name))
        return reports;

    const Configuration configuration = read_configuration(checked);
    const auto [design, identity] = find_file(checked, native_path(configuration.design));
    const int version = design_version(configuration.design);
    if (version == 0) {
        check.tell("wrong-ending", 1, configuration.design.size(),
                   "the name ends in neither .mrl nor .mr2; the output will be empty");
    } else if (identity.empty()) {
        check.tell("design-missing", 1, configuration.design.size(),
                   "there is no file " + quoted_path(configuration.design));
    } else {
        const std::string output = native_path(configuration.output);
        const Surroundings surroundings{{folder_of(output), folder_of(design)},
                                        find_colour_table(checked, configuration.folder).path};
        check_design(checked, design, version, surroundings,
                     reports.emplace_back(checked.at(design), settings.disabled));
    }

    if (total(reports)(Severity::error) == 0) {
        try {
            convert(checked, configuration);
        } catch (const RunError &error) {
            check.tell("stops-run", 1, 1, error.what());
        }
    }
    report.sort();
    return reports;
}

} // namespace marlogl::check
