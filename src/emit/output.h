// The output of a conversion: lines, appended in call order, each ended by CR LF. Programs that read outputs
// rely on their bytes: a blank more in one kind of line than in another, or an order that looks odd, stays as
// it is.
#pragma once

#include "emit/number_text.h"
#include "host/file_system.h"

#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace marlogl {

namespace output {

// A part of a line is a literal, a text or a number text. most_characters bounds its length; put writes it.
template <std::size_t Size> constexpr std::size_t most_characters(const char (&)[Size])
{
    return Size - 1;
}

constexpr std::size_t most_characters(std::string_view text)
{
    return text.size();
}

template <std::size_t Size> char *put(char *at, const char (&literal)[Size])
{
    std::memcpy(at, literal, Size - 1);
    return at + (Size - 1);
}

inline char *put(char *at, std::string_view text)
{
    std::memcpy(at, text.data(), text.size());
    return at + text.size();
}

template <typename... Parts> char *put_line(char *at, const Parts &...parts)
{
    ((at = put(at, parts)), ...);
    return put(at, "\r\n");
}

} // namespace output

class Output {
  public:
    static constexpr std::size_t capacity = 128 * 1024;

    /// Creates the file, or empties it. Errors: missing_file (no such folder), input_output.
    Output(FileSystem &files, const std::string &path);
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;
    /// Unless the output was closed, a conversion has failed: writes the lines that can still be written.
    ~Output();

    /// Appends one line: the parts in their order, then CR LF. A part is a literal, a text or a number text
    /// such as p0(x); a bare number is none. Errors: those of the number texts, and then nothing of the line
    /// is written; input_output.
    template <typename... Parts> void line(const Parts &...parts)
    {
        using namespace output;
        const std::size_t most = (most_characters(parts) + ... + 2);
        if (most > static_cast<std::size_t>(buffer_.get() + capacity - next_)) [[unlikely]] {
            if (most > capacity) {
                std::string long_line(most, '\0');
                write_long({long_line.data(), put_line(long_line.data(), parts...)});
                return;
            }
            flush();
        }
        next_ = put_line(next_, parts...);
    }

    /// Writes what is still in the buffer and closes the file. Errors: input_output.
    void close();

  private:
    std::string_view pending() const
    {
        return {buffer_.get(), static_cast<std::size_t>(next_ - buffer_.get())};
    }
    void flush();
    void write_long(std::string_view line);

    std::unique_ptr<OutputFile> file_;
    // Lines are built in place; between two calls it holds whole lines only.
    std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(capacity);
    char *next_ = buffer_.get();
};

} // namespace marlogl
