// One run of the program: from the run configuration to the output file.
#pragma once

#include <string>

namespace marlogl {

/// Converts the design file that the run configuration names. Works on file_system(), leaves the scene tables
/// filled. Returns what the run configuration holds that its author can't have meant, else an empty text.
/// Errors: those of the files, the reader and the generators; what was written before one is in the output
/// file.
std::string Form_Load();

/// Puts every piece of state back to what it is when the program starts, for another run in the same process.
void reset();

/// The program: converts, or answers --help and --version. Prints at most one line to standard error. Returns
/// the exit status: 0 done, 1 the run failed, 2 wrong usage.
int run_program(int argument_count, const char *const *arguments);

} // namespace marlogl
