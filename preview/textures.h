// Where the bitmaps of a scene are found on disk.
#pragma once

#include "bitmap.h"

#include <map>
#include <string>
#include <string_view>

// Looks up files in some folders, in their order, without regard to the case of ASCII letters.
class FileFinder {
  public:
    explicit FileFinder(std::vector<std::filesystem::path> in);

    // The file of that name, in which folders are divided by \ or /; nothing when no folder holds it.
    std::optional<std::filesystem::path> find(std::string_view name);

  private:
    using Listing = std::map<std::string, std::filesystem::path>; // from names in small letters

    const Listing &listing_of(const std::filesystem::path &folder);
    std::optional<std::filesystem::path> find_in(std::filesystem::path at, std::string_view name);

    std::vector<std::filesystem::path> folders;
    std::map<std::filesystem::path, Listing> listings;
};

// The folders in which the textures of an output file may lie: its own, that of the design file if a
// MarlOgl.dat that names it stands in that folder, one above or in the current one, and then `more`.
std::vector<std::filesystem::path> texture_folders(const std::filesystem::path &output_file,
                                                   const std::vector<std::string> &more);

struct Textures {
    std::vector<Bitmap> bitmaps;      // one a name; a checkerboard where there is none
    std::vector<std::string> missing; // names that were not found or could not be read
};

Textures load_textures(const std::vector<std::string> &names, FileFinder &finder);
