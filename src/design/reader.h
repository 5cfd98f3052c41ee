// The reader of design files.
#pragma once

#include "design/scene.h"
#include "host/file_system.h"

namespace marlogl {

/// Reads the design file `path` of a version, 1 or 2; `path` is spelled as its author likes. Structures of
/// version-1 files before version 1.2 hold their antennas in other cells, and are converted.
/// Errors: missing_file, past_end for an empty file, index and overflow for a record that the tables can't
/// take (the message names file, line and record), input_output.
Scene read_design(FileSystem &files, const std::string &path, int version);

} // namespace marlogl
