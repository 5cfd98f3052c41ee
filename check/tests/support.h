// Checks in memory.
#pragma once

#include "checker.h"
#include "host/memory_files.h"
#include "scenes.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace marlogl::check {

using Files = std::map<std::string, std::string>;

/// Bitmaps, a colour table and a run configuration, beside which a design file can stand.
Files usual_files();

std::vector<FileReport> check(const Files &files, const std::string &path);

/// The findings of a severity or a worse one, a line each: "scene.mr2:3: error: text [rule]".
std::string told(const std::vector<FileReport> &reports, Severity least);
/// The same for a design file of a name, checked among the usual files.
std::string told(const std::string &name, const std::string &design, Severity least = Severity::warning);

/// What stops the conversion of a design file; empty when it is done.
std::string conversion_fault(const std::string &name, const std::string &design);

} // namespace marlogl::check
