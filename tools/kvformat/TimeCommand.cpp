// The "time" family: kvTimeEditFormatter.
#include "FamilyTable.h"
#include "NamedValue.h"

#include "formatting/kvTimeEditFormatter.h"

namespace {

using Time = kvTimeEditFormatter;

const std::vector<NamedValue> kTimeFormats = {
    {"ClockHourMinute", Time::ClockHourMinute, "9:30, hours to 23"},
    {"ElapsedHourMinute", Time::ElapsedHourMinute, "9:30, hours to 99"},
    {"ClockHourMinuteSecond", Time::ClockHourMinuteSecond, "9:30:15, hours to 23"},
    {"ElapsedHourMinuteSecond", Time::ElapsedHourMinuteSecond, "9:30:15, hours to 99"},
};

// Stored times always carry seconds (HHMMSS); the hours-and-minutes formats
// ignore them when reading and leave them out when writing.
constexpr int kRawLength = 6;

class TimeCommand : public FamilyCommand {
public:
    std::vector<FamilyOption> Options() override
    {
        return {
            {"format", "NAME|N",
             "time format by name or number (default ClockHourMinute):" + ListNamedValues(kTimeFormats),
             [this](const std::string& v) {
                 m_format = static_cast<Time::TimeFormat>(ReadNamedValue("format", v, kTimeFormats));
             }},
        };
    }

    std::unique_ptr<kvEditFormatter> MakeFormatter() const override { return std::make_unique<Time>(m_format); }

    std::string RawShapeMessage(const CString& raw) const override
    {
        return raw.IsEmpty() || raw.GetLength() == kRawLength ? std::string() : "A raw time has six digits, HHMMSS.";
    }

private:
    Time::TimeFormat m_format = Time::ClockHourMinute;
};

std::unique_ptr<FamilyCommand> MakeTimeCommand() { return std::make_unique<TimeCommand>(); }

}  // namespace

extern const FamilyEntry kTimeFamily = {"time", "times of day and elapsed times, with or without seconds",
                                        MakeTimeCommand};
