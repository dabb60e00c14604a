// ValueRunner: applies one formatter to values, the way a field would.
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
    ValueRunner(const FamilyCommand& command, ResultWriter& writer)
        : m_command(command), m_formatter(command.MakeFormatter()), m_writer(writer)
    {
    }

    // Validation on leaving the field, then the raw form. False when invalid.
    bool Validate(const CString& value);
    // The display form of a raw value. False when it has none.
    bool FromRaw(const CString& raw);
    // The keys typed into an empty field; prints the text and the selection.
    void Type(const KeyScript& keys);

private:
    bool WriteRawForm(const CString& display);
    void ExplainRawRefusal(const CString& raw, CString& left);
    void Press(const ScriptKey& key, CString& text, unsigned long& sel, bool& overtype) const;

    const FamilyCommand& m_command;
    const std::unique_ptr<kvEditFormatter> m_formatter;
    ResultWriter& m_writer;
};
