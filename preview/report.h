// What the user is told about a file.
#pragma once

#include "loading.h"

#include <ostream>

// Names come from the file with any bytes and length; control characters would reach the terminal.
std::string printable(std::string text);

// A warning for each problem, and one when the file is not whole.
void write_warnings(std::ostream &to, const Loaded &loaded);

// What is known of a face, in one line, which begins with file and line as those of compilers do: so editors
// can jump there. The point is where the user pointed at it.
std::string describe(const Loaded &loaded, const Face &face, Vec3 point);

// The table of --verbose.
void write_report(std::ostream &to, const Loaded &loaded);
