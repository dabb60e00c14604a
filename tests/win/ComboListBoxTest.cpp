// The combo box and list box, made by Create and from a dialog template:
// completion as typed with deleting never completing again, the drop-down
// list without an edit part, and the colours painted.
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "WindowTest.h"

#include "dropdown/kvComboBox.h"
#include "dropdown/kvListBox.h"
#include "formatting/kvEdit.h"

#include <string>

namespace {

constexpr UINT kCombo = 320, kList = 321;
constexpr DWORD kVisible = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL;
constexpr COLORREF kBk = RGB(250, 240, 200);

const DialogTemplate kTemplate = DialogTemplate("combo", WS_POPUP | WS_CAPTION | WS_SYSMENU, 200, 140)
                                     .Add("ComboBox", kCombo, "", kVisible | CBS_DROPDOWN, 10, 10, 100, 80)
                                     .Add("ListBox", kList, "", kVisible | WS_BORDER, 10, 40, 100, 60);

struct ComboForm {
    explicit ComboForm(bool fromTemplate, DWORD comboType = CBS_DROPDOWN) : dialog(kTemplate)
    {
        dialog.onInitDialog = [&](HostDialog& host) {
            if (fromTemplate) {
                combo.SubclassDlgItem(kCombo, &host);
                list.SubclassDlgItem(kList, &host);
                return;
            }
            host.GetDlgItem(kCombo)->DestroyWindow();
            host.GetDlgItem(kList)->DestroyWindow();
            combo.Create(kVisible | comboType, CRect(15, 15, 165, 135), &host, kCombo);
            list.Create(kVisible | WS_BORDER, CRect(15, 60, 165, 160), &host, kList);
        };
        dialog.CreateModeless();
        for (const char* item : {"Apple", "Apricot", "Banana"})
            combo.AddString(item);
        list.AddString("Apple");
        list.SetBkColor(kBk);
    }
    ~ComboForm() { dialog.DestroyWindow(); }

    HostDialog dialog;
    kvComboBox combo;
    kvListBox list;
};

TEST_F(WindowTest, ComboBoxCompletesAndDeletingDoesNotComplete)
{
    for (const bool fromTemplate : {false, true}) {
        SCOPED_TRACE(fromTemplate ? "from a template" : "by Create");
        ComboForm f(fromTemplate);
        kvEdit& edit = *f.combo.GetEditControl();
        ASSERT_TRUE(::IsWindow(edit.m_hWnd));
        const std::tuple<const char*, const char*, int, int> rows[] = {
            {"ap", "Apple", 2, 5}, {"\b", "Ap", 2, 2}, {"r", "Apricot", 3, 7}, {"\bx", "Aprx", 4, 4}};
        FocusForInput(f.dialog, edit);
        for (const auto& [keys, text, start, end] : rows) {
            TypeText(keys);
            EXPECT_EQ(TextOf(f.combo), text) << keys;
            EXPECT_EQ(SelOf(edit), std::make_pair(start, end)) << keys;
        }
        EXPECT_EQ(ClientPixels(f.list).At(5, 40), kBk) << "the list box's own colour";
    }
}

TEST_F(WindowTest, DropDownListComboHasNoEditWindow)
{
    ComboForm f(false, CBS_DROPDOWNLIST);
    EXPECT_TRUE(f.combo.IsDropDownList());
    EXPECT_EQ(f.combo.GetEditControl()->m_hWnd, nullptr);
}

}  // namespace
