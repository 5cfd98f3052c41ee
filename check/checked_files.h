// The file system that a check sees: it reads, and what it writes is thrown away.
#pragma once

#include "host/file_system.h"

#include <string>
#include <string_view>

namespace marlogl::check {

/// Paths that do not begin at the root count from a folder, in which the run configuration lies, too.
class CheckedFiles : public FileSystem {
  public:
    /// `folder` ends with a separator, or is empty for the current folder.
    CheckedFiles(FileSystem &files, std::string folder) : files_(files), folder_(std::move(folder)) {}

    static constexpr std::string_view standard_input = "-", drawn = "drawn";

    std::unique_ptr<InputFile> open(const std::string &path) override;
    /// What is written to the file `drawn` grows `written`, if there is one.
    std::unique_ptr<OutputFile> create(const std::string &path) override;
    void remove(const std::string &) override {}
    std::string identity(const std::string &path) override { return files_.identity(at(path)); }
    std::vector<std::string> names_in(const std::string &folder) override
    {
        return files_.names_in(at(folder));
    }
    std::string executable_folder() override { return "."; }
    std::string current_folder() override { return files_.current_folder(); }

    /// The path by which the files below know a path.
    std::string at(const std::string &path) const;

    std::string *written = nullptr;

  private:
    FileSystem &files_;
    std::string folder_;
};

} // namespace marlogl::check
