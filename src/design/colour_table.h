// The colour table: up to 60 colours, which design files name by number.
#pragma once

#include "design/table.h"
#include "design/text.h"
#include "host/paths.h"

namespace marlogl {

/// One colour: red, green and blue as texts of three characters each, as the file has them.
struct TableColour {
    Text<9> components;

    std::string_view red() const { return columns(components, 1, 3); }
    std::string_view green() const { return columns(components, 4, 6); }
    std::string_view blue() const { return columns(components, 7, 9); }
};

/// Entries that no line of the file filled are blank.
using ColourTable = Table<TableColour, Range{1, 60}>;

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
