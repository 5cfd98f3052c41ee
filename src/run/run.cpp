#include "run/run.h"

#include "design/reader.h"
#include "design/scene.h"
#include "dispatch/dispatch.h"
#include "emit/colour_table.h"
#include "emit/lines.h"
#include "emit/output.h"
#include "emit/point_file.h"
#include "emit/textures.h"
#include "emit/vertex_table.h"
#include "host/file_system.h"
#include "host/letters.h"
#include "host/lines.h"
#include "host/paths.h"

#include <cmath>
#include <utility>

namespace marlogl {

namespace {

std::string colour_components(std::string_view line)
{
    const std::string_view last = line.size() > 3 ? line.substr(line.size() - 3) : line;
    return std::string(columns(line, 1, 3))
        .append(", ")
        .append(columns(line, 4, 6))
        .append(", ")
        .append(last);
}

std::string configuration_path()
{
    return find_program_file("\\MarlOgl.dat");
}

bool is_nine_digits(std::string_view line)
{
    return line.size() == 9 && line.find_first_not_of("0123456789") == line.npos;
}

// Returns what is wrong with the colours, else an empty text.
std::string read_configuration()
{
    std::string warning;
    LineReader file(configuration_path());
    int number = 0;
    const auto next_line = [&] {
        ++number;
        return file.read_line();
    };
    const auto next_colour = [&] {
        const std::string_view line = next_line();
        if (!is_nine_digits(line))
            warning += (warning.empty() ? file.path() : ";") + (warning.empty() ? ": " : " ") + "line " +
                       std::to_string(number) + ": the colour " + quoted(line) + " is not nine digits";
        return colour_components(line);
    };
    try {
        input_path = trimmed(next_line());
        output_path = trimmed(next_line());
        colour_outside = next_colour();
        colour_inside = next_colour();
    } catch (const RunError &error) {
        if (error.fault != Fault::past_end)
            throw;
        throw RunError(error.fault, file.path() + ": line " + std::to_string(number) +
                                        " is missing; the run configuration has four lines");
    }
    return warning;
}

// The version of a design file, by the last three characters of its path; 0 when that is no design file.
int design_version(std::string_view path)
{
    const std::string_view kind = path.size() > 3 ? path.substr(path.size() - 3) : path;
    return same_letters(kind, "MRL") ? 1 : same_letters(kind, "MR2") ? 2 : 0;
}

void make_output_path()
{
    constexpr std::size_t ending = 3;
    if (output_path.size() < ending)
        throw RunError(Fault::negative_length, "the run configuration's line 2, " + quoted(output_path) +
                                                   ", has less than 3 characters to put \"ogl\" in place of");
    output_path.replace(output_path.size() - ending, ending, "ogl");
}

// A file of the run.
struct RunFile {
    const char *name;
    std::string path, identity;

    RunFile(const char *known_as, const std::string &at)
        : name(known_as), path(at), identity(file_system().identity(at))
    {
    }
};

// Opening empties a file that is written, and a link may lead from it to another file of the run.
void refuse_link(const RunFile &written, const RunFile &other)
{
    if (!written.identity.empty() && written.identity == other.identity)
        throw RunError(Fault::input_output, std::string("the ") + written.name + ' ' +
                                                quoted_path(written.path) + " is the " + other.name +
                                                " itself");
}

void create_output()
{
    const RunFile output("output file", native_path(output_path));
    const RunFile points("temporary point file", point_file::path());
    const RunFile inputs[] = {
        {"design file",       find_file(native_path(input_path))},
        {"run configuration", configuration_path()              },
        {"colour table",      colour_table_path()               }
    };
    for (const RunFile *written : {&output, &points})
        for (const RunFile &input : inputs)
            refuse_link(*written, input);
    refuse_link(points, output);
    open_output(output.path);
}

double scale()
{
    constexpr double feet_per_metre = 3.2808;
    const double level = numeric_value(scale_level);
    const bool has_factor = level >= 9 && level <= 15 && level == whole(level);
    const double factor = has_factor ? std::exp2(16 - level) : 1;
    return fnround(factor / feet_per_metre, 4);
}

void reset_texture_matrix()
{
    write_line("glMatrixMode( GL_TEXTURE );");
    write_line("glLoadIdentity();");
    write_line("glMatrixMode( GL_MODELVIEW );");
}

void write_header()
{
    const auto s = fnform4(p6(scale()));
    reset_texture_matrix();
    write_line("glPushMatrix();");
    write_line("glScalef( ", s, ", ", s, ", ", s, " );");
}

void write_footer()
{
    write_line("glPopMatrix();");
    reset_texture_matrix();
}

// What a message calls an object: object 12 "Water tower" (type 18, save_bigpoly).
std::string description(int object, int version)
{
    const int drawn = instance_of(object), type = object_type(drawn);
    const std::string generator = generator_name(version, type);
    return "object " + std::to_string(object) + ' ' + quoted(object_name(object)) + " (" +
           (drawn == object ? "" : "drawn as object " + std::to_string(drawn) + ", ") + "type " +
           std::to_string(type) + (generator.empty() ? "" : ", " + generator) + ')';
}

void write_object(int object, int version)
{
    vertex_count = 0;
    vertex_copy_count = 0;
    write_line(comment_prefix, "*** Sequence ", p00(object));
    write_line(comment_prefix, "*** ", object_name(object));
    if (version == 1)
        Save_MARL1(object);
    else
        Save_MARL2(object);
}

void write_objects(int version)
{
    for (int object = 1; object <= objects.last; ++object) {
        if (object_type(object) == 0)
            continue;
        try {
            write_object(object, version);
        } catch (const RunError &error) {
            // A file's error names the file, and is nobody's fault in the scene.
            if (error.fault == Fault::input_output)
                throw;
            throw error.at(description(object, version));
        }
    }
}

std::string convert()
{
    clear_all();
    locate_program();
    std::string warning = read_configuration();
    make_output_path();
    work_flag = false;
    const int version = design_version(input_path);
    create_output();
    if (version == 1)
        Load_MRL1();
    else if (version == 2)
        Load_MRL2();
    work_flag = version != 0;
    if (work_flag) {
        write_header();
        write_objects(version);
        // Before the footer: a run that can't settle the point file has not written all of its output.
        point_file::settle();
        write_footer();
    } else {
        warning = "the design file " + quoted_path(input_path) +
                  " is not converted: its name ends in neither MRL nor MR2";
    }
    close_output();
    return warning;
}

} // namespace

std::string Form_Load()
{
    try {
        return convert();
    } catch (...) {
        abandon_output();
        point_file::abandon();
        throw;
    }
}

void reset()
{
    clear_all();
    reset_run_state();
    reset_textures();
    reset_vertices();
}

} // namespace marlogl
