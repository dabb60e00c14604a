// kvSocSecEditFormatter: a nine-character identification number shown as
// 3-2-4 characters joined by "-". Letters count like digits: the field checks
// the count of characters, not what they are.
#pragma once

#include "formatting/kvEditFormatter.h"

class KVWIN_API kvSocSecEditFormatter : public kvEditFormatter {
public:
    kvSocSecEditFormatter() = default;
    kvSocSecEditFormatter(const kvSocSecEditFormatter&) = default;
    kvSocSecEditFormatter& operator=(const kvSocSecEditFormatter&) = default;
    ~kvSocSecEditFormatter() override = default;

    void DoEnterField(CString& text, unsigned long& sel) const override;
    void DoExitField(CString& text, unsigned long& sel) const override;
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                unsigned int repeat, unsigned int flags) const override;
    bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                   unsigned int repeat, unsigned int flags) const override;
    // Places the hyphens; a short number is padded with zeros only when no
    // error record is given.
    bool IsValid(CString& text, kvEditFormatterError* err) const override;
    bool FormatRawData(CString& text) const override;
    // The nine characters without hyphens, or empty.
    bool RawData(CString& text, kvEditFormatterError* err) const override;

protected:
    static CString StripHyphens(const CString& text);
};
