// kvNumEditFormatter: numeric fields with a fixed number of integer and decimal
// digits, thousands separators, negatives with "-" or in parentheses, implied
// decimal point, rounding and limits. The text stays in display form at every
// keystroke; separators are rebuilt around each change while the selection
// stays attached to its characters.
#pragma once

#include "formatting/kvEditFormatter.h"

class KVWIN_API kvNumEditFormatter : public kvEditFormatter {
public:
    // Format bits. The values 1 and 2 passed as a format stand for the presets
    // (see SetFormat) and are never stored.
    enum : unsigned long {
        ImpliedDecimal = 0x10,
        Separators = 0x20,
        ShowZero = 0x40,
        PadDecimals = 0x80,
        ParenNegative = 0x100,
        RoundDecimals = 0x200,
    };
    // Any value other than 0 and 1 is inclusive, hence the fixed 32-bit type.
    enum LowerLimitType : int { NoLowerLimit = 0, LowerExclusive = 1, LowerInclusive = 2 };
    enum UpperLimitType : int { NoUpperLimit = 0, UpperExclusive = 1, UpperInclusive = 2 };

    kvNumEditFormatter(unsigned int integers, unsigned int decimals, unsigned long format);
    kvNumEditFormatter(const kvNumEditFormatter&) = default;
    kvNumEditFormatter& operator=(const kvNumEditFormatter&) = default;
    ~kvNumEditFormatter() override = default;

    void DoEnterField(CString& text, unsigned long& sel) const override;
    void DoExitField(CString& text, unsigned long& sel) const override;
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                unsigned int repeat, unsigned int flags) const override;
    bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                   unsigned int repeat, unsigned int flags) const override;
    bool IsValid(CString& text, kvEditFormatterError* err) const override;
    bool FormatRawData(CString& text) const override;
    bool RawData(CString& text, kvEditFormatterError* err) const override;

    virtual CString FormatData(double value) const;
    virtual CString FormatData(int value) const;
    virtual bool Data(double& value, CString& text, kvEditFormatterError* err) const;
    virtual bool Data(int& value, CString& text, kvEditFormatterError* err) const;

    void SetIntegers(unsigned int integers) { m_nIntegers = integers; }
    unsigned int GetIntegers() const { return m_nIntegers; }
    void SetDecimals(unsigned int decimals) { m_nDecimals = decimals; }
    unsigned int GetDecimals() const { return m_nDecimals; }
    // 1 and 2 select preset 1 (0x200) and preset 2 (0x2E0); the application may
    // replace either through the status message's preset query.
    void SetFormat(unsigned long format);
    unsigned long GetFormat() const { return m_nFormat; }

    void SetLowerLimit(double limit, LowerLimitType type);
    void GetLowerLimit(LowerLimitType& type, double& limit) const;
    void ClearLowerLimit();
    void SetUpperLimit(double limit, UpperLimitType type);
    void GetUpperLimit(UpperLimitType& type, double& limit) const;
    void ClearUpperLimit();

protected:
    // The value in fixed-point notation with exactly `decimals` fraction digits.
    CString FormatValue(double value) const;

    // Text primitives: each keeps start and end attached to their characters.
    void RemoveChar(CString& text, int& start, int& end, int pos) const;
    void AddStr(CString& text, int& start, int& end, int pos, char ch) const;
    void StripCommas(CString& text, int& start, int& end) const;
    void AddCommas(CString& text, int& start, int& end) const;
    void SetPositive(CString& text, int& start, int& end) const;
    void SetNegative(CString& text, int& start, int& end) const;
    void RemoveMismatchedParens(CString& text, int& start, int& end) const;
    void RemoveSelectedText(bool overtype, unsigned int key, int& start, int& end, CString& text) const;
    void StripLeadingZeros(CString& text) const;
    void StripTrailingZeros(CString& text) const;

private:
    bool _ApplyChar(CString& text, int& start, int& end, bool overtype, unsigned int key) const;
    bool _TypeDigit(CString& text, int& start, int& end, bool overtype, unsigned int key) const;
    bool _TypePoint(CString& text, int& start, int& end, bool overtype) const;
    void _TypeSign(CString& text, int& start, int& end, bool overtype, unsigned int key) const;
    void _DeleteAndRebuild(CString& text, int& start, int& end) const;
    bool _NegativeForbidden() const;
    bool _TooManyDigits(const CString& text) const;
    void _ReportTooManyDigits() const;

    int _InsertImpliedPoint(CString& text) const;
    void _RoundDecimals(CString& text, int point) const;
    void _StepUpAsDouble(CString& text) const;
    void _ToDisplayForm(CString& text, int& start, int& end) const;
    bool _HasLimits() const { return m_UpperLimitType != NoUpperLimit || m_LowerLimitType != NoLowerLimit; }
    bool _WithinLimits(const CString& raw, kvEditFormatterError* err) const;
    void _PadDecimals(CString& text) const;

    unsigned int m_nIntegers;
    unsigned int m_nDecimals;
    unsigned long m_nFormat;
    double m_dLowerLimit = 0;
    LowerLimitType m_LowerLimitType = NoLowerLimit;
    double m_dUpperLimit = 0;
    UpperLimitType m_UpperLimitType = NoUpperLimit;
};
