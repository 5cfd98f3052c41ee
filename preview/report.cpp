#include "report.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace {

void write_problems(std::ostream &to, const std::string &file, const Problems &problems)
{
    const std::string start = "marlogl-preview: " + printable(file) + ":";
    for (const auto &[line, text] : problems.list())
        to << start << (line > 0 ? std::to_string(line) + ":" : "") << ' ' << printable(text) << '\n';
    if (problems.count() > problems.list().size())
        to << start << ' ' << problems.count() - problems.list().size() << " more problems\n";
}

} // namespace

std::string printable(std::string text)
{
    constexpr std::size_t longest = 1000;
    if (text.size() > longest)
        text = text.substr(0, longest) + "...";
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, '?');
    return text;
}

std::string describe(const Loaded &loaded, const Face &face, Vec3 point)
{
    const SceneObject &object = loaded.scene.objects[face.object];
    const DesignObject *const design = design_object(loaded, object);
    std::ostringstream text;
    text << loaded.file << ':' << (design != nullptr ? design->line : face.line) << ": object "
         << object.number << " \"" << object.name << '"';
    if (design != nullptr && !design->kind.empty())
        text << ", " << design->kind;
    if (face.texture != Run::untextured) {
        const std::string &texture = loaded.scene.textures[face.texture].name;
        text << ", texture \"" << texture << '"';
        const char *before = " of face slot ";
        if (design != nullptr && design->drawn_as < loaded.source.objects.size())
            for (const DesignTexture &slot : loaded.source.objects[design->drawn_as].textures)
                if (slot.name == texture) {
                    text << before << slot.slot << " (line " << slot.line << ')';
                    before = ", ";
                }
    }
    const Vec3 at = point * (1 / loaded.scene.unit);
    text << std::fixed << std::setprecision(1) << ", at " << at.x << ", " << at.y << ", " << at.z;
    return printable(text.str());
}

void write_warnings(std::ostream &to, const Loaded &loaded)
{
    const auto &[file, source, scene, textures, problems, texture_problems] = loaded;
    if (!source.warning.empty())
        to << "marlogl-preview: warning: " << printable(source.warning) << '\n';
    write_problems(to, file, problems);
    write_problems(to, file, texture_problems);
    if (!scene.is_whole)
        to << "marlogl-preview: " << printable(file)
           << ": the last four lines are missing: the file was cut, or its conversion failed\n";
    if (scene.runs.empty())
        to << "marlogl-preview: " << printable(file) << ": there is nothing to show in this file\n";
}

void write_report(std::ostream &to, const Loaded &loaded)
{
    const Scene &scene = loaded.scene;
    to << "objects                 " << scene.counts.objects << '\n'
       << "faces                   " << scene.faces.size() << '\n'
       << "concave faces           " << scene.concave_faces;
    if (scene.concave_faces > 0)
        to << ", the first ends in line " << scene.first_concave_line;
    to << '\n'
       << "lines                   " << scene.lines << '\n'
       << "points                  " << scene.points << '\n'
       << "bounds x                " << scene.lowest.x << " to " << scene.highest.x << '\n'
       << "bounds y                " << scene.lowest.y << " to " << scene.highest.y << '\n'
       << "bounds z                " << scene.lowest.z << " to " << scene.highest.z << '\n'
       << "textures                " << scene.textures.size() << '\n'
       << "missing textures        " << loaded.textures.missing << '\n'
       << "skipped lines           " << scene.counts.skipped_lines << '\n'
       << "problems                " << loaded.problems.count() << '\n'
       << "unbalanced matrix calls " << scene.unbalanced_matrix_calls << '\n';
}
