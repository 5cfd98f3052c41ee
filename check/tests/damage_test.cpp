// Damaged scenes: the checker and the converter agree about what stops a conversion.
#include "support.h"
#include "support/cases.h"

#include <gtest/gtest.h>

#include <sstream>

namespace marlogl::check {

namespace {

std::vector<std::string> lines_of(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// Values and records that lie at bounds or beyond them.
constexpr std::string_view bad_records[] = {
    "P62 1",     "P58 1e308",       "P01 1e999", "P11 21",       "P11 300",      "P06 0",         "P31 1",
    "P01 70000", "P13 1",           "P04 1",     "Q181   0   0", "Q-01   0   0", "Q001999999999", "K-1Y",
    "F-1x",      "\\29  100100100", "\\-1",      "A40000",       "A99",          "C1e999",        "D1e308",
    "K3001",     "K3071",           "V1.1",      "P38 99999",    "P50 0",        "K2601",         "?29Y",
    "P11 17",    "P03 0",           "P04 0",     "P02 1e300",    "A18",          "A19",           "A6",
    "A5",
};

void damage(std::vector<std::string> &lines, Random &random)
{
    const auto any = [&] { return static_cast<std::size_t>(random.below(static_cast<int>(lines.size()))); };
    std::string &line = lines[any()];
    const auto character = [&] {
        return static_cast<std::size_t>(random.below(static_cast<int>(line.size()) + 1));
    };
    const int kind = random.below(7);
    if (kind == 0)
        line.insert(character(), 1, "0123456789 -.eEAPQKF\\\r\t"[random.below(23)]);
    else if (kind == 1)
        line = line.substr(0, character());
    else if (kind == 2)
        line.erase(std::min(character(), line.size()), 1);
    else if (kind == 3)
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(any()));
    else if (kind == 4)
        std::swap(lines[any()], lines[any()]);
    else
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(any()),
                     std::string(bad_records[static_cast<std::size_t>(
                         random.below(static_cast<int>(std::size(bad_records))))]));
}

// Whether the checker has an error at the line or the object that the converter's message names.
bool names_the_place(const FileReport &report, const std::string &fault)
{
    int line = 0, object = 0;
    const bool at_line = std::sscanf(fault.c_str(), "scene.%*[^:]:%d:", &line) == 1;
    const std::size_t in_file = fault.find(": object ");
    if (!at_line && std::sscanf(fault.c_str(), "object %d", &object) != 1 && in_file != fault.npos)
        std::sscanf(fault.c_str() + in_file, ": object %d", &object);
    for (const Finding &finding : report.findings())
        if (finding.rule->severity == Severity::error &&
            (at_line ? finding.line == line : object != 0 && finding.object == object))
            return true;
    return false;
}

TEST(Damage, NoErrorMeansThatTheConversionIsDone)
{
    Random random;
    const int scenes = 2000 / one_in;
    int stopped = 0;
    const SceneGenerator generator;
    for (int i = 0; i < scenes; ++i) {
        const auto [name, text] = generator.scene(static_cast<unsigned>(i));
        std::vector<std::string> lines = lines_of(text);
        for (int faults = random.from_to(1, 3); faults > 0; --faults)
            damage(lines, random);
        std::string design;
        for (const std::string &line : lines)
            design += line + '\n';
        const std::string fault = conversion_fault(name, design);
        const FileReport report = check({{name, design}}, name)[0];
        stopped += !fault.empty();
        ASSERT_TRUE(fault.empty() || names_the_place(report, fault)) << "scene " << i << ": " << fault << '\n'
                                                                     << told({report}, Severity::error);
    }
    EXPECT_GT(stopped, scenes / 10);
}

} // namespace

} // namespace marlogl::check
