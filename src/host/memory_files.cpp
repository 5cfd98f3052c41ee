#include "host/memory_files.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <utility>

namespace marlogl {

namespace {

class MemoryInput : public InputFile {
  public:
    explicit MemoryInput(std::string_view content) : rest_(content) {}

    std::size_t read(char *buffer, std::size_t size) override
    {
        const std::size_t taken = std::min(size, rest_.size());
        std::memcpy(buffer, rest_.data(), taken);
        rest_.remove_prefix(taken);
        return taken;
    }

  private:
    std::string_view rest_;
};

class MemoryOutput : public OutputFile {
  public:
    MemoryOutput(MemoryFiles &files, std::string path) : files_(files), path_(std::move(path)) {}

    void write(std::string_view text) override { files_.files[path_] += text; }
    void close() override {}
    void abandon(std::string_view text) noexcept override { write(text); }

  private:
    MemoryFiles &files_;
    std::string path_;
};

// "./a//b" is "a/b".
std::string plain(const std::string &path)
{
    return std::filesystem::path(path).lexically_normal().generic_string();
}

} // namespace

std::unique_ptr<InputFile> MemoryFiles::open(const std::string &path)
{
    const auto found = files.find(plain(path));
    return found == files.end() ? nullptr : std::make_unique<MemoryInput>(found->second);
}

std::unique_ptr<OutputFile> MemoryFiles::create(const std::string &path)
{
    const std::string name = plain(path);
    files[name].clear();
    return std::make_unique<MemoryOutput>(*this, name);
}

void MemoryFiles::remove(const std::string &path)
{
    files.erase(plain(path));
}

std::string MemoryFiles::identity(const std::string &path)
{
    const std::string name = plain(path);
    const auto found = files.lower_bound(name);
    const bool exists = name == "." || (found != files.end() &&
                                        (found->first == name || found->first.starts_with(name + '/')));
    return exists ? name : "";
}

std::vector<std::string> MemoryFiles::names_in(const std::string &folder)
{
    std::vector<std::string> names;
    const std::string name = plain(folder + '/'), prefix = name == "." ? "" : name;
    for (const auto &[path, content] : files)
        if (path.starts_with(prefix))
            names.push_back(path.substr(prefix.size(), path.find('/', prefix.size()) - prefix.size()));
    std::reverse(names.begin(), names.end()); // their order must not matter
    return names;
}

} // namespace marlogl
