#include "reading.h"

#include "base/run_error.h"
#include "lost_record.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace marlogl::check {

namespace {

constexpr std::size_t most_of_line = 10000;

// The rules for lines of each key; those for lines that are no record stand under NUL.
using RulesByKey = std::array<std::vector<const Rule *>, 256>;

const RulesByKey &rules_by_key()
{
    static const RulesByKey rules = [] {
        RulesByKey table;
        for (std::size_t key = 0; key < table.size(); ++key)
            for (const Rule *rule : all_rules())
                if (const auto &[keys, line, object, of_instances] = rule->check;
                    line != nullptr &&
                    (keys.empty() ? key == 0 : keys.find(static_cast<char>(key)) != keys.npos))
                    table[key].push_back(rule);
        return table;
    }();
    return rules;
}

double slot_of(Line line)
{
    return round_half_even(numeric_value(columns(line, 2, line[0] == 'Q' ? 4 : 3)));
}

// "# check: ignore RULE..." in a remark.
void read_remark(Line line, LineNumber number, FileReport &report)
{
    constexpr std::string_view order = "check: ignore ", between = " ,\t\r";
    std::size_t at = line.find_first_not_of("#;'*/ \t");
    if (at == line.npos || at == 0 || !line.substr(at).starts_with(order))
        return;
    at += order.size();
    while ((at = line.find_first_not_of(between, at)) != line.npos) {
        const std::size_t end = std::min(line.find_first_of(between, at), line.size());
        const std::string_view name = line.substr(at, end - at);
        if (const Rule *ignored = find_rule(name))
            report.ignore(*ignored, number);
        else
            SayTo(report, rule("unknown-rule"), 0)(number, {at + 1, end}, "there is no rule " + quoted(name));
        at = end;
    }
}

class LineChecks {
  public:
    LineChecks(DesignSeen &seen, FileReport &report, int version)
        : seen_(seen), report_(report), version_(version), reading_{seen.scene, point_rules[version - 1]}
    {
    }

    void check(Line line, LineNumber number)
    {
        const Record *record = find_record(line);
        const Store store = record != nullptr ? record->stores[version_ - 1] : nullptr;
        if (record == nullptr) {
            read_remark(line, number, report_);
            // What follows belongs to another object in the author's mind, and is not given twice.
            if (object_ > 0 && lost_record(line).starts_with('A'))
                seen_.lines.back().lost_opening = number;
        }
        const bool is_text = check_text(line, number);
        std::string fault;
        try {
            if (store != nullptr)
                store(reading_, line);
        } catch (const RunError &error) {
            fault = error.what();
        }
        follow(record, number); // a type that stops the reading has opened its object
        if (!fault.empty())
            tell("stops-reading", number, line, fault);
        else if (is_text)
            apply_rules(line, number, record);
    }

    bool ended() const { return reading_.ended; }

    // Converts what is left, and says what stops the conversion there.
    void end()
    {
        const std::string place = "file";
        try {
            end_reading(reading_, place, version_);
        } catch (const RunError &error) {
            // "file: object 3: ..."
            const std::string_view text(error.what());
            const std::string_view from_number = text.substr((place + ": object ").size());
            std::size_t number = 0;
            std::from_chars(from_number.data(), from_number.data() + from_number.size(), number);
            object_ = static_cast<int>(number);
            tell("stops-reading", seen_.lines[number - 1].opened, "A",
                 std::string(from_number.substr(from_number.find(": ") + 2)));
        }
        seen_.file_version = reading_.file_version;
    }

  private:
    void tell(std::string_view name, LineNumber number, Line line, std::string message)
    {
        SayTo(report_, rule(name), object_,
              &seen_.complained)(number, {1, std::max<std::size_t>(line.size(), 1)}, std::move(message));
    }

    // Says once what makes a file no text; all else that such a line breaks comes from there.
    bool check_text(Line line, LineNumber number)
    {
        const bool nul = line.find('\0') != line.npos;
        if (!nul && line.find('\r') == line.npos)
            return true;
        if (seen_.is_text)
            tell(nul ? "not-text" : "line-ends", number, line,
                 nul ? "the line holds a NUL byte: the file is no plain text"
                     : "only CR ends a line here; what follows it belongs to the same record");
        seen_.is_text = false;
        return false;
    }

    // Keeps up with the reader: which object it is at.
    void follow(const Record *record, LineNumber number)
    {
        if (record == nullptr || record->key != "A" || reading_.ended)
            return;
        object_ = static_cast<int>(seen_.scene.objects.size());
        if (seen_.lines.size() < seen_.scene.objects.size()) {
            seen_.lines.emplace_back().opened = number;
            seen_.complained.resize(seen_.lines.size() + 1);
        }
    }

    void apply_rules(Line line, LineNumber number, const Record *record)
    {
        const char key = record != nullptr ? line[0] : '\0';
        LineSeen line_seen{reading_, version_, line, number, record, 0, 0};
        if (line_seen.has_slot())
            line_seen.slot = slot_of(line);
        if (object_ > 0) {
            ObjectLines &lines = seen_.lines.back();
            if (LineNumber *set = lines.find(key, line_seen.slot)) {
                if (*set > lines.lost_opening && (key != 'Q' || *set > lines.counted_from))
                    line_seen.earlier = *set;
                *set = number;
            }
            if (key == 'P' && line_seen.slot == point_count_cell)
                lines.counted_from = number;
        }
        if (key == 'J' || key == 'V')
            line_seen.earlier = std::exchange(key == 'J' ? scale_level_ : file_version_, number);
        for (const Rule *each : rules_by_key()[static_cast<unsigned char>(key)]) {
            try {
                each->check.line(line_seen, SayTo(report_, *each, object_, &seen_.complained));
            } catch (const RunError &) {
                // A number too large for the rule; where it matters, the drawing of the object says so.
            }
        }
    }

    DesignSeen &seen_;
    FileReport &report_;
    int version_;
    Reading reading_;
    LineNumber scale_level_ = 0, file_version_ = 0; // the lines that set them
    int object_ = 0;                                // the number of the object that the records belong to
};

} // namespace

const Rule &rule(std::string_view name)
{
    return *find_rule(name);
}

void SayTo::operator()(LineNumber line, Columns columns, const Message &message) const
{
    if (complained_ != nullptr && object_ > 0 && rule_.severity != Severity::note)
        (*complained_)[static_cast<std::size_t>(object_)] = true;
    report_.add(rule_, line, columns, message.text(), object_);
}

void read_design(LineReader &file, int version, DesignSeen &seen, FileReport &report)
{
    seen.scene.objects.reserve(most_objects); // objects stay where they are
    LineChecks checks(seen, report, version);
    LineNumber number = 0;
    do {
        Line line = file.read_line(most_of_line + 1);
        ++number;
        if (line.size() > most_of_line) {
            line = line.substr(0, most_of_line);
            if (find_record(line) != nullptr)
                SayTo(report, rule("long-line"),
                      0)(number, {1, most_of_line},
                         "the line has more than 10,000 bytes, of which no more are checked");
        }
        checks.check(line, number);
    } while (!checks.ended() && !file.at_end());
    checks.end();
}

} // namespace marlogl::check
