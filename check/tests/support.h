// Checks in memory.
#pragma once

#include "checker.h"
#include "host/memory_files.h"

#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace marlogl::check {

using Files = std::map<std::string, std::string>;

/// The content of a file on the disk.
std::string read_whole(const std::string &path);

/// The names of design files below a folder on the disk.
std::vector<std::string> design_files(const std::string &folder);

/// Bitmaps, a colour table and a run configuration, beside which a design file can stand.
Files usual_files();

std::vector<FileReport> check(const Files &files, const std::string &path);

/// The findings of a severity or a worse one, a line each: "scene.mr2:3: error: text [rule]".
std::string told(const std::vector<FileReport> &reports, Severity least);
/// The same for a design file of a name, checked among the usual files.
std::string told(const std::string &name, const std::string &design, Severity least = Severity::warning);

/// What stops the conversion of a design file; empty when it is done.
std::string conversion_fault(const std::string &name, const std::string &design);

/// Random numbers that are the same on every system.
struct Random {
    std::mt19937 engine;

    int below(int most) { return static_cast<int>(engine() % static_cast<unsigned>(most)); }
    int from_to(int low, int high) { return low + below(high - low + 1); }
};

} // namespace marlogl::check
