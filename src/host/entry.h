// Where the program starts, whatever the platform calls that function and however it spells the arguments.
#pragma once

namespace marlogl {

/// What the program does; a program that links entry.cpp defines it. The arguments are in UTF-8 where the
/// platform knows their letters, else in the bytes that it got. Returns the exit status.
int start(int argument_count, const char *const *arguments);

} // namespace marlogl
