// What holds for every output, whatever the input.
#pragma once

#include <string>
#include <string_view>

namespace marlogl {

/// The first rule that an output breaks, with the line that breaks it; empty when it breaks none: lines end
/// in CR LF, the numbers of statements are plain and zero has no sign, no block begins inside another. When
/// the conversion was `done`, the footer stands at the end, every block has ended and every placement was
/// undone.
std::string broken_rule(std::string_view output, bool done);

} // namespace marlogl
