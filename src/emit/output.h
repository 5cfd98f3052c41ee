// The output of a conversion: lines, appended in call order, each ended by CR LF. Programs that read outputs
// rely on their bytes: a blank more in one kind of line than in another, or an order that looks odd, stays as
// it is.
#pragma once

#include "emit/number_text.h"
#include "host/file_system.h"

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

/// Lines that are written often: text from the first time on, and copied then.
template <std::size_t Capacity> class KeptLines {
  public:
    KeptLines() {} // the text is not there yet

    /// Lets the next time be the first one again.
    void forget() { size_ = 0; }

  private:
    friend class Output;

    std::uint16_t size_ = 0;
    char text_[Capacity];
};

class Output {
  public:
    /// What a line may take that is built in the buffer.
    static constexpr std::size_t most_in_buffer = 32 * 1024;

    /// Creates the file, or empties it. Errors: missing_file (no such folder), input_output.
    Output(FileSystem &files, const std::string &path);
    /// Unless the output was closed, a conversion has failed: writes the lines that can still be written.
    ~Output();

    /// Appends one line: the parts in their order, then CR LF. A part is a literal, a text or a number text
    /// such as p0(x); a bare number is none. Errors: those of the number texts, and then nothing of the line
    /// is written; input_output.
    template <typename... Parts> void line(const Parts &...parts)
    {
        using namespace output;
        const std::size_t most = (most_characters(parts) + ... + 2);
        if (most > room()) [[unlikely]] {
            if (most > most_in_buffer) {
                std::string long_line(most, '\0');
                write_all();
                file_->write({long_line.data(), put_line(long_line.data(), parts...)});
                return;
            }
            flush();
        }
        next_ = put_line(next_, parts...);
    }

    /// Appends the lines that `write` appends, which are the same ones until `kept` forgets them.
    /// Errors: those of `write`.
    template <std::size_t Capacity, typename Write> void lines(KeptLines<Capacity> &kept, Write write)
    {
        if (kept.size_ == 0 || room() < Capacity) [[unlikely]] {
            keep(kept, write);
            return;
        }
        std::memcpy(next_, kept.text_, Capacity); // more than there is, but as fast as can be
        next_ += kept.size_;
    }

    /// Writes what is still in the buffer and closes the file. Errors: input_output.
    void close();

  private:
    std::string_view pending() const { return {buffer_, static_cast<std::size_t>(next_ - buffer_)}; }
    std::size_t room() const { return static_cast<std::size_t>(end_ - next_); }
    void flush();
    void write_all();

    // Lines that need more than the room made here, or than there is to keep them, are written each time.
    template <std::size_t Capacity, typename Write> void keep(KeptLines<Capacity> &kept, Write write)
    {
        if (room() < usual_need)
            flush();
        char *const start = next_;
        const int flushes = flushes_;
        write();
        const auto size = static_cast<std::size_t>(next_ - start);
        if (flushes_ == flushes && size <= Capacity) {
            std::memcpy(kept.text_, start, size);
            kept.size_ = static_cast<std::uint16_t>(size);
        }
    }

    // The file gets whole blocks, which the system takes in two thirds of the time. The first ones are small:
    // memory takes time, too, where it is used for the first time.
    static constexpr std::size_t most_block = 128 * 1024, usual_need = 4096;

    std::unique_ptr<OutputFile> file_;
    std::size_t block_ = most_in_buffer / 2; // doubled before there is one
    // Lines are built in place, some beyond a block. There is room from the first line on.
    TextMemory memory_;
    char *buffer_ = nullptr, *next_ = nullptr, *end_ = nullptr;
    int flushes_ = 0;
};

} // namespace marlogl
