// A file system in memory: conversions without a disk.
#pragma once

#include "host/file_system.h"

#include <map>

namespace marlogl {

/// Files by their paths, "a/b" being the same as "./a//b". The executable lies in the folder "program"; paths
/// that begin at no root count from the current folder, which has no files above it.
class MemoryFiles : public FileSystem {
  public:
    std::map<std::string, std::string> files;

    std::unique_ptr<InputFile> open(const std::string &path) override;
    std::unique_ptr<OutputFile> create(const std::string &path) override;
    bool can_create(const std::string &path) override { return identity(path).empty(); }
    void remove(const std::string &path) override;
    std::string identity(const std::string &path) override;
    std::vector<std::string> names_in(const std::string &folder) override;
    std::string executable_folder() override { return "program"; }
    std::string current_folder() override { return "/home"; }
};

} // namespace marlogl
