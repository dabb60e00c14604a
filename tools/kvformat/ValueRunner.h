// ValueRunner: applies one formatter to values, the way a field would.
#pragma once

#include "KeyScript.h"
#include "ResultWriter.h"

#include "formatting/kvEditFormatter.h"

class ValueRunner {
public:
    ValueRunner(const kvEditFormatter& formatter, ResultWriter& writer) : m_formatter(formatter), m_writer(writer) {}

    // Validation on leaving the field, then the raw form. False when invalid.
    bool Validate(const CString& value);
    // The display form of a raw value. False when it has none.
    bool FromRaw(const CString& raw);
    // The keys typed into an empty field; prints the text and the selection.
    void Type(const KeyScript& keys);

private:
    bool WriteRawForm(const CString& display);
    void Press(const ScriptKey& key, CString& text, unsigned long& sel, bool& overtype) const;

    const kvEditFormatter& m_formatter;
    ResultWriter& m_writer;
};
