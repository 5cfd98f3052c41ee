// The program MarlOgl.
#include "host/entry.h"
#include "run/run.h"

int marlogl::start(int argument_count, const char *const *arguments)
{
    return run_program(argument_count, arguments);
}
