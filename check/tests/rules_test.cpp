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

TEST(Rules, TellWhatIsThereAndWhatToWrite)
{
    // What stands behind a house, and what is told of it; the first line behind the house is line 12.
    const struct {
        const char *records, *told;
    } cases[] = {
        {"", ""},
        {"\tP03 1\n",
         "12: warning: this line begins with a blank, so it is a remark; remove the blank in front of "
         "\"P03\" [indented-record]"},
        {"  A house stands here\np. 12\nFAR\n",
         "14: error: columns 2 to 3 hold no slot number but \"AR\", which is read as 0 "
         "[slot-not-two-digits]"},
        {" J15\n",
         "12: warning: this line begins with a blank, so it is a remark; remove the blank in front of "
         "\"J15\" [indented-record]"},
        {" Q  1 100 100\n",
         "12: warning: this line begins with a blank, so it is a remark; remove the blank in front of "
         "\"Q  \" [indented-record]"},
        {"bNew barn\n", "12: warning: the key is a small letter, so this line is a remark; did you mean "
                        "\"BNew barn\"? [lower-case-key]"},
        {"be careful\n  By the river\n", ""},
        {"q00012341234\n", "12: warning: the key is a small letter, so this line is a remark; did you mean "
                           "\"Q00012341234\"? [lower-case-key]"},
        {"K1Y\n",
         "12: error: columns 2 to 3 hold no slot number but \"1Y\", which is read as 1; write \"K01Y\" "
         "[slot-not-two-digits]"},
        {"K31x\nK31y\n", "13: warning: \"K31\" is given again; line 12 has no effect [given-twice]"},
        {"P 3 1\nP3 1\n", "13: warning: \"P3 \" is given again; line 12 has no effect [given-twice]"},
        {"J15\nJ14\n", "13: warning: \"J\" is given again; line 12 has no effect [given-twice]"},
        {"J16\n", "12: warning: there is no scale level \"16\", so the scale is that of a file without a J "
                  "record; levels are 9 to 15 [scale-level]"},
        {"K05 7\nK06N\nF06tiles\n", ""},
        {"K05N\nF05tiles.BMP\n", "13: error: the output will ask for \"tiles.BMP.bmp\"; leave \".BMP\" out "
                                 "[texture-ending]"},
        {"Q005 1 2 3 4\n",
         "12: error: the x at positions 5 to 8 is \" 1 2\", which is read as 12; put numbers to the "
         "right of their four positions [point-columns]"},
        {"Q0051234567890\n",
         "12: error: the y goes on behind position 12, where it is cut to \"5678\" [point-columns]"},
        {"Q0011000255\n", "12: warning: the x is \"1000\" and the y \"255\"; put numbers to the right of "
                          "their four positions [point-shifted]"},
        {"C-40.5\n", "12: warning: -40.5 is written as -41 [fraction]"},
        {"A4\nP08 7\nK02Y\n", "14: warning: face 2 (face 2) is on but has no texture name; add an F02 record "
                              "[face-without-texture]"},
        {"A11\nP01 3\nP06 4\nK22Y\nF22a\n",
         "16: warning: with its cells this object (cone) has no face 22 [face-slot-unused]"},
        {"A6\nP36 1\nP21 5000\n", "13: warning: cell 36 is 1; only -1 switches it on [switch-value]"},
        {"A6\nP36 -1\nP23 1\n",
         "12: error: cell 21 is 0: the front side hangs 5000 units too low; write P21 5000 "
         "[missing-offset]"},
        {"A9\nP11 2000\nP06 1\n",
         "12: error: cell 12 is 0: the ridge lies at -2000; write P12 2000 [missing-offset]"},
        {"A5\nP11 11\n",
         "13: error: 11 corners: more than 10 overlap in the table of points [too-many-corners]"},
        {"A17\n",
         "12: error: type 17 is no kind in version 2; in version 1 it is \"roads\", which is type 21 here "
         "[unknown-type]"},
        {"A22\nP02 80\n", "13: warning: cell 2 is 80; without \"P02 90\" the output gets a tilt command "
                          "[tower-not-upright]"},
        {"A5\nP01 9\nP11 5\nK03Y\n", "15: warning: face 3 (wall 3) is on but has no texture name; add an F03 "
                                     "record [face-without-texture]"},
        {"A2\nK3001\n", ""},
        {"A2\nK3003\n", "13: error: K30 names object 3; there are 2 [instance-of-nothing]"},
        {"A0\nA2\nK3002\n", "14: error: K30 names object 2, which is of type 0 [instance-of-nothing]"},
        {"A2\nK3001\nA2\nK3002\n",
         "15: error: K30 names object 2, which is an instance itself; name object 1 "
         "[instance-of-instance]"},
        {"A20\nQ00150005000     P\nQ00350005000     P\nP50 0\nQ00150005000     P\n", ""},
        {"A20\nQ00150005000     P\nQ00250005100\nQ00350005200     L\nQ00450005300     P\n", ""},
        {"A20\nQ00150005000     L\nQ00050005000\nQ00252005000     L\n",
         "14: warning: Q000 counts as a point; the last point of the row is then missing [point-zero]"},
        {"A20\nK0161\nQ00150005000     P\n",
         "13: warning: colour \"61\" is outside 1 to 60 and becomes 1 [colour-number]"},
        {"A21\nP02 9\nQ0015000500061\n",
         "14: warning: colour \"61\" is outside 1 to 60 and becomes 1 [colour-number]"},
        {"A22\nP02 90\nQ0015000500061Y  H\nQ0025000501001Y  H\n",
         "14: warning: colour \"61\" is outside 1 to 60 and becomes 11 [colour-number]"},
        {"A22\nP02 90\nQ001500050001 Y H \nQ0025000501001Y  H\n",
         "14: warning: point 1 is not drawn: it has no H or V at position 18 [point-without-mark]"},
        {"\\00  080000000\n",
         "12: warning: \"080\" does not compile in C; use 000 or 100 to 255 [octal-colour]"},
        {"\\00  255,0,0\n", "12: error: a colour needs nine digits at positions 6 to 14, not \"255,0,0\" "
                            "[short-colour]"},
        {"P61 1 0\n", "12: warning: \"1 0\" is read as 10 [blank-in-number]"},
        {"P61 90 degrees\n", ""},
        {"A house\n",
         "12: warning: there is no number in \"house\", so it is 0; begin a remark with # [no-number]"},
        {"Q005 1.5   0\n", "12: warning: 1.5 is read as 2 [fraction]"},
        {"Q180   0   0\nQ181   0   0\n",
         "13: error: point 181 is outside 0 to 180; the record is skipped [point-skipped]"},
        {"K05Y\nF05wood\nQ017   0   0\n",
         "12: warning: Q018 of face 5 (left slope) is missing; it counts as 0,0 [positions-partly]"},
        {"K31x\nK32x\n",
         "13: error: code slot 32 is outside 0 to 31; the record is skipped [slot-too-large]"},
        {"F05a\\b\n",
         "12: error: a backslash in a texture name means something else in C; write / [texture-backslash]"},
        {"K10Y\nF10wood\nQ037   0 255\nQ038   0   0\nQ039 255   0\nQ040 255 255\n", ""},
        {"K10Y\nF10wood\nK04Y\nF04wood\n", "14: warning: face 4 (right wall) and face 10 are both on and lie "
                                           "in one place [faces-in-one-place]"},
        {"A20\nQ00150005000     P\nQ0020012  40     L\n",
         "14: error: the points of this kind have 5000 added; x = 12 lies at -4988 [points-without-5000]"},
        {"A18\nP11 3\n",
         "13: warning: corner 1 of the bottom outline (Q001) is missing; it lies at 0,0 [outline-missing]"},
        {"A19\nP11 13\n", "13: warning: cell 11 is 13; only 12, 15 and 18 segments work [wheel-segments]"},
        {"A21\nP02 9\nP58 3\n", "14: warning: cell 58 is 3, which lifts only the right edge of the road; use "
                                "cells 54 and 57 [road-elevation]"},
        {"A6\nP21 5000\nP22 3\nP24 1.5\n",
         "15: warning: cell 24 is 1.5, which chooses no side (0 to 3); cell 22 has no effect "
         "[selector-value]"},
        {"A7\nP07 0\nK2601\n", "14: warning: code slot 26 is not blank, but cell 31 is not 1, so there are "
                               "no lights; add P31 1 [lights-half]"},
        {"A7\nP07 5\nP31 1\nK2601\n", "14: warning: cell 31 is 1, but a cylinder with nine corners (P07 5) "
                                      "gets no lights [lights-half]"},
        {"A20\nQ001 -20 -14     P\n",
         "13: error: the points of this kind have 5000 added; x = -20 lies at -5020 [points-without-5000]"},
        {"\\00  2550000000\n",
         "12: error: the colour goes on behind position 14, where it is cut [short-colour]"},
        {"BBarn\\ \n", "12: error: the name ends with a backslash, which makes the next line of the output a "
                       "comment [name-backslash]"},
        {"\\00  256000000\n", "12: warning: \"256\" is above 255 [large-colour]"},
    };
    for (const auto &[records, told_line] : cases) {
        const std::string all = told("s.mr2", house + records);
        const std::string wanted = *told_line == '\0' ? "" : std::string("s.mr2:") + told_line + '\n';
        if (wanted.empty())
            EXPECT_EQ(all, wanted) << records;
        else
            EXPECT_NE(all.find(wanted), std::string::npos) << records << all;
    }
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
    const std::string manual = read_whole("docs/checker.md");
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
