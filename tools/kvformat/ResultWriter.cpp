#include "ResultWriter.h"

#include "formatting/kvSelection.h"

#include <cstdio>
#include <ostream>

void ResultWriter::Escaped(std::ostream& stream, const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i) {
        const unsigned char ch = static_cast<unsigned char>(text[i]);
        switch (ch) {
        case '\\': stream << "\\\\"; break;
        case '\t': stream << "\\t"; break;
        case '\r': stream << "\\r"; break;
        case '\n': stream << "\\n"; break;
        default:
            if (ch < 0x20 || ch == 0x7F) {
                char hex[5];
                std::snprintf(hex, sizeof hex, "\\x%02X", ch);
                stream << hex;
            } else {
                stream << static_cast<char>(ch);
            }
        }
    }
}

void ResultWriter::Selection(std::ostream& stream, int start, int end) { stream << start << ".." << end; }

void ResultWriter::Valid(const CString& display, const CString& raw)
{
    Escaped(m_out, display);
    m_out << '\t';
    Escaped(m_out, raw);
    m_out << '\n';
}

void ResultWriter::Invalid(const kvEditFormatterError& err, const CString& text)
{
    Invalid(err.message, kvSelStart(err.selection), kvSelEnd(err.selection), text);
}

void ResultWriter::Invalid(const CString& message, int start, int end, const CString& text)
{
    m_out << "error\t";
    Escaped(m_out, message);
    m_out << '\t';
    Selection(m_out, start, end);
    m_out << '\t';
    Escaped(m_out, text);
    m_out << '\n';
}

void ResultWriter::Field(const CString& text, unsigned long sel)
{
    Escaped(m_out, text);
    m_out << '\t';
    Selection(m_out, kvSelStart(sel), kvSelEnd(sel));
    m_out << '\n';
}

void ResultWriter::Status(const CString& message)
{
    m_diag << "status\t";
    Escaped(m_diag, message);
    m_diag << '\n';
}

void ResultWriter::Beep() { m_diag << "beep\n"; }
