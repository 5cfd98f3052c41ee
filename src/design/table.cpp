#include "design/table.h"

namespace marlogl {

void raise_outside(double index, Range range)
{
    throw RunError(Fault::index, std::string(range.counted) + ' ' + message_number(index) + " is outside " +
                                     std::to_string(range.first) + " to " + std::to_string(range.last));
}

} // namespace marlogl
