// The program MarlOgl.
#include "run/run.h"

int main(int argument_count, char **arguments)
{
    return marlogl::run_program(argument_count, arguments);
}
