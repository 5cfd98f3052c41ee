#include "texture_check.h"

#include "base/letters.h"
#include "base/run_error.h"
#include "host/paths.h"

#include <algorithm>
#include <filesystem>

namespace marlogl::check {

namespace {

bool is_bitmap(std::string_view name)
{
    return name.size() > 4 && same_letters(name.substr(name.size() - 4), ".bmp");
}

} // namespace

std::string folder_of(const std::string &path)
{
    return path.substr(0, path.size() - std::filesystem::path(path).filename().string().size());
}

TextureCheck::TextureCheck(CheckedFiles &files, std::vector<std::string> folders)
    : files_(files), folders_(std::move(folders))
{
}

bool TextureCheck::holds_bitmaps(const std::string &folder)
{
    const auto [known, is_new] = known_folders_.try_emplace(folder);
    if (is_new) {
        const std::vector<std::string> names = files_.names_in(folder.empty() ? "." : folder);
        known->second = std::any_of(names.begin(), names.end(), is_bitmap);
    }
    return known->second;
}

TextureCheck::Fault TextureCheck::fault_of(const std::string &name)
{
    // Of a name that is no name another rule tells.
    if (!seen_.insert(name).second || is_bitmap(name) || name.find_first_of("\"\\") != name.npos)
        return {};
    const std::string file = name + ".bmp";
    bool others = false;
    for (const std::string &folder : folders_) {
        if (files_.exists(folder + file))
            return {};
        others |= holds_bitmaps(folder_of(folder + file));
    }
    for (const std::string &folder : folders_)
        if (const Found found = find_file(files_, file, folder); !found.identity.empty())
            return {"texture-case", "the file is " + quoted_path(found.path.substr(folder.size())) +
                                        "; other systems will not find " + quoted_path(file)};
    if (!others)
        return {};
    return {"texture-missing",
            quoted_path(file) + " lies neither beside the output nor beside the design file"};
}

} // namespace marlogl::check
