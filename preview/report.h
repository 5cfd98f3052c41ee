// What the user is told about a file.
#pragma once

#include "textures.h"

#include <ostream>

// A warning for each problem, and one when the file is not whole.
void write_warnings(std::ostream &to, const std::string &file, const Scene &scene, const Problems &problems,
                    const Problems &texture_problems);

// The table of --verbose.
void write_report(std::ostream &to, const Scene &scene, const Problems &problems, const Textures &textures);
