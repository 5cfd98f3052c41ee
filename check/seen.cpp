#include "seen.h"

#include "lost_record.h"

#include <algorithm>

namespace marlogl::check {

std::string record_name(char key, int number)
{
    const std::string digits = std::to_string(number);
    const std::size_t width = key == 'Q' ? 3 : 2;
    return key + std::string(width - std::min(digits.size(), width), '0') + digits;
}

bool LineSeen::has_slot_number() const
{
    return !has_slot() || all_digits(trimmed(slot_field().text));
}

LineNumber *ObjectLines::find(char key, double slot)
{
    const auto in = [slot](auto &table) {
        return slot >= 0 && slot < static_cast<double>(table.size()) ? &table[static_cast<std::size_t>(slot)]
                                                                     : nullptr;
    };
    switch (key) {
    case 'B':
        return &name;
    case 'C':
        return &x;
    case 'D':
        return &y;
    case 'P':
        return in(cells);
    case 'K':
        return slot <= 31 ? in(codes) : nullptr;
    case 'F':
        return in(texts);
    case '\\':
        return in(colours);
    case 'Q':
        return in(points);
    default:
        return nullptr;
    }
}

const Face *ObjectSeen::face(int slot) const
{
    const auto found =
        std::find_if(faces.begin(), faces.end(), [slot](const Face &each) { return each.slot == slot; });
    return found == faces.end() ? nullptr : &*found;
}

} // namespace marlogl::check
