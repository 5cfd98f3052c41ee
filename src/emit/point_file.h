// The temporary point file: the corners of an n-gon on their way from a generator to writen.
#pragma once

#include "design/table.h"
#include "emit/output.h"

namespace marlogl {

/// A corner of an n-gon: its point number and its texture position in pixels.
struct Corner {
    double point, u, v;
};

/// Numbered from 1.
using Corners = Table<Corner, Range{1, 20}>;

namespace point_file {

/// Where the file lies.
std::string path();

/// Empties the file, which the first call of a run creates. Errors: missing_file, input_output.
void open();

/// Appends the text of one line.
void add_line(std::string_view text);

/// Reads the corners and deletes the file: lines that hold a ")" and blank lines are passed over, a number
/// that is missing reads as 0. Returns how many corners there are. Errors: index for more than 20 corners,
/// missing_file when nothing was written since the last reading; the file then stays as it is.
int read(Corners &corners);

/// Brings the disk up to date at the end of a run. While the run lasts the text is kept in memory; now the
/// file holds what was not read, or is deleted. Errors: input_output.
void settle();

/// The same after a failed run; raises nothing.
void abandon() noexcept;

} // namespace point_file

/// Appends one line to the temporary point file.
template <typename... Parts> void write_point_line(const Parts &...parts)
{
    with_text(point_file::add_line, parts..., "\r\n");
}

} // namespace marlogl
