// Paths as the people who write design files spell them: "\" or "/", in any case of letters.
#pragma once

#include <string>
#include <string_view>

namespace marlogl {

/// `path` with the system's separators: where that is "/", each "\" stands for it.
std::string native_path(std::string_view path);

/// The name under which a native path exists: the path itself or, component by component, a name that differs
/// only in the case of its letters (of several the first in byte order); `path` itself when there is neither.
std::string find_file(const std::string &path);

/// Finds the program's own directory: that of the executable when it holds the run configuration file
/// "MarlOgl.dat", else the current directory; a file of exactly this name goes before one in another case.
/// Errors: missing_file when neither holds one, input_output.
void locate_program();

/// The path of a file of the program's own directory, which locate_program has found; `name` begins with "\".
std::string program_file(std::string_view name);

/// The name under which such a file exists, as find_file has it. The directory itself is spelled as it is.
std::string find_program_file(std::string_view name);

} // namespace marlogl
