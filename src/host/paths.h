// Paths as the people who write design files spell them: "\" or "/", in any case of letters.
#pragma once

#include "host/file_system.h"

namespace marlogl {

/// `path` with the system's separators: where that is "/", each "\" stands for it.
std::string native_path(std::string_view path);

/// A path, and the identity of the file or folder there; empty when there is none.
struct Found {
    std::string path, identity;
};

/// Looks for a native path as it stands. Errors: input_output.
Found find_exactly(FileSystem &files, const std::string &path);

/// The name under which a native path exists behind `folder` (empty, or spelled as it is; then the path
/// begins with a separator): the path itself or, component by component, a name that differs only in the case
/// of its letters (of several the first in byte order); the path itself when there is neither. Errors:
/// input_output.
Found find_file(FileSystem &files, const std::string &path, const std::string &folder = "");

} // namespace marlogl
