// The colour table: up to 60 colours, which design files name by number.
#pragma once

#include "design/table.h"
#include "design/text.h"
#include "host/paths.h"

namespace marlogl {

/// One colour, as the file has it.
struct TableColour {
    Text<3> red, green, blue;
};

/// Entries that no line of the file filled are blank.
struct ColourTable : std::array<TableColour, 60> {
    /// Errors: index for a number outside 1 to 60.
    const TableColour &operator()(double number) const
    {
        return (*this)[place_in({1, 60, "colour table entry"}, number)];
    }
};

/// The colour table of the program's folder, which need not exist. Errors: input_output.
Found find_colour_table(FileSystem &files, const std::string &folder);

/// Errors: missing_file, past_end for an empty file, input_output.
ColourTable read_colour_table(FileSystem &files, const std::string &path);

/// The colour number that stands for `number`: itself from 1 to 60, else `replacement`.
constexpr double colour_number(double number, double replacement)
{
    return number < 1 || number > 60 ? replacement : number;
}

} // namespace marlogl
