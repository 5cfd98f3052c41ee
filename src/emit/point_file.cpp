#include "emit/point_file.h"

#include "design/text.h"
#include "host/file_system.h"
#include "host/paths.h"

#include <memory>
#include <utility>

namespace marlogl::point_file {

namespace {

constexpr std::string_view line_end = "\r\n";

std::unique_ptr<OutputFile> file; // created and still empty; none before the first n-gon of a run
std::string lines;
bool present = false; // whether a program that looked would find the file

// Takes the first field off a line; empty when there is none.
std::string_view take_field(std::string_view &line)
{
    const char *start = line.data(), *const end = start + line.size();
    while (start != end && *start == ' ')
        ++start;
    const char *stop = start;
    while (stop != end && *stop != ' ')
        ++stop;
    line = {stop, end};
    return {start, stop};
}

} // namespace

std::string path()
{
    return program_file("\\tempofil.%%%");
}

void open()
{
    if (!file)
        file = file_system().create(path());
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
        file_system().remove(path());
}

void abandon() noexcept
{
    try {
        settle();
    } catch (...) {
        // The run has failed already, and its message tells the first cause.
    }
    lines.clear();
    present = false;
}

} // namespace marlogl::point_file
