#include "file_finder.h"

#include "files.h"

#include <algorithm>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string in_small_letters(std::string text)
{
    for (char &c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

// The first line of a MarlOgl.dat: the path of the design file, with / between folders.
std::string design_file_named_by(const fs::path &dat)
{
    constexpr std::size_t longest_path = 4096;
    std::string text;
    try {
        text = read_start(dat, longest_path);
    } catch (const std::exception &) {
        return {}; // what is not found without it is told as missing
    }
    text.erase(std::min(text.find_first_of("\r\n"), text.size()));
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    std::replace(text.begin(), text.end(), '\\', '/');
    return text;
}

fs::path folder_of(const fs::path &file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

void add_folder(std::vector<fs::path> &folders, const fs::path &folder)
{
    const fs::path plain = folder.lexically_normal();
    if (std::find(folders.begin(), folders.end(), plain) == folders.end())
        folders.push_back(plain);
}

} // namespace

FileFinder::FileFinder(std::vector<fs::path> in, FilesRead &to) : files_read(to), folders(std::move(in)) {}

std::optional<fs::path> FileFinder::find(std::string_view name)
{
    for (const fs::path &folder : folders)
        if (auto found = find_in(folder, name))
            return found;
    return {};
}

std::optional<fs::path> FileFinder::find_in(fs::path at, std::string_view name)
{
    while (!name.empty()) {
        const std::size_t end = std::min(name.find_first_of("\\/"), name.size());
        const std::string part(name.substr(0, end));
        name.remove_prefix(std::min(end + 1, name.size()));
        if (part.empty() || part == ".")
            continue;
        std::error_code ignored;
        if (fs::exists(at / part, ignored)) {
            at /= part;
            continue;
        }
        const Listing &listing = listing_of(at);
        const auto entry = listing.find(in_small_letters(part));
        if (entry == listing.end()) {
            files_read.note(at / part);
            return {};
        }
        at = entry->second;
    }
    files_read.note(at);
    std::error_code ignored;
    if (!fs::is_regular_file(at, ignored))
        return {};
    return at;
}

const FileFinder::Listing &FileFinder::listing_of(const fs::path &folder)
{
    const auto [known, is_new] = listings.try_emplace(folder);
    if (is_new) {
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
            known->second.try_emplace(in_small_letters(entry->path().filename().string()), entry->path());
    }
    return known->second;
}

std::vector<fs::path> texture_folders(const fs::path &output_file, const std::vector<fs::path> &more,
                                      FilesRead &files_read)
{
    const fs::path beside = folder_of(output_file);
    std::vector<fs::path> folders;
    add_folder(folders, beside);
    for (const fs::path &place : {beside, beside / "..", fs::path(".")}) {
        const auto dat = FileFinder({place}, files_read).find("MarlOgl.dat");
        if (!dat)
            continue;
        const std::string design = design_file_named_by(*dat);
        if (design.empty())
            continue;
        add_folder(folders, folder_of(place / design));
        add_folder(folders, folder_of(design));
    }
    for (const fs::path &folder : more)
        add_folder(folders, folder);
    return folders;
}
