// Where the files of a scene are found on disk.
#pragma once

#include "files_read.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Looks up files in some folders, in their order, without regard to the case of ASCII letters.
class FileFinder {
  public:
    // Notes in `to` where it looks.
    FileFinder(std::vector<std::filesystem::path> in, FilesRead &to);

    // The file of that name, in which folders are divided by \ or /; nothing when no folder holds it.
    std::optional<std::filesystem::path> find(std::string_view name);

    const std::vector<std::filesystem::path> &places() const { return folders; }

  private:
    using Listing = std::map<std::string, std::filesystem::path>; // from names in small letters

    const Listing &listing_of(const std::filesystem::path &folder);
    std::optional<std::filesystem::path> find_in(std::filesystem::path at, std::string_view name);

    FilesRead &files_read;
    std::vector<std::filesystem::path> folders;
    std::map<std::filesystem::path, Listing> listings;
};

// The folders, each once, in which the textures of an output file may lie: its own, that of the design file
// if a MarlOgl.dat that names it stands in that folder, one above or in the current one, and those of `more`.
std::vector<std::filesystem::path> texture_folders(const std::filesystem::path &output_file,
                                                   const std::vector<std::filesystem::path> &more,
                                                   FilesRead &files_read);
