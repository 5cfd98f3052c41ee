// The files of a conversion, as the operating system or the memory holds them. Names are exact here; paths.h
// knows how a design file spells them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace marlogl {

/// Memory for the text of a file starts with a line of the processor's cache: between a page of the system
/// and a place a few bytes off the beginning of another, a processor may copy at half the speed.
struct alignas(64) CacheLine {
    char text[64];
};
using TextMemory = std::unique_ptr<CacheLine[]>;

class InputFile {
  public:
    virtual ~InputFile() = default;

    /// Reads up to `size` bytes (at least 1) into `buffer`; returns how many, 0 at the end of the file.
    /// Errors: input_output.
    virtual std::size_t read(char *buffer, std::size_t size) = 0;
};

class OutputFile {
  public:
    virtual ~OutputFile() = default;

    /// Appends `text`, which may end within a line. When the file does not take all of it, the file is cut
    /// after the last whole line that it took. Errors: input_output; nothing may be written after one.
    virtual void write(std::string_view text) = 0;

    /// Errors: input_output, when what was written can't be kept.
    virtual void close() = 0;

    /// Instead of write and close once something has failed: writes what the file still takes of `text`.
    virtual void abandon(std::string_view text) noexcept = 0;
};

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// Opens a file for reading; null when there is none of this name.
    /// Errors: input_output.
    virtual std::unique_ptr<InputFile> open(const std::string &path) = 0;

    /// Opens a file for writing and empties it.
    /// Errors: missing_file (no such folder), input_output.
    virtual std::unique_ptr<OutputFile> create(const std::string &path) = 0;

    /// Whether nothing has this name and `create` would make a new file, as far as the system tells without
    /// making one; false when in doubt.
    virtual bool can_create(const std::string &) { return false; }

    /// Deletes a file.
    /// Errors: input_output.
    virtual void remove(const std::string &path) = 0;

    /// What all paths to one existing file or folder share, and no other path has; empty when there is none.
    /// Errors: input_output, when the system can't tell.
    virtual std::string identity(const std::string &path) = 0;

    /// Errors: as of identity.
    bool exists(const std::string &path) { return !identity(path).empty(); }

    /// The names in a folder, in no order; none when there is no such folder or nobody may read it.
    /// Errors: input_output.
    virtual std::vector<std::string> names_in(const std::string &folder) = 0;

    /// The folder of the executable, without a separator at its end; "." when the system has no answer.
    /// Errors: input_output.
    virtual std::string executable_folder() = 0;

    /// The current folder by its whole path; "." when the system has no answer.
    virtual std::string current_folder() = 0;
};

/// The operating system's files.
std::unique_ptr<FileSystem> system_files();

} // namespace marlogl
