#include "report.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace marlogl::check {

void write_json(std::ostream &out, const std::vector<FileReport> &reports)
{
    nlohmann::ordered_json findings = nlohmann::ordered_json::array();
    for (const FileReport &report : reports)
        for (const Finding &finding : report.findings()) {
            nlohmann::ordered_json object = nullptr;
            if (const std::string text = report.object_of(finding); !text.empty())
                object = text;
            findings.push_back({
                {"file", report.file()},
                {"line", finding.line},
                {"column", finding.columns.first},
                {"endColumn", finding.columns.last + 1},
                {"severity", name_of(finding.rule->severity)},
                {"rule", finding.rule->name},
                {"message", finding.message},
                {"object", std::move(object)},
            });
        }
    // Names in design files need not be UTF-8.
    out << findings.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

} // namespace marlogl::check
