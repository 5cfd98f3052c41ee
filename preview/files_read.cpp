#include "files_read.h"

#include "host/file_system.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t most_files = 20000; // a scene of garbage names more; looking at them all takes too long

Stamp stamp_of(const fs::path &file)
{
    Stamp stamp;
    std::error_code ignored;
    stamp.time = fs::last_write_time(file, ignored);
    stamp.size = fs::file_size(file, ignored);
    try {
        stamp.identity = marlogl::system_files()->identity(file.string());
    } catch (const std::exception &) {
        // Whoever reads the file says what is wrong with it.
    }
    return stamp;
}

} // namespace

void FilesRead::note(const fs::path &file)
{
    if (stamps.size() < most_files && !stamps.contains(file))
        stamps.emplace(file, stamp_of(file));
}

std::vector<fs::path> FilesRead::names() const
{
    std::vector<fs::path> names;
    for (const auto &[name, stamp] : stamps)
        names.push_back(name);
    return names;
}

std::vector<Stamp> FilesRead::noted() const
{
    std::vector<Stamp> all;
    for (const auto &[name, stamp] : stamps)
        all.push_back(stamp);
    return all;
}

std::vector<Stamp> FilesRead::now() const
{
    std::vector<Stamp> all;
    for (const auto &[name, stamp] : stamps)
        all.push_back(stamp_of(name));
    return all;
}
