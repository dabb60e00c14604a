// FieldFuzzer: plays a random editing session on one formatter, the way a
// formatted edit field drives it, and stops the run at the first broken
// invariant:
// - a handled key leaves start <= end <= length;
// - IsValid gives the same verdict and text with and without an error record,
//   and a refused text's error selection lies inside that text;
// - accepted text is accepted again, unchanged unless the family knows why
//   its validation needs more than one pass for that input; its RawData
//   succeeds, and FormatRawData of that raw form gives valid display text.
#pragma once

#include "FuzzInput.h"

#include "afx/WinTypes.h"
#include "formatting/kvEditFormatter.h"
#include "formatting/kvMessages.h"
#include "formatting/kvSelection.h"
#include "formatting/kvStatus.h"

#include <cstdio>
#include <cstdlib>
#include <functional>

using TextCheck = std::function<void(const CString& text)>;

// What a family adds to the common checks.
struct FamilyChecks {
    TextCheck onText;      // the field's text after every step
    TextCheck onAccepted;  // every text IsValid accepted
    // Whether IsValid normalises this input in one pass; by default every input.
    std::function<bool(const CString& input)> settlesAtOnce;
};

class FieldFuzzer {
public:
    FieldFuzzer(const kvEditFormatter& formatter, FuzzInput& in, FamilyChecks checks = {})
        : m_f(formatter), m_in(in), m_checks(std::move(checks))
    {
    }

    void Run()
    {
        m_f.DoEnterField(m_text, m_sel);
        RequireSelectionInside(m_text, m_sel, "selection after DoEnterField");
        while (!m_in.Exhausted()) {
            Step();
            if (m_checks.onText)
                m_checks.onText(m_text);
        }
    }

    // Also for the families' own checks.
    static void Require(bool holds, const char* what, const CString& text)
    {
        if (holds)
            return;
        std::fprintf(stderr, "broken: %s (text \"%s\")\n", what, text.GetString());
        std::abort();
    }

private:
    static constexpr int kLongestText = 400;

    void Step()
    {
        switch (m_in.Below(10)) {
        case 0: case 1: case 2: TypeKey(TypedKey()); break;
        case 3: TypeKey(VK_BACK); break;
        case 4: PressKeyDown(m_in.Flag() ? VK_DELETE : m_in.Byte()); break;
        case 5: Select(); break;
        case 6: m_overtype = !m_overtype; break;
        case 7: Validate(); break;
        case 8: ConvertToRaw(); break;
        case 9: SetText(); break;
        }
    }

    // Mostly the characters formatters care about, and any byte at all.
    unsigned int TypedKey()
    {
        static const char kTypical[] = "0123456789.,-+() aZz";
        return m_in.Flag() ? static_cast<unsigned char>(kTypical[m_in.Below(sizeof kTypical - 1)]) : m_in.Byte();
    }

    static void RequireSelectionInside(const CString& text, unsigned long sel, const char* what)
    {
        Require(kvSelStart(sel) <= kvSelEnd(sel) && kvSelEnd(sel) <= text.GetLength(), what, text);
    }

    // A host ignores text and selection of a key it handles natively.
    template <typename Press>
    void Handle(Press press, const char* what)
    {
        CString text(m_text);
        unsigned long sel = m_sel;
        if (!press(text, sel)) {
            RequireSelectionInside(text, sel, what);
            m_text = text;
            m_sel = sel;
        }
    }

    // A NUL never reaches a formatter: a window's text cannot hold one.
    void TypeKey(unsigned int key)
    {
        if (key == 0 || m_text.GetLength() >= kLongestText)
            return;
        const unsigned int repeat = m_in.Byte();
        Handle([&](CString& text, unsigned long& sel) { return m_f.DoChar(text, sel, m_overtype, key, repeat, 0); },
               "selection after DoChar");
    }

    void PressKeyDown(unsigned int key)
    {
        Handle([&](CString& text, unsigned long& sel) { return m_f.DoKeyDown(text, sel, m_overtype, key, 1, 0); },
               "selection after DoKeyDown");
    }

    void Select()
    {
        const int length = m_text.GetLength();
        const int start = static_cast<int>(m_in.Byte() % (length + 1));
        const int end = start + static_cast<int>(m_in.Byte() % (length - start + 1));
        m_sel = kvPackSel(start, end);
    }

    void Validate()
    {
        CString text(m_text);
        kvEditFormatterError err;
        const bool valid = m_f.IsValid(text, &err);
        CString quiet(m_text);
        Require(m_f.IsValid(quiet, nullptr) == valid && quiet == text, "IsValid differs without an error record", m_text);
        if (!valid) {
            RequireSelectionInside(text, err.selection, "error selection outside the text");
        } else {
            CheckAccepted(m_text, text);
        }
        if (!m_in.Flag())
            return;
        // As the host does: the field shows the normalised text; a refused
        // one with the faulty characters selected, an accepted one after
        // DoExitField.
        m_text = text;
        if (valid)
            m_f.DoExitField(m_text, m_sel);
        else
            m_sel = err.selection;
        ClampSelection();
    }

    void CheckAccepted(const CString& input, const CString& accepted)
    {
        CString again(accepted);
        Require(m_f.IsValid(again, nullptr), "accepted text not accepted again", accepted);
        const bool settles = !m_checks.settlesAtOnce || m_checks.settlesAtOnce(input);
        Require(again == accepted || !settles, "accepted text changed by validation", accepted);
        CString raw(accepted);
        kvEditFormatterError err;
        Require(m_f.RawData(raw, &err), "RawData of accepted text failed", accepted);
        CString display(raw);
        Require(m_f.FormatRawData(display), "FormatRawData of a raw form failed", raw);
        CString redisplayed(display);
        Require(m_f.IsValid(redisplayed, nullptr), "FormatRawData gave invalid text", display);
        if (m_checks.onAccepted)
            m_checks.onAccepted(accepted);
    }

    void ConvertToRaw()
    {
        CString raw(m_text);
        kvEditFormatterError err;
        if (!m_f.RawData(raw, &err)) {
            RequireSelectionInside(raw, err.selection, "RawData error selection outside the text");
            return;
        }
        CString display(raw);
        m_f.FormatRawData(display);
    }

    // Text from outside: pasted, set by the program, typed before any formatter.
    void SetText()
    {
        m_text = m_in.Text(64);
        m_sel = kvPackSel(m_text.GetLength(), m_text.GetLength());
        if (m_in.Flag())
            m_f.DoEnterField(m_text, m_sel);
        ClampSelection();
    }

    // An edit control keeps a selection inside its text whatever it is given.
    void ClampSelection()
    {
        const int length = m_text.GetLength();
        const int end = kvSelEnd(m_sel) < length ? kvSelEnd(m_sel) : length;
        const int start = kvSelStart(m_sel) < end ? kvSelStart(m_sel) : end;
        m_sel = kvPackSel(start, end);
    }

    const kvEditFormatter& m_f;
    FuzzInput& m_in;
    FamilyChecks m_checks;
    CString m_text;
    unsigned long m_sel = 0;
    bool m_overtype = false;
};

// Status messages and beeps go nowhere; queries get `answer`.
inline void QuietStatus(LRESULT answer = 0)
{
    kvSetStatusReceiver([answer](WPARAM kind, LPARAM) -> LRESULT { return kind == kvStatusQuery ? answer : 0; });
    kvSetBeepHook([](unsigned int) {});
}
