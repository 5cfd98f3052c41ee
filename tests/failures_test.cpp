// Every limit at its last good and its first bad value, and what a run that fails says and leaves.
#include "support/cases.h"
#include "support/design.h"

namespace marlogl {

namespace {

// Compares a conversion with a line that it writes, or with the kind and message of its error.
void expect_outcome(const Given &scene, const std::string &expected)
{
    const Converted converted = convert(scene);
    const std::vector<std::string> lines = converted.lines();
    if (converted.error)
        EXPECT_EQ(error_of([&] { throw *converted.error; }), expected) << scene.design;
    else
        EXPECT_NE(std::find(lines.begin(), lines.end(), expected), lines.end())
            << expected << converted.output;
}

// A design file behind its version. "end" is the first line of the footer.
TEST(Failures, BeginRightBehindTheLimitsOfTheTables)
{
    const std::string table = R"(
2A3/P61 90 => glRotated( -90,0 ,0 , 1 );
2A3//P62 90 => index: scene.mr2:3: record "P62 90": parameter cell 62 is outside 0 to 61
1A8/P.4 9 => end
1A8/P-1 9 => index: scene.mrl:2: record "P-1 9": parameter cell -1 is outside 0 to 61
2A9/K28Y/F28t/F29t => end
2A9/F-1t => index: scene.mr2:2: record "F-1t": text slot -1 is outside 0 to 28
2A9/K31Y/K32Y/K99Y => end
2A9/K-9Y => index: scene.mr2:2: record "K-9Y": code slot -9 is outside 0 to 32
2\28  255000000 => end
2\29  255000000255255255
    => index: scene.mr2:1: record "\29  255000000255255...": colour slot 29 is outside 0 to 28
1?28Y => end
1T/?29Y => index: scene.mrl:2: record "?29Y": colour flag slot 29 is outside 0 to 28
2A8/Q180/Q181 => end
2A8/Q-01 => index: scene.mr2:2: record "Q-01": point -1 is outside 0 to 180
1A8/Q180 => end
1A8/Q181 => index: scene.mrl:2: record "Q181": point 181 is outside 0 to 180
2A32767.4/C9 => glTranslated( 9, 0, 0 );
2A32767.5/C9 => overflow: scene.mr2:1: record "A32767.5": type 32767.5 is outside -32768 to 32767
2A2/Q0013e4 -3e4 => end
2A2/Q001   04e4 => overflow: scene.mr2:2: record "Q001   04e4": coordinate 40000 is outside -32768 to 32767
1A2/Q001-2e4   0 => end
1A2/Q001-3e4   0
    => overflow: scene.mrl:2: record "Q001-3e4   0": coordinate (less 5000) -35000 is outside -32768 to 32767
1A11/P45-32768.5 => end
1A8/A11/P45-32769
    => overflow: scene.mrl: object 2: antenna position (cell 45) -32769 is outside -32768 to 32767
1V1e300 => end
2/V1e309 => overflow: scene.mr2:2: record "V1e309": the number "1e309" is too large
2W                                                                     1e309
    => overflow: scene.mr2:1: record "W                   ...": the number "1e309" is too large
2x => end
2 => past end: the file "scene.mr2" ends where a line is expected
)";
    for_each_line(table, [](const std::string &design, const std::string &expected) {
        expect_outcome(given(design[0] - '0', design.substr(1)),
                       expected == "end" ? "glPopMatrix();" : expected);
    });
}

TEST(Failures, BeginRightBehindTheLimitsOfTheObjects)
{
    const std::string table = R"(
2A3/D1e8 => glTranslated( 0, 100000000, 0 );
2A7/P02 9/P060.5 => //                                                  DrawToPt(  14 )
2A3/BX/D1e309 => overflow: object 1 "X" (type 3): the number "1e309" is too large
1A6/P03 9/P0674 =>       glVertex3d( -1, -1, 18 );
1A6/BMast/P03 9/P0675 => index: object 1 "Mast" (type 6, guyed mast): vertex table row 301 is outside 0 to 300
1A6/P03 9/P061 =>       glVertex3d( -1, -1, 18 );
1A6/P03 9/P060
    => division: object 1 "" (type 6, guyed mast): the number of segments (cell 6) is 0, which nothing can be divided by
1A6/P03 9/P061/P31 1/P58 16374.5 =>       glVertex3d( 1, 1, 32767 );
1A6/P03 9/P061/P31 1/P58 16375
    => overflow: object 1 "" (type 6, guyed mast): coordinate 32768 is outside -32768 to 32767
1A6/P03 9/P061/P31 1/P58-16384 =>       glVertex3d( 1, 1, -32768 );
1A6/P03 9/P061/P58 1e308
    => overflow: object 1 "" (type 6, guyed mast): a calculation gives a number that is too large
2A18/P1120/K21Y/F21water => BindTexture( "water.bmp" );
2A18/BPond/P1121/K21Y/F21water
    => index: object 1 "Pond" (type 18, extruded polygon): corner of the polygon 21 is outside 1 to 20
2A3/K3002/A18/P11 28 => end
2A3/BCopy/K3002/A18/P11 29
    => index: object 1 "Copy" (drawn as object 2, type 18, extruded polygon): text slot 29 is outside 0 to 28
2A19/P03 1/P11 12/K01Y/F01tread/Q001-2e4/Q00312e3 => BindTexture( "tread.bmp" );
2A19/P03 1/P11 12/K01Y/F01tread/Q001-2e4/Q00313e3
    => overflow: object 1 "" (type 19, wheel): width of the tread texture -33000 is outside -32768 to 32767
2A19/P03 1/P04-.5/P11 12/K01Y/F01tread
    => division: object 1 "" (type 19, wheel): the width of the wheel is 0, which nothing can be divided by
)";
    for_each_line(table, [](const std::string &design, const std::string &expected) {
        expect_outcome(given(design[0] - '0', design.substr(1)),
                       expected == "end" ? "glPopMatrix();" : expected);
    });
}

// Lines of the colour table (none: no file), and the colour of a fence.
TEST(Failures, BeginWhereTheColourTableIsMissing)
{
    const std::string table = R"(
60 60 => glColor3ub( 060, 060, 060 ); 
61 60 => glColor3ub( 060, 060, 060 ); 
61 61 => glColor3ub( 001, 001, 001 ); 
59 60 => glColor3ub(    ,    ,     ); 
1 0 => glColor3ub( 001, 001, 001 ); 
0 60
    => past end: object 1 "Hedge" (type 20, fence): the file "program/appl/colors.tab" ends where a line is expected
none 60
    => missing file: object 1 "Hedge" (type 20, fence): cannot open "program/appl/colors.tab": there is no such file
)";
    for_each_line(table, [](const std::string &input, const std::string &expected) {
        const std::vector<std::string> parts = split(input, " ");
        Given scene = given(2, "A20\nBHedge\nK01" + parts[1] + "\nQ00150005000");
        scene.colour_table.reset();
        if (parts[0] != "none")
            scene.colour_table = colour_table(std::stoi(parts[0]));
        expect_outcome(scene, expected);
    });
}

TEST(Failures, BeginWhereTheConfigurationIsCutShort)
{
    const std::string table = R"(
scene.mr2/scene.out//- => glPopMatrix();
scene.mr2/scene.out/-/
    => past end: program/MarlOgl.dat: line 4 is missing; the run configuration has four lines
 => past end: program/MarlOgl.dat: line 1 is missing; the run configuration has four lines
scene.mr2/  xy //-
    => negative length: the run configuration's line 2, "xy", has less than 3 characters to put "ogl" in place of
Town\none.MRL/scene.out//- => missing file: cannot open "Town/none.MRL": there is no such file
)";
    for_each_line(table, [](const std::string &configuration, const std::string &expected) {
        expect_outcome({.design = "\n", .configuration = configuration}, expected);
    });
    MemoryFiles nothing;
    EXPECT_STREQ(
        convert(nothing).error->what(),
        "there is no MarlOgl.dat (the run configuration, which names the design file and the output) "
        "in \"program\" or in the current folder \"/home\"");
}

TEST(Failures, LeaveTheLinesThatWereWrittenBefore)
{
    const std::string before = "A11\nP01 8\nP02 9\nK02Y\nF02tile\nC1\nA18\nC2\nP615\nP11";
    const std::string good = convert(given(2, before)).output, bad = convert(given(2, before + "29")).output;
    const std::size_t undone = good.rfind("glRotated( 5,0");
    ASSERT_NE(undone, good.npos);
    EXPECT_EQ(bad, good.substr(0, undone));
    const Converted unread = convert(given(2, "A3\nP62"));
    EXPECT_TRUE(unread.has_output && unread.output.empty());
}

// Every kind of record of the scene, and those of an object.
const std::string scene_records =
    "MAXI 2\nV1.1\nT1\n@1\nJ15\nL1\nE  40  41  42  43\n]1 8\n]2 9\n:Y\n$1\n"
    "W1.5               2                 1  2    3    4    5    6    7    8    "
    "910   11 7Town\nA0\nQ180\n";

std::string object_records(int type)
{
    std::string lines = 'A' + std::to_string(type) +
                        "\nBName\nC1.5\nD-2e1\n\\01  255128000\n?01Y\nK26Y \nP6130\n"
                        "P50 0\nP01 9\nP02 7\nP03 5\nP04 4\nP05 3\nP06 2\nP0704\nP08 5\n"
                        "P11 6\nP29 1\nP31 1\n";
    for (const char *slot : {"01", "02", "11", "21"})
        lines += std::string("K") + slot + "Y \nF" + slot + "tile\n";
    return lines + "Q001501050209 YSPL\nQ002502050109 123L\nQ00350104990  Y P \nQ004499050009  1P\n";
}

// Of the prefixes that end within a record one in so many is tried; convert tests what holds for every
// output.
void expect_order_for_every_prefix(int version, const std::string &whole)
{
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const bool ends_a_record = length == whole.size() || (length > 0 && whole[length - 1] == '\n');
        if (!ends_a_record && static_cast<int>(length) % one_in != 0)
            continue;
        const Converted converted = convert(given(version, whole.substr(0, length)));
        EXPECT_TRUE(converted.has_output) << length;
        // A mast without its number of segments can't be drawn.
        const bool refused = converted.error && converted.error->fault != Fault::division;
        EXPECT_FALSE(ends_a_record && refused) << whole.substr(0, length) << converted.error->what();
    }
}

TEST(Failures, AreOrderlyForEveryPrefixOfAFile)
{
    for (const int version : {1, 2}) {
        expect_order_for_every_prefix(version, scene_records + object_records(5) + object_records(22));
        for (int type = 1; type <= 23; ++type)
            expect_order_for_every_prefix(version, object_records(type) + "A0\nBLast");
    }
}

} // namespace

} // namespace marlogl
