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
        table(entry) = {columns(line, 19, 21), columns(line, 23, 25), columns(line, 27, 29)};
    }
    return table;
}

} // namespace marlogl
