// The colour table: up to 60 red-green-blue entries, read from a file by each generator that uses them.
#pragma once

#include "design/table.h"
#include "design/text.h"

#include <string>

namespace marlogl {

/// One colour: red, green and blue as texts of three characters each, as the file has them.
struct ColourEntry {
    Text<9> components;

    std::string_view red() const { return columns(components, 1, 3); }
    std::string_view green() const { return columns(components, 4, 6); }
    std::string_view blue() const { return columns(components, 7, 9); }
};

/// Entries 1 to 60; those that no line of the file filled are blank.
using ColourTable = Table<ColourEntry, Range{1, 60}>;

std::string colour_table_path();

/// Reads the colour table file. Errors: missing_file, past_end for an empty file, input_output.
ColourTable load_colour_table();

/// The colour number that stands for `number`: itself from 1 to 60, else `replacement`.
constexpr double colour_number(double number, double replacement)
{
    return number < 1 || number > 60 ? replacement : number;
}

} // namespace marlogl
