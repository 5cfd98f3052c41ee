#include "support.h"

#include "base/run_error.h"
#include "examples.h"
#include "run/configuration.h"
#include "run/convert.h"

#include <sstream>

namespace marlogl::check {

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
