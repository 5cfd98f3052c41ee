// What a program asks of its process: descriptors that are open, limits that answer instead of killing.
#pragma once

#include <string_view>

namespace marlogl {

/// Prepares the process for a run: a write beyond a file-size limit fails instead of ending the program, and
/// a standard descriptor that is closed becomes the null device, so that no file of the run takes its number
/// and receives the message.
void prepare_process();

/// Writes `text` to standard output (1) or standard error (2); false when not all of it could be written.
bool write_to(int descriptor, std::string_view text);

} // namespace marlogl
