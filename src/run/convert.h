// A conversion: from a design file to an output file.
#pragma once

#include "design/configuration.h"
#include "host/file_system.h"

namespace marlogl {

/// The version of a design file, 1 or 2, by the last three characters of its path; 0 when that is no design
/// file.
int design_version(std::string_view path);

/// Converts a design file. Conversions share nothing: any number of them can run beside each other, as long
/// as they write different files. The output of a design file of version 0 is empty. Errors: RunError, as
/// run_error.h lists them, and bad_alloc; what was written before one is in the output file. No file that is
/// read is ever written.
void convert(FileSystem &files, const Configuration &configuration);

} // namespace marlogl
