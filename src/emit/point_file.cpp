#include "emit/point_file.h"

#include "design/text.h"
#include "host/file_system.h"
#include "host/paths.h"

#include <memory>
#include <utility>

namespace marlogl::point_file {

namespace {

constexpr std::string_view name = "\\tempofil.%%%";
constexpr std::string_view line_end = "\r\n";

std::unique_ptr<OutputFile> file; // created and still empty; none before the first n-gon of a run
std::string lines;
bool present = false; // whether a program that looked would find the file

std::string_view take_field(std::string_view &line)
{
    line = trimmed(line);
    const std::string_view field = line.substr(0, line.find(' '));
    line.remove_prefix(field.size());
    return field;
}

} // namespace

void open()
{
    if (!file)
        file = file_system().create(program_file(name));
    lines.clear();
    present = true;
}

void add_line(std::string_view text)
{
    lines += text;
}

int read(Corners &corners)
{
    if (!present)
        throw RunError(Fault::missing_file, "the temporary point file is missing");
    int count = 0;
    for (std::string_view rest = lines; !rest.empty();) {
        std::string_view line = rest.substr(0, rest.find(line_end));
        rest.remove_prefix(line.size() + line_end.size());
        if (line.find(')') != line.npos || trimmed(line).empty())
            continue;
        Corner &corner = corners(++count);
        for (double *number : {&corner.point, &corner.u, &corner.v})
            *number = numeric_value(take_field(line));
    }
    lines.clear();
    present = false;
    return count;
}

void settle()
{
    if (!file)
        return;
    const std::unique_ptr<OutputFile> settling = std::move(file);
    if (!lines.empty())
        settling->write(lines);
    settling->close();
    lines.clear();
    if (!std::exchange(present, false))
        file_system().remove(program_file(name));
}

void abandon() noexcept
{
    try {
        settle();
    } catch (const RunError &) {
        // The run has failed already, and its message tells the first cause.
    }
    lines.clear();
    present = false;
}

} // namespace marlogl::point_file
