// What a conversion is asked for.
#pragma once

#include <string>

namespace marlogl {

/// One conversion: what to read, what to write, and in which colours.
struct Configuration {
    /// The design file, by any spelling; its last three characters are MRL (version 1) or MR2 (version 2), in
    /// any case, or nothing is converted.
    std::string design;
    /// The output file; "\" stands for a separator, too.
    std::string output;
    /// The colours of faces seen from outside and from inside, as they stand in the output: "255, 255, 255".
    std::string colour_outside, colour_inside;
    /// The folder of the colour table "appl/colors.tab" and of the temporary point file "tempofil.%%%".
    std::string folder = ".";
    /// The file that all this was read from, which no output may overwrite; empty when there is none.
    std::string file = {};
    /// What the file holds that its author can't have meant; empty when all is well.
    std::string warning = {};
};

} // namespace marlogl
