// Date fields against the alternatives an application could use instead: each
// of 4096 typed dates validated and shown in display form ("M/DD/YYYY") by
// kvWin, by Qt 5 (trying the typed forms in turn), and by a hand-written single
// pass that does the least work possible (the lower bound).
// The dates come from the file named by KVWIN_BENCH_DATA, or from bench/data.
#include "formatting/kvDateEditFormatter.h"

#include <QDate>
#include <QString>
#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::string DataPath()
{
    const char* path = std::getenv("KVWIN_BENCH_DATA");
    return path && *path ? path : KVWIN_BENCH_DATA_DIR "/dates.txt";
}

const std::vector<std::string>& Dates()
{
    static const std::vector<std::string> dates = [] {
        const std::string path = DataPath();
        std::ifstream file(path);
        if (!file)
            throw std::runtime_error("cannot read " + path);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line);
        return lines;
    }();
    return dates;
}

void ReportFields(benchmark::State& state, int accepted)
{
    const auto fields = static_cast<double>(Dates().size());
    state.counters["per_field"] =
        benchmark::Counter(fields, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["accepted"] = accepted;
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * fields));
}

// validate(formatter, text) -> bool, once per date and iteration.
template <typename Validate>
void RunKvWin(benchmark::State& state, Validate validate)
{
    const kvDateEditFormatter f(kvDateEditFormatter::MonthDayYearSlash);
    std::vector<CString> dates;
    for (const std::string& date : Dates())
        dates.emplace_back(date.c_str());
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const CString& date : dates) {
            CString text(date);
            accepted += validate(f, text);
            benchmark::DoNotOptimize(text.GetString());
        }
    }
    ReportFields(state, accepted);
}

void Dates_kvWin(benchmark::State& state)
{
    RunKvWin(state, [](const kvDateEditFormatter& f, CString& text) { return f.IsValid(text, nullptr); });
}
BENCHMARK(Dates_kvWin);

// As a field validates on leaving: a fresh error record, messages written.
void Dates_kvWin_WithRecord(benchmark::State& state)
{
    RunKvWin(state, [](const kvDateEditFormatter& f, CString& text) {
        kvEditFormatterError err;
        return f.IsValid(text, &err);
    });
}
BENCHMARK(Dates_kvWin_WithRecord);

void Dates_Qt(benchmark::State& state)
{
    const std::array<QString, 7> typedForms = {
        QStringLiteral("M/d/yyyy"), QStringLiteral("M/d/yy"),   QStringLiteral("M-d-yyyy"), QStringLiteral("M-d-yy"),
        QStringLiteral("MMddyyyy"), QStringLiteral("MMddyy"), QStringLiteral("Mdyy")};
    const QString shownForm = QStringLiteral("M/dd/yyyy");
    std::vector<QString> dates;
    for (const std::string& date : Dates())
        dates.push_back(QString::fromLatin1(date.c_str()));
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const QString& date : dates) {
            for (const QString& form : typedForms) {
                const QDate parsed = QDate::fromString(date, form);
                if (parsed.isValid()) {
                    const QString shown = parsed.toString(shownForm);
                    benchmark::DoNotOptimize(shown.constData());
                    ++accepted;
                    break;
                }
            }
        }
    }
    ReportFields(state, accepted);
}
BENCHMARK(Dates_Qt);

// The least work the job needs: one pass over the characters that collects the
// three numbers both ways (between separators, and by position for a text of
// digits of that length), then the checks and the display form written into a
// buffer. No allocation, no second look at a character.
class LowerBound {
public:
    bool Display(const std::string& typed)
    {
        const int length = static_cast<int>(typed.size());
        if (length == 0 || length > 10) {
            m_out[0] = '\0';
            return length == 0;  // an empty field is valid
        }
        // Where the month and day of a text of digits end, by its length.
        static constexpr int kMonthEnd[9] = {0, 0, 0, 1, 1, 1, 2, 1, 2};
        static constexpr int kDayEnd[9] = {0, 0, 0, 2, 2, 3, 4, 3, 4};
        const int monthEnd = length <= 8 ? kMonthEnd[length] : 0;
        const int dayEnd = length <= 8 ? kDayEnd[length] : 0;

        int separated[3] = {0, 0, 0};
        int positional[3] = {0, 0, 0};
        int separators = 0;
        for (int i = 0; i < length; ++i) {
            const char ch = typed[static_cast<size_t>(i)];
            if (ch == '/' || ch == '-') {
                if (++separators > 2)
                    return false;
                continue;
            }
            if (ch < '0' || ch > '9')
                return false;
            const int digit = ch - '0';
            separated[separators] = separated[separators] * 10 + digit;
            const int part = i < monthEnd ? 0 : i < dayEnd ? 1 : 2;
            positional[part] = positional[part] * 10 + digit;
        }
        const int* parts = separators ? separated : positional;
        if (separators == 1 || (separators == 0 && monthEnd == 0))
            return false;
        return Check(parts[0], parts[1], Widen(parts[2]));
    }

    const char* Text() const { return m_out; }

private:
    static int Widen(int year) { return year < 50 ? year + 2000 : year < 100 ? year + 1900 : year; }

    bool Check(int month, int day, int year)
    {
        static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (year < 1000 || year > 9999 || month < 1 || month > 12 || day < 1)
            return false;
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        if (day > kDays[month - 1] + (month == 2 && leap))
            return false;
        char* out = m_out;
        if (month >= 10)
            *out++ = '1';
        *out++ = static_cast<char>('0' + month % 10);
        *out++ = '/';
        *out++ = static_cast<char>('0' + day / 10);
        *out++ = static_cast<char>('0' + day % 10);
        *out++ = '/';
        for (int divisor = 1000; divisor > 0; divisor /= 10)
            *out++ = static_cast<char>('0' + year / divisor % 10);
        *out = '\0';
        return true;
    }

    char m_out[16] = {};
};

void Dates_LowerBound(benchmark::State& state)
{
    const std::vector<std::string>& dates = Dates();
    LowerBound bound;
    int accepted = 0;
    for (auto _ : state) {
        accepted = 0;
        for (const std::string& date : dates) {
            accepted += bound.Display(date);
            benchmark::DoNotOptimize(bound.Text());
        }
    }
    ReportFields(state, accepted);
}
BENCHMARK(Dates_LowerBound);

}  // namespace

BENCHMARK_MAIN();
