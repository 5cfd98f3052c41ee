// How far a number in a field reaches.
#pragma once

#include <string_view>

namespace marlogl::check {

/// What the number of a text consists of.
struct NumberField {
    std::size_t length = 0;     ///< of the text that the number takes, with the blanks in it
    bool digits = false;        ///< it has any
    bool blank_between = false; ///< a blank stands among its digits
    std::string_view rest;      ///< what follows, without blanks at its ends

    /// The text is a number, and nothing else but blanks around it.
    bool whole() const { return digits && !blank_between && rest.empty(); }
};

NumberField read_number_field(std::string_view text);

} // namespace marlogl::check
