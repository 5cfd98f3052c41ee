#include "files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void throw_reason(const std::string &what)
{
    throw std::runtime_error(what + ": " + std::strerror(errno));
}

} // namespace

File open_to_read(const fs::path &name)
{
    File file(std::fopen(name.c_str(), "rb"));
    if (!file)
        throw_reason("cannot read " + name.string());
    return file;
}

std::string read_start(const fs::path &name, std::size_t most)
{
    const File file = open_to_read(name);
    constexpr std::size_t step = 1 << 20;
    std::string bytes;
    for (bool more = true; more && bytes.size() < most;) {
        const std::size_t before = bytes.size(), wanted = std::min(step, most - before);
        bytes.resize(before + wanted);
        const std::size_t got = std::fread(bytes.data() + before, 1, wanted, file.get());
        bytes.resize(before + got);
        more = got == wanted;
    }
    if (std::ferror(file.get()) != 0)
        throw_reason("cannot read " + name.string());
    return bytes;
}

std::string read_file(const fs::path &name, std::size_t most_megabytes)
{
    const std::size_t most = most_megabytes << 20;
    std::string bytes = read_start(name, most + 1);
    if (bytes.size() > most)
        throw std::runtime_error(name.string() + " is larger than " + std::to_string(most_megabytes) +
                                 " MB, the most that is read");
    return bytes;
}

void refuse_overwriting(const std::string &output, const std::vector<fs::path> &files_read)
{
    const fs::path target = output == "-" ? "/dev/stdout" : output;
    std::error_code ignored;
    if (!fs::is_regular_file(target, ignored))
        return;
    for (const fs::path &file : files_read)
        if (fs::equivalent(target, file, ignored))
            throw std::runtime_error("the output " + output + " would overwrite " + file.string() +
                                     ", which is read");
}

OutputFile::OutputFile(const std::string &path)
    : OutputFile(path, path, File(path == "-" ? nullptr : std::fopen(path.c_str(), "wb")))
{
}

OutputFile OutputFile::replacing(const std::string &path)
{
    std::error_code ignored;
    if (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored))
        return OutputFile(path);
    // The file is new: it is neither one of the user's nor one that another process writes just now.
    std::string written_at = path + ".new";
    File file(std::fopen(written_at.c_str(), "wbx"));
    for (int i = 2; !file && errno == EEXIST; ++i) {
        written_at = path + ".new" + std::to_string(i);
        file.reset(std::fopen(written_at.c_str(), "wbx"));
    }
    return {path, std::move(written_at), std::move(file)};
}

OutputFile::OutputFile(std::string path, std::string written_at, File opened)
    : name(std::move(path)), written(std::move(written_at)), file(std::move(opened))
{
    if (!file && name != "-")
        fail();
}

void OutputFile::write(std::span<const std::uint8_t> bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), file ? file.get() : stdout) != bytes.size())
        fail();
}

void OutputFile::close()
{
    if ((file ? std::fclose(file.release()) : std::fflush(stdout)) != 0)
        fail();
    if (written != name && std::rename(written.c_str(), name.c_str()) != 0)
        fail();
    is_whole = true;
}

OutputFile::~OutputFile()
{
    std::error_code ignored;
    if (!is_whole && fs::is_regular_file(written, ignored))
        fs::remove(written, ignored);
}

void OutputFile::fail() const
{
    throw_reason("cannot write " + (name == "-" ? "to standard output" : name));
}

void flush_standard_output()
{
    std::cout.flush();
    if (!std::cout)
        throw_reason("cannot write to standard output");
}
