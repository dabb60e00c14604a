#include "ValueRunner.h"

#include "NativeEdit.h"

#include "formatting/kvMessages.h"
#include "formatting/kvSelection.h"
#include "formatting/kvStatus.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"

#include <algorithm>
#include <cctype>

namespace {

// A printable character as itself, any other as \xNN.
CString CharacterName(char ch)
{
    const unsigned char byte = static_cast<unsigned char>(ch);
    CString name;
    if (std::isprint(byte))
        name = ch;
    else
        name.Format("\\x%02X", byte);
    return name;
}

bool SameText(const CString& a, const CString& b)
{
    return a.GetLength() == b.GetLength() && std::equal(a.GetString(), a.GetString() + a.GetLength(), b.GetString());
}

}  // namespace

ValueRunner::ValueRunner(const FamilyCommand& command, ResultWriter& writer)
    : m_command(command), m_formatter(command.MakeFormatter()), m_writer(writer)
{
    ListenToFormatter();
}

ValueRunner::~ValueRunner()
{
    kvSetStatusReceiver({});
    kvSetBeepHook({});
}

// Queries (numeric presets) get no answer, so built-in defaults hold.
void ValueRunner::ListenToFormatter()
{
    kvSetStatusReceiver([this](WPARAM kind, LPARAM info) -> LRESULT {
        if (kind == kvStatusShow && info) {
            m_lastStatus = reinterpret_cast<const kvWinAMCtrlValidateInfo*>(info)->message;
            m_writer.Status(m_lastStatus);
        }
        return 0;
    });
    kvSetBeepHook([this](unsigned int) { m_writer.Beep(); });
}

// Past this length positions no longer fit a selection, and every error
// selection would wrap.
bool ValueRunner::FitsInField(const CString& value)
{
    if (static_cast<unsigned int>(value.GetLength()) <= kLongestFieldText)
        return true;
    CString message;
    message.Format("The value is longer than %u characters.", kLongestFieldText);
    m_writer.Invalid(message, static_cast<int>(kLongestFieldText), value.GetLength(), value);
    return false;
}

bool ValueRunner::Paste(const CString& value)
{
    CString text;
    return FitsInField(value) && PastedIntoField(value, text) && ValidateText(text);
}

bool ValueRunner::Validate(const CString& value) { return FitsInField(value) && ValidateText(value); }

// As the field pastes: each character through DoChar with the caret where the
// previous one left it. Stops at the first character the field refuses.
bool ValueRunner::PastedIntoField(const CString& value, CString& text)
{
    unsigned long sel = 0;
    m_formatter->DoEnterField(text, sel);
    for (int i = 0; i < value.GetLength(); ++i) {
        m_lastStatus.Empty();
        if (!PasteChar(text, sel, value[i])) {
            ReportRefusal(value, i);
            return false;
        }
    }
    return true;
}

// False when the field refused the character: a refused key leaves text and
// selection as they were, whether or not the formatter beeps or explains.
bool ValueRunner::PasteChar(CString& text, unsigned long& sel, char ch) const
{
    const CString before(text);
    const unsigned long selBefore = sel;
    const unsigned int key = static_cast<unsigned char>(ch);
    if (m_formatter->DoChar(text, sel, false, key, 1, 0))
        NativeEdit::Paste(text, sel, ch);
    return !SameText(text, before) || sel != selBefore || m_command.TakesWithoutChange(key);
}

void ValueRunner::ReportRefusal(const CString& value, int index)
{
    CString message;
    message.Format("Character '%s' at position %d (counting from 1) is not accepted.",
                   CharacterName(value[index]).GetString(), index + 1);
    if (!m_lastStatus.IsEmpty())
        message += " " + m_lastStatus;
    m_writer.Invalid(message, index, index + 1, value);
}

bool ValueRunner::ValidateText(CString text)
{
    kvEditFormatterError err;
    if (!m_formatter->IsValid(text, &err)) {
        m_writer.Invalid(err, text);
        return false;
    }
    unsigned long sel = 0;
    m_formatter->DoExitField(text, sel);
    return WriteRawForm(text);
}

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

bool ValueRunner::FromRaw(const CString& raw)
{
    if (!FitsInField(raw))
        return false;
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
