#include "design/colour_table.h"

#include "host/lines.h"

namespace marlogl {

Found find_colour_table(FileSystem &files, const std::string &folder)
{
    return find_file(files, native_path("\\appl\\colors.tab"), folder);
}

ColourTable read_colour_table(FileSystem &files, const std::string &path)
{
    constexpr std::size_t last_position = 29, usual_size = 60 * 32;
    ColourTable table;
    LineReader file(files, path, usual_size);
    for (std::size_t i = 0; i < table.size() && (i == 0 || !file.at_end()); ++i) {
        const std::string_view line = file.read_line(last_position);
        table[i] = {columns(line, 19, 21), columns(line, 23, 25), columns(line, 27, 29)};
    }
    return table;
}

} // namespace marlogl
