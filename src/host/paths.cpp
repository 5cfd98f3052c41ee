#include "host/paths.h"

#include "host/file_system.h"
#include "host/letters.h"

#include <algorithm>
#include <filesystem>

namespace marlogl {

namespace {

std::string program_directory = ".";

constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

bool is_separator(char c)
{
    return c == '/' || c == separator;
}

// The names in `folder` that `name` may mean: itself, then those that differ in case only, in byte order.
std::vector<std::string> spellings(const std::string &folder, std::string_view name)
{
    std::vector<std::string> names;
    for (std::string &entry : file_system().names_in(folder.empty() ? "." : folder))
        if (entry != name && same_letters(entry, name))
            names.push_back(std::move(entry));
    std::sort(names.begin(), names.end());
    names.insert(names.begin(), std::string(name));
    return names;
}

// The first existing path that the spelled path `rest` leads to, else an empty text.
std::string search(std::string_view rest)
{
    std::vector<std::string> found{""};
    while (!found.empty()) {
        const auto name = std::find_if_not(rest.begin(), rest.end(), is_separator);
        const auto end = std::find_if(name, rest.end(), is_separator);
        if (name == end)
            return found.front();
        std::vector<std::string> longer;
        // Of two ways to one place the first is enough: with folders "a" and "A" the ways of "a/../a/.."
        // would double at each step.
        const auto add = [&](const std::string &path) {
            const auto same = [&](const std::string &other) { return file_system().same_file(other, path); };
            if (file_system().exists(path) && std::none_of(longer.begin(), longer.end(), same))
                longer.push_back(path);
        };
        for (std::string &folder : found) {
            folder.append(rest.begin(), name);
            for (const std::string &spelling : spellings(folder, {name, end}))
                add(folder + spelling);
        }
        found = std::move(longer);
        rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
    }
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
    std::string found = search(path);
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
