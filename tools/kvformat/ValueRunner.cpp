#include "ValueRunner.h"

#include "NativeEdit.h"

#include "formatting/kvSelection.h"

bool ValueRunner::WriteRawForm(const CString& display)
{
    CString raw(display);
    kvEditFormatterError err;
    if (!m_formatter->RawData(raw, &err)) {
        m_writer.Invalid(err, raw);
        return false;
    }
    m_writer.Valid(display, raw);
    return true;
}

bool ValueRunner::Validate(const CString& value)
{
    CString text(value);
    kvEditFormatterError err;
    if (!m_formatter->IsValid(text, &err)) {
        m_writer.Invalid(err, text);
        return false;
    }
    unsigned long sel = 0;
    m_formatter->DoExitField(text, sel);
    return WriteRawForm(text);
}

bool ValueRunner::FromRaw(const CString& raw)
{
    CString text(raw);
    if (!m_formatter->FormatRawData(text)) {
        ExplainRawRefusal(raw, text);
        return false;
    }
    return WriteRawForm(text);
}

// FormatRawData explains nothing: a raw value of the wrong shape is reported as
// such, any other refusal by validating what FormatRawData left.
void ValueRunner::ExplainRawRefusal(const CString& raw, CString& left)
{
    kvEditFormatterError err;
    const std::string shapeMessage = m_command.RawShapeMessage(raw);
    if (!shapeMessage.empty()) {
        err.message = shapeMessage.c_str();
        err.selection = kvPackSel(0, raw.GetLength());
        m_writer.Invalid(err, raw);
        return;
    }
    m_formatter->IsValid(left, &err);
    m_writer.Invalid(err, left);
}

void ValueRunner::Press(const ScriptKey& key, CString& text, unsigned long& sel, bool& overtype) const
{
    switch (key.kind) {
    case ScriptKey::Char:
        if (m_formatter->DoChar(text, sel, overtype, key.code, 1, 0))
            NativeEdit::Char(text, sel, overtype, key.code);
        break;
    case ScriptKey::KeyDown:
        if (m_formatter->DoKeyDown(text, sel, overtype, key.code, 1, 0))
            NativeEdit::KeyDown(text, sel, key.code);
        break;
    case ScriptKey::SelectAll:
        sel = kvPackSel(0, text.GetLength());
        break;
    case ScriptKey::ToggleOvertype:
        overtype = !overtype;
        break;
    }
}

void ValueRunner::Type(const KeyScript& keys)
{
    CString text;
    unsigned long sel = 0;
    bool overtype = false;
    m_formatter->DoEnterField(text, sel);
    for (const ScriptKey& key : keys.Keys())
        Press(key, text, sel, overtype);
    m_writer.Field(text, sel);
}
