// The field hosting an application's older kvFormatter: allowed keys typed in
// upper case, the maximum length and its status text, text set from outside,
// and verification with the empty text and the "Ready" status.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "formatting/kvEdit.h"

#include <cctype>

namespace {

// A part code: up to four letters and digits, upper case, valid when complete.
class PartCode : public kvFormatter {
public:
    explicit PartCode(std::vector<std::string>& shown) : m_shown(shown) {}

    bool LegacyWantsUpperCase() const override { return true; }
    void LegacyLengthRefused() override {}
    void LegacyShowStatus(CString status) override { m_shown.push_back(status.GetString()); }
    bool LegacyIsValidText(CString& text, int lastIndex) override { return text.MakeUpper(), lastIndex == 3; }
    bool LegacyKeyDown(CString&, unsigned long&, unsigned int) override { return false; }
    bool LegacyPreprocessKey(CString&, unsigned long&, unsigned int) override { return false; }
    unsigned long LegacyExtraStyle() const override { return 0; }
    int LegacyMaxLength() const override { return 4; }
    bool LegacyIsAllowedKey(unsigned int key) const override { return std::isalnum(static_cast<int>(key)) != 0; }
    bool LegacyReformatEachKey() const override { return false; }
    bool LegacyDeleteChars(CString&, int&, int&) override { return false; }
    bool LegacyBackspace(CString&, int&, int&) override { return false; }
    bool LegacySetText(CString& text) override { return text.MakeUpper().GetLength() <= 4; }
    void LegacyReformat(CString&, unsigned int, int&, int&) override {}
    CString LegacyEmptyText() const override { return CString(); }
    bool LegacyIsEmpty(const CString& text) const override { return text.IsEmpty(); }

private:
    std::vector<std::string>& m_shown;
};

enum class Action { Type, Verify, SetText };

// shown: the status text the formatter was given, "" for none.
struct LegacyRow {
    const char *name, *text;
    Action action;
    const char* input;
    LRESULT result;
    const char *after, *shown;
    int selStart, selEnd;
};

const LegacyRow kLegacy[] = {
    {"allowed keys go in upper case", "", Action::Type, "ab1", 0, "AB1", "", 3, 3},
    {"a key not allowed is refused", "A", Action::Type, "-", 0, "A", "", 1, 1},
    {"a full field refuses with the status text", "ABCD", Action::Type, "e", 0, "ABCD", "Too many characters.", 4, 4},
    {"a complete code verifies", "abcd", Action::Verify, "", 0, "ABCD", "Ready", 0, 0},
    {"an incomplete code is selected", "AB", Action::Verify, "", 1, "AB", "", 0, 2},
    {"an empty field verifies", "", Action::Verify, "", 0, "", "", 0, 0},
    {"text set from outside is taken in", "", Action::SetText, "xy", TRUE, "XY", "", 0, 0},
    {"text set from outside is refused", "AB", Action::SetText, "vwxyz", FALSE, "AB", "", 2, 2},
};

class LegacyFormatter : public WindowTest {};

TEST_F(LegacyFormatter, FieldFollowsTheOlderInterface)
{
    for (const LegacyRow& row : kLegacy) {
        SCOPED_TRACE(row.name);
        std::vector<std::string> shown;
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(100, nullptr, row.text);
        field.SetFormatter(new PartCode(shown));
        FocusForInput(form.dialog, field);
        EXPECT_EQ(field.SendMessage(EM_GETLIMITTEXT), 4) << "the focus limits the length";
        field.SetSel(field.GetWindowTextLength(), field.GetWindowTextLength());
        LRESULT result = 0;
        if (row.action == Action::Type)
            SendChars(field, row.input);
        else if (row.action == Action::Verify)
            result = field.SendMessage(WM_KV_VERIFY);
        else
            result = field.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(row.input));
        EXPECT_EQ(result, row.result);
        EXPECT_EQ(TextOf(field), row.after);
        EXPECT_EQ(SelOf(field), std::make_pair(row.selStart, row.selEnd));
        EXPECT_EQ(shown, MessagesOf(row.shown));
    }
}

}  // namespace
