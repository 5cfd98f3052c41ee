// The program marlogl-check.
#include "checked_files.h"
#include "host/entry.h"
#include "host/system.h"
#include "options.h"

#include <cstdlib>
#include <iostream>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace marlogl::check {

namespace {

bool wants_colours()
{
#ifdef _WIN32
    return false; // not every console there understands escapes
#else
    return isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
#endif
}

int check_files(const Options &options)
{
    const std::unique_ptr<FileSystem> files = system_files();
    std::vector<FileReport> reports;
    bool unreadable = false;
    for (const std::string &path : options.files) {
        try {
            for (FileReport &report : check_file(*files, path, options.settings))
                reports.push_back(std::move(report));
        } catch (const std::exception &error) {
            std::cerr << "marlogl-check: " << error.what() << '\n';
            unreadable = true;
        }
    }
    if (options.json)
        write_json(std::cout, reports);
    else
        write_text(std::cout, reports, wants_colours());
    std::cout.flush();
    std::cerr << "marlogl-check: " << summary(reports) << '\n';
    const Counts counts = total(reports);
    const bool failed = counts(Severity::error) > 0 || (options.strict && counts(Severity::warning) > 0);
    return unreadable ? 2 : failed ? 1 : 0;
}

int run(int argument_count, const char *const *arguments)
{
    int exit_status = 0;
    const std::optional<Options> options = parse_options(argument_count, arguments, exit_status);
    if (options && options->list_rules)
        write_rules(std::cout);
    else if (options && options->explain != nullptr)
        write_explanation(std::cout, *options->explain);
    else if (options)
        exit_status = check_files(*options);
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "marlogl-check: cannot write to standard output\n";
        return 2;
    }
    return exit_status;
}

} // namespace

} // namespace marlogl::check

int marlogl::start(int argument_count, const char *const *arguments)
{
    prepare_process();
    return check::run(argument_count, arguments);
}
