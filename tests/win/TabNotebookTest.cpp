// The tab notebook through real windows and real input, in both tab styles:
// pages switched by clicks, Ctrl+Tab, arrows and a mnemonic with the parent's
// notifications and refusals, only the current page shown over the display
// area; Tab through the current page only; the deletion rule; the bottom tabs'
// slanted sides in pixels, and a picture of each style.
#include "ClientPixels.h"
#include "HostDialog.h"
#include "WindowTest.h"

#include "notebook/kvBottomTabGeometry.h"
#include "notebook/kvTabNotebook.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr UINT kNotebook = 100;
constexpr UINT kChanging = TCN_SELCHANGING, kChange = TCN_SELCHANGE;
using Codes = std::vector<UINT>;
using Style = kvTabNotebook::TabStyle;

const DialogTemplate kHostTemplate = DialogTemplate("notebook", WS_POPUP | WS_CAPTION | WS_SYSMENU, 240, 160)
                                         .Add("Edit", 10, "", WS_TABSTOP | WS_BORDER, 6, 4, 120, 12);
const DialogTemplate kPageTemplate = DialogTemplate("", WS_CHILD | DS_CONTROL, 150, 60)
                                         .Add("Edit", 1, "", WS_TABSTOP | WS_BORDER, 8, 8, 100, 12)
                                         .Add("Edit", 2, "", WS_TABSTOP | WS_BORDER, 8, 26, 100, 12);

// A page gives its keys to the notebook first, so that Ctrl+Tab changes pages
// before the dialog manager moves the focus with it.
class Page : public CDialog {
public:
    explicit Page(kvTabNotebook& notebook) : m_notebook(notebook) {}
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        return m_notebook.PreTranslateMessage(pMsg) || CDialog::PreTranslateMessage(pMsg);
    }

private:
    kvTabNotebook& m_notebook;
};

// A field above the notebook, three pages of two fields titled "&Alpha",
// "&Beta" and "&Gamma", and a field below, in that tab order. The dialog
// records the notifications and answers TCN_SELCHANGING with the replies
// queued (0 when none is left).
class Form : public HostDialog {
public:
    Form(Style style, CWnd* pParentWnd, DWORD notebookStyle = WS_TABSTOP) : HostDialog(kHostTemplate), notebook(style)
    {
        CreateModeless(pParentWnd);
        notebook.Create(WS_VISIBLE | notebookStyle, CRect(8, 30, 348, 200), this, kNotebook);
        for (const char* title : {"&Alpha", "&Beta", "&Gamma"}) {
            pages.push_back(std::make_unique<Page>(notebook));
            pages.back()->CreateIndirect(kPageTemplate.Get(), this);
            notebook.AddPage(pages.back().get(), title);
        }
        after.CreateEx(WS_EX_CLIENTEDGE, "Edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 8, 210, 200, 22, m_hWnd, nullptr);
        flushEvents();
    }
    ~Form() override
    {
        DestroyWindow();
        flushEvents();
    }
    void OnOK() override {}
    void OnCancel() override {}

    HWND Field(int page, int field) const { return ::GetDlgItem(*pages[page], field); }
    CRect TabRect(int tab) const
    {
        CRect rect;
        notebook.GetItemRect(tab, rect);
        return rect;
    }
    void Select(int page)
    {
        notebook.SetCurSel(page);
        flushEvents();
        codes.clear();
    }

    kvTabNotebook notebook;
    std::vector<std::unique_ptr<Page>> pages;
    CWnd after;
    Codes codes;
    std::deque<LRESULT> replies;

protected:
    afx_msg void OnTabNotify(NMHDR* pNMHDR, LRESULT* pResult)
    {
        codes.push_back(pNMHDR->code);
        *pResult = 0;
        if (pNMHDR->code == TCN_SELCHANGING && !replies.empty()) {
            *pResult = replies.front();
            replies.pop_front();
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Form, HostDialog)
    ON_NOTIFY(TCN_SELCHANGING, kNotebook, OnTabNotify)
    ON_NOTIFY(TCN_SELCHANGE, kNotebook, OnTabNotify)
END_MESSAGE_MAP()

// The keys up to the mnemonic are pressed in a field of the page, the others on
// the notebook; the last two clicks fall on slanted sides (bottom tabs only).
enum class Input { CtrlTab, CtrlShiftTab, Mnemonic, ClickTab, Right, Left, ClickOverlap, ClickLaterSlant };

// From page start, with disabledPage disabled (-1: none) and the parent's replies
// queued, the input leaves page current and the parent notified with codes.
struct SwitchRow { const char* name; Input input; int start, disabledPage; std::deque<LRESULT> replies; int page; Codes codes; };
const SwitchRow kSwitches[] = {
    {"a click on another tab", Input::ClickTab, 0, -1, {}, 1, {kChanging, kChange}},
    {"a click on the current tab asks nothing", Input::ClickTab, 1, -1, {}, 1, {kChange}},
    {"a parent refusing keeps the page", Input::ClickTab, 0, -1, {1}, 0, {kChanging}},
    {"a click on a disabled page's tab", Input::ClickTab, 0, 1, {}, 0, {}},
    {"Ctrl+Tab on the last page wraps to the first", Input::CtrlTab, 2, -1, {}, 0, {kChanging, kChange}},
    {"Ctrl+Shift+Tab on the first page wraps to the last", Input::CtrlShiftTab, 0, -1, {}, 2, {kChanging, kChange}},
    {"Ctrl+Tab stops at a disabled page", Input::CtrlTab, 0, 1, {}, 0, {}},
    {"Ctrl+Tab stops at a reply of exactly 1", Input::CtrlTab, 0, -1, {1}, 0, {kChanging}},
    {"Ctrl+Tab walks on past another refusal", Input::CtrlTab, 0, -1, {2}, 2, {kChanging, kChanging, kChange}},
    {"Right arrow on the last page does not wrap", Input::Right, 2, -1, {}, 2, {}},
    {"Left arrow on the first page does not wrap", Input::Left, 0, -1, {}, 0, {}},
    {"arrows skip a disabled page", Input::Left, 2, 1, {}, 0, {kChanging, kChange}},
    {"arrows go on past a refusal", Input::Right, 0, -1, {1}, 2, {kChanging, kChanging, kChange}},
    {"a mnemonic selects its tab", Input::Mnemonic, 0, -1, {}, 2, {kChanging, kChange}},
    {"where two tabs overlap the earlier one takes the click", Input::ClickOverlap, 2, -1, {}, 0, {kChanging, kChange}},
    {"low on the later tab's slant, past the earlier one's", Input::ClickLaterSlant, 0, -1, {}, 1, {kChanging, kChange}},
};

void Apply(Form& form, const SwitchRow& row)
{
    FocusForInput(form, row.input <= Input::Mnemonic ? form.Field(row.start, 1) : form.notebook.m_hWnd);
    form.codes.clear();
    const CRect first = form.TabRect(0);
    static int clicks = 0;  // each click 8 pixels from the last, so that no two make a double click
    switch (row.input) {
    case Input::ClickTab:
        return ClickAt(form.notebook, form.TabRect(1).CenterPoint() + CPoint(8 * (clicks++ % 3) - 8, 0));
    case Input::ClickOverlap:  // the top row, where the first tab's right end lies over the second
        return ClickAt(form.notebook, POINT{first.right - 2, first.top});
    case Input::ClickLaterSlant:  // 12 pixels down, inside the first tab's rectangle, past its slant
        return ClickAt(form.notebook, POINT{first.right - 1, first.top + 12});
    case Input::CtrlTab:
    case Input::CtrlShiftTab:
        return PressKey(VK_TAB, row.input == Input::CtrlShiftTab, true);
    case Input::Right:
    case Input::Left:
        return PressKey(row.input == Input::Right ? VK_RIGHT : VK_LEFT);
    case Input::Mnemonic:
        return PressKey('G', false, false, true);
    }
}

class TabNotebook : public WindowTest, public ::testing::WithParamInterface<Style> {};

TEST_P(TabNotebook, SwitchesPagesShowingOnlyTheCurrentOverTheDisplayArea)
{
    Form form(GetParam(), status.MainWindow());
    for (const SwitchRow& row : kSwitches) {
        if (GetParam() == kvTabNotebook::StandardTabs && row.input >= Input::ClickOverlap)
            continue;
        SCOPED_TRACE(row.name);
        for (const auto& page : form.pages)
            page->EnableWindow(TRUE);
        form.Select(row.start);
        if (row.disabledPage >= 0)
            form.pages[row.disabledPage]->EnableWindow(FALSE);
        form.replies = row.replies;
        Apply(form, row);
        EXPECT_EQ(form.notebook.GetCurSel(), row.page);
        EXPECT_EQ(form.codes, row.codes);
        for (int page = 0; page < 3; ++page)
            EXPECT_EQ(form.pages[page]->IsWindowVisible() != FALSE, page == row.page) << "page " << page;
        CRect display, placed;
        form.notebook.GetWindowRect(display);
        form.notebook.AdjustRect(FALSE, display);
        form.pages[row.page]->GetWindowRect(placed);
        EXPECT_EQ(placed, display);
    }
}

TEST_P(TabNotebook, TabGoesThroughTheCurrentPageOnly)
{
    Form form(GetParam(), status.MainWindow());
    form.Select(1);
    FocusForInput(form, ::GetDlgItem(form, 10));
    const HWND order[] = {form.notebook, form.Field(1, 1), form.Field(1, 2), form.after, ::GetDlgItem(form, 10)};
    for (const HWND& next : order) {
        PressKey(VK_TAB);
        EXPECT_EQ(::GetFocus(), next) << "Tab " << &next - order + 1;
    }
    // A notebook outside the tab order passes the focus on into the page.
    Form untabbed(GetParam(), status.MainWindow(), 0);
    FocusForInput(untabbed, untabbed.Field(0, 2));
    PressKey(VK_TAB, false, true);
    EXPECT_EQ(::GetFocus(), untabbed.Field(1, 1));
}

TEST_P(TabNotebook, DeletingKeepsTheCurrentIndexDeliberately)
{
    // shown: the page now current is visible.
    const struct { const char* name; int current, deleted, currentAfter; bool shown; } rows[] = {
        {"the current last tab: the one before becomes current, unseen", 2, 2, 1, false},
        {"a tab before the current one leaves the index, now the next page's", 1, 0, 1, false},
        {"a tab after the current one", 0, 1, 0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Form form(GetParam(), status.MainWindow());
        form.Select(row.current);
        EXPECT_TRUE(form.notebook.DeleteItem(row.deleted));
        EXPECT_EQ(form.notebook.GetCurSel(), row.currentAfter);
        EXPECT_EQ(form.notebook.GetItemCount(), 2);
        EXPECT_EQ(form.notebook.GetPageWindow(2), nullptr);
        EXPECT_EQ(form.pages[row.deleted]->IsWindowVisible(), FALSE);
        EXPECT_EQ(form.notebook.GetPageWindow(row.currentAfter)->IsWindowVisible() != FALSE, row.shown);
    }
}

bool IsDark(COLORREF colour) { return GetRValue(colour) + GetGValue(colour) + GetBValue(colour) < 3 * 96; }

TEST_P(TabNotebook, BottomTabsAreDrawnOnTheirSlantsAndEachStyleIsPictured)
{
    Form form(GetParam(), status.MainWindow());
    form.pages[2]->EnableWindow(FALSE);
    form.notebook.RedrawWindow();
    flushEvents();
    if (GetParam() == kvTabNotebook::BottomTabs) {
        std::vector<CRect> rects{form.TabRect(0), form.TabRect(1), form.TabRect(2)};
        kvBottomTabGeometry geometry;
        geometry.fontHeight = rects[0].Height() - 2 - 3;  // the strip is the tab height and 2
        const auto spans = geometry.Spans(rects);
        const ClientPixels pixels(form.notebook);
        const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
        // 8 pixels down each side has moved in 4: the current tab's lit left
        // side and the last tab's dark right side, plain face either side.
        const int top = rects[0].top, y = top + 8, left = spans[0].left + 4, right = spans[2].right - 4;
        const auto nearby = [&](int x, auto is) { return is(pixels.At(x - 1, y)) || is(pixels.At(x, y)) || is(pixels.At(x + 1, y)); };
        EXPECT_TRUE(nearby(left, [](COLORREF colour) { return colour == ::GetSysColor(COLOR_3DHILIGHT); }));
        EXPECT_TRUE(nearby(right, IsDark));
        for (const int x : {left - 3, left + 4, right - 4, right + 3})
            EXPECT_EQ(pixels.At(x, y), face) << "x " << x;
        // The border along the top of the strip stays open over the current tab.
        EXPECT_TRUE(IsDark(pixels.At(spans[1].left + 20, top)));
        EXPECT_EQ(pixels.At(spans[0].left + 20, top), face);
    }
    ::CreateDirectoryA("pictures", nullptr);
    const std::string name = GetParam() == kvTabNotebook::BottomTabs ? "bottom" : "standard";
    EXPECT_TRUE(ClientPixels(form).WriteBmp("pictures/TabNotebook-" + name + ".bmp"));
}

INSTANTIATE_TEST_SUITE_P(, TabNotebook, ::testing::Values(kvTabNotebook::StandardTabs, kvTabNotebook::BottomTabs),
                         [](const auto& info) { return info.param == kvTabNotebook::BottomTabs ? "Bottom" : "Standard"; });

}  // namespace
