// Every rule by its own example, and the numbers that the rules read.
#include "number_field.h"
#include "reading.h"
#include "support.h"

#include "design/number.h"

#include <gtest/gtest.h>

#include <set>

namespace marlogl::check {

namespace {

// Checks an example; what is named is the run configuration where the rule needs it.
std::string told_of(const Rule &rule, const std::string &file, const std::string &content)
{
    Files files = usual_files();
    files.erase("scene.mr2");
    const bool configured = !file.starts_with("scene") || rule.name == "colour-not-in-table";
    if (configured)
        files["scene.mr2"] = usual_files()["scene.mr2"];
    files[file] = content;
    return told(check(files, configured ? "MarlOgl.dat" : file), Severity::note);
}

TEST(Rules, FireOnTheirExampleAndNowhereElse)
{
    std::set<std::string_view> names;
    for (const Rule *each : all_rules()) {
        SCOPED_TRACE(each->name);
        const Example &example = each->example;
        EXPECT_TRUE(names.insert(each->name).second) << "two rules of one name";
        ASSERT_NE(std::string(example.scene).find(example.good), std::string::npos);
        const std::string before = told_of(*each, std::string(example.before_file()), example.before());
        const std::string wanted = name_of(each->severity).data() + std::string(": ");
        EXPECT_NE(before.find(": " + wanted), std::string::npos) << before;
        EXPECT_NE(before.find('[' + std::string(each->name) + "]\n"), std::string::npos) << before;
        for (const Rule *other : all_rules())
            EXPECT_TRUE(other == each ||
                        before.find('[' + std::string(other->name) + ']') == std::string::npos)
                << before;
        // What breaks the rule once is told once.
        EXPECT_TRUE(example.times > 1 || before.find('\n') == before.size() - 1) << before;
        EXPECT_EQ(told_of(*each, std::string(example.file), std::string(example.scene)), "");
    }
}

TEST(Rules, RemarksSwitchThemOffFromThereOn)
{
    const std::string house = "A23\nP02 1,5\n# check: ignore comma-decimal\nP06 1,5\n#check: ignore "
                              "small-y, draws-nothing\n";
    EXPECT_EQ(told("s.mr2", house), "s.mr2:2: error: \"1,5\" is read as 1; write a point [comma-decimal]\n");
    EXPECT_EQ(told("s.mr2", "# check: ignore draws-nothing\nA23\n"), "");
}

TEST(Rules, AreToldAThousandTimesAtMost)
{
    std::string scene = "A4\n";
    for (int i = 0; i < 1500; ++i)
        scene += "T\n";
    const std::vector<FileReport> reports = check({{"s.mr2", scene}}, "s.mr2");
    EXPECT_EQ(reports[0].findings().size(), 1001u); // and the board that is not drawn
    EXPECT_EQ(reports[0].counts()(Severity::note), 1500);
}

TEST(Rules, SayWhatTheConversionWouldSay)
{
    // Each scene has a fault that the converter stops at, and what the checker says of it.
    const struct {
        const char *name, *design, *told;
    } cases[] = {
        {"s.mr2", "A23\nP1 1\nP011e999\n", "3: error: the number \"1e999\" is too large [stops-reading]"},
        {"s.mrl", "A1\nQ181\n", "2: error: point 181 is outside 0 to 180 [stops-reading]"},
        {"s.mrl", "A1\nA11\nP38 99999\n",
         "2: error: antenna position (cell 38) 99999 is outside -32768 to 32767 [stops-reading]"},
        {"s.mr2", "A23\nBa): b\nC1e999\n", "1: error: the number \"1e999\" is too large [stops-drawing]"},
        {"s.mr2", "A6\nP31 1\nP01 99999\nP21 5000\n",
         "1: error: coordinate -49999 is outside -32768 to 32767 [stops-drawing]"},
    };
    for (const auto &[name, design, told_line] : cases) {
        EXPECT_NE(conversion_fault(name, design), "") << design;
        EXPECT_NE(told(name, design).find(std::string(name) + ':' + told_line), std::string::npos)
            << told(name, design);
    }
}

TEST(NumberField, EndsWhereTheConverterStopsReading)
{
    Random random;
    constexpr std::string_view characters = "0123456789.. \t-+eE,x";
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int length = random.below(9); length > 0; --length)
            text += characters[static_cast<std::size_t>(random.below(static_cast<int>(characters.size())))];
        const NumberField field = read_number_field(text);
        try {
            const double value = numeric_value(text);
            ASSERT_EQ(numeric_value(text.substr(0, field.length)), value) << '"' << text << '"';
            // Nothing of the rest belongs to the number.
            if (field.digits) {
                ASSERT_EQ(numeric_value(text.substr(0, field.length) + "x" + std::string(field.rest)), value);
            }
        } catch (const RunError &) {
        }
    }
    EXPECT_TRUE(read_number_field(" -1.5e3 ").whole());
    EXPECT_TRUE(read_number_field("1 2").blank_between);
    EXPECT_EQ(read_number_field("12 east").rest, "east");
}

} // namespace

} // namespace marlogl::check
