// The patterns of the output's numbers, and the fast ways against the exact ones.
#include "emit/angles.h"
#include "emit/output.h"
#include "support/cases.h"

#include <cstdlib>
#include <limits>
#include <random>

namespace marlogl {

namespace {

void expect_texts(const char *name, std::string (*text)(double), const std::string &cases)
{
    for_each_case(cases, [&](const std::string &input, const std::string &expected) {
        EXPECT_EQ(text(std::stod(input)), expected) << name << ' ' << input;
    });
}

#define TEXTS(number_text, cases)                                                                            \
    expect_texts(                                                                                            \
        #number_text, [](double x) { return text_of(number_text); }, cases)

TEST(NumberText, OfEveryPattern)
{
    const std::string zeros(300, '0');
    TEXTS(p0(x),
          "0=0|-0.0=0|0.49=0|-0.4=0|0.5=1|-0.5=-1|2.5=3|2.4999999999999996=3|2.49999999999999=2|-1000=-1000|"
          "999999999=999999999|999999999.5=1000000000|123456789012345678=123456789012346000|-1e300=-1" +
              zeros);
    TEXTS(p2(x), "0=0.00|0.015=0.02|0.0149995=0.02|0.0149994=0.01|0.125=0.13|-0.005=-0.01|-0.0049994=0.00|"
                 "0.99499949=0.99|-0.9949995=-1.00|12.5=12.50|-9.99499951=-10.00|-1e300=-1" +
                     zeros + ".00");
    TEXTS(p00(static_cast<int>(x)), "0=00|9=09|70=70|300=300");
    TEXTS(general(x),
          "-0.0=0|-12=-12|0.1=0.1|-2.75=-2.75|1e-7=0.0000001|999999999999999=999999999999999|1e15=1E+15|"
          "-1.5e300=-1.5E+300");
    TEXTS(spaced(x), "-0.0= 0|2.5= 2.5|-3=-3");
    TEXTS(hex(x), "0=0|-1=0|171.5=AC|254.5=FE|256=100|9007199254740992=20000000000000");
    TEXTS(hex(x, 2), "0=00|10=0A|255=FF|256=100");
    TEXTS(texture_u(x), "0=0.000000f|127.9=0.498039f|128=0.501961f|510=2.000000f|-0.5=-0.003922f");
    TEXTS(texture_v(x), "0=1.000000f|128=0.498039f|255.9=0.000000f|-255=2.000000f");
    TEXTS(general(round_decimals(x, 0)), "2.5=3|-2.5=-3|-1.5=-2|2.4999=2|1.23456=1");
    TEXTS(general(round_decimals(x, 4)), "0=0|-1.23456=-1.2346");
}

TEST(NumberText, IsNotThereForANumberThatIsNotFinite)
{
    const std::string message = "overflow: a calculation gives a number that is too large";
    for (const char *input : {"inf", "-inf", "nan"}) {
        const double x = std::stod(input);
        EXPECT_EQ(error_of([x] { text_of(p0(x)); }), message) << input;
        EXPECT_EQ(error_of([x] { text_of(p2(x)); }), message) << input;
        EXPECT_EQ(error_of([x] { text_of(spaced(x)); }), message) << input;
        EXPECT_EQ(error_of([x] { text_of(texture_v(x)); }), message) << input;
    }
    EXPECT_EQ(error_of([] { text_of(hex(1e16)); }),
              "overflow: the number 1e+16 is too large for hexadecimal digits");
}

// The text that the digits themselves give.
template <typename Put> std::string exact_text(Put put)
{
    char text[output::most_of_number];
    return {text, put(text)};
}

void expect_exact_hundredths(double x)
{
    const std::string exact = exact_text([x](char *at) { return output::put_by_millionths(at, x); });
    if (text_of(p2(x)) != exact) // a million EXPECT_EQ take long
        ADD_FAILURE() << message_number(x) << " is " << text_of(p2(x)) << " and not " << exact;
}

TEST(NumberText, OfANormalIsTheExactOneNearEveryTie)
{
    const int neighbours = 1500 / one_in;
    for (int hundredths = 0; hundredths <= 1001; ++hundredths) {
        // Where the hundredths, and where by way of the millionths they turn to the next one.
        const double sign = hundredths % 2 == 0 ? 1 : -1, tie = sign * (hundredths + 0.5) / 100;
        const double turn = tie - sign * 5e-7;
        expect_exact_hundredths(tie);
        double above = turn, below = turn;
        for (int i = 0; i < neighbours; ++i) {
            above = std::nextafter(above, 20);
            below = std::nextafter(below, -20);
            for (const double x : {above, below, turn + i * 2e-14, turn - i * 2e-14})
                expect_exact_hundredths(x);
        }
    }
}

TEST(NumberText, OfANormalIsTheExactOneAnywhere)
{
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> component(-1, 1), any(-12, 12), exponent(-25, 40);
    for (int i = 0; i < 1000000 / one_in; ++i) {
        expect_exact_hundredths(component(random));
        expect_exact_hundredths(std::ldexp(any(random), i % 4 == 0 ? static_cast<int>(exponent(random)) : 0));
    }
}

TEST(NumberText, OfAWholeNumberIsTheExactOne)
{
    std::mt19937_64 random(30);
    std::uniform_real_distribution<double> size(-1, 1.2e9), half(0, 2);
    for (int i = 0; i < 100000 / one_in; ++i) {
        const double any = size(random) / (i % 7 == 0 ? 1 : std::pow(10, i % 9));
        for (const double x : {any, std::floor(any), std::floor(any) + 0.5, i * 0.25})
            for (const double signed_x : {x, -x})
                if (const std::string exact =
                        exact_text([signed_x](char *at) { return output::put_rounded(at, signed_x, 0); });
                    text_of(p0(signed_x)) != exact)
                    ADD_FAILURE() << message_number(signed_x) << " is not " << exact;
    }
}

TEST(NumberText, OfATexturePositionIsTheExactOne)
{
    for (int pixel = -100300; pixel <= 100300; pixel += pixel / 1000 == 0 ? 1 : one_in) {
        const std::string exact = exact_text(
            [pixel](char *at) { return output::put_rounded(at, round_decimals(pixel / 255.0, 6), 6); });
        if (text_of(texture_u(pixel)) != exact + 'f' || text_of(texture_v(255 - pixel)) != exact + 'f')
            ADD_FAILURE() << pixel << " is " << text_of(texture_u(pixel)) << " and not " << exact;
    }
}

// No double is nearer to the sine or cosine than the table's: not even by the last bit, which the libraries
// differ in.
TEST(Angles, AreRoundedOnce)
{
    using Wide = long double;
    constexpr bool wide = std::numeric_limits<Wide>::digits >= 64;
    const auto expect_nearest = [](const char *function, int degrees, double entry, Wide value) {
        const double unit = std::nextafter(std::abs(entry), 2) - std::abs(entry);
        EXPECT_LE(std::abs(value - entry), unit * (wide ? 0.5005 : 1.5)) << function << ' ' << degrees;
    };
    for (int degrees = 0; degrees < 360; ++degrees) {
        const double angle = degrees * (3.1415926 / 180);
        expect_nearest("sin", degrees, sine(degrees), std::sin(Wide{angle}));
        expect_nearest("cos", degrees, cosine(degrees), std::cos(Wide{angle}));
    }
    const struct {
        double entry, value;
    } rows[] = {
        {cosine(51), 0.6293204028498466},
        {cosine(62), 0.46947157908396125},
        {cosine(104), -0.24192186555640913},
        {sine(0), 0},
        {cosine(0), 1},
    };
    for (const auto &[entry, value] : rows)
        EXPECT_EQ(entry, value);
    EXPECT_NEAR(cosine(90), 2.68e-8, 1e-11); // pi has seven decimals
}

} // namespace

} // namespace marlogl
