#include "files.h"
#include "glb_file.h"
#include "options.h"
#include "picture.h"
#include "png_file.h"
#include "report.h"
#include "watcher.h"
#include "window.h"

#include <chrono>
#include <iostream>
#include <stdexcept>
#include <thread>

namespace {

std::ostream &report_stream(const Options &options)
{
    return options.output == "-" ? std::cerr : std::cout;
}

// Loads what is asked for, and tells what is wrong with it.
Loaded load_and_report(const Options &options, FilesRead &files_read)
{
    Loaded loaded = load(options.input, options.texture_folders, files_read);
    if (!options.output.empty())
        refuse_overwriting(options.output, files_read.names());
    write_warnings(std::cerr, loaded);
    if (options.verbose) {
        write_report(report_stream(options), loaded);
        flush_standard_output();
    }
    return loaded;
}

void write_picture(const Options &options, const Loaded &loaded, OutputFile file)
{
    const auto [width, height] = options.resolution;
    const Camera camera = first_camera(loaded, options.look, static_cast<double>(width) / height);
    if (width <= largest_tile && height <= largest_tile)
        draw_in_one_thread();
    // For all pictures of a run; the system takes its memory back sooner than it could be given back.
    static const Offscreen &tile =
        *new Offscreen(std::min(width, largest_tile), std::min(height, largest_tile));
    const Drawing drawing(loaded.scene, loaded.textures);
    PngEncoder png(width, height);
    draw_picture(tile, drawing, camera, options.appearance, width, height,
                 [&](const Picture &rows) { file.write(png.add(rows)); });
    file.write(png.end());
    file.close();
}

void write_gltf(const Options &options, const Loaded &loaded, OutputFile file)
{
    const Gltf gltf = make_gltf(loaded, {!options.appearance.lit, options.solid_lines});
    write_glb(gltf, [&](std::span<const std::uint8_t> bytes) { file.write(bytes); });
    file.close();
    if (options.verbose)
        write_report(std::cout, gltf);
}

// Nobody ever sees half a file of these.
void replace_output(const Options &options, const Loaded &loaded)
{
    (options.gltf ? write_gltf : write_picture)(options, loaded, OutputFile::replacing(options.output));
}

// Writes the output at each change, for ever.
[[noreturn]] void follow(const Options &options, Loaded loaded, FilesRead files_read)
{
    replace_output(options, loaded);
    Watcher watcher;
    for (watcher.watch(std::move(files_read));;) {
        std::this_thread::sleep_for(std::chrono::duration<double>(Watcher::seconds_between_looks));
        if (!watcher.finds_change())
            continue;
        FilesRead read_again;
        try {
            loaded = load_and_report(options, read_again);
            require_whole(loaded);
            replace_output(options, loaded);
        } catch (const std::exception &error) {
            std::cerr << "marlogl-preview: " << error.what() << '\n';
        }
        watcher.watch(std::move(read_again));
    }
}

void run(const Options &options)
{
    FilesRead files_read;
    Loaded loaded = load_and_report(options, files_read);
    if (!options.render)
        return;
    if (options.output.empty())
        show_window(options, std::move(loaded), std::move(files_read));
    else if (options.watch)
        follow(options, std::move(loaded), std::move(files_read));
    else if (options.gltf)
        replace_output(options, loaded);
    else
        write_picture(options, loaded, OutputFile(options.output));
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
