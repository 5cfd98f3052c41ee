#include "design/colour_table.h"

#include "host/lines.h"

namespace marlogl {

Found find_colour_table(FileSystem &files, const std::string &folder)
{
    return find_file(files, native_path("\\appl\\colors.tab"), folder);
}

ColourTable read_colour_table(FileSystem &files, const std::string &path)
{
    constexpr std::size_t last_position = 29;
    ColourTable table{"colour table entry"};
    LineReader file(files, path);
    for (int entry = 1; entry <= 60 && (entry == 1 || !file.at_end()); ++entry) {
        const std::string_view line = file.read_line(last_position);
        std::string components;
        for (const std::size_t first : {19u, 23u, 27u})
            components += columns(line, first, first + 2);
        table(entry).components = components;
    }
    return table;
}

} // namespace marlogl
