#include "options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>

namespace {

// What an option with numbers takes, as --help shows it, and the least and greatest number.
template <class Number> struct Range {
    const char *shape;
    Number least, most;
};

// Reads exactly `count` numbers with commas between.
template <class Number, std::size_t count>
bool read_numbers(const std::string &text, Range<Number> range, std::array<Number, count> &target)
{
    const char *at = text.data(), *const end = at + text.size();
    for (Number &number : target) {
        if (&number != target.data() && (at == end || *at++ != ','))
            return false;
        const auto [stop, error] = std::from_chars(at, end, number);
        if (error != std::errc{} || !(number >= range.least && number <= range.most))
            return false;
        at = stop;
    }
    return at == end;
}

template <class Number, std::size_t count>
void add_numbers(CLI::App &app, const char *option, const char *help, Range<Number> range,
                 std::array<Number, count> &target)
{
    const auto store = [option, range, &target](const std::string &text) {
        if (!read_numbers(text, range, target))
            throw CLI::ValidationError(option, "'" + text + "' is not " + range.shape + " from " +
                                                   CLI::detail::to_string(range.least) + " to " +
                                                   CLI::detail::to_string(range.most));
    };
    app.add_option_function<std::string>(option, store, help)->type_name(range.shape);
}

bool ends_in(const std::string &path, std::string_view ending)
{
    return path.size() > ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), path.rbegin(), [](char letter, char c) {
               return c == letter || (c >= 'A' && c <= 'Z' && c - 'A' + 'a' == letter);
           });
}

// What is wrong with the options together; empty when all is well.
std::string contradiction(const Options &options, bool no_render)
{
    const std::string &output = options.output;
    if (!output.empty() && output != "-" && !ends_in(output, ".png") && !options.gltf)
        return "--output: '" + output + "' ends in neither .png nor .glb";
    if (options.solid_lines && !options.gltf)
        return "--solid-lines needs an --output that ends in .glb";
    if (options.watch && (no_render || output == "-"))
        return "--watch needs a window or an --output in a file";
    return {};
}

} // namespace

std::optional<Options> parse_options(int argc, const char *const *argv, int &exit_status)
{
    Options options;
    std::array<double, 1> azimuth{0}, elevation{0}, zoom{1}, view_angle{30};
    std::array<double, 3> position{}, focal_point{};
    std::string view = "iso";
    bool unlit = false, no_render = false;
    std::vector<std::string> view_names;
    for (const NamedView &each : named_views)
        view_names.emplace_back(each.name);

    CLI::App app("Shows a design file or an output file of MarlOgl: in a window, as a picture, or to other "
                 "programs.",
                 "marlogl-preview");
    app.footer(std::string("In the window:\n") + keys_help +
               "\n\nExit status: 0 done, 1 failed, 2 wrong usage.");
    app.set_version_flag("--version", "marlogl-preview " MARLOGL_PREVIEW_VERSION);
    app.add_option("file", options.input,
                   "Design file (.mr2, .mrl), MarlOgl.dat, or output file of up to 64 MB")
        ->required()
        ->type_name("FILE");
    app.add_option("--output", options.output,
                   "Write a PNG picture (.png; - is standard output) or the scene as glTF (.glb) and end")
        ->type_name("FILE");
    add_numbers(app, "--resolution", "Size of the picture or window [1000,600]", {"W,H", 1, 8192},
                options.resolution);
    app.add_option("--view", view, "Where to look from [iso]")
        ->type_name("NAME")
        ->check(CLI::IsMember(view_names));
    app.add_option("--object", options.look.object, "Show this object, by number or name")
        ->type_name("OBJECT");
    add_numbers(app, "--camera-azimuth-angle", "Turn the camera to the right, in degrees",
                {"ANGLE", -360.0, 360.0}, azimuth);
    add_numbers(app, "--camera-elevation-angle", "Turn the camera up, in degrees", {"ANGLE", -180.0, 180.0},
                elevation);
    add_numbers(app, "--camera-zoom-factor", "Magnify the framed scene [1]", {"FACTOR", 0.001, 1000.0}, zoom);
    add_numbers(app, "--camera-view-angle", "Between lower and upper edge, in degrees [30]",
                {"ANGLE", 1.0, 170.0}, view_angle);
    constexpr Range<double> anywhere{"X,Y,Z", -1e9, 1e9};
    add_numbers(app, "--camera-position", "Where to stand, in units of the design file", anywhere, position);
    add_numbers(app, "--camera-focal-point", "What to look at, in units of the design file", anywhere,
                focal_point);
    app.add_flag("--camera-orthographic", options.look.lens.orthographic, "No perspective");
    Colour background{};
    add_numbers(app, "--background-color", "Red, green, blue in place of the sky", {"R,G,B", 0.0f, 1.0f},
                background);
    bool no_shadows = false;
    app.add_flag("--no-shadows", no_shadows, "No shadows on the ground");
    bool no_edges = false;
    app.add_flag("--no-edges", no_edges, "No dark lines along the edges of faces");
    app.add_flag("--unlit", unlit, "Colours as they are in the file, without light");
    app.add_flag("--solid-lines", options.solid_lines, "In a .glb: lines and points as thin bodies");
    app.add_option("--texture-dir", options.texture_folders,
                   "One more folder with textures (BMP); repeatable")
        ->type_name("DIR")
        ->check(CLI::ExistingDirectory)
        ->allow_extra_args(false);
    app.add_flag("--watch", options.watch, "Show or write it again whenever its files change");
    app.add_flag("--no-render", no_render, "Read the file only");
    app.add_flag("--verbose", options.verbose, "Report what the file holds");

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &success) {
        exit_status = app.exit(success);
        return {};
    } catch (const CLI::ParseError &error) {
        std::cerr << "marlogl-preview: " << error.what() << " (see --help)\n";
        exit_status = 2;
        return {};
    }

    options.gltf = ends_in(options.output, ".glb");
    if (const std::string wrong = contradiction(options, no_render); !wrong.empty()) {
        std::cerr << "marlogl-preview: " << wrong << " (see --help)\n";
        exit_status = 2;
        return {};
    }
    for (const NamedView &each : named_views)
        if (each.name == view) {
            options.look.direction = {each.direction.azimuth + azimuth[0],
                                      each.direction.elevation + elevation[0]};
            options.look.lens.orthographic |= each.is_plan;
        }
    options.look.lens.tan_y = std::tan(radians(view_angle[0] / 2));
    options.look.zoom = zoom[0];
    if (app.count("--camera-position") > 0)
        options.look.position = position;
    if (app.count("--camera-focal-point") > 0)
        options.look.focal_point = focal_point;
    if (app.count("--background-color") > 0)
        options.appearance.background = background;
    options.appearance.shadows = !no_shadows;
    options.appearance.edges = !no_edges;
    options.appearance.lit = !unlit;
    options.render = !no_render;
    return options;
}
