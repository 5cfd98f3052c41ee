// Design files for tests, and their conversion in memory.
#pragma once

#include "base/run_error.h"
#include "host/memory_files.h"

#include <optional>
#include <string>
#include <vector>

namespace marlogl {

/// What a run finds: the run configuration and the other files, by their paths ("program" is the program's
/// folder).
struct Given {
    std::string design_path = "scene.mr2";
    std::string design;
    std::optional<std::string> configuration = {}; // none: the usual one for design_path
    std::optional<std::string> colour_table = std::string();
};

/// The files that a run finds.
MemoryFiles files_of(const Given &given);

/// A design file of a version, as text, and a colour table of 60 colours.
Given given(int version, const std::string &design);

/// What a conversion left.
struct Converted {
    std::optional<RunError> error;
    bool has_output = false;
    std::string output;
    std::optional<std::string> point_file;

    /// The lines of the output without their ends.
    std::vector<std::string> lines() const;
    /// The lines between header (with the comment lines of the first object) and footer, "/" between them.
    std::string body() const;
};

/// Converts, and checks that the output breaks no rule.
Converted convert(const Given &given);
Converted convert(MemoryFiles &files);

/// A colour table of `lines` lines, entry i being the colour (i, i, i).
std::string colour_table(int lines = 60);

} // namespace marlogl
