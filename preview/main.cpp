#include "files.h"
#include "options.h"
#include "picture.h"
#include "png_file.h"
#include "report.h"
#include "window.h"

#include <iostream>
#include <stdexcept>

namespace {

// The largest file that MarlOgl itself writes has about 12 MB. One of this size is still shown within 1 GB.
constexpr std::size_t most_megabytes = 64;

Scene read_scene_of(const std::string &file, Problems &problems)
{
    Scene scene = read_scene(read_file(file, most_megabytes), problems);
    if (scene.counts.statements == 0)
        throw std::runtime_error(file + " is no output file of MarlOgl: it holds no statement");
    return scene;
}

void write_picture(const Options &options, const Scene &scene, const Textures &textures, const Look &look)
{
    const auto [width, height] = options.resolution;
    const Offscreen tile(std::min(width, largest_tile), std::min(height, largest_tile));
    Appearance appearance = options.appearance;
    appearance.thickness = oversampling;
    const Drawing drawing(scene, textures, appearance);
    OutputFile file(options.output);
    PngEncoder png(width, height);
    draw_picture(tile, drawing, frame(scene, look.direction, look.lens), width, height,
                 [&](const Picture &rows) { file.write(png.add(rows)); });
    file.write(png.end());
    file.close();
}

void run(const Options &options)
{
    Problems problems, texture_problems;
    if (!options.output.empty())
        refuse_overwriting(options.output, {options.input});
    const Scene scene = read_scene_of(options.input, problems);
    const TexturePlaces places = texture_places(options.input, options.texture_folders);
    FileFinder finder(places.folders);
    const Textures textures = load_textures(scene.textures, finder, texture_problems);
    if (!options.output.empty()) {
        refuse_overwriting(options.output, places.files_read);
        refuse_overwriting(options.output, textures.files_read);
    }
    write_warnings(std::cerr, options.input, scene, problems, texture_problems);
    if (options.verbose) {
        write_report(options.output == "-" ? std::cerr : std::cout, scene, problems, textures);
        flush_standard_output();
    }
    if (!options.render)
        return;
    const auto [width, height] = options.resolution;
    const Look look{
        options.direction, {static_cast<double>(width) / height, options.zoom, options.orthographic}
    };
    if (options.output.empty())
        show_window("marlogl-preview - " + options.input, width, height, scene, textures, look,
                    options.appearance);
    else
        write_picture(options, scene, textures, look);
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
