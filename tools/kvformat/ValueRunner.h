// ValueRunner: applies one formatter to values, the way a field would. While it
// lives it receives the formatter's status messages and beeps, as a main window
// would, and passes them to the writer.
#pragma once

#include "FamilyCommand.h"
#include "KeyScript.h"
#include "ResultWriter.h"

#include "formatting/kvEditFormatter.h"

#include <memory>

class ValueRunner {
public:
    // The formatter is made from command, which also explains refused raw
    // values; command must outlive the runner. Throws UsageError as MakeFormatter.
    ValueRunner(const FamilyCommand& command, ResultWriter& writer);
    ValueRunner(const ValueRunner&) = delete;
    ValueRunner& operator=(const ValueRunner&) = delete;
    ~ValueRunner();

    // The value pasted into an empty field, then validated as Validate does.
    // False when the field refuses one of its characters, or when invalid.
    bool Paste(const CString& value);
    // Validation on leaving the field, then the raw form. False when invalid.
    bool Validate(const CString& value);
    // The display form of a raw value. False when it has none.
    bool FromRaw(const CString& raw);
    // The keys typed into an empty field; prints the text and the selection.
    void Type(const KeyScript& keys);

private:
    void ListenToFormatter();
    bool FitsInField(const CString& value);
    bool PastedIntoField(const CString& value, CString& text);
    bool PasteChar(CString& text, unsigned long& sel, char ch) const;
    void ReportRefusal(const CString& value, int index);
    bool ValidateText(CString text);
    bool WriteRawForm(const CString& display);
    void ExplainRawRefusal(const CString& raw, CString& left);
    void Press(const ScriptKey& key, CString& text, unsigned long& sel, bool& overtype) const;

    const FamilyCommand& m_command;
    const std::unique_ptr<kvEditFormatter> m_formatter;
    ResultWriter& m_writer;
    CString m_lastStatus;  // the formatter's latest status message, to explain a refusal
};
