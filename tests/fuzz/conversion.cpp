// The whole conversion of one input in memory, run twice: what holds for every output is checked.
//
// An input is a byte of flags, then sections that a form feed separates: the design file, the run
// configuration and the colour table. The usual one stands for a section that is missing.
#include "base/run_error.h"
#include "host/memory_files.h"
#include "run/configuration.h"
#include "run/convert.h"
#include "support/rules.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

namespace {

using namespace marlogl;

using Files = std::map<std::string, std::string>;

enum Flags { version_1 = 1, crlf = 2, no_colour_table = 4, configuration_in_current_folder = 8 };

struct Result {
    Files files;
    std::string error; // empty after a run that was done
};

void check(bool holds, std::string_view rule, std::string_view text = "")
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %.*s: %.*s\n", static_cast<int>(rule.size()), rule.data(),
                 static_cast<int>(text.size()), text.data());
    std::abort();
}

std::string with_cr_lf(std::string_view text)
{
    std::string lines;
    for (const char c : text)
        lines += c == '\n' ? "\r\n" : std::string(1, c);
    return lines;
}

std::string usual_colour_table()
{
    std::string table;
    for (int i = 0; i < 60; ++i)
        table += "01 a colour       00" + std::to_string(i % 10) + " 100 200\n";
    return table;
}

Files files_of(std::string_view input)
{
    static const std::string usual_table = usual_colour_table();
    const int flags = input.empty() ? 0 : input.front();
    const std::string design = flags & version_1 ? "scene.mrl" : "scene.mr2";
    const std::string usual[] = {"", design + "\nscene.out\n200100050\n050100200\n", usual_table};
    const std::string configuration =
        flags & configuration_in_current_folder ? "MarlOgl.dat" : "program/MarlOgl.dat";
    const std::string paths[] = {design, configuration, "program/appl/colors.tab"};

    input.remove_prefix(input.empty() ? 0 : 1);
    Files files;
    for (int i = 0; i < 3; ++i) {
        const std::size_t end = input.find('\f');
        const std::string_view section = i == 0 || !input.empty() ? input.substr(0, end) : usual[i];
        if (i < 2 || !(flags & no_colour_table))
            files[paths[i]] = flags & crlf ? with_cr_lf(section) : std::string(section);
        input.remove_prefix(end == input.npos ? input.size() : end + 1);
    }
    return files;
}

Result converted(const Files &inputs)
{
    Result result;
    MemoryFiles memory;
    memory.files = inputs;
    try {
        convert(memory, read_configuration(memory));
    } catch (const RunError &error) {
        result.error = error.what();
        check(!result.error.empty(), "a message says what is wrong");
    }
    result.files = std::move(memory.files);
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Files inputs = files_of({reinterpret_cast<const char *>(data), size});
    const Result first = converted(inputs), second = converted(inputs);
    check(first.error == second.error && first.files == second.files, "two runs give the same", first.error);
    for (const auto &[path, content] : inputs)
        check(first.files.at(path) == content, "inputs stay as they are", path);
    for (const auto &[path, content] : first.files)
        if (!inputs.contains(path) && !path.ends_with("tempofil.%%%"))
            if (const std::string broken = broken_rule(content, first.error.empty() && !content.empty());
                !broken.empty())
                check(false, broken);
    return 0;
}
