// What the program is asked for.
#pragma once

#include "checker.h"

#include <optional>

namespace marlogl::check {

struct Options {
    std::vector<std::string> files;
    Settings settings;
    bool json = false, strict = false, list_rules = false;
    const Rule *explain = nullptr;
};

/// Nothing when the program is done with its arguments already; the exit status then says how.
std::optional<Options> parse_options(int argument_count, const char *const *arguments, int &exit_status);

} // namespace marlogl::check
