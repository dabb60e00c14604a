// The "date" family: kvDateEditFormatter.
#include "FamilyTable.h"
#include "NamedValue.h"

#include "formatting/kvDateEditFormatter.h"

namespace {

using Date = kvDateEditFormatter;

// No application answers the date-order query here, so the three requests
// take the formatter's fallback.
const std::vector<NamedValue> kDateFormats = {
    {"DefaultMonthDayYear", Date::DefaultMonthDayYear, "as MonthDayYearSlash"},
    {"MonthDayYearDash", Date::MonthDayYearDash, "12-25-2024"},
    {"DayMonthYearDash", Date::DayMonthYearDash, "25-12-2024"},
    {"YearMonthDayDash", Date::YearMonthDayDash, "2024-12-25"},
    {"MonthDayYearSlash", Date::MonthDayYearSlash, "12/25/2024"},
    {"DayMonthYearSlash", Date::DayMonthYearSlash, "25/12/2024"},
    {"YearMonthDaySlash", Date::YearMonthDaySlash, "2024/12/25"},
    {"DefaultMonthDay", Date::DefaultMonthDay, "as MonthDaySlash"},
    {"MonthDayDash", Date::MonthDayDash, "12-25"},
    {"DayMonthDash", Date::DayMonthDash, "25-12"},
    {"MonthDaySlash", Date::MonthDaySlash, "12/25"},
    {"DayMonthSlash", Date::DayMonthSlash, "25/12"},
    {"DefaultMonthYear", Date::DefaultMonthYear, "as MonthYearSlash"},
    {"MonthYearDash", Date::MonthYearDash, "12-2024"},
    {"YearMonthDash", Date::YearMonthDash, "2024-12"},
    {"MonthYearSlash", Date::MonthYearSlash, "12/2024"},
    {"YearMonthSlash", Date::YearMonthSlash, "2024/12"},
    {"YearOnly", Date::YearOnly, "2024"},
};

// Every kind stores month, day and year as MMDDYYYY.
constexpr int kRawLength = 8;

class DateCommand : public FamilyCommand {
public:
    std::vector<FamilyOption> Options() override
    {
        return {
            {"format", "NAME|N",
             "date format by name or number (default DefaultMonthDayYear):" + ListNamedValues(kDateFormats),
             [this](const std::string& v) {
                 m_format = static_cast<Date::DateFormat>(ReadNamedValue("format", v, kDateFormats));
             }},
        };
    }

    std::unique_ptr<kvEditFormatter> MakeFormatter() const override { return std::make_unique<Date>(m_format); }

    std::string RawShapeMessage(const CString& raw) const override
    {
        return raw.GetLength() == kRawLength ? std::string() : "A raw date has eight digits, MMDDYYYY.";
    }

private:
    Date::DateFormat m_format = Date::DefaultMonthDayYear;
};

std::unique_ptr<FamilyCommand> MakeDateCommand() { return std::make_unique<DateCommand>(); }

}  // namespace

extern const FamilyEntry kDateFamily = {"date", "dates, month-days, month-years and years", MakeDateCommand};
