// Checks a run configuration and the design file that it names.
#pragma once

#include "checker.h"

namespace marlogl::check {

/// Errors: missing_file, input_output.
std::vector<FileReport> check_configuration(FileSystem &files, const std::string &path,
                                            const Settings &settings);

} // namespace marlogl::check
