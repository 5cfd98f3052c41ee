#include "report.h"

#include <algorithm>
#include <ostream>

namespace marlogl::check {

namespace {

constexpr struct {
    std::string_view name, colour;
} severities[] = {
    {"note", "\033[36m"},
    {"warning", "\033[35m"},
    {"error", "\033[31m"},
};
constexpr std::string_view bold = "\033[1m", plain = "\033[0m";

std::string counted(int count, std::string_view what)
{
    return std::to_string(count) + ' ' + std::string(what) + (count == 1 ? "" : "s");
}

// Control characters would confuse a terminal.
std::string printable(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 127; }, '?');
    return text;
}

void write_scene(std::ostream &out, std::string_view scene)
{
    for (std::size_t at = 0; at < scene.size();) {
        const std::size_t end = std::min(scene.find('\n', at), scene.size());
        out << "    " << printable(std::string(scene.substr(at, end - at))) << '\n';
        at = end + 1;
    }
}

} // namespace

std::string_view name_of(Severity severity)
{
    return severities[static_cast<int>(severity)].name;
}

void FileReport::add(const Rule &rule, LineNumber line, Columns columns, std::string message, int object)
{
    constexpr int most = 1000;
    const auto ignored = ignored_.find(&rule);
    if (disabled_->contains(&rule) || (ignored != ignored_.end() && line >= ignored->second))
        return;
    ++counts_.of[static_cast<int>(rule.severity)];
    if (told_[&rule]++ < most)
        findings_.push_back({line, columns, &rule, printable(std::move(message)), object});
}

void FileReport::sort()
{
    std::stable_sort(findings_.begin(), findings_.end(), [](const Finding &a, const Finding &b) {
        return std::pair(a.line, a.columns.first) < std::pair(b.line, b.columns.first);
    });
}

std::string FileReport::object_of(const Finding &finding) const
{
    const auto index = static_cast<std::size_t>(finding.object) - 1;
    return index < objects_.size() ? "object " + std::to_string(finding.object) + ' ' + objects_[index] : "";
}

void write_text(std::ostream &out, const std::vector<FileReport> &reports, bool colours)
{
    for (const FileReport &report : reports)
        for (const Finding &finding : report.findings()) {
            const auto &[name, colour] = severities[static_cast<int>(finding.rule->severity)];
            const auto in = [&](std::string_view escape) { return colours ? escape : std::string_view(); };
            out << in(bold) << printable(report.file()) << ':' << finding.line << ':' << finding.columns.first
                << ": " << in(colour) << name << ": " << in(plain) << finding.message << " ["
                << finding.rule->name << "]\n";
            if (const std::string object = report.object_of(finding); !object.empty())
                out << "    " << object << '\n';
        }
}

Counts total(const std::vector<FileReport> &reports)
{
    Counts sum;
    for (const FileReport &report : reports)
        for (int severity = 0; severity < 3; ++severity)
            sum.of[severity] += report.counts().of[severity];
    return sum;
}

std::string summary(const std::vector<FileReport> &reports)
{
    const Counts counts = total(reports);
    return counted(counts(Severity::error), "error") + ", " + counted(counts(Severity::warning), "warning") +
           ", " + counted(counts(Severity::note), "note") + " in " +
           counted(static_cast<int>(reports.size()), "file");
}

void write_rules(std::ostream &out)
{
    for (const Rule *rule : all_rules()) {
        std::string name(rule->name), severity(name_of(rule->severity));
        name.resize(22, ' ');
        severity.resize(8, ' ');
        out << name << severity << rule->text << '\n';
    }
}

void write_explanation(std::ostream &out, const Rule &rule)
{
    out << rule.name << " (" << name_of(rule.severity) << "): " << rule.text << "\n\n" << rule.why << '\n';
    const Example &example = rule.example;
    out << "\nBefore (" << example.before_file() << "):\n\n";
    write_scene(out, example.before(1));
    if (example.times > 1)
        out << "    ... " << example.times << " times\n";
    out << "\nAfter (" << example.file << "):\n\n";
    write_scene(out, example.scene);
}

} // namespace marlogl::check
