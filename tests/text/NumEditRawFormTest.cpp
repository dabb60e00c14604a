// Numeric formatter, raw form: rounding up on the digits gives what the
// documented double route gives (the cut text read as a double, one unit of
// the last place added, printed back), at the boundaries and for random
// amounts of up to fifteen digits; and the display of a text that is not a
// raw form follows the general sign and comma rules.
#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvNumericText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using NF = kvNumEditFormatter;
constexpr unsigned kExactDigits = 15;

// The documented route on an unsigned text cut after `decimals` fraction
// digits (no leading zeros), then stripped as RawData strips it.
std::string RoundUpAsDouble(const std::string& cut, unsigned integers, unsigned decimals)
{
    double scale = 1, bound = 1;
    for (unsigned i = 0; i < decimals; ++i)
        scale *= 10;
    for (unsigned i = 0; i < integers; ++i)
        bound *= 10;
    const double value = DoubleValue(cut.c_str()) + 1 / scale;
    CString text(cut.c_str());
    if (value < bound)
        text.Format("%.*f", static_cast<int>(decimals), value);
    std::string rounded = text.GetString();
    rounded.erase(0, rounded.find_first_not_of('0'));
    if (rounded.find('.') != std::string::npos) {
        rounded.erase(rounded.find_last_not_of('0') + 1);
        if (rounded.back() == '.')
            rounded.pop_back();
    }
    return rounded;
}

// Integer digits (no leading zeros) and `decimals` fraction digits, followed
// by a 5, rounded up by RawData and by the double route.
::testing::AssertionResult RoundsAsTheDoubleRoute(unsigned integers, unsigned decimals, const std::string& whole,
                                                  const std::string& fraction)
{
    const std::string cut = whole + "." + fraction;
    CString text((cut + "5").c_str());
    const bool ok = NF(integers, decimals, NF::RoundDecimals).RawData(text, nullptr);
    const std::string expected = RoundUpAsDouble(cut, integers, decimals);
    if (ok && expected == text.GetString())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << cut << "5 in a field of " << integers << "." << decimals << ": "
                                         << (ok ? text.GetString() : "refused") << " instead of " << expected;
}

TEST(NumEditRawForm, RoundingAtTheBoundaries)
{
    const struct { const char* name; unsigned integers, decimals; unsigned long format; const char *text, *raw; } rows[] = {
        {"carry through the point", 7, 2, 0, "9.995", "10"},
        {"carry past the first digit", 7, 2, 0, ".995", "1"},
        {"carry needs an integer digit there is no room for", 2, 2, 0, "99.995", "99.99"},
        {"carry into the last free integer digit", 3, 2, 0, "99.995", "100"},
        {"whole number field", 5, 0, 0, "12.5", "13"},
        {"whole number field, full of nines", 2, 0, 0, "99.5", "99"},
        {"whole number field with an implied point", 5, 0, NF::ImpliedDecimal, "12.5", "13"},
        {"implied point kept after a carry", 5, 2, NF::ImpliedDecimal, "1.995", "2."},
        {"negative in parentheses", 7, 2, 0, "(9.995)", "-10"},
        {"fifteen digits, last place", 13, 2, 0, "1234567890123.455", "1234567890123.46"},
        {"fifteen nines stay cut", 9, 6, 0, "999999999.9999995", "999999999.999999"},
        {"a second point ends the fraction as the double reads it", 7, 2, 0, "1.2.5", "1.21"},
        {"a wider field keeps the double's precision", 17, 2, 0, "12345678901234567.895", "12345678901234568"},
    };
    for (const auto& row : rows) {
        const NF f(row.integers, row.decimals, NF::RoundDecimals | row.format);
        CString text(row.text);
        EXPECT_TRUE(f.RawData(text, nullptr)) << row.name;
        EXPECT_STREQ(text, row.raw) << row.name;
    }
}

TEST(NumEditRawForm, AllNinesAtEveryExactWidth)
{
    for (unsigned integers = 0; integers <= kExactDigits; ++integers)
        for (unsigned decimals = 0; integers + decimals <= kExactDigits; ++decimals) {
            const std::string fraction(decimals, '9');
            ASSERT_TRUE(RoundsAsTheDoubleRoute(integers, decimals, std::string(integers, '9'), fraction));
            if (integers > 0) {
                ASSERT_TRUE(RoundsAsTheDoubleRoute(integers, decimals, std::string(integers - 1, '9'), fraction));
            }
        }
}

// Nines and zeros are drawn often: they make carries long and cut them short.
TEST(NumEditRawForm, RandomAmountsUpToFifteenDigits)
{
    std::mt19937 random(20240611);
    const auto digit = [&random] {
        const unsigned draw = random() % 16;
        return draw < 8 ? '9' : draw < 10 ? '0' : static_cast<char>('0' + draw % 10);
    };
    for (unsigned integers = 0; integers <= kExactDigits; ++integers)
        for (unsigned decimals = 0; integers + decimals <= kExactDigits; ++decimals)
            for (int sample = 0; sample < 500; ++sample) {
                std::string whole(random() % (integers + 1), '0'), fraction(decimals, '0');
                for (char& ch : whole)
                    ch = digit();
                for (char& ch : fraction)
                    ch = digit();
                whole.erase(0, whole.find_first_not_of('0'));
                ASSERT_TRUE(RoundsAsTheDoubleRoute(integers, decimals, whole, fraction));
            }
}

// A derived formatter whose raw form keeps a currency sign.
class CurrencyFormatter : public NF {
public:
    CurrencyFormatter() : NF(7, 2, NF::Separators) {}
    bool RawData(CString& text, kvEditFormatterError* err) const override
    {
        const bool ok = NF::RawData(text, err);
        text.Insert(0, '$');
        return ok;
    }
};

TEST(NumEditRawForm, DisplayOfAnotherRawFormFollowsTheGeneralRules)
{
    CString text("-1234");
    EXPECT_TRUE(CurrencyFormatter().IsValid(text, nullptr));
    EXPECT_STREQ(text, "$-1,234");
}

}  // namespace
