// Files: what is read of them, within bounds, and what is written.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

struct CloseFile {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// A file open for reading. Throws std::runtime_error with the reason when it cannot be opened.
File open_to_read(const std::filesystem::path &name);

// The first bytes of a file, at most so many: devices and pipes may go on without end. Throws
// std::runtime_error with the reason when it cannot be opened or read.
std::string read_start(const std::filesystem::path &name, std::size_t most);

// The bytes of a whole file. Throws std::runtime_error as read_start does, and when there are more bytes than
// `most_megabytes` MB hold.
std::string read_file(const std::filesystem::path &name, std::size_t most_megabytes);

// Throws std::runtime_error when the output, under whatever name or link, is one of the files that were read.
void refuse_overwriting(const std::string &output, const std::vector<std::filesystem::path> &files_read);

// A file that is being written; standard output for the name "-". What was written is safe only after
// close(); without it the file goes again. Everything throws std::runtime_error with the reason when it
// fails.
class OutputFile {
  public:
    explicit OutputFile(const std::string &path);
    // One that comes to its place by close() only: until then what was there before stays there, and the
    // bytes stand in a new file beside it.
    static OutputFile replacing(const std::string &path);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;
    void write(std::span<const std::uint8_t> bytes);
    void close();

  private:
    OutputFile(std::string path, std::string written_at, File opened);
    [[noreturn]] void fail() const;

    std::string name, written; // the latter until close()
    File file;                 // empty for standard output
    bool is_whole = false;
};

// Writes out what standard output still holds. Throws std::runtime_error when not all of it could be written.
void flush_standard_output();
