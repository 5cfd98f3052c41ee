#include "options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace marlogl::check {

namespace {

constexpr const char *footer =
    R"(A remark "# check: ignore RULE" in a design file switches a rule off from there on.

Exit status: 0 nothing worse than warnings, 1 an error (with --strict a warning),
2 wrong usage or a file that cannot be read.)";

const Rule &existing_rule(const std::string &name)
{
    const Rule *rule = find_rule(name);
    if (rule == nullptr)
        throw CLI::ValidationError("there is no rule '" + name + "'");
    return *rule;
}

} // namespace

std::optional<Options> parse_options(int argument_count, const char *const *arguments, int &exit_status)
{
    Options options;
    std::string kind, format = "text";
    CLI::App app("Says what a design file of MarlOgl will not do.", "marlogl-check");
    app.footer(footer);
    app.set_version_flag("--version", "marlogl-check " MARLOGL_CHECK_VERSION);
    app.add_option(
           "files", options.files,
           "Design files, or MarlOgl.dat, which is checked with all that it names; - is standard input")
        ->type_name("FILE");
    app.add_option("--kind", kind, "What standard input is")
        ->type_name("mrl|mr2")
        ->check(CLI::IsMember({"mrl", "mr2"}));
    app.add_option("--format", format, "How to tell")
        ->type_name("text|json")
        ->check(CLI::IsMember({"text", "json"}));
    app.add_flag("--strict", options.strict, "Warnings count as errors in the exit status");
    app.add_option_function<std::vector<std::string>>(
           "--disable",
           [&](const std::vector<std::string> &names) {
               for (const std::string &name : names)
                   options.settings.disabled.insert(&existing_rule(name));
           },
           "Switch a rule off; repeatable")
        ->type_name("RULE")
        ->delimiter(',')
        ->allow_extra_args(false);
    app.add_option_function<std::string>(
           "--explain", [&](const std::string &name) { options.explain = &existing_rule(name); },
           "Say what a rule is for, with an example before and after")
        ->type_name("RULE");
    app.add_flag("--list-rules", options.list_rules, "List all rules");

    try {
        app.parse(argument_count, arguments);
        if (!options.list_rules && options.explain == nullptr && options.files.empty())
            throw CLI::RequiredError("a file");
        if (kind.empty() && std::find(options.files.begin(), options.files.end(), "-") != options.files.end())
            throw CLI::RequiredError("standard input: --kind");
    } catch (const CLI::Success &success) {
        exit_status = app.exit(success);
        return {};
    } catch (const CLI::ParseError &error) {
        std::cerr << "marlogl-check: " << error.what() << " (see --help)\n";
        exit_status = 2;
        return {};
    }
    options.json = format == "json";
    options.settings.version_of_input = kind == "mrl" ? 1 : 2;
    return options;
}

} // namespace marlogl::check
