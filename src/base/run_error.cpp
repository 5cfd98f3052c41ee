#include "base/run_error.h"

#include <algorithm>

namespace marlogl {

std::string quoted(std::string_view text, std::size_t most)
{
    std::string shown(text.substr(0, most));
    std::replace_if(
        shown.begin(), shown.end(), [](unsigned char c) { return c < ' ' || c == 127; }, '?');
    return '"' + shown + (text.size() > most ? "...\"" : "\"");
}

} // namespace marlogl
