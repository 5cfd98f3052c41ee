#include "run/program.h"

#include "base/run_error.h"
#include "host/system.h"
#include "run/configuration.h"
#include "run/convert.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <new>

namespace marlogl {

namespace {

constexpr std::string_view usage = "usage: MarlOgl [--help | --version]\n";
constexpr std::string_view help =
    "Converts a scenery design file into OpenGL statements.\n"
    "\n"
    "The program reads the four lines of MarlOgl.dat, beside the program or in the current folder:\n"
    "  1  the design file (its name ends in MRL or MR2)\n"
    "  2  the output file (its last three characters become \"ogl\")\n"
    "  3  the colour of outsides, nine digits: red, green, blue\n"
    "  4  the colour of insides\n"
    "\n"
    "  --help     prints this text\n"
    "  --version  prints the version\n"
    "\n"
    "Exit status: 0 done, 1 the conversion failed, 2 wrong usage.\n";
constexpr std::string_view version = "MarlOgl " MARLOGL_VERSION "\n";

constexpr std::string_view no_memory = "there is not enough memory";

enum Descriptor { standard_output = 1, standard_error = 2 };

// Prints the one line of a run. It takes no memory: that may be what is missing.
void tell(std::string_view kind, std::string_view text)
{
    constexpr std::size_t most = 8000;
    char line[most + 100];
    char *end = line;
    for (const std::string_view part : {std::string_view("MarlOgl: "), kind, text.substr(0, most)})
        end = std::transform(part.begin(), part.end(), end,
                             [](unsigned char c) { return c < ' ' ? '?' : static_cast<char>(c); });
    *end++ = '\n';
    write_to(standard_error, {line, static_cast<std::size_t>(end - line)});
}

int fail(std::string_view reason)
{
    tell("", reason);
    return 1;
}

int run_conversion()
{
    try {
        const std::unique_ptr<FileSystem> files = system_files();
        const Configuration configuration = read_configuration(*files);
        convert(*files, configuration);
        if (design_version(configuration.design) == 0)
            tell("warning: ", "the design file " + quoted_path(configuration.design) +
                                  " is not converted: its name ends in neither MRL nor MR2");
        else if (!configuration.warning.empty())
            tell("warning: ", configuration.warning);
        return 0;
    } catch (const std::bad_alloc &) {
        return fail(no_memory);
    } catch (const std::exception &error) {
        return fail(error.what());
    }
}

// Where an exception can't go on: without memory throwing one ends here, too.
[[noreturn]] void end_at_once()
{
    const std::exception_ptr cause = std::current_exception();
    std::_Exit(fail(cause ? "an error has met another one" : no_memory));
}

int answer(std::string_view text)
{
    return write_to(standard_output, text) ? 0 : fail("cannot write to standard output");
}

} // namespace

int run_program(int argument_count, const char *const *arguments)
{
    prepare_process();
    std::set_terminate(end_at_once);
    if (argument_count <= 1)
        return run_conversion();
    const std::string_view argument = arguments[1];
    if (argument_count == 2 && argument == "--help")
        return answer(std::string(usage) + '\n' + std::string(help));
    if (argument_count == 2 && argument == "--version")
        return answer(version);
    write_to(standard_error, usage);
    return 2;
}

} // namespace marlogl
