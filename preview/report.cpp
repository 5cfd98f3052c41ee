#include "report.h"

#include <algorithm>

namespace {

// Names come from the file with any bytes; control characters would reach the terminal.
std::string printable(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, '?');
    return text;
}

} // namespace

void write_warnings(std::ostream &to, const std::string &file, const Problems &problems,
                    const std::vector<std::string> &missing_textures)
{
    const std::string start = "marlogl-preview: " + printable(file) + ":";
    for (const Problem &problem : problems.list())
        to << start << problem.line << ": " << problem.text << '\n';
    if (problems.count() > problems.list().size())
        to << start << " " << problems.count() - problems.list().size() << " more problems\n";
    for (const std::string &name : missing_textures)
        to << start << " texture \"" << printable(name) << "\" is missing or no BMP file\n";
}

void write_report(std::ostream &to, const Scene &scene, const Problems &problems,
                  const std::vector<std::string> &missing_textures)
{
    to << "objects                 " << scene.objects << '\n'
       << "faces                   " << scene.faces << '\n'
       << "lines                   " << scene.lines << '\n'
       << "points                  " << scene.points << '\n'
       << "bounds x                " << scene.lowest.x << " to " << scene.highest.x << '\n'
       << "bounds y                " << scene.lowest.y << " to " << scene.highest.y << '\n'
       << "bounds z                " << scene.lowest.z << " to " << scene.highest.z << '\n'
       << "textures                " << scene.textures.size() << '\n'
       << "missing textures        " << missing_textures.size() << '\n'
       << "skipped lines           " << scene.skipped_lines << '\n'
       << "problems                " << problems.count() << '\n'
       << "unbalanced matrix calls " << scene.unbalanced_matrix_calls << '\n';
}
