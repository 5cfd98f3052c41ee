// The program MarlOgl.
#include "host/entry.h"
#include "run/program.h"

int marlogl::start(int argument_count, const char *const *arguments)
{
    return run_program(argument_count, arguments);
}
