#include "run/convert.h"

#include "base/letters.h"
#include "design/reader.h"
#include "dispatch/dispatch.h"
#include "host/paths.h"

namespace marlogl {

namespace {

std::string output_path(const std::string &configured)
{
    constexpr std::size_t ending = 3;
    if (configured.size() < ending)
        throw RunError(Fault::negative_length, "the run configuration's line 2, " + quoted(configured) +
                                                   ", has less than 3 characters to put \"ogl\" in place of");
    return native_path(configured.substr(0, configured.size() - ending) + "ogl");
}

// A file of the conversion.
struct NamedFile : Found {
    const char *name;
};

// Opening empties a file that is written, and a link may lead from it to another file of the conversion.
void refuse_link(const NamedFile &written, const NamedFile &other)
{
    if (!written.identity.empty() && written.identity == other.identity)
        throw RunError(Fault::input_output, std::string("the ") + written.name + ' ' +
                                                quoted_path(written.path) + " is the " + other.name +
                                                " itself");
}

Drawing begin_drawing(FileSystem &files, const Configuration &configuration)
{
    const std::string point_file = configuration.folder + native_path("\\tempofil.%%%");
    const NamedFile output{find_exactly(files, output_path(configuration.output)), "output file"};
    const NamedFile ngon{find_exactly(files, point_file), "temporary point file"};
    const NamedFile design{find_file(files, native_path(configuration.design)), "design file"};
    const NamedFile settings{find_exactly(files, configuration.file), "run configuration"};
    const NamedFile colours{find_colour_table(files, configuration.folder), "colour table"};
    for (const NamedFile *written : {&output, &ngon})
        for (const NamedFile *input : {&design, &settings, &colours})
            refuse_link(*written, *input);
    refuse_link(ngon, output);
    return {files, configuration, colours.path, Output(files, output.path), NgonFile(files, point_file)};
}

std::string scale(std::string_view scale_level)
{
    constexpr double feet_per_metre = 3.2808;
    const double level = numeric_value(scale_level);
    const bool has_factor = level >= 9 && level <= 15 && level == std::floor(level);
    const double factor = has_factor ? std::exp2(16 - level) : 1;
    const long digits = std::lround(factor / feet_per_metre * 10000); // with four decimals
    return std::to_string(digits / 10000) + '.' + std::to_string(10000 + digits % 10000).substr(1);
}

void reset_texture_matrix(Output &out)
{
    out.line("glMatrixMode( GL_TEXTURE );");
    out.line("glLoadIdentity();");
    out.line("glMatrixMode( GL_MODELVIEW );");
}

void write_header(Output &out, std::string_view s)
{
    reset_texture_matrix(out);
    out.line("glPushMatrix();");
    out.line("glScalef( ", s, ", ", s, ", ", s, " );");
}

void write_footer(Output &out)
{
    out.line("glPopMatrix();");
    reset_texture_matrix(out);
}

} // namespace

int design_version(std::string_view path)
{
    const std::string_view kind = path.size() > 3 ? path.substr(path.size() - 3) : path;
    return same_letters(kind, "MRL") ? 1 : same_letters(kind, "MR2") ? 2 : 0;
}

void convert(FileSystem &files, const Configuration &configuration)
{
    Drawing drawing = begin_drawing(files, configuration);
    if (const int version = design_version(configuration.design); version != 0) {
        const Scene scene = read_design(files, configuration.design, version);
        write_header(drawing.out, scale(scene.scale_level));
        for (int number = 1; const Object &object : scene.objects) {
            if (object.type != 0)
                draw_object(drawing, scene, number, version);
            ++number;
        }
        // Before the footer: an output is whole only when the point file is settled.
        drawing.ngon.settle();
        write_footer(drawing.out);
    }
    drawing.out.close();
}

} // namespace marlogl
