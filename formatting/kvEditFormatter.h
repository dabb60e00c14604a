// kvEditFormatter: the contract between a formatted edit field and the rules of
// its content. A formatter is pure text logic: text and packed selection in,
// text, selection and verdict out. Returning false from DoChar/DoKeyDown means
// "handled": the host writes text and selection back.
#pragma once

#include "afx/CString.h"
#include "formatting/kvEditFormatterError.h"
#include "library/kvWinExport.h"

class KVWIN_API kvEditFormatter {
public:
    kvEditFormatter() = default;
    kvEditFormatter(const kvEditFormatter&) = default;
    kvEditFormatter& operator=(const kvEditFormatter&) = default;
    virtual ~kvEditFormatter() = default;

    virtual void DoEnterField(CString& text, unsigned long& sel) const = 0;
    virtual void DoExitField(CString& text, unsigned long& sel) const = 0;
    virtual bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                        unsigned int repeat, unsigned int flags) const = 0;
    virtual bool DoKeyDown(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                           unsigned int repeat, unsigned int flags) const = 0;
    virtual bool IsValid(CString& text, kvEditFormatterError* err) const = 0;
    virtual bool FormatRawData(CString& text) const = 0;
    virtual bool RawData(CString& text, kvEditFormatterError* err) const = 0;
};

// Removes the selected characters and leaves a caret at start; false (and no
// change) when the selection is empty.
KVWIN_API bool DeleteSelection(CString& text, unsigned long& sel);
KVWIN_API bool DeleteSelection(CString& text, int& start, int& end);
