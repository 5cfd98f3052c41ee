#include "number_field.h"

#include "design/text.h"

namespace marlogl::check {

namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool is_blank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

NumberField read_number_field(std::string_view text)
{
    NumberField field;
    std::size_t at = 0;
    const auto skip_blanks = [&](std::size_t from) {
        while (from < text.size() && is_blank(text[from]))
            ++from;
        return from;
    };
    const auto next_is = [&](std::string_view wanted) {
        return at < text.size() && wanted.find(text[at]) != wanted.npos;
    };
    // Takes a character that belongs to the number.
    const auto take = [&] {
        field.blank_between |= field.length != 0 && field.length != at;
        field.length = ++at;
        at = skip_blanks(at);
    };
    at = skip_blanks(0);
    if (next_is("+-"))
        take();
    for (bool point = false; next_is("0123456789") || (!point && next_is(".")); take()) {
        point |= text[at] == '.';
        field.digits |= is_digit(text[at]);
    }
    if (field.digits && next_is("eE")) {
        const NumberField before = field;
        take();
        if (next_is("+-"))
            take();
        const std::size_t digits = at;
        while (next_is("0123456789"))
            take();
        if (at == digits)
            field = before; // an E without digits behind it does not belong to the number
    }
    if (!field.digits)
        field.length = 0;
    std::string_view rest = text.substr(field.length);
    while (!rest.empty() && (is_blank(rest.front()) || rest.front() == '\r'))
        rest.remove_prefix(1);
    while (!rest.empty() && (is_blank(rest.back()) || rest.back() == '\r'))
        rest.remove_suffix(1);
    field.rest = rest;
    return field;
}

} // namespace marlogl::check
