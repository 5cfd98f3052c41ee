#include "host/paths.h"

#include "host/file_system.h"

#include <algorithm>
#include <filesystem>

namespace marlogl {

namespace {

std::string program_directory = ".";

constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool same_letters(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

bool is_separator(char c)
{
    return c == '/' || c == separator;
}

// The existing path that `found` (which exists, or is empty) and the spelled `rest` lead to, else an empty
// text.
std::string search(const std::string &found, std::string_view rest)
{
    std::size_t start = 0;
    while (start < rest.size() && is_separator(rest[start]))
        ++start;
    std::size_t end = start;
    while (end < rest.size() && !is_separator(rest[end]))
        ++end;
    const std::string parent = found + std::string(rest.substr(0, start));
    const std::string_view name = rest.substr(start, end - start);
    if (name.empty())
        return found;

    std::vector<std::string> candidates;
    for (std::string &entry : file_system().names_in(parent.empty() ? "." : parent))
        if (entry != name && same_letters(entry, name))
            candidates.push_back(std::move(entry));
    std::sort(candidates.begin(), candidates.end());
    candidates.insert(candidates.begin(), std::string(name));

    for (const std::string &candidate : candidates)
        if (file_system().exists(parent + candidate))
            if (std::string path = search(parent + candidate, rest.substr(end)); !path.empty())
                return path;
    return {};
}

} // namespace

std::string native_path(std::string_view path)
{
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', separator);
    return native;
}

std::string find_file(const std::string &path)
{
    if (path.empty() || file_system().exists(path))
        return path;
    std::string found = search("", path);
    return found.empty() ? path : found;
}

void locate_program()
{
    const auto holds_configuration = [](const std::string &folder) {
        return file_system().exists(find_file(folder + native_path("\\MarlOgl.dat")));
    };
    program_directory = file_system().executable_folder();
    if (!holds_configuration(program_directory) && holds_configuration("."))
        program_directory = ".";
}

std::string program_file(std::string_view name)
{
    return program_directory + native_path(name);
}

} // namespace marlogl
