#include "files.h"
#include "options.h"
#include "picture.h"
#include "png_file.h"
#include "report.h"
#include "window.h"

#include <iostream>
#include <stdexcept>

namespace {

void write_picture(const Options &options, const Loaded &loaded)
{
    const auto [width, height] = options.resolution;
    const Camera camera = first_camera(loaded, options.look, static_cast<double>(width) / height);
    const Offscreen tile(std::min(width, largest_tile), std::min(height, largest_tile));
    const Drawing drawing(loaded.scene, loaded.textures);
    OutputFile file(options.output);
    PngEncoder png(width, height);
    draw_picture(tile, drawing, camera, options.appearance, width, height,
                 [&](const Picture &rows) { file.write(png.add(rows)); });
    file.write(png.end());
    file.close();
}

void run(const Options &options)
{
    FilesRead files_read;
    Loaded loaded = load(options.input, options.texture_folders, files_read);
    if (!options.output.empty())
        refuse_overwriting(options.output, files_read.names());
    write_warnings(std::cerr, loaded);
    if (options.verbose) {
        write_report(options.output == "-" ? std::cerr : std::cout, loaded);
        flush_standard_output();
    }
    if (!options.render)
        return;
    if (options.output.empty())
        show_window(options, std::move(loaded));
    else
        write_picture(options, loaded);
}

} // namespace

int main(int argc, char **argv)
{
    int exit_status = 0;
    try {
        const auto options = parse_options(argc, argv, exit_status);
        if (options)
            run(*options);
        flush_standard_output();
    } catch (const std::exception &error) {
        std::cerr << "marlogl-preview: " << error.what() << '\n';
        return 1;
    }
    return exit_status;
}
