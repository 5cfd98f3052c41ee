// The command line.
#pragma once

#include "first_look.h"
#include "render.h"

#include <optional>
#include <string>
#include <vector>

struct Options {
    std::string input;
    std::string output; // empty: a window; "-": standard output
    std::array<int, 2> resolution{1000, 600};
    FirstLook look;
    Appearance appearance;
    std::vector<std::string> texture_folders;
    bool watch = false;
    bool render = true;
    bool verbose = false;
};

// Reads the command line. Nothing when the run ends here (help, version, wrong usage): then the message has
// been written and `exit_status` is set to 0 or 2.
std::optional<Options> parse_options(int argc, const char *const *argv, int &exit_status);
