#include "run/configuration.h"

#include "base/run_error.h"
#include "design/text.h"
#include "host/lines.h"
#include "host/paths.h"

namespace marlogl {

namespace {

// Sets the folder and the file of a configuration.
void locate(FileSystem &files, Configuration &configuration)
{
    const std::string folders[] = {files.executable_folder(), "."};
    const std::string name = native_path("\\MarlOgl.dat");
    // Only a program without the exact name in both folders lists what is in them, which may be much.
    for (const bool exact : {true, false})
        for (const std::string &folder : folders) {
            const Found found = exact ? find_exactly(files, folder + name) : find_file(files, name, folder);
            configuration.folder = folder;
            configuration.file = found.path;
            if (!found.identity.empty())
                return;
        }
    const std::string beside = quoted_path(folders[0]), current = quoted_path(files.current_folder());
    throw RunError(
        Fault::missing_file,
        "there is no MarlOgl.dat (the run configuration, which names the design file and the output) " +
            (beside == current ? "beside the program, in the current folder " + current
                               : "in " + beside + " or in the current folder " + current));
}

std::string colour_components(std::string_view line)
{
    const std::string_view last = line.size() > 3 ? line.substr(line.size() - 3) : line;
    return std::string(columns(line, 1, 3))
        .append(", ")
        .append(columns(line, 4, 6))
        .append(", ")
        .append(last);
}

} // namespace

Configuration read_configuration(FileSystem &files)
{
    Configuration configuration;
    locate(files, configuration);
    LineReader file(files, configuration.file, 1024); // hardly ever more
    int number = 0;
    const auto next_line = [&] {
        ++number;
        if (file.at_end())
            throw RunError(Fault::past_end, file.path() + ": line " + std::to_string(number) +
                                                " is missing; the run configuration has four lines");
        return file.read_line();
    };
    const auto next_colour = [&] {
        const std::string_view line = next_line();
        if (line.size() != 9 || line.find_first_not_of("0123456789") != line.npos)
            configuration.warning += (configuration.warning.empty() ? file.path() + ": " : "; ") + "line " +
                                     std::to_string(number) + ": the colour " + quoted(line) +
                                     " is not nine digits";
        return colour_components(line);
    };
    configuration.design = trimmed(next_line());
    configuration.output = trimmed(next_line());
    configuration.colour_outside = next_colour();
    configuration.colour_inside = next_colour();
    return configuration;
}

} // namespace marlogl
