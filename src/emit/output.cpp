#include "emit/output.h"

#include "host/file_system.h"
#include "host/run_error.h"

#include <memory>
#include <utility>

namespace marlogl {

namespace output {

char buffer[capacity];
char *next = buffer;

namespace {

std::unique_ptr<OutputFile> file;

void write(std::string_view lines)
{
    if (lines.empty())
        return;
    // A failed write is the last one: whatever came after it would stand behind a gap.
    std::unique_ptr<OutputFile> writing = std::move(file);
    writing->write(lines);
    file = std::move(writing);
}

} // namespace

void flush()
{
    const std::string_view lines(buffer, static_cast<std::size_t>(next - buffer));
    next = buffer;
    write(lines);
}

void write_long(std::string_view line)
{
    flush();
    write(line);
}

} // namespace output

void open_output(const std::string &path)
{
    output::next = output::buffer;
    output::file = file_system().create(path);
}

void close_output()
{
    output::flush();
    const std::unique_ptr<OutputFile> closing = std::move(output::file);
    closing->close();
}

void abandon_output() noexcept
{
    try {
        if (output::file)
            close_output();
    } catch (...) {
        // The run has failed already, and its message tells the first cause.
    }
    output::file.reset();
}

} // namespace marlogl
