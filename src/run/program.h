// The program.
#pragma once

namespace marlogl {

/// Converts what the run configuration names, or answers --help and --version. Prints at most one line to
/// standard error. Returns the exit status: 0 done, 1 the conversion failed, 2 wrong usage.
int run_program(int argument_count, const char *const *arguments);

} // namespace marlogl
