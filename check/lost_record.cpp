#include "lost_record.h"

#include "base/letters.h"
#include "number_field.h"

namespace marlogl::check {

namespace {

bool is_letter(char c)
{
    return upper(c) >= 'A' && upper(c) <= 'Z';
}

// A name begins with a capital letter and goes on with small ones: "BOld barn".
bool is_name(std::string_view text)
{
    return text.size() > 1 && is_letter(text[0]) && upper(text[0]) == text[0] && upper(text[1]) != text[1];
}

bool looks_like_record(std::string_view text)
{
    if (text.empty())
        return false;
    const std::string_view rest = columns(text, 4);
    // A slot with a blank in it is taken for one only where numbers follow: "F 1 ..." begins many a remark.
    const bool has_slot = all_digits(columns(text, 2, 3));
    switch (text[0]) {
    case 'A':
    case 'C':
    case 'D':
    case 'J':
    case 'V':
        return read_number_field(columns(text, 2)).whole();
    case 'B':
        return is_name(columns(text, 2));
    case 'P':
        return all_digits(trimmed(columns(text, 2, 3))) && read_number_field(rest).whole();
    case 'K':
        return has_slot && !rest.empty() && rest.size() <= 2;
    case 'F':
    case '\\':
        return has_slot && !rest.empty();
    case 'Q':
        return all_digits(trimmed(columns(text, 2, 4))) && text.size() > 4;
    default:
        return false;
    }
}

} // namespace

bool all_digits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

std::string lost_record(Line remark)
{
    constexpr std::string_view blanks_and_mark = " \t\xEF\xBB\xBF";
    const std::size_t first = remark.find_first_not_of(blanks_and_mark);
    if (first == remark.npos)
        return {};
    std::string record(remark.substr(first, 40));
    if (first == 0)
        record[0] = upper(record[0]);
    return looks_like_record(record) ? record : std::string();
}

} // namespace marlogl::check
