#include "support.h"

#include "base/run_error.h"
#include "examples.h"
#include "run/configuration.h"
#include "run/convert.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace marlogl::check {

std::string read_whole(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> design_files(const std::string &folder)
{
    std::vector<std::string> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        if (design_version(entry.path().string()) != 0)
            paths.push_back(entry.path().string());
    return paths;
}

Files usual_files()
{
    Files files{
        {"MarlOgl.dat", std::string(examples::configuration)},
        {"appl/colors.tab", std::string(examples::colour_table)},
        {"scene.mr2", std::string(examples::fence)},
    };
    for (const char *name : {"asphalt", "flag", "front", "grass", "inn", "rim", "stone", "tiles"})
        files[std::string(name) + ".bmp"] = "BM";
    return files;
}

std::vector<FileReport> check(const Files &files, const std::string &path)
{
    MemoryFiles memory;
    memory.files = files;
    static const Settings settings;
    return check_file(memory, path, settings);
}

std::string told(const std::vector<FileReport> &reports, Severity least)
{
    std::ostringstream text;
    for (const FileReport &report : reports)
        for (const Finding &finding : report.findings())
            if (finding.rule->severity >= least)
                text << report.file() << ':' << finding.line << ": " << name_of(finding.rule->severity)
                     << ": " << finding.message << " [" << finding.rule->name << "]\n";
    return text.str();
}

std::string told(const std::string &name, const std::string &design, Severity least)
{
    return told(check({{name, design}}, name), least);
}

std::string conversion_fault(const std::string &name, const std::string &design)
{
    MemoryFiles memory;
    memory.files = {{name, design}};
    for (int line = 0; line < 60; ++line)
        memory.files["appl/colors.tab"] += "a colour          200 100 150\n";
    Configuration configuration;
    configuration.design = name;
    configuration.output = "scene.out";
    try {
        convert(memory, configuration);
        return {};
    } catch (const RunError &error) {
        return error.what();
    }
}

} // namespace marlogl::check
