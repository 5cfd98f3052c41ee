// Paths as the people who write design files spell them: "\" or "/", in any case of letters.
#pragma once

#include "host/file_system.h"

#include <string>
#include <string_view>

namespace marlogl {

/// `path` with the system's separators: where that is "/", each "\" stands for it.
std::string native_path(std::string_view path);

/// The name under which a native path exists in `folder` (empty, or spelled as it is): the path itself or,
/// component by component, a name that differs only in the case of its letters (of several the first in byte
/// order); the path itself when there is neither. Errors: input_output.
std::string find_file(FileSystem &files, const std::string &path, const std::string &folder = "");

} // namespace marlogl
