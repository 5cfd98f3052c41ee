// Text files, read line by line and only as far as they are asked for.
#pragma once

#include "host/file_system.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace marlogl {

/// The lines of a text file. A line ends at CR LF, at LF or at the end of the file; a UTF-8 byte-order mark
/// at the start of the file belongs to no line.
class LineReader {
  public:
    static constexpr std::size_t whole_line = std::numeric_limits<std::size_t>::max();

    /// Opens a file by its exact name, to read `capacity` bytes at a time. An output that comes after a
    /// reader with the usual capacity takes its memory, which then was used before. Errors: missing_file,
    /// input_output.
    LineReader(FileSystem &files, const std::string &path, std::size_t capacity = 40 * 1024);

    /// The next line without its end, at most its first `most` bytes; valid until the next call.
    /// Errors: past_end when the file has no further line, input_output.
    std::string_view read_line(std::size_t most = whole_line)
    {
        const char *line = buffer_ + next_;
        const void *line_end = std::memchr(line, '\n', end_ - next_);
        if (line_end == nullptr) [[unlikely]]
            return read_long_line(most);
        auto length = static_cast<std::size_t>(static_cast<const char *>(line_end) - line);
        next_ += length + 1;
        if (length > 0 && line[length - 1] == '\r')
            --length;
        return {line, std::min(length, most)};
    }

    /// Whether the last line was read. Errors: input_output.
    bool at_end() { return next_ == end_ && !fill(); }

    const std::string &path() const { return path_; }

  private:
    bool fill();
    std::string_view read_long_line(std::size_t most);

    std::string path_;
    std::unique_ptr<InputFile> file_;
    const std::size_t capacity_;
    const TextMemory memory_;
    char *const buffer_ = memory_[0].text;
    std::size_t next_ = 0, end_ = 0; // what is read and not yet handed out: buffer_[next_, end_)
    std::string long_line_;          // a line that crosses the end of the buffer
};

} // namespace marlogl
