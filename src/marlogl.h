// MarlOgl as a library: converts design files without the program, from any files to any files.
//
//   marlogl::MemoryFiles files;                       or marlogl::system_files()
//   files.files["town.mr2"] = ...;
//   marlogl::convert(files, {.design = "town.mr2", .output = "town.ogl", ...});
//
// A conversion that fails throws marlogl::RunError, which is a std::runtime_error.
#pragma once

#include "base/run_error.h"
#include "host/memory_files.h"
#include "run/configuration.h"
#include "run/convert.h"
