// FieldFuzzer: plays a random run of edits on one formatter, the way a
// formatted edit field drives it (typed keys of every byte value, backspace,
// key-downs, selections, overtype, text set from outside, validation and raw
// conversion), and stops the run at the first broken invariant:
// - DoChar handles every character and leaves start <= end <= length; a
//   key-down left to the edit touches neither text nor selection;
// - IsValid gives the same verdict and text with and without an error record,
//   and a refused text's error selection lies inside that text;
// - accepted text is accepted again, unchanged; its RawData succeeds, and
//   FormatRawData of that raw form gives valid display text;
// - RawData and FormatRawData survive any text, and a RawData refusal selects
//   characters of the text.
// A family switches off, for the texts concerned, the promises its formatter
// breaks on purpose, and adds checks of its own. Each target only defines
// FuzzFamily: its formatter, built from the input's first bytes, and those checks.
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
#include <memory>

using TextCheck = std::function<void(const CString& text)>;
using TextTest = std::function<bool(const CString& text)>;

struct FamilyChecks {
    TextCheck onText;      // the field's text after every step
    TextCheck onAccepted;  // every text IsValid accepted
    // The common promises a family breaks on purpose, each as a test of the
    // text concerned: false where the promise does not hold; empty: it holds.
    TextTest sameVerdictWithoutRecord;  // of a text validated
    TextTest staysAccepted;  // of an accepted text; one that is not is checked no further
    TextTest settlesAtOnce;  // of a text validated: validation normalises it in one pass
    TextTest rawReadsBack;   // of an accepted text: FormatRawData takes its raw form back
};

struct Family {
    std::unique_ptr<kvEditFormatter> formatter;
    FamilyChecks checks;
};
Family FuzzFamily(FuzzInput& in);

// Also for the families' own checks.
inline void Require(bool holds, const char* what, const CString& text)
{
    if (!holds) {
        std::fprintf(stderr, "broken: %s (text \"%s\")\n", what, text.GetString());
        std::abort();
    }
}

// Status messages and beeps go nowhere; queries get `answer`.
inline void QuietStatus(LRESULT answer = 0)
{
    kvSetStatusReceiver([answer](WPARAM kind, LPARAM) -> LRESULT { return kind == kvStatusQuery ? answer : 0; });
    kvSetBeepHook([](unsigned int) {});
}

class FieldFuzzer {
public:
    FieldFuzzer(const kvEditFormatter& formatter, FuzzInput& in, const FamilyChecks& checks)
        : m_f(formatter), m_in(in), m_checks(checks)
    {
    }

    void Run()
    {
        m_f.DoEnterField(m_text, m_sel);
        RequireInside(m_text, m_sel, "selection after DoEnterField");
        while (!m_in.Exhausted()) {
            Step();
            if (m_checks.onText)
                m_checks.onText(m_text);
        }
    }

private:
    static constexpr int kLongestText = 400;

    struct Verdict {  // of one IsValid call
        bool valid = false;
        CString text;
        kvEditFormatterError err;
    };

    static bool Holds(const TextTest& promise, const CString& text) { return !promise || promise(text); }
    static void RequireInside(const CString& text, unsigned long sel, const char* what)
    {
        Require(kvSelStart(sel) <= kvSelEnd(sel) && kvSelEnd(sel) <= text.GetLength(), what, text);
    }

    void Step()
    {
        static const char kTypical[] = "0123456789.,-+()/: aZz";  // mostly what formatters care about
        switch (m_in.Below(10)) {
        case 0: case 1: case 2:
            TypeKey(m_in.Flag() ? static_cast<unsigned char>(kTypical[m_in.Below(sizeof kTypical - 1)]) : m_in.Byte());
            break;
        case 3: TypeKey(VK_BACK); break;
        case 4: PressKeyDown(m_in.Flag() ? VK_DELETE : m_in.Byte()); break;
        case 5: Select(); break;
        case 6: m_overtype = !m_overtype; break;
        case 7: Validate(); break;
        case 8: ConvertRaw(); break;
        case 9: SetText(); break;
        }
    }

    void Take(const CString& text, unsigned long sel, const char* what)
    {
        RequireInside(text, sel, what);
        m_text = text;
        m_sel = sel;
    }

    // A NUL never reaches a formatter: a window's text cannot hold one.
    void TypeKey(unsigned int key)
    {
        if (key == 0 || m_text.GetLength() >= kLongestText)
            return;
        CString text(m_text);
        unsigned long sel = m_sel;
        Require(!m_f.DoChar(text, sel, m_overtype, key, m_in.Byte(), 0), "DoChar left a character to the edit", m_text);
        Take(text, sel, "selection after DoChar");
    }

    void PressKeyDown(unsigned int key)
    {
        CString text(m_text);
        unsigned long sel = m_sel;
        if (!m_f.DoKeyDown(text, sel, m_overtype, key, 1, 0))
            return Take(text, sel, "selection after DoKeyDown");
        Require(text == m_text && sel == m_sel, "a key-down left to the edit changed the field", m_text);
    }

    void Select()
    {
        const int length = m_text.GetLength();
        const int start = static_cast<int>(m_in.Byte() % (length + 1));
        m_sel = kvPackSel(start, start + static_cast<int>(m_in.Byte() % (length - start + 1)));
    }

    Verdict Judge(bool withRecord) const
    {
        Verdict verdict;
        verdict.text = m_text;
        verdict.valid = m_f.IsValid(verdict.text, withRecord ? &verdict.err : nullptr);
        return verdict;
    }

    void Validate()
    {
        const Verdict recorded = Judge(true);
        const Verdict quiet = Judge(false);
        const bool sameVerdict = quiet.valid == recorded.valid && quiet.text == recorded.text;
        Require(sameVerdict || !Holds(m_checks.sameVerdictWithoutRecord, m_text),
                "IsValid differs without an error record", m_text);
        if (recorded.valid)
            CheckAccepted(m_text, recorded.text);
        else
            RequireInside(recorded.text, recorded.err.selection, "error selection outside the text");
        if (quiet.valid && !sameVerdict)
            CheckAccepted(m_text, quiet.text);
        // As the host does: the field shows the normalised text; a refused one
        // with the faulty characters selected, an accepted one after DoExitField.
        if (const unsigned int shown = m_in.Below(3))
            Show(shown == 1 ? recorded : quiet);
    }

    void Show(const Verdict& verdict)
    {
        m_text = verdict.text;
        if (verdict.valid)
            m_f.DoExitField(m_text, m_sel);
        else
            m_sel = verdict.err.selection;
        ClampSelection();
    }

    void CheckAccepted(const CString& input, const CString& accepted)
    {
        if (!Holds(m_checks.staysAccepted, accepted))
            return;
        CString again(accepted);
        Require(m_f.IsValid(again, nullptr), "accepted text not accepted again", accepted);
        Require(again == accepted || !Holds(m_checks.settlesAtOnce, input), "accepted text changed by validation",
                accepted);
        CString raw(accepted);
        kvEditFormatterError err;
        Require(m_f.RawData(raw, &err), "RawData of accepted text failed", accepted);
        if (Holds(m_checks.rawReadsBack, accepted)) {
            CString display(raw);
            Require(m_f.FormatRawData(display), "FormatRawData of a raw form failed", raw);
            CString redisplayed(display);
            Require(m_f.IsValid(redisplayed, nullptr), "FormatRawData gave invalid text", display);
        }
        if (m_checks.onAccepted)
            m_checks.onAccepted(accepted);
    }

    // The field's text stored, and read as a stored value: either may fail,
    // neither may misbehave.
    void ConvertRaw()
    {
        CString raw(m_text), shown(m_text);
        kvEditFormatterError err;
        const bool withRecord = m_in.Flag();
        if (m_f.RawData(raw, withRecord ? &err : nullptr)) {
            CString display(raw);
            m_f.FormatRawData(display);
        } else if (withRecord) {
            RequireInside(raw, err.selection, "RawData error selection outside the text");
        }
        m_f.FormatRawData(shown);
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
        const int end = kvSelEnd(m_sel) < m_text.GetLength() ? kvSelEnd(m_sel) : m_text.GetLength();
        m_sel = kvPackSel(kvSelStart(m_sel) < end ? kvSelStart(m_sel) : end, end);
    }

    const kvEditFormatter& m_f;
    FuzzInput& m_in;
    const FamilyChecks& m_checks;
    CString m_text;
    unsigned long m_sel = 0;
    bool m_overtype = false;
};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput in(data, size);
    const Family family = FuzzFamily(in);
    FieldFuzzer(*family.formatter, in, family.checks).Run();
    return 0;
}
