#include "rules.h"

#include <algorithm>

namespace marlogl::check {

std::string Example::before(int copies) const
{
    std::string text(scene), fault;
    for (int i = 0; i < copies; ++i)
        fault += bad;
    const std::size_t at = good.empty() ? text.size() : text.find(good);
    return text.replace(at, good.size(), fault);
}

void Say::of_cell(const ObjectSeen &seen, int cell, const Message &message) const
{
    (*this)(seen.line_of(seen.cell_line(cell)), {"cell ", cell, " is ", seen.cell(cell), message.text()});
}

const std::vector<const Rule *> &all_rules()
{
    static const std::vector<const Rule *> rules = [] {
        std::vector<const Rule *> list;
        for (const std::span<const Rule> group :
             {line_rules(), record_rules(), number_rules(), object_rules(), face_rules(), cell_rules(),
              offset_rules(), outline_rules(), row_rules(), colour_rules(), file_rules(), closing_rules()})
            for (const Rule &rule : group)
                list.push_back(&rule);
        return list;
    }();
    return rules;
}

const Rule *find_rule(std::string_view name)
{
    const auto found = std::find_if(all_rules().begin(), all_rules().end(),
                                    [&](const Rule *rule) { return rule->name == name; });
    return found == all_rules().end() ? nullptr : *found;
}

} // namespace marlogl::check
