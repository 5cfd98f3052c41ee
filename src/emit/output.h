// The one output channel: lines, appended in call order, each ended by CR LF.
#pragma once

#include "emit/number_text.h"
#include "host/list_box.h"

#include <cstring>
#include <string>
#include <string_view>

namespace marlogl {

/// Opens the output file and empties it. Errors: missing_file (no such folder), input_output.
void open_output(const std::string &path);

/// Writes what is still in the buffer and closes the output. Errors: input_output.
void close_output();

/// Writes what can still be written after a failed run. Raises nothing; after a failed write it does nothing.
void abandon_output() noexcept;

namespace output {

/// Lines are built in place in this buffer; between two calls of write_line it holds whole lines only.
inline constexpr std::size_t capacity = 128 * 1024;
extern char buffer[capacity];
extern char *next;

/// Writes the buffer to the file and empties it. Errors: input_output.
void flush();

/// Writes one line that is too long for the buffer, its end included. Errors: input_output.
void write_long(std::string_view line);

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

/// Appends one line: the parts in their order, then CR LF. A part is a literal, a text or a number text such
/// as p0(x); a bare number is none. Errors: those of the number texts, and then nothing of the line is
/// written; input_output.
template <typename... Parts> void write_line(const Parts &...parts)
{
    using namespace output;
    const std::size_t most = (most_characters(parts) + ... + 2);
    if (most > static_cast<std::size_t>(buffer + capacity - next)) [[unlikely]] {
        if (most > capacity) {
            std::string line(most, '\0');
            write_long({line.data(), put_line(line.data(), parts...)});
            return;
        }
        flush();
    }
    next = put_line(next, parts...);
}

/// Calls `use` with the parts as one text. They hold 2000 characters at the most.
template <typename Use, typename... Parts> auto with_text(Use use, const Parts &...parts)
{
    char text[2000];
    char *end = text;
    ((end = output::put(end, parts)), ...);
    return use(std::string_view(text, static_cast<std::size_t>(end - text)));
}

/// Adds the parts as one text to a list.
template <typename... Parts> void add_entry(ListBox &list, const Parts &...parts)
{
    with_text([&](std::string_view text) { list.add(text); }, parts...);
}

/// The parts as one text.
template <typename... Parts> std::string text_of(const Parts &...parts)
{
    return with_text([](std::string_view text) { return std::string(text); }, parts...);
}

} // namespace marlogl
