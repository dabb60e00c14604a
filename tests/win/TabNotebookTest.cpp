// The tab notebook through real windows and real input: pages switched by
// clicks, Ctrl+Tab, arrows and mnemonics, with the parent's notifications and
// refusals; only the current page shown over the display area; Tab through the
// current page only; the tab messages of the bottom style; and both kinds of
// tabs drawn where they belong.
#include "ClientPixels.h"
#include "HostDialog.h"
#include "WindowTest.h"

#include "notebook/kvBottomTabGeometry.h"
#include "notebook/kvTabNotebook.h"

#include <array>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr UINT kNotebook = 100;
using Style = kvTabNotebook::TabStyle;
constexpr UINT kChanging = TCN_SELCHANGING;
constexpr UINT kChange = TCN_SELCHANGE;
using Codes = std::vector<UINT>;

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

// The notebook's parent records its notifications and answers TCN_SELCHANGING
// with the replies queued (0 when none is left).
class NotebookHost : public HostDialog {
public:
    using HostDialog::HostDialog;
    void OnOK() override {}
    void OnCancel() override {}

    Codes codes;
    std::deque<LRESULT> replies;

protected:
    afx_msg void OnSelChanging(NMHDR* pNMHDR, LRESULT* pResult)
    {
        codes.push_back(pNMHDR->code);
        *pResult = replies.empty() ? 0 : replies.front();
        if (!replies.empty())
            replies.pop_front();
    }
    afx_msg void OnSelChange(NMHDR* pNMHDR, LRESULT*) { codes.push_back(pNMHDR->code); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NotebookHost, HostDialog)
    ON_NOTIFY(TCN_SELCHANGING, kNotebook, OnSelChanging)
    ON_NOTIFY(TCN_SELCHANGE, kNotebook, OnSelChange)
END_MESSAGE_MAP()

// A field above the notebook, three pages of two fields titled "&Alpha",
// "&Beta" and "&Gamma", and a field below, in that tab order.
class NotebookForm {
public:
    explicit NotebookForm(Style style, CWnd* pParentWnd, DWORD notebookStyle = WS_TABSTOP)
        : notebook(style)
    {
        m_hostTemplate.Add("Edit", 10, "", WS_TABSTOP | WS_BORDER, 6, 4, 120, 12);
        m_pageTemplate.Add("Edit", 1, "", WS_TABSTOP | WS_BORDER, 8, 8, 100, 12);
        m_pageTemplate.Add("Edit", 2, "", WS_TABSTOP | WS_BORDER, 8, 26, 100, 12);
        host.CreateModeless(pParentWnd);
        notebook.Create(WS_VISIBLE | notebookStyle, CRect(8, 30, 348, 200), &host, kNotebook);
        const char* titles[] = {"&Alpha", "&Beta", "&Gamma"};
        for (int i = 0; i < 3; ++i) {
            pages[i] = std::make_unique<Page>(notebook);
            pages[i]->CreateIndirect(m_pageTemplate.Get(), &host);
            notebook.AddPage(pages[i].get(), titles[i]);
        }
        after.CreateEx(WS_EX_CLIENTEDGE, "Edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 8, 210, 200, 22, host, nullptr);
        flushEvents();
    }
    ~NotebookForm()
    {
        host.DestroyWindow();
        flushEvents();
    }

    HWND Field(int page, int field) const { return ::GetDlgItem(*pages[page], field); }
    std::string NameOf(HWND hWnd) const
    {
        std::map<HWND, std::string> names{{::GetDlgItem(host, 10), "before"}, {notebook, "notebook"},
                                          {after, "after"}};
        for (int page = 0; page < 3; ++page) {
            for (int field = 1; field <= 2; ++field)
                names[Field(page, field)] = "page" + std::to_string(page) + ".field" + std::to_string(field);
        }
        return names.count(hWnd) != 0 ? names[hWnd] : "?";
    }
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
        host.codes.clear();
    }

private:
    DialogTemplate m_hostTemplate{"notebook", WS_POPUP | WS_CAPTION | WS_SYSMENU, 240, 160};
    DialogTemplate m_pageTemplate{"", WS_CHILD | DS_CONTROL, 150, 60};

public:
    NotebookHost host{m_hostTemplate};
    kvTabNotebook notebook;
    std::array<std::unique_ptr<Page>, 3> pages;
    CWnd after;
};

enum class Input { ClickTab, ClickOverlap, ClickLaterSlant, CtrlTab, CtrlShiftTab, Right, Left, Mnemonic };

struct SwitchRow {
    const char* name;
    Input input;
    int start;
    int disabledPage;  // -1: none
    std::deque<LRESULT> replies;
    int page;          // current afterwards
    Codes codes;
};

const SwitchRow kSwitches[] = {
    {"a click on another tab", Input::ClickTab, 0, -1, {}, 1, {kChanging, kChange}},
    {"Ctrl+Tab from a field of the page", Input::CtrlTab, 0, -1, {}, 1, {kChanging, kChange}},
    {"a click on the current tab asks nothing", Input::ClickTab, 1, -1, {}, 1, {kChange}},
    {"Ctrl+Tab on the last page wraps to the first", Input::CtrlTab, 2, -1, {}, 0, {kChanging, kChange}},
    {"a parent refusing keeps the page", Input::ClickTab, 0, -1, {1}, 0, {kChanging}},
    {"Ctrl+Shift+Tab on the first page wraps to the last", Input::CtrlShiftTab, 0, -1, {}, 2, {kChanging, kChange}},
    {"a click on a disabled page's tab", Input::ClickTab, 0, 1, {}, 0, {}},
    {"Ctrl+Tab stops at a disabled page", Input::CtrlTab, 0, 1, {}, 0, {}},
    {"Ctrl+Tab stops at a reply of exactly 1", Input::CtrlTab, 0, -1, {1}, 0, {kChanging}},
    {"Ctrl+Tab walks on past another refusal", Input::CtrlTab, 0, -1, {2}, 2, {kChanging, kChanging, kChange}},
    {"Right arrow", Input::Right, 0, -1, {}, 1, {kChanging, kChange}},
    {"Right arrow on the last page does nothing", Input::Right, 2, -1, {}, 2, {}},
    {"Left arrow on the first page does nothing", Input::Left, 0, -1, {}, 0, {}},
    {"arrows skip a disabled page", Input::Left, 2, 1, {}, 0, {kChanging, kChange}},
    {"arrows go on past a refusal", Input::Right, 0, -1, {1}, 2, {kChanging, kChanging, kChange}},
    {"a mnemonic selects its tab", Input::Mnemonic, 0, -1, {}, 2, {kChanging, kChange}},
};

class TabNotebook : public WindowTest, public ::testing::WithParamInterface<Style> {
protected:
    static void Apply(NotebookForm& form, const SwitchRow& row)
    {
        const bool fromField = row.input == Input::CtrlTab || row.input == Input::CtrlShiftTab ||
                               row.input == Input::Mnemonic;
        FocusForInput(form.host, fromField ? form.Field(row.start, 1) : form.notebook.m_hWnd);
        form.host.codes.clear();
        const CRect first = form.TabRect(0);
        switch (row.input) {
        case Input::ClickTab: {  // each click 8 pixels from the last, so that no two make a double click
            static int clicks = 0;
            ClickAt(form.notebook, form.TabRect(1).CenterPoint() + CPoint(8 * (clicks++ % 3) - 8, 0));
            break;
        }
        case Input::ClickOverlap:  // the top row, where the first tab's right end lies over the second
            ClickAt(form.notebook, POINT{first.right - 2, first.top});
            break;
        case Input::ClickLaterSlant:  // 12 pixels down, inside the first tab's rectangle, past its slant
            ClickAt(form.notebook, POINT{first.right - 1, first.top + 12});
            break;
        case Input::CtrlTab:
        case Input::CtrlShiftTab:
            PressKey(VK_TAB, row.input == Input::CtrlShiftTab, true);
            break;
        case Input::Right:
        case Input::Left:
            PressKey(row.input == Input::Right ? VK_RIGHT : VK_LEFT);
            break;
        case Input::Mnemonic:
            PressKey('G', false, false, true);
            break;
        }
    }

    void RunSwitches(Style style, const std::vector<SwitchRow>& rows)
    {
        NotebookForm form(style, status.MainWindow());
        for (const SwitchRow& row : rows) {
            SCOPED_TRACE(row.name);
            for (const auto& page : form.pages)
                page->EnableWindow(TRUE);
            form.Select(row.start);
            if (row.disabledPage >= 0)
                form.pages[row.disabledPage]->EnableWindow(FALSE);
            form.host.replies = row.replies;
            Apply(form, row);
            EXPECT_EQ(form.notebook.GetCurSel(), row.page);
            EXPECT_EQ(form.host.codes, row.codes);
            for (int page = 0; page < 3; ++page)
                EXPECT_EQ(form.pages[page]->IsWindowVisible() != FALSE, page == row.page) << "page " << page;
        }
    }
};

TEST_P(TabNotebook, SwitchesPagesAndTellsTheParent)
{
    RunSwitches(GetParam(), std::vector<SwitchRow>(std::begin(kSwitches), std::end(kSwitches)));
}

TEST_F(TabNotebook, BottomTabsOverlapOnTheirSlants)
{
    RunSwitches(kvTabNotebook::BottomTabs,
                {{"where two tabs overlap the earlier one takes the click", Input::ClickOverlap, 2, -1, {}, 0,
                  {kChanging, kChange}},
                 {"low on the later tab's slant, past the earlier one's", Input::ClickLaterSlant, 0, -1, {}, 1,
                  {kChanging, kChange}}});
}

TEST_P(TabNotebook, ShowsOnlyTheCurrentPageOverTheDisplayArea)
{
    NotebookForm form(GetParam(), status.MainWindow());
    for (int current = 0; current < 3; ++current) {
        SCOPED_TRACE(current);
        form.Select(current);
        CRect display;
        form.notebook.GetWindowRect(display);
        form.notebook.AdjustRect(FALSE, display);
        CRect placed;
        form.pages[current]->GetWindowRect(placed);
        EXPECT_EQ(placed, display);
        for (int page = 0; page < 3; ++page)
            EXPECT_EQ(form.pages[page]->IsWindowVisible() != FALSE, page == current) << "page " << page;
    }
}

TEST_P(TabNotebook, TabGoesThroughTheCurrentPageOnly)
{
    NotebookForm form(GetParam(), status.MainWindow());
    form.Select(1);
    FocusForInput(form.host, ::GetDlgItem(form.host, 10));
    std::vector<std::string> visited;
    for (int step = 0; step < 5; ++step) {
        PressKey(VK_TAB);
        visited.push_back(form.NameOf(::GetFocus()));
    }
    EXPECT_EQ(visited, (std::vector<std::string>{"notebook", "page1.field1", "page1.field2", "after", "before"}));
}

TEST_P(TabNotebook, NotebookOutsideTheTabOrderPassesTheFocusIntoItsPage)
{
    NotebookForm form(GetParam(), status.MainWindow(), 0);
    FocusForInput(form.host, form.Field(0, 2));
    PressKey(VK_TAB, false, true);
    EXPECT_EQ(form.NameOf(::GetFocus()), "page1.field1");
}

INSTANTIATE_TEST_SUITE_P(Styles, TabNotebook, ::testing::Values(kvTabNotebook::StandardTabs, kvTabNotebook::BottomTabs),
                         [](const auto& info) { return info.param == kvTabNotebook::BottomTabs ? "Bottom" : "Standard"; });

struct MessageRow {
    const char* name;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result;
};

TEST_F(TabNotebook, BottomStyleAnswersTheTabMessagesItself)
{
    NotebookForm form(kvTabNotebook::BottomTabs, status.MainWindow());
    char small[4] = "xyz";
    TCITEM get{};
    get.mask = TCIF_TEXT;
    get.pszText = small;
    get.cchTextMax = sizeof small;
    TCITEM set{};
    set.mask = TCIF_TEXT;
    set.pszText = const_cast<char*>("&Delta");
    RECT rect{0, 0, 100, 100};
    const MessageRow rows[] = {
        {"three items", TCM_GETITEMCOUNT, 0, 0, 3},
        {"one row", TCM_GETROWCOUNT, 0, 0, 1},
        {"a text into a small buffer", TCM_GETITEMA, 0, reinterpret_cast<LPARAM>(&get), 1},
        {"no item beyond the count", TCM_GETITEMA, 3, reinterpret_cast<LPARAM>(&get), 0},
        {"a new title", TCM_SETITEMA, 2, reinterpret_cast<LPARAM>(&set), 1},
        {"no title beyond the count", TCM_SETITEMA, 3, reinterpret_cast<LPARAM>(&set), 0},
        {"no rectangle beyond the count", TCM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&rect), 0},
        {"no rectangle pointer", TCM_GETITEMRECT, 0, 0, 1},
        {"a size of 300 x 20", TCM_SETITEMSIZE, 0, MAKELPARAM(300, 20), 0},
        {"the previous size in 8 bits each", TCM_SETITEMSIZE, 0, 0, 44 | (20 << 8)},
        {"a padding", TCM_SETPADDING, 0, MAKELPARAM(3, 2), 0},
        {"the previous padding", TCM_SETPADDING, 0, 0, 3 | (2 << 8)},
        {"the display area from the window", TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect), 0},
        {"selecting answers 0", TCM_SETCURSEL, 1, 0, 0},
        {"the selection", TCM_GETCURSEL, 0, 0, 1},
        {"inserting beyond the count answers the index asked", TCM_INSERTITEMA, 7, reinterpret_cast<LPARAM>(&set), 7},
        {"nothing to delete beyond the count", TCM_DELETEITEM, 4, 0, 0},
    };
    for (const MessageRow& row : rows)
        EXPECT_EQ(form.notebook.SendMessage(row.message, row.wParam, row.lParam), row.result) << row.name;
    EXPECT_STREQ(small, "&Al");
    EXPECT_EQ(rect.bottom, 100 - form.TabRect(0).Height()) << "the tab strip taken off";
    HWND hButton = ::FindWindowExA(form.host, nullptr, "Button", "&Delta");
    EXPECT_NE(hButton, nullptr) << "the page button carries the new title";
}

struct DeleteRow {
    const char* name;
    int current;
    int deleted;
    int currentAfter;
    bool shown;  // the page now current is visible
};

const DeleteRow kDeletes[] = {
    {"the current last tab: the one before becomes current, unseen", 2, 2, 1, false},
    {"a tab before the current one leaves the index, now the next page's", 1, 0, 1, false},
    {"a tab after the current one", 0, 1, 0, true},
};

TEST_P(TabNotebook, DeletingKeepsTheCurrentIndexDeliberately)
{
    for (const DeleteRow& row : kDeletes) {
        SCOPED_TRACE(row.name);
        NotebookForm form(GetParam(), status.MainWindow());
        form.Select(row.current);
        EXPECT_TRUE(form.notebook.DeleteItem(row.deleted));
        EXPECT_EQ(form.notebook.GetCurSel(), row.currentAfter);
        EXPECT_EQ(form.notebook.GetItemCount(), 2);
        EXPECT_EQ(form.notebook.GetPageWindow(2), nullptr);
        EXPECT_EQ(form.pages[row.deleted]->IsWindowVisible(), FALSE);
        EXPECT_EQ(form.notebook.GetPageWindow(row.currentAfter)->IsWindowVisible() != FALSE, row.shown);
    }
}

// ---- drawing ----

bool IsDark(COLORREF colour) { return GetRValue(colour) + GetGValue(colour) + GetBValue(colour) < 3 * 96; }

std::string PicturePath(const char* name)
{
    std::filesystem::create_directories("pictures");
    return std::string("pictures/") + name;
}

TEST_F(TabNotebook, BottomTabsAreDrawnWhereTheGeometrySays)
{
    NotebookForm form(kvTabNotebook::BottomTabs, status.MainWindow());
    form.pages[2]->EnableWindow(FALSE);
    form.notebook.RedrawWindow();
    flushEvents();
    std::vector<CRect> rects;
    for (int tab = 0; tab < 3; ++tab)
        rects.push_back(form.TabRect(tab));
    kvBottomTabGeometry geometry;
    geometry.fontHeight = rects[0].Height() - 2 - 3;
    const auto spans = geometry.Spans(rects);
    const ClientPixels pixels(form.notebook);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const int top = rects[0].top;
    const int dy = 8;
    const int inset = dy / 2;
    // The current tab's lit left side, the last tab's dark right side, plain
    // face a few pixels outside and inside each.
    const auto litAt = [&](int x) { return pixels.At(x, top + dy) == ::GetSysColor(COLOR_3DHILIGHT); };
    EXPECT_TRUE(litAt(spans[0].left + inset) || litAt(spans[0].left + inset - 1) || litAt(spans[0].left + inset + 1));
    EXPECT_EQ(pixels.At(spans[0].left + inset - 3, top + dy), face);
    EXPECT_EQ(pixels.At(spans[0].left + inset + 4, top + dy), face);
    const int lastRight = spans[2].right - inset;
    EXPECT_TRUE(IsDark(pixels.At(lastRight, top + dy)) || IsDark(pixels.At(lastRight - 1, top + dy)) ||
                IsDark(pixels.At(lastRight + 1, top + dy)));
    EXPECT_EQ(pixels.At(lastRight + 3, top + dy), face);
    EXPECT_EQ(pixels.At(lastRight - 4, top + dy), face);
    // The border along the top of the strip stays open over the current tab.
    EXPECT_TRUE(IsDark(pixels.At(spans[1].left + 20, top)));
    EXPECT_EQ(pixels.At(spans[0].left + 20, top), face);
    EXPECT_TRUE(ClientPixels(form.host).WriteBmp(PicturePath("TabNotebook-bottom.bmp")));
}

TEST_F(TabNotebook, StandardTabsEmbossADisabledPagesTitle)
{
    NotebookForm form(kvTabNotebook::StandardTabs, status.MainWindow());
    form.pages[2]->EnableWindow(FALSE);
    form.notebook.RedrawWindow();
    flushEvents();
    const ClientPixels pixels(form.notebook);
    const auto count = [&](int tab, int colourIndex) {
        CRect rect = form.TabRect(tab);
        rect.DeflateRect(3, 3);
        int found = 0;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x)
                found += pixels.At(x, y) == ::GetSysColor(colourIndex) ? 1 : 0;
        }
        return found;
    };
    EXPECT_GT(count(1, COLOR_BTNTEXT), 0);
    EXPECT_EQ(count(1, COLOR_GRAYTEXT), 0);
    EXPECT_GT(count(2, COLOR_GRAYTEXT), 0);
    EXPECT_GT(count(2, COLOR_3DHILIGHT), 0);
    EXPECT_TRUE(ClientPixels(form.host).WriteBmp(PicturePath("TabNotebook-standard.bmp")));
}

}  // namespace
