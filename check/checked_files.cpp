#include "checked_files.h"

#include "base/run_error.h"

#include <cstdio>
#include <filesystem>

namespace marlogl::check {

namespace {

class ThrownAway : public OutputFile {
  public:
    explicit ThrownAway(std::string *written) : written_(written) {}

    void write(std::string_view text) override
    {
        if (written_ != nullptr)
            *written_ += text;
    }
    void close() override {}
    void abandon(std::string_view text) noexcept override { write(text); }

  private:
    std::string *written_;
};

class StandardInput : public InputFile {
  public:
    std::size_t read(char *buffer, std::size_t size) override
    {
        const std::size_t got = std::fread(buffer, 1, size, stdin);
        if (got == 0 && std::ferror(stdin))
            throw RunError(Fault::input_output, "cannot read standard input");
        return got;
    }
};

} // namespace

std::unique_ptr<InputFile> CheckedFiles::open(const std::string &path)
{
    return path == standard_input ? std::make_unique<StandardInput>() : files_.open(at(path));
}

std::unique_ptr<OutputFile> CheckedFiles::create(const std::string &path)
{
    return std::make_unique<ThrownAway>(path == drawn ? written : nullptr);
}

std::string CheckedFiles::at(const std::string &path) const
{
    if (folder_.empty() || std::filesystem::path(path).is_absolute())
        return path;
    return folder_ + (path.starts_with("./") ? path.substr(2) : path);
}

} // namespace marlogl::check
