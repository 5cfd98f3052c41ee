#include "design/number.h"

#include "base/run_error.h"
#include "design/text.h"

#include <charconv>
#include <optional>

namespace marlogl {

namespace {

// Reads a text character by character, blanks and tabs left out.
class Characters {
  public:
    explicit Characters(std::string_view characters) : text_(characters) { skip_blanks(); }

    bool at_digit() const { return at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9'; }

    char take()
    {
        const char c = text_[at_++];
        skip_blanks();
        return c;
    }

    bool take_any_of(std::string_view wanted)
    {
        const bool found = at_ < text_.size() && wanted.find(text_[at_]) != wanted.npos;
        if (found)
            take();
        return found;
    }

    bool next_is(char wanted) const { return at_ < text_.size() && text_[at_] == wanted; }

  private:
    void skip_blanks()
    {
        while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t'))
            ++at_;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

// Whole numbers of so many digits and the powers of ten are exact doubles, so their quotient is rounded only
// once.
constexpr int exact_digits = 15;
constexpr double power_of_ten[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

struct Exponent {
    std::string text; // as std::from_chars reads it, empty when there is none
    long long value = 0;
};

Exponent take_exponent(Characters in)
{
    Exponent exponent;
    if (!in.take_any_of("eE"))
        return exponent;
    const bool negative = in.next_is('-');
    in.take_any_of("+-");
    if (!in.at_digit())
        return exponent;
    exponent.text = negative ? "e-" : "e";
    while (in.at_digit()) {
        const char digit = in.take();
        exponent.text += digit;
        if (exponent.value < std::numeric_limits<long long>::max() / 20)
            exponent.value = 10 * exponent.value + (digit - '0');
    }
    if (negative)
        exponent.value = -exponent.value;
    return exponent;
}

// The number of a text that holds a short whole number, with blanks in front of it at most, or nothing: what
// nearly all fields of a design file hold.
std::optional<double> short_number(std::string_view text)
{
    constexpr std::ptrdiff_t short_length = 9;
    const char *at = text.data(), *const end = at + text.size();
    while (at != end && *at == ' ')
        ++at;
    const bool negative = at != end && *at == '-';
    at += negative;
    if (end - at > short_length)
        return std::nullopt;
    int number = 0;
    for (; at != end; ++at) {
        const int digit = *at - '0';
        if (digit < 0 || digit > 9)
            return std::nullopt;
        number = 10 * number + digit;
    }
    return negative ? -number : number;
}

// The number of any text. Kept apart, so that short numbers don't pay for its frame.
[[gnu::noinline]] double leading_number(std::string_view text)
{
    Characters in(text);
    const double sign = in.next_is('-') ? -1 : 1;
    in.take_any_of("+-");

    std::string digits; // with the point among them
    long long mantissa = 0;
    long long order = 0; // the first digit that is not 0 stands for a multiple of 10^(order - 1)
    int digit_count = 0, decimals = 0;
    bool point = false, zero = true;
    for (;;) {
        if (in.at_digit()) {
            const char digit = in.take();
            digits += digit;
            zero = zero && digit == '0';
            order += point ? (zero ? -1 : 0) : (zero ? 0 : 1);
            decimals += point;
            if (++digit_count <= exact_digits)
                mantissa = 10 * mantissa + (digit - '0');
        } else if (!point && in.next_is('.')) {
            point = true;
            digits += in.take();
        } else {
            break;
        }
    }
    if (zero)
        return 0;
    const Exponent exponent = take_exponent(in);
    if (digit_count <= exact_digits && exponent.text.empty())
        return sign * (static_cast<double>(mantissa) / power_of_ten[decimals]);

    digits += exponent.text;
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool too_large = result.ec == std::errc::result_out_of_range && order + exponent.value > 0;
    if (too_large || std::isinf(value))
        throw RunError(Fault::overflow, "the number " + quoted(trimmed(text)) + " is too large");
    return sign * value;
}

} // namespace

double numeric_value(std::string_view text)
{
    const std::optional<double> number = short_number(text);
    return number ? *number : leading_number(text);
}

void outside_16(double x, std::string_view what)
{
    throw RunError(Fault::overflow,
                   std::string(what) + ' ' + message_number(x) + " is outside -32768 to 32767");
}

void not_finite()
{
    throw RunError(Fault::overflow, "a calculation gives a number that is too large");
}

double quotient(double dividend, double divisor, std::string_view what)
{
    if (divisor == 0)
        throw RunError(Fault::division, std::string(what) + " is 0, which nothing can be divided by");
    return dividend / divisor;
}

std::string message_number(double x)
{
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, x).ptr};
}

} // namespace marlogl
