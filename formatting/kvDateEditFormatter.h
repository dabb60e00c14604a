// kvDateEditFormatter: dates, month-days, month-years and years. Typing only
// filters characters and bounds the length; validation splits the text (with or
// without separators), widens two-digit years, rewrites the text into display
// form and checks the parts.
#pragma once

#include "afx/WinTypes.h"
#include "formatting/kvEditFormatter.h"

class KVWIN_API kvDateEditFormatter : public kvEditFormatter {
public:
    // The values are fixed. The three Default... values ask the application for
    // its preferred order and separator and are never stored. Any other int is
    // a format of no kind: it parses and shows nothing.
    enum DateFormat : int {
        DefaultMonthDayYear = 0,
        MonthDayYearDash = 1,
        DayMonthYearDash = 2,
        YearMonthDayDash = 3,
        MonthDayYearSlash = 4,
        DayMonthYearSlash = 5,
        YearMonthDaySlash = 6,
        DefaultMonthDay = 7,
        MonthDayDash = 8,
        DayMonthDash = 9,
        MonthDaySlash = 10,
        DayMonthSlash = 11,
        DefaultMonthYear = 12,
        MonthYearDash = 13,
        YearMonthDash = 14,
        MonthYearSlash = 15,
        YearMonthSlash = 16,
        YearOnly = 17,
    };

    explicit kvDateEditFormatter(DateFormat format = DefaultMonthDayYear);
    kvDateEditFormatter(const kvDateEditFormatter&) = default;
    kvDateEditFormatter& operator=(const kvDateEditFormatter&) = default;
    ~kvDateEditFormatter() override = default;

    void DoEnterField(CString& text, unsigned long& sel) const override;
    void DoExitField(CString& text, unsigned long& sel) const override;
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                unsigned int repeat, unsigned int flags) const override;
    bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                   unsigned int repeat, unsigned int flags) const override;
    bool IsValid(CString& text, kvEditFormatterError* err) const override;
    // MMDDYYYY to display form; no check of the date.
    bool FormatRawData(CString& text) const override;
    // Display form to MMDDYYYY, zeros for the parts the format lacks.
    bool RawData(CString& text, kvEditFormatterError* err) const override;

    // Display text of the year, month and day of date; empty for a format of no kind.
    virtual CString FormatData(SYSTEMTIME date) const;
    // Splits, rewrites and checks text; on success fills year, month and day
    // (0 for the parts the format lacks; all 0 for an empty text).
    virtual bool Data(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const;

    void SetFormat(DateFormat format);
    DateFormat GetFormat() const { return m_Format; }

    static bool IsValidYear(int year);
    static bool IsValidMonth(int month);
    // True when the proleptic Gregorian calendar has that day.
    static bool IsValidDay(int month, int day, int year);

protected:
    // One per kind; false without a message when the format is of another kind.
    bool DataMonthDayYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const;
    bool DataMonthDay(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const;
    bool DataMonthYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const;
    bool DataYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const;

    // Split the text into its numbers in the format's order; an empty text
    // succeeds and leaves the outputs alone.
    bool ConvertMonthDayYear(int& month, int& day, int& year, CString& text, kvEditFormatterError* err) const;
    bool ConvertMonthDay(int& month, int& day, CString& text, kvEditFormatterError* err) const;
    bool ConvertMonthYear(int& month, int& year, CString& text, kvEditFormatterError* err) const;

    // The longest text typing may produce: 10, 5, 7 or 4 by kind, 0 for none.
    int MaxLength() const;
    bool IsMonthDayYear() const { return m_Format >= MonthDayYearDash && m_Format <= YearMonthDaySlash; }
    bool IsMonthDay() const { return m_Format >= MonthDayDash && m_Format <= DayMonthSlash; }
    bool IsMonthYear() const { return m_Format >= MonthYearDash && m_Format <= YearMonthSlash; }
    bool IsYear() const { return m_Format == YearOnly; }

private:
    static DateFormat _Resolve(DateFormat format);
    bool _IsAcceptedKey(unsigned int key) const;

    DateFormat m_Format;
};
