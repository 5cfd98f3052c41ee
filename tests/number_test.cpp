// The numbers and texts of a design file, and the tables that hold them.
#include "design/number.h"

#include "design/table.h"
#include "design/text.h"
#include "support/cases.h"

#include <limits>
#include <random>

namespace marlogl {

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
const double not_a_number = std::numeric_limits<double>::quiet_NaN();

TEST(Number, OfText)
{
    const std::string zeros(400, '0');
    for_each_case(
        "=0|abc=0|-=0|.=0|-.=0|e5=0|--5=0|inf=0|nan=0|\xA0"
        "1=0|12=12|007=7|+5=5|-5=-5| \t- \t5 =-5| 1 2\t3. 2 5 =123.25|5.=5|.5=0.5|.5.7=0.5|1,5=1|"
        "12 ft=12|1\n2=1|0x10=0|1e=1|1e+=1|7E-x=7|1e2=100|1E-2=0.01|2 e + 0 2=200|1e2.5=100|1d2=1|"
        "0.1=0.1|-0.3048=-0.3048|123456789012345=123456789012345|123456789012345.6=123456789012345.6|"
        "9007199254740993=9007199254740992|0.1000000000000000055511151=0.1|00000000000000000001.5=1.5|"
        "123456789012345678901234567890=1.2345678901234568e29|-1e-99999999999999999999=0|"
        "1.7976931348623157e308=1.7976931348623157e308|4.9e-324=4.9e-324|1e-400=0|"
        "0e99999999999999999999=0|1" +
            zeros + "e-400=1|0." + zeros + "1e400=0.1",
        [](const std::string &text, const std::string &value) {
            EXPECT_EQ(numeric_value(text), std::strtod(value.c_str(), nullptr)) << quoted(text);
        });
    for (const std::string text : {"1e309", "-1e400", "1e99999999999999999999", "17976931348623159e292"})
        EXPECT_EQ(error_of([&] { numeric_value(' ' + text + "  "); }),
                  "overflow: the number \"" + text + "\" is too large");
    EXPECT_EQ(error_of([&] { numeric_value('9' + zeros); }),
              "overflow: the number \"9" + std::string(39, '0') + "...\" is too large");
}

TEST(Number, ConvertedToAWholeOne)
{
    for_each_case("0=0|0.5=0|1.5=2|2.5=2|2.5000000000000004=3|-0.5=0|-1.5=-2|-2.5=-2|0.49999999999999994=0|"
                  "4503599627370495.5=4503599627370496|1e300=1e300|32767.49=32767|32767.5=32768|"
                  "-32768.5=-32768|-32768.51=-32769",
                  [](const std::string &text, const std::string &expected) {
                      const double x = std::stod(text), rounded = std::stod(expected);
                      EXPECT_EQ(round_half_even(x), rounded) << text;
                      if (rounded >= -32768 && rounded <= 32767)
                          EXPECT_EQ(whole_16(x, ""), rounded) << text;
                      else
                          EXPECT_EQ(error_of([x] { whole_16(x, "width"); }),
                                    "overflow: width " + message_number(x) + " is outside -32768 to 32767");
                  });
    EXPECT_THROW(whole_16(infinite, ""), RunError);
    EXPECT_THROW(whole_16(not_a_number, ""), RunError);
    EXPECT_EQ(std::floor(-2.5), -3);
}

TEST(Number, ThatNothingCanBeDoneWith)
{
    EXPECT_EQ(require_finite(1e308), 1e308);
    EXPECT_EQ(quotient(7, -2, ""), -3.5);
    EXPECT_EQ(error_of([] { require_finite(-infinite); }),
              "overflow: a calculation gives a number that is too large");
    EXPECT_EQ(error_of([] { quotient(0, -0.0, "the width"); }),
              "division: the width is 0, which nothing can be divided by");
}

TEST(Text, IsCutFromALine)
{
    EXPECT_EQ(columns("K05AB", 2, 3), "05");
    EXPECT_EQ(columns("K05AB", 4), "AB");
    EXPECT_EQ(columns("K05AB", 5, 9), "B");
    EXPECT_EQ(columns("K05AB", 6), "");
    EXPECT_EQ(columns("", 1, 1), "");
    EXPECT_EQ(trimmed("  a b\t "), "a b\t");
    EXPECT_EQ(trimmed("   "), "");
}

TEST(Text, HoldsExactlyItsWidth)
{
    EXPECT_EQ(Text<4>().view(), "    ");
    EXPECT_EQ(Text<4>("ab").view(), "ab  ");
    Text<4> attribute(std::string("abcdef"));
    EXPECT_EQ(attribute.view(), "abcd");
    EXPECT_EQ(attribute(4), 'd');
    attribute(1) = '-';
    EXPECT_TRUE(attribute == "-bcd");
    EXPECT_FALSE(Text<2>("7") == " 7");
}

TEST(Number, OfPlainFieldsAreThoseOfTheirTexts)
{
    constexpr std::string_view likely = "    0123456789", all = " 0123456789-+.eE\t!/:0x\xB0\xA0";
    const auto is_plain = [](std::string_view field) {
        return field.find_first_not_of("0123456789", std::min(field.find_first_not_of(' '), field.size())) ==
               field.npos;
    };
    std::mt19937 random(4);
    int plain_ones = 0;
    for (int i = 0; i < 200000; ++i) {
        std::string text;
        for (const std::string_view characters = i % 3 == 0 ? all : likely; text.size() < 8;)
            text += characters[random() % characters.size()];
        const std::string first = text.substr(0, 4), second = text.substr(4);
        const PlainFields one(characters_at<std::uint32_t>(text.data()));
        ASSERT_EQ(one.plain, is_plain(first)) << quoted(first);
        if (one.plain) {
            ASSERT_EQ(one.numbers, numeric_value(first)) << quoted(first);
        }
        const PlainFields two(characters_at<std::uint64_t>(text.data()));
        ASSERT_EQ(two.plain, is_plain(first) && is_plain(second)) << quoted(text);
        plain_ones += two.plain;
        if (two.plain) {
            ASSERT_EQ(two.numbers & 0xFFFFFFFF, numeric_value(first)) << quoted(text);
            ASSERT_EQ(two.numbers >> 32, numeric_value(second)) << quoted(text);
        }
    }
    EXPECT_GT(plain_ones, 10000);
}

TEST(Table, TakesTheIndexesOfItsRangesOnly)
{
    static constexpr Range rows{1, 20, "row"};
    std::pmr::monotonic_buffer_resource memory;
    Table<int, rows> table(&memory);
    for (int row = 1; row <= 20; ++row)
        table(row) += 7 + row;
    for_each_case("0.51=1|1.5=2|2.5=2|20.5=20|0.5=0|20.51=0|-1=0|1e300=0|-inf=0|nan=0",
                  [&](const std::string &text, const std::string &row) {
                      const double index = std::stod(text);
                      EXPECT_EQ(any_place(rows, index) < 20, row != "0") << text;
                      if (row != "0")
                          EXPECT_EQ(std::as_const(table)(index), 7 + std::stoi(row)) << text;
                      else
                          EXPECT_EQ(error_of([&] { table(index); }),
                                    "index: row " + message_number(index) + " is outside 1 to 20");
                  });
    EXPECT_EQ(error_of([&] { table(21); }), "index: row 21 is outside 1 to 20");
}

TEST(Message, ShowsATextOnOneLine)
{
    EXPECT_EQ(quoted("a\tb\x7F\xC3\xA9"), "\"a?b?\xC3\xA9\"");
    EXPECT_EQ(quoted("0123456789", 10), "\"0123456789\"");
    EXPECT_EQ(quoted("0123456789A", 10), "\"0123456789...\"");
}

} // namespace

} // namespace marlogl
