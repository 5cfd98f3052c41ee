#include "files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

struct Close {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

} // namespace

std::optional<std::string> read_file(const std::filesystem::path &name)
{
    const File file(std::fopen(name.c_str(), "rb"));
    if (!file)
        return {};
    constexpr std::size_t step = 1 << 20;
    std::string bytes;
    for (std::size_t got = step; got == step;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + step);
        got = std::fread(bytes.data() + before, 1, step, file.get());
        bytes.resize(before + got);
    }
    if (std::ferror(file.get()) != 0)
        return {};
    return bytes;
}

void write_file(const std::string &name, const std::vector<std::uint8_t> &bytes)
{
    const bool to_standard_output = name == "-";
    std::FILE *const file = to_standard_output ? stdout : std::fopen(name.c_str(), "wb");
    bool written = file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (file != nullptr)
        written = (to_standard_output ? std::fflush(file) : std::fclose(file)) == 0 && written;
    if (!written)
        throw std::runtime_error("cannot write " + (to_standard_output ? "to standard output" : name) + ": " +
                                 std::strerror(errno));
}
