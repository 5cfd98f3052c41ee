// The run configuration: the file MarlOgl.dat.
#pragma once

#include "design/configuration.h"
#include "host/file_system.h"

namespace marlogl {

/// Reads the run configuration beside the executable or, when none is there, in the current folder; a file of
/// exactly its name goes before one in another case. Errors: missing_file when neither folder holds one,
/// past_end for less than four lines, input_output.
Configuration read_configuration(FileSystem &files);

} // namespace marlogl
