#include "support/design.h"

#include "run/configuration.h"
#include "run/convert.h"
#include "support/cases.h"
#include "support/rules.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace marlogl {

Given given(int version, const std::string &design)
{
    return {version == 1 ? "scene.mrl" : "scene.mr2", design, std::nullopt, colour_table()};
}

std::vector<std::string> Converted::lines() const
{
    std::vector<std::string> found;
    for (std::size_t start = 0; start < output.size();) {
        const std::size_t end = output.find("\r\n", start);
        found.push_back(output.substr(start, end - start));
        start = end == output.npos ? end : end + 2;
    }
    return found;
}

std::string Converted::body() const
{
    constexpr std::size_t header = 5 + 2, footer = 4;
    const std::vector<std::string> all = lines();
    std::string text;
    for (std::size_t i = header; i + footer < all.size(); ++i)
        text += (text.empty() ? "" : "/") + all[i];
    return text;
}

std::string colour_table(int lines)
{
    std::string table;
    for (int i = 1; i <= lines; ++i) {
        char line[64];
        std::snprintf(line, sizeof line, "Colour %-11d%03d %03d %03d\r\n", i, i, i, i);
        table += line;
    }
    return table;
}

Converted convert(MemoryFiles &memory)
{
    Converted converted;
    try {
        convert(memory, read_configuration(memory));
    } catch (const RunError &error) {
        converted.error = error;
    }
    const auto content = [&memory](const char *path) {
        const auto found = memory.files.find(path);
        return found == memory.files.end() ? std::nullopt : std::optional(found->second);
    };
    const std::optional<std::string> output = content("scene.ogl");
    converted.has_output = output.has_value();
    converted.output = output.value_or("");
    converted.point_file = content("program/tempofil.%%%");
    const bool done = !converted.error && !converted.output.empty();
    EXPECT_EQ(broken_rule(converted.output, done), "");
    return converted;
}

MemoryFiles files_of(const Given &given)
{
    MemoryFiles memory;
    memory.files[given.design_path] = given.design;
    memory.files["program/MarlOgl.dat"] =
        given.configuration.value_or(given.design_path + "\r\nscene.out\r\n200100050\r\n050100200\r\n");
    if (given.colour_table)
        memory.files["program/appl/colors.tab"] = *given.colour_table;
    return memory;
}

Converted convert(const Given &given)
{
    MemoryFiles memory = files_of(given);
    return convert(memory);
}

} // namespace marlogl
