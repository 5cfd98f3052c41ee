#include "host/paths.h"

#include "base/letters.h"

#include <filesystem>
#include <map>
#include <utility>

namespace marlogl {

namespace {

constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);

bool is_separator(char c)
{
    // NOLINTNEXTLINE(misc-redundant-expression): one on some systems, two on others
    return c == '/' || c == separator;
}

// The names in `folder` that `name` may mean: itself, then those that differ in case only, in byte order.
std::vector<std::string> spellings(FileSystem &files, const std::string &folder, std::string_view name)
{
    std::vector<std::string> names;
    for (std::string &entry : files.names_in(folder.empty() ? "." : folder))
        if (entry != name && same_letters(entry, name))
            names.push_back(std::move(entry));
    std::sort(names.begin(), names.end());
    names.insert(names.begin(), std::string(name));
    return names;
}

// Finds spelled paths, asking the file system only once what a name may mean in a folder: "a/../a/../" comes
// by the same places again and again.
class Search {
  public:
    explicit Search(FileSystem &files) : files_(files) {}

    // The first existing path that the spelled path `rest` leads to from `start`, else an empty one.
    Found find(const std::string &start, std::string_view rest)
    {
        std::vector<Found> found(1, {start, ""});
        while (!found.empty()) {
            const auto name = std::find_if_not(rest.begin(), rest.end(), is_separator);
            const auto end = std::find_if(name, rest.end(), is_separator);
            if (name == end)
                return found.front();
            std::vector<Found> longer;
            for (Found &folder : found) {
                folder.path.append(rest.begin(), name);
                for (const Found &entry : entries(folder, std::string(name, end)))
                    // Of two ways to one place the first is enough.
                    if (std::none_of(longer.begin(), longer.end(),
                                     [&](const Found &other) { return other.identity == entry.identity; }))
                        longer.push_back({folder.path + entry.path, entry.identity});
            }
            found = std::move(longer);
            rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
        }
        return {};
    }

  private:
    // What `name` may mean in a folder, by the names there.
    const std::vector<Found> &entries(const Found &folder, const std::string &name)
    {
        const auto [known, is_new] = known_.try_emplace({folder.identity, name});
        if (is_new) {
            const bool spelled = name != "." && name != "..";
            for (const std::string &spelling :
                 spelled ? spellings(files_, folder.path, name) : std::vector<std::string>{name})
                if (std::string identity = files_.identity(folder.path + spelling); !identity.empty())
                    known->second.push_back({spelling, std::move(identity)});
        }
        return known->second;
    }

    FileSystem &files_;
    std::map<std::pair<std::string, std::string>, std::vector<Found>> known_;
};

} // namespace

std::string native_path(std::string_view path)
{
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', separator);
    return native;
}

Found find_exactly(FileSystem &files, const std::string &path)
{
    return {path, files.identity(path)};
}

Found find_file(FileSystem &files, const std::string &path, const std::string &folder)
{
    Found exact = find_exactly(files, folder + path);
    if (exact.path.empty() || !exact.identity.empty())
        return exact;
    Found found = Search(files).find(folder, path);
    return found.path.empty() ? exact : found;
}

} // namespace marlogl
