// kvTimeEditFormatter: a time of day or an elapsed time, hours and minutes or
// hours, minutes and seconds separated by ":". Typing is bounded by the number
// of digits; validation splits (with or without ":"), rewrites and checks.
#pragma once

#include "formatting/kvEditFormatter.h"

class KVWIN_API kvTimeEditFormatter : public kvEditFormatter {
public:
    // The values are fixed. Clock hours run to 23, elapsed hours to 99. Any
    // other int parses nothing and is always valid.
    enum TimeFormat : int {
        ClockHourMinute = 0,
        ElapsedHourMinute = 1,
        ClockHourMinuteSecond = 2,
        ElapsedHourMinuteSecond = 3,
    };

    explicit kvTimeEditFormatter(TimeFormat format = ClockHourMinute);
    kvTimeEditFormatter(const kvTimeEditFormatter&) = default;
    kvTimeEditFormatter& operator=(const kvTimeEditFormatter&) = default;
    ~kvTimeEditFormatter() override = default;

    void DoEnterField(CString& text, unsigned long& sel) const override;
    void DoExitField(CString& text, unsigned long& sel) const override;
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                unsigned int repeat, unsigned int flags) const override;
    bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                   unsigned int repeat, unsigned int flags) const override;
    bool IsValid(CString& text, kvEditFormatterError* err) const override;
    // Six characters HHMMSS to display form; the seconds are ignored by the
    // hours-and-minutes formats, which still expect them.
    bool FormatRawData(CString& text) const override;
    // HHMM or HHMMSS; an empty text gives "00".
    bool RawData(CString& text, kvEditFormatterError* err) const override;

    void SetFormat(TimeFormat format) { m_Format = format; }
    TimeFormat GetFormat() const { return m_Format; }

protected:
    // Whether the text holds all the digits the format takes.
    bool IsFull(const CString& text) const;
    // Whether one more ":" fits the format.
    bool CanAddSeparator(const CString& text) const;
    // Keeps digits and ":" only.
    void StripBadChars(CString& text) const;

private:
    bool _IsKnownFormat() const;
    bool _HasSeconds() const;
    int _MaxHour() const;

    TimeFormat m_Format;
};
