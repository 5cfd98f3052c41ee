// Checks design files, alone or with the run configuration that names them.
#pragma once

#include "report.h"

#include "host/file_system.h"

namespace marlogl::check {

/// The version of the design file on standard input, 1 or 2, or 0 when none is read from there; and the rules
/// that are switched off.
struct Settings {
    int version_of_input = 0;
    std::set<const Rule *> disabled = {};
};

/// Checks a design file, or a file MarlOgl.dat and what it names: as if MarlOgl was started in its folder.
/// Standard input is "-". One report for each file. Errors: missing_file, input_output.
std::vector<FileReport> check_file(FileSystem &files, const std::string &path, const Settings &settings);

/// What a design file is checked with.
struct Surroundings {
    /// Where bitmaps may lie; none to leave them unchecked.
    std::vector<std::string> texture_folders;
    /// The colour table; empty to leave it unchecked.
    std::string colour_table = {};
};

class CheckedFiles;

/// Checks the design file `path` of a version, 1 or 2. Errors: missing_file, input_output.
void check_design(CheckedFiles &files, const std::string &path, int version, const Surroundings &surroundings,
                  FileReport &report);

} // namespace marlogl::check
