// Numeric fields against the alternatives an application could use instead:
// one keystroke in a 9.2 amount field, and one amount validated and shown in
// display form, by kvWin, Qt 5, ICU, and a hand-written single pass that does
// the least work possible (the lower bound).
#include "formatting/kvNumEditFormatter.h"

#include <QDoubleValidator>
#include <QLocale>
#include <QString>
#include <benchmark/benchmark.h>
#include <unicode/unum.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// Separators, zero shown, decimals padded, surplus decimals rounded.
constexpr unsigned long kAmountFormat = 0x2E0;
constexpr int kIntegers = 9;
constexpr int kDecimals = 2;

const std::vector<std::string>& Amounts()
{
    static const std::vector<std::string> amounts = [] {
        std::ifstream file(KVWIN_BENCH_DATA_DIR "/amounts.txt");
        if (!file)
            throw std::runtime_error("cannot read " KVWIN_BENCH_DATA_DIR "/amounts.txt");
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line);
        return lines;
    }();
    return amounts;
}

// Time per item rather than items per second.
benchmark::Counter PerItem(double itemsPerIteration)
{
    return benchmark::Counter(itemsPerIteration, benchmark::Counter::kIsIterationInvariantRate |
                                                     benchmark::Counter::kInvert);
}

void ReportFields(benchmark::State& state, int accepted)
{
    const auto fields = static_cast<double>(Amounts().size());
    state.counters["per_field"] = PerItem(fields);
    state.counters["accepted"] = accepted;
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * fields));
}

void Keystroke_kvWin(benchmark::State& state)
{
    static const char kKeys[] = "1234567.89";
    const kvNumEditFormatter f(kIntegers, kDecimals, kAmountFormat);
    for (auto _ : state) {
        CString text;
        unsigned long sel = 0;
        for (const char* key = kKeys; *key; ++key)
            f.DoChar(text, sel, false, static_cast<unsigned char>(*key), 1, 0);
        benchmark::DoNotOptimize(text.GetString());
    }
    state.counters["per_key"] = PerItem(sizeof kKeys - 1);
}
BENCHMARK(Keystroke_kvWin);

void Field_kvWin(benchmark::State& state)
{
    const kvNumEditFormatter f(kIntegers, kDecimals, kAmountFormat);
    std::vector<CString> amounts;
    for (const std::string& amount : Amounts())
        amounts.emplace_back(amount.c_str());
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const CString& amount : amounts) {
            CString text(amount);
            accepted += f.IsValid(text, nullptr);
            benchmark::DoNotOptimize(text.GetString());
        }
    }
    ReportFields(state, accepted);
}
BENCHMARK(Field_kvWin);

void Field_Qt(benchmark::State& state)
{
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    QDoubleValidator validator(-999999999.99, 999999999.99, kDecimals);
    validator.setNotation(QDoubleValidator::StandardNotation);
    validator.setLocale(locale);
    std::vector<QString> amounts;
    for (const std::string& amount : Amounts())
        amounts.push_back(QString::fromLatin1(amount.c_str()));
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const QString& amount : amounts) {
            QString text(amount);
            int pos = 0;
            if (validator.validate(text, pos) != QValidator::Acceptable)
                continue;
            bool ok = false;
            const double value = locale.toDouble(text, &ok);
            const QString shown = locale.toString(value, 'f', kDecimals);
            accepted += ok;
            benchmark::DoNotOptimize(shown.constData());
        }
    }
    ReportFields(state, accepted);
}
BENCHMARK(Field_Qt);

void Field_ICU(benchmark::State& state)
{
    UErrorCode status = U_ZERO_ERROR;
    UNumberFormat* format = unum_open(UNUM_DECIMAL, nullptr, 0, "en_US", nullptr, &status);
    if (U_FAILURE(status)) {
        state.SkipWithError(u_errorName(status));
        return;
    }
    unum_setAttribute(format, UNUM_MIN_FRACTION_DIGITS, kDecimals);
    unum_setAttribute(format, UNUM_MAX_FRACTION_DIGITS, kDecimals);
    unum_setAttribute(format, UNUM_ROUNDING_MODE, UNUM_ROUND_HALFUP);
    unum_setAttribute(format, UNUM_GROUPING_USED, 1);
    std::vector<std::u16string> amounts;
    for (const std::string& amount : Amounts())
        amounts.emplace_back(amount.begin(), amount.end());  // the data is ASCII
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const std::u16string& amount : amounts) {
            const auto length = static_cast<int32_t>(amount.size());
            int32_t pos = 0;
            status = U_ZERO_ERROR;
            const double value = unum_parseDouble(format, amount.data(), length, &pos, &status);
            if (U_FAILURE(status) || pos != length)
                continue;
            UChar shown[64];
            unum_formatDouble(format, value, shown, 64, nullptr, &status);
            accepted += U_SUCCESS(status);
            benchmark::DoNotOptimize(shown);
        }
    }
    unum_close(format);
    ReportFields(state, accepted);
}
BENCHMARK(Field_ICU);

// The least work the job needs: one pass that keeps the digits, rounds half
// up to two decimals and writes the display form with separators into a
// buffer. No allocation, no second look at a character.
class LowerBound {
public:
    // False when the integer digits do not fit.
    bool Display(const std::string& amount)
    {
        if (!Scan(amount))
            return false;
        Round();
        while (m_frac > 0 && m_fraction[m_frac - 1] == '0')
            --m_frac;
        Write();
        return true;
    }

    const char* Text() const { return m_out; }

private:
    bool Scan(const std::string& amount)
    {
        m_int = m_frac = 0;
        m_negative = m_point = false;
        for (const char ch : amount) {
            if (ch >= '0' && ch <= '9') {
                if (m_point) {
                    if (m_frac <= kDecimals)  // one surplus digit decides the rounding
                        m_fraction[m_frac++] = ch;
                } else if (m_int > 0 || ch != '0') {
                    if (m_int == kIntegers)
                        return false;
                    m_integer[m_int++] = ch;
                }
            } else if (ch == '.') {
                m_point = true;
            } else if (ch == '-' || ch == '(' || ch == ')') {
                m_negative = true;
            }
        }
        return true;
    }

    void Round()
    {
        if (m_frac <= kDecimals)
            return;
        const bool up = m_fraction[--m_frac] >= '5';
        if (!up)
            return;
        // Carry through the fraction, then the integer digits; a carry out of
        // a full integer part keeps the cut value, as the field does.
        char digits[kIntegers + kDecimals];
        const int count = m_int + m_frac;
        std::copy(m_integer, m_integer + m_int, digits);
        std::copy(m_fraction, m_fraction + m_frac, digits + m_int);
        int i = count - 1;
        while (i >= 0 && digits[i] == '9')
            digits[i--] = '0';
        if (i >= 0) {
            ++digits[i];
        } else if (m_int == kIntegers) {
            return;
        } else {
            m_integer[0] = '1';
            std::copy(digits, digits + m_int, m_integer + 1);
            ++m_int;
            std::copy(digits + m_int - 1, digits + count, m_fraction);
            return;
        }
        std::copy(digits, digits + m_int, m_integer);
        std::copy(digits + m_int, digits + count, m_fraction);
    }

    void Write()
    {
        char* out = m_out;
        if (m_negative && (m_int > 0 || m_frac > 0))
            *out++ = '-';
        for (int i = 0; i < m_int; ++i) {
            if (i > 0 && (m_int - i) % 3 == 0)
                *out++ = ',';
            *out++ = m_integer[i];
        }
        if (m_frac > 0) {
            *out++ = '.';
            out = std::copy(m_fraction, m_fraction + m_frac, out);
        }
        *out = '\0';
    }

    char m_integer[kIntegers];
    char m_fraction[kDecimals + 1];
    int m_int = 0;
    int m_frac = 0;
    bool m_negative = false;
    bool m_point = false;
    char m_out[kIntegers + kIntegers / 3 + kDecimals + 4];
};

void Field_LowerBound(benchmark::State& state)
{
    LowerBound lowerBound;
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const std::string& amount : Amounts()) {
            accepted += lowerBound.Display(amount);
            benchmark::DoNotOptimize(lowerBound.Text());
        }
    }
    ReportFields(state, accepted);
}
BENCHMARK(Field_LowerBound);

}  // namespace

BENCHMARK_MAIN();
