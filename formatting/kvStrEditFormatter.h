// kvStrEditFormatter: free text with optional maximum and minimum length and a
// case rule.
#pragma once

#include "formatting/kvEditFormatter.h"

class KVWIN_API kvStrEditFormatter : public kvEditFormatter {
public:
    // Tested as bits, upper case first: 3 behaves as UpperCase.
    enum AlphaFormat { AnyCase = 0, UpperCase = 1, LowerCase = 2 };

    kvStrEditFormatter(unsigned int maxLen = 0, unsigned int minLen = 0, AlphaFormat format = AnyCase);
    kvStrEditFormatter(const kvStrEditFormatter&) = default;
    kvStrEditFormatter& operator=(const kvStrEditFormatter&) = default;
    ~kvStrEditFormatter() override = default;

    void DoEnterField(CString& text, unsigned long& sel) const override;
    void DoExitField(CString& text, unsigned long& sel) const override;
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                unsigned int repeat, unsigned int flags) const override;
    bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                   unsigned int repeat, unsigned int flags) const override;
    bool IsValid(CString& text, kvEditFormatterError* err) const override;
    bool FormatRawData(CString& text) const override;
    bool RawData(CString& text, kvEditFormatterError* err) const override;

    unsigned int GetMaxLen() const { return m_nMaxLen; }
    void SetMaxLen(unsigned int maxLen) { m_nMaxLen = maxLen; }
    unsigned int GetMinLen() const { return m_nMinLen; }
    void SetMinLen(unsigned int minLen) { m_nMinLen = minLen; }
    AlphaFormat GetFormat() const { return m_Format; }
    void SetFormat(AlphaFormat format) { m_Format = format; }

private:
    char _ApplyCase(char ch) const;
    bool _RefusedForLength(const CString& text, int start, unsigned int key) const;

    AlphaFormat m_Format;
    unsigned int m_nMaxLen;
    unsigned int m_nMinLen;
};
