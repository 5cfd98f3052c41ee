#include "host/run_error.h"
#include "host/system.h"
#include "run/run.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

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
void tell(std::string_view text)
{
    static char line[8192] = "MarlOgl: ";
    constexpr std::size_t start = 9, most = sizeof line - start - 1;
    char *end = std::transform(text.begin(), text.begin() + std::min(text.size(), most), line + start,
                               [](unsigned char c) { return c < ' ' ? '?' : static_cast<char>(c); });
    *end++ = '\n';
    write_to(standard_error, {line, static_cast<std::size_t>(end - line)});
}

int fail(std::string_view reason)
{
    tell(reason);
    return 1;
}

int convert()
{
    try {
        if (const std::string warning = Form_Load(); !warning.empty())
            tell("warning: " + warning);
        return 0;
    } catch (const std::bad_alloc &) {
        return fail(no_memory);
    } catch (const std::exception &error) {
        return fail(error.what());
    }
}

// Without memory for an exception, throwing one ends here.
[[noreturn]] void end_without_memory()
{
    std::_Exit(fail(no_memory));
}

int answer(std::string_view text)
{
    return write_to(standard_output, text) ? 0 : fail("cannot write to standard output");
}

} // namespace

int run_program(int argument_count, const char *const *arguments)
{
    prepare_process();
    std::set_terminate(end_without_memory);
    if (argument_count <= 1)
        return convert();
    const std::string_view argument = arguments[1];
    if (argument_count == 2 && argument == "--help")
        return answer(std::string(usage) + '\n' + std::string(help));
    if (argument_count == 2 && argument == "--version")
        return answer(version);
    write_to(standard_error, usage);
    return 2;
}

} // namespace marlogl
