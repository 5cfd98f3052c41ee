// Where the bitmaps of a scene are found on disk.
#pragma once

#include "bitmap.h"
#include "files_read.h"
#include "scene.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string_view>

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

struct Textures {
    std::vector<Bitmap> bitmaps;        // every file once; the first is the checkerboard
    std::vector<std::uint32_t> of_name; // index into `bitmaps`; 0 where there is no bitmap
    std::size_t missing = 0;            // how many names have no bitmap
};

// At most so many bitmaps are held, and so many pixels in all: about 100 MB, and twice that in the driver.
inline constexpr std::size_t most_bitmaps = 4096, most_texture_pixels = 32 << 20;

// The bitmaps of all names. What is missing or cannot be shown is told to `problems`. Bitmaps that are too
// large together are halved, the largest first, until they are not.
Textures load_textures(const std::vector<TextureName> &names, FileFinder &finder, Problems &problems);
