// The readers of both design-file versions: they fill the scene tables from the file that input_path names.
#pragma once

namespace marlogl {

/// Reads a version-2 design file; clear_all has reset the tables.
/// Errors: missing_file, past_end for an empty file, index and overflow for a record that the tables can't
/// take (the message names file, line and record), input_output.
void Load_MRL2();

/// Reads a version-1 design file; resets the tables first. Files before version 1.2 hold the antennas of
/// their structures in other cells, and are converted. Errors as above.
void Load_MRL1();

} // namespace marlogl
