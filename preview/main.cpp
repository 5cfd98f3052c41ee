#include "files.h"
#include "options.h"
#include "png_file.h"
#include "report.h"
#include "textures.h"
#include "window.h"

#include <iostream>
#include <stdexcept>

namespace {

Scene read_scene(const std::string &file, Problems &problems)
{
    const auto text = read_file(file);
    if (!text)
        throw std::runtime_error("cannot read " + file);
    const Statements statements = read_statements(*text, problems);
    if (statements.list.empty())
        throw std::runtime_error(file + " is no output file of MarlOgl: it holds no statement");
    return build_scene(statements, problems);
}

void write_picture(const Options &options, const Scene &scene, const std::vector<Bitmap> &textures,
                   const Look &look)
{
    const auto [width, height] = options.resolution;
    const Offscreen offscreen(width, height);
    Appearance appearance = options.appearance;
    appearance.thickness = oversampling;
    const Drawing drawing(scene, textures, appearance);
    drawing.draw(frame(scene, look.direction, look.lens), width * oversampling, height * oversampling);
    write_file(options.output, encode_png(offscreen.read()));
}

void run(const Options &options)
{
    Problems problems;
    const Scene scene = read_scene(options.input, problems);
    FileFinder finder(texture_folders(options.input, options.texture_folders));
    const Textures textures = load_textures(scene.textures, finder);
    write_warnings(std::cerr, options.input, problems, textures.missing);
    if (scene.blocks.empty())
        std::cerr << "marlogl-preview: there is nothing to show in this file\n";
    if (options.verbose)
        write_report(options.output == "-" ? std::cerr : std::cout, scene, problems, textures.missing);
    if (!options.render)
        return;
    const auto [width, height] = options.resolution;
    const Look look{
        options.direction, {static_cast<double>(width) / height, options.zoom, options.orthographic}
    };
    if (options.output.empty())
        show_window("marlogl-preview - " + options.input, width, height, scene, textures.bitmaps, look,
                    options.appearance);
    else
        write_picture(options, scene, textures.bitmaps, look);
}

} // namespace

int main(int argc, char **argv)
{
    int exit_status = 0;
    const auto options = parse_options(argc, argv, exit_status);
    if (!options)
        return exit_status;
    try {
        run(*options);
    } catch (const std::exception &error) {
        std::cerr << "marlogl-preview: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
