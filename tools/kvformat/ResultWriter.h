// ResultWriter: kvformat's output, one line per value, fields separated by tabs.
//   valid value          display<TAB>raw
//   invalid value        error<TAB>message<TAB>start..end<TAB>text
//   typed keys           text<TAB>start..end
// Inside a field a backslash, tab, CR and LF are written \\ \t \r \n and other
// control bytes \xHH, so that a line always splits the same way.
// Status messages and beeps go to the diagnostic stream: status<TAB>message, beep.
#pragma once

#include "afx/CString.h"
#include "formatting/kvEditFormatterError.h"

#include <iosfwd>

class ResultWriter {
public:
    ResultWriter(std::ostream& out, std::ostream& diag) : m_out(out), m_diag(diag) {}

    void Valid(const CString& display, const CString& raw);
    void Invalid(const kvEditFormatterError& err, const CString& text);
    // For faults a packed selection cannot mark: start and end may pass 65535.
    void Invalid(const CString& message, int start, int end, const CString& text);
    void Field(const CString& text, unsigned long sel);
    void Status(const CString& message);
    void Beep();

private:
    static void Escaped(std::ostream& stream, const CString& text);
    static void Selection(std::ostream& stream, int start, int end);

    std::ostream& m_out;
    std::ostream& m_diag;
};
