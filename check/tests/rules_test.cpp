// Every rule by its own example, and the numbers that the rules read.
#include "number_field.h"
#include "reading.h"
#include "support.h"
#include "support/cases.h"

#include "design/number.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

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
        EXPECT_EQ(before.find('\n'), before.size() - 1) << before;
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

// The records of a house that is drawn, in front of others.
const std::string house = "A23\nP01 13\nP02 36\nP06 14\nP07 30\nK01Y\nF01front\nQ001   0 255\nQ002   0   0\n"
                          "Q003 255   0\nQ004 255 255\n";

// What the checker says of a case: of the records behind a house, of a file of a name, or of a rule's
// example.
std::string told_of_case(const std::string &title, const std::string &records)
{
    std::string name = title == "house" ? "s.mr2" : title,
                design = title == "house" ? house + records : records;
    for (const Rule *each : all_rules())
        if (title == "example " + std::string(each->name))
            name = each->example.before_file(), design = each->example.before();
    std::string lines;
    for (const FileReport &report : check({{name, design}}, name))
        for (const Finding &finding : report.findings())
            lines += "--> " + std::to_string(finding.line) + ':' + std::to_string(finding.columns.first) +
                     '-' + std::to_string(finding.columns.last) + ' ' +
                     std::string(name_of(finding.rule->severity)) + ": " + finding.message + " [" +
                     std::string(finding.rule->name) + "]\n";
    return lines;
}

// The file holds the cases and, behind each, what was told of it when somebody looked at it last.
TEST(Rules, SayOfEveryCaseWhatTheySaid)
{
    const std::string path = "check/tests/reports.txt";
    std::string told, title, records;
    std::istringstream cases(content_of(path) + "=== \n");
    for (std::string line; std::getline(cases, line);) {
        if (line.starts_with("=== ")) {
            told += title.empty() ? "" : "=== " + title + '\n' + records + told_of_case(title, records);
            title = line.substr(4);
            records.clear();
        } else if (!line.starts_with("--> ")) {
            records += line + '\n';
        }
    }
    expect_content(path, told);
}

TEST(Rules, TellAMistakeOnce)
{
    // Each is one mistake; what comes of it is not told again.
    for (const std::string records :
         {"Q4 255 255\n", "Q005 255  255\n", "A40000\n", "a23\nP01 13\nP02 36\nF01front\n"}) {
        const std::string all = told("s.mr2", house + records, Severity::note);
        EXPECT_EQ(all.find('\n'), all.size() - 1) << records << all;
    }
}

TEST(Rules, TellEveryObjectBehindTextures)
{
    const std::string post = "A20\nQ00150005000     P\n",
                      all = told("s.mr2", house + post + post, Severity::note);
    EXPECT_NE(all.find("s.mr2:12: note: this object stands behind textured faces"), all.npos) << all;
    EXPECT_NE(all.find("s.mr2:14: note: this object stands behind textured faces"), all.npos) << all;
}

TEST(Rules, LookAtTheFilesBesideTheDesignFile)
{
    Files files = usual_files();
    files["scene.mr2"] = house;
    const auto told_of_all = [&](const std::string &changed, const std::string &content) {
        Files others = files;
        others["town/x.bmp"];
        others[changed] = content;
        return told(check(others, "MarlOgl.dat"), Severity::note);
    };
    EXPECT_EQ(told_of_all("a", ""), "");
    // Where no bitmap lies the textures are kept elsewhere.
    EXPECT_EQ(told(check({{"town/s.mr2", house}}, "town/s.mr2"), Severity::note), "");
    EXPECT_EQ(
        told(check({{"town/s.mr2", house}, {"town/x.bmp", ""}}, "town/s.mr2"), Severity::note),
        "town/s.mr2:7: warning: \"front.bmp\" lies neither beside the output nor beside the design file "
        "[texture-missing]\n");
    EXPECT_EQ(told_of_all("MarlOgl.dat", "scene.mr2\ntown\\scene.out\n255255255\n064000000\n"),
              "MarlOgl.dat:4: warning: \"064\" is 52 in C; use 000 or 100 to 255 [octal-colour]\n");
    EXPECT_EQ(told_of_all("MarlOgl.dat", "SCENE.MR2\nscene.out\n255255255\n000000000\n"), "");
    EXPECT_EQ(told_of_all("MarlOgl.dat", "MarlOgl.dat\nscene.out\n255255255\n000000000\n"),
              "MarlOgl.dat:1: error: the name ends in neither .mrl nor .mr2; the output will be empty "
              "[wrong-ending]\n");
    EXPECT_NE(told_of_all("scene.ogl", "").find("stops-run"), 0u);
    EXPECT_EQ(told_of_all("scene.mr2", house + "A23\nBa): b\nC1e999\n"),
              "scene.mr2:12: error: the number \"1e999\" is too large [stops-drawing]\n");
    files["scene.mr2"] = "A20\nK0105\nQ00150005000     P\n";
    EXPECT_EQ(told_of_all("appl/colors.tab", ""),
              "scene.mr2:1: error: the file \"./appl/colors.tab\" ends where a line is expected "
              "[colour-table-missing]\n");
    EXPECT_EQ(told_of_all("appl/colors.tab", "\n\n\n\n05 blue           000 000 033\n"),
              "scene.mr2:2: warning: line 5 of the colour table: \"033\" is 27 in C; use 000 or 100 to 255 "
              "[octal-colour]\n");
}

TEST(Rules, StandInTheManual)
{
    const std::string manual = content_of("docs/checker.md");
    std::size_t rows = 0;
    for (const Rule *each : all_rules()) {
        const std::string row = "| `" + std::string(each->name) + "` | " +
                                std::string(name_of(each->severity)) + " | " + std::string(each->text) +
                                " |\n";
        EXPECT_NE(manual.find(row), std::string::npos) << row;
    }
    for (std::size_t at = manual.find("\n| `", manual.find("\n## Rules\n")); at != manual.npos;
         at = manual.find("\n| `", at + 1))
        ++rows;
    EXPECT_EQ(rows, all_rules().size());
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
