#include "support/memory_files.h"

#include <algorithm>
#include <cstring>

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
    explicit MemoryOutput(std::string &content) : content_(content) {}

    void write(std::string_view text) override { content_ += text; }
    void close() override {}

  private:
    std::string &content_;
};

} // namespace

std::unique_ptr<InputFile> MemoryFiles::open(const std::string &path)
{
    const auto found = files.find(path);
    return found == files.end() ? nullptr : std::make_unique<MemoryInput>(found->second);
}

std::unique_ptr<OutputFile> MemoryFiles::create(const std::string &path)
{
    files[path].clear();
    return std::make_unique<MemoryOutput>(files[path]);
}

bool MemoryFiles::exists(const std::string &path)
{
    const auto found = files.lower_bound(path);
    return found != files.end() && (found->first == path || found->first.starts_with(path + '/'));
}

std::vector<std::string> MemoryFiles::names_in(const std::string &folder)
{
    std::vector<std::string> names;
    const std::string prefix = folder == "." ? "" : folder.ends_with('/') ? folder : folder + '/';
    for (const auto &[path, content] : files)
        if (path.starts_with(prefix))
            names.push_back(path.substr(prefix.size(), path.find('/', prefix.size()) - prefix.size()));
    return names;
}

} // namespace marlogl
