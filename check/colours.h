// What can be wrong with the nine digits of a colour.
#pragma once

#include <string>
#include <string_view>

namespace marlogl::check {

bool is_whole_colour(std::string_view nine);

/// What is wrong with the first component that C reads as an octal number; empty when there is none, and for
/// a colour that is not nine digits.
std::string octal_fault(std::string_view nine);

/// The same for the first component above 255.
std::string large_fault(std::string_view nine);

} // namespace marlogl::check
