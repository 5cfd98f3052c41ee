// What the user is told about a file.
#pragma once

#include "loading.h"

#include <ostream>

// A warning for each problem, and one when the file is not whole.
void write_warnings(std::ostream &to, const Loaded &loaded);

// The table of --verbose.
void write_report(std::ostream &to, const Loaded &loaded);
