// Which files were read, and whether they have changed since.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

// What a look at a file finds. Editors replace files, so that the same name may come to mean another one.
struct Stamp {
    std::filesystem::file_time_type time{};
    std::uintmax_t size = 0;
    std::string identity; // empty: there is no such file

    bool operator==(const Stamp &) const = default;
};

// Files and how they were before they were read. Those that were looked for in vain count, too: they may
// come.
class FilesRead {
  public:
    // To be called before the file is opened; of several calls the first one counts.
    void note(const std::filesystem::path &file);

    std::vector<std::filesystem::path> names() const;

    // As they were when they were noted, and as they are now; in the same order.
    std::vector<Stamp> noted() const;
    std::vector<Stamp> now() const;

  private:
    std::map<std::filesystem::path, Stamp> stamps;
};
