#include "support/design.h"

#include "run/configuration.h"
#include "run/convert.h"
#include "support/cases.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace marlogl {

namespace {

// Names may hold anything; only the statements are looked at.
bool is_statement(const std::string &line)
{
    return !line.starts_with("//") && !line.starts_with("BindTexture");
}

bool holds_bad_number(std::string_view line)
{
    for (std::size_t sign = line.find("-0"); sign != line.npos; sign = line.find("-0", sign + 1)) {
        const std::size_t end = line.find_first_not_of("0.f", sign + 1);
        if (end == line.npos || line[end] == ' ' || line[end] == ',')
            return true;
    }
    return line.find("nan") != line.npos || line.find("inf") != line.npos;
}

void check_every_output(const Converted &converted)
{
    bool open = false;
    double moved[4] = {};
    EXPECT_TRUE(converted.output.empty() || converted.output.ends_with("\r\n"));
    for (const std::string &line : converted.lines()) {
        EXPECT_EQ(line.find('\n'), line.npos) << line;
        if (!is_statement(line))
            continue;
        EXPECT_FALSE(holds_bad_number(line)) << line;
        if (line.starts_with("glBegin(")) {
            EXPECT_FALSE(open) << "a begin inside a block";
            open = true;
        }
        if (line == "glEnd();")
            open = false;
        double x = 0, y = 0, z = 0;
        if (std::sscanf(line.c_str(), "glTranslated( %lf, %lf, %lf", &x, &y, &z) == 3) {
            moved[0] += x;
            moved[1] += y;
            moved[2] += z;
        } else if (std::sscanf(line.c_str(), "glRotated( %lf", &x) == 1) {
            moved[3] += x;
        }
    }
    if (converted.error || converted.output.empty())
        return;
    EXPECT_FALSE(open) << "a block without an end";
    for (const double sum : moved)
        EXPECT_EQ(sum, 0) << "a placement that is not undone";
}

} // namespace

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
    check_every_output(converted);
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
