// What the viewer is given to show: an output file, a design file or a MarlOgl.dat. Design files are
// converted in memory.
#pragma once

#include "files_read.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A face slot's texture in the design file.
struct DesignTexture {
    int slot;
    std::string name;   // of the bitmap, as the output spells it
    std::uint32_t line; // of its record, counted from 1
};

struct DesignObject {
    std::string_view kind; // as the manual calls it; empty for a type that draws nothing
    std::uint32_t line;    // where it begins
    std::size_t drawn_as;  // the index of the object whose tables draw it
    std::vector<DesignTexture> textures;
};

struct Source {
    std::string text;                  // of the output
    std::string design;                // the path of the design file; empty when it is not known
    std::vector<DesignObject> objects; // of the design file: objects 1, 2, ...
    std::string warning;               // of the run configuration; empty when all is well
    std::vector<std::filesystem::path> texture_folders; // where the bitmaps of a design file may lie
};

// Whether a path names a design file or a MarlOgl.dat, and no output file.
bool is_converted(const std::string &path);

// Reads a file, and converts it when it is to be converted: with the colours of a MarlOgl.dat that names the
// design file, else in white. The output and the temporary point file stay in memory. Throws
// std::runtime_error, for design files with the converter's own message.
Source read_source(const std::string &path, FilesRead &files_read);
