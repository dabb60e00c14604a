// The hover button under real input: the state it draws while the mouse moves
// over it, presses, drags off and comes back; its own click; the hyperlink's
// hand and underline; Space and the mnemonic; a button that refuses the focus;
// and its part in validation like the validating push button.
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "buttons/kvHoverButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"
#include "library/resource.h"

#include <functional>
#include <memory>
#include <vector>

namespace {

using NF = kvNumEditFormatter;

constexpr UINT kAmount = 100;
constexpr UINT kHover = 200;
constexpr UINT kOther = 201;

const CRect kButtonRect(10, 100, 130, 130);
const POINT kInside{60, 15};
const POINT kOutside{200, 15};  // on the dialog, right of the button
const POINT kBackgroundPoint{8, 8};  // clear of frame, focus rectangle and caption

const COLORREF kBackgrounds[kvHoverStateCount] = {RGB(250, 240, 200), RGB(200, 240, 250), RGB(220, 220, 220),
                                                  RGB(160, 200, 160)};

// The flat look with a background colour of its own in each state.
void ColouredHoverLook(kvHoverButton& button)
{
    button.SetStandardHoverLook();
    for (int state = 0; state < kvHoverStateCount; ++state)
        button.SetBackgroundColor(1ul << state, kBackgrounds[state]);
}

class HoverButtonTest : public WindowTest {
protected:
    kvHoverButton& Add(FieldForm& form, UINT nID, const char* caption,
                       const std::function<void(kvHoverButton&)>& setUp = {}, const CRect& rect = kButtonRect)
    {
        m_buttons.push_back(std::make_unique<kvHoverButton>());
        kvHoverButton& button = *m_buttons.back();
        if (setUp)
            setUp(button);
        button.Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, &form.dialog, nID);
        flushEvents();
        return button;
    }

    // BN_CLICKED notifications the dialog received from the button.
    int Clicks(const MessageLog& log, const CWnd& button) const
    {
        int clicks = 0;
        for (const LoggedMessage& entry : log.Entries())
            clicks += HIWORD(entry.wParam) == BN_CLICKED && reinterpret_cast<HWND>(entry.lParam) == button.m_hWnd;
        return clicks;
    }

    std::vector<std::unique_ptr<kvHoverButton>> m_buttons;
};

// ---- mouse tracking ----

enum class Mouse { In, Out, Down, Up };

struct TrackStep {
    Mouse mouse;
    kvHoverState drawn;
};

struct TrackRow {
    const char* name;
    std::vector<TrackStep> steps;
    int clicks;
};

const TrackRow kTracking[] = {
    {"a click inside", {{Mouse::In, kvHoverHovering}, {Mouse::Down, kvHoverPushed}, {Mouse::Up, kvHoverHovering}}, 1},
    {"released outside",
     {{Mouse::In, kvHoverHovering}, {Mouse::Down, kvHoverPushed}, {Mouse::Out, kvHoverNormal}, {Mouse::Up, kvHoverNormal}},
     0},
    {"dragged off and back",
     {{Mouse::In, kvHoverHovering},
      {Mouse::Down, kvHoverPushed},
      {Mouse::Out, kvHoverNormal},
      {Mouse::In, kvHoverPushed},
      {Mouse::Up, kvHoverHovering}},
     1},
    {"passing over", {{Mouse::In, kvHoverHovering}, {Mouse::Out, kvHoverNormal}}, 0},
};

void Perform(const CWnd& button, Mouse mouse)
{
    switch (mouse) {
    case Mouse::In:
        MoveMouseTo(button, kInside);
        break;
    case Mouse::Out:
        MoveMouseTo(button, kOutside);
        break;
    case Mouse::Down:
    case Mouse::Up:
        PressLeftButton(mouse == Mouse::Down);
        break;
    }
}

// The thin frame: raised under the mouse, sunken when pushed, none otherwise.
void ExpectDrawn(const CWnd& button, kvHoverState state)
{
    const ClientPixels pixels(button);
    const int right = pixels.Width() - 1, bottom = pixels.Height() - 1;
    const COLORREF light = ::GetSysColor(COLOR_3DHILIGHT), dark = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF topLeft = state == kvHoverHovering ? light : state == kvHoverPushed ? dark : kBackgrounds[state];
    const COLORREF bottomRight = state == kvHoverHovering ? dark : state == kvHoverPushed ? light : kBackgrounds[state];
    EXPECT_EQ(pixels.At(kBackgroundPoint.x, kBackgroundPoint.y), kBackgrounds[state]) << "background";
    EXPECT_EQ(pixels.At(0, 0), topLeft) << "top left corner";
    EXPECT_EQ(pixels.At(right / 2, 0), topLeft) << "top edge";
    EXPECT_EQ(pixels.At(0, bottom / 2), topLeft) << "left edge";
    EXPECT_EQ(pixels.At(right, 0), bottomRight) << "top right corner";
    EXPECT_EQ(pixels.At(right, bottom / 2), bottomRight) << "right edge";
    EXPECT_EQ(pixels.At(0, bottom), bottomRight) << "bottom left corner";
    EXPECT_EQ(pixels.At(right / 2, bottom), bottomRight) << "bottom edge";
}

TEST_F(HoverButtonTest, MouseDrawsTheStatesAndClicksOnlyOnAReleaseInside)
{
    for (const bool allowFocus : {true, false}) {
        for (const TrackRow& row : kTracking) {
            SCOPED_TRACE(std::string(row.name) + (allowFocus ? "" : ", refusing the focus"));
            FieldForm form(status.MainWindow());
            kvHoverButton& button = Add(form, kHover, "Go", [&](kvHoverButton& b) {
                ColouredHoverLook(b);
                b.SetAllowFocus(allowFocus);
            });
            MoveMouseTo(button, kOutside);
            ExpectDrawn(button, kvHoverNormal);
            MessageLog log;
            MessageRecorder recorder(log, {WM_COMMAND});
            recorder.Watch(form.dialog, "dialog");
            for (const TrackStep& step : row.steps) {
                Perform(button, step.mouse);
                ExpectDrawn(button, step.drawn);
            }
            EXPECT_EQ(Clicks(log, button), row.clicks);
            EXPECT_EQ(::GetCapture() == button.m_hWnd, row.steps.back().drawn != kvHoverNormal)
                << "the capture is held while the mouse is over the button";
            MoveMouseTo(button, kOutside);
        }
    }
}

TEST_F(HoverButtonTest, ADisabledButtonShowsItsDisabledLook)
{
    FieldForm form(status.MainWindow());
    kvHoverButton& button = Add(form, kHover, "Go", ColouredHoverLook);
    button.EnableWindow(FALSE);
    flushEvents();
    ExpectDrawn(button, kvHoverDisabled);
}

// ---- the hyperlink ----

HCURSOR LibraryHand()
{
    return ::LoadCursorA(::GetModuleHandleA("kvWin.dll"), MAKEINTRESOURCE(IDC_KVHAND));
}

TEST_F(HoverButtonTest, HyperlinkShowsTheLibrarysHandOverItsText)
{
    struct Row {
        const char* name;
        bool hyperlink, enabled;
        UINT hitTest;
        bool hand;
    };
    const Row rows[] = {
        {"an enabled hyperlink", true, true, HTCLIENT, true},
        {"a disabled hyperlink", true, false, HTCLIENT, false},
        {"outside the client area", true, true, HTBORDER, false},
        {"a standard button", false, true, HTCLIENT, false},
    };
    ASSERT_NE(LibraryHand(), nullptr);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        kvHoverButton& button = Add(form, kHover, "Go", [&](kvHoverButton& b) {
            if (row.hyperlink)
                b.SetStandardHyperlinkLook();
        });
        button.EnableWindow(row.enabled);
        const HCURSOR hArrow = ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
        EXPECT_EQ(button.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(button.m_hWnd),
                                     MAKELPARAM(row.hitTest, WM_MOUSEMOVE)),
                  0);
        EXPECT_EQ(::GetCursor() == LibraryHand(), row.hand);
        ::SetCursor(hArrow);
    }
}

// Rows of the button that hold some of the caption, and the longest run of
// caption pixels in one of them compared with the caption's width.
struct CaptionInk {
    int rows = 0;
    int widest = 0;     // of the caption's pixels, from leftmost to rightmost
    int longestRun = 0; // of caption pixels side by side in one row
    COLORREF colour = CLR_INVALID;
};

CaptionInk InkOf(const ClientPixels& pixels, COLORREF background)
{
    CaptionInk ink;
    int left = pixels.Width(), right = -1;
    for (int y = 0; y < pixels.Height(); ++y) {
        int run = 0;
        bool any = false;
        for (int x = 0; x < pixels.Width(); ++x) {
            const bool inked = pixels.At(x, y) != background;
            run = inked ? run + 1 : 0;
            ink.longestRun = std::max(ink.longestRun, run);
            if (inked) {
                any = true;
                left = std::min(left, x);
                right = std::max(right, x);
                ink.colour = pixels.At(x, y);
            }
        }
        ink.rows += any;
    }
    ink.widest = right - left + 1;
    return ink;
}

TEST_F(HoverButtonTest, HyperlinkIsUnderlinedAndHighlightedUnderTheMouse)
{
    FieldForm form(status.MainWindow());
    kvHoverButton& link = Add(form, kHover, "mmmm mmmm", [](kvHoverButton& b) { b.SetStandardHyperlinkLook(); });
    kvHoverButton& plain = Add(form, kOther, "mmmm mmmm", [](kvHoverButton& b) {
        b.SetStandardHyperlinkLook();
        b.SetTextUnderline(false);
    }, CRect(10, 140, 130, 170));
    const COLORREF parent = ClientPixels(form.dialog).At(5, 95);
    const CaptionInk underlined = InkOf(ClientPixels(link), parent);
    const CaptionInk notUnderlined = InkOf(ClientPixels(plain), parent);
    EXPECT_EQ(underlined.longestRun, underlined.widest) << "one line under the whole caption";
    EXPECT_LT(notUnderlined.longestRun, notUnderlined.widest / 2);
    EXPECT_GT(underlined.rows, notUnderlined.rows);
    EXPECT_EQ(underlined.colour, ::GetSysColor(COLOR_BTNTEXT));

    MoveMouseTo(link, kInside);
    const ClientPixels hovered(link);
    EXPECT_EQ(InkOf(hovered, parent).colour, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(hovered.At(0, 0), parent) << "no background of its own";
    MoveMouseTo(link, kOutside);
}

// ---- keyboard and focus ----

TEST_F(HoverButtonTest, SpaceAndTheMnemonicClick)
{
    struct Row {
        const char* name;
        bool hotkey;
        bool mnemonic;  // Alt+G from the field, else Space on the button
        int clicks;
    };
    const Row rows[] = {
        {"Space", true, false, 1},
        {"the mnemonic", true, true, 1},
        {"no mnemonic when hotkeys are off", false, true, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(kAmount, nullptr, "1");
        kvHoverButton& button = Add(form, kHover, "&Go", [&](kvHoverButton& b) { b.SetAllowHotkey(row.hotkey); });
        EXPECT_EQ(button.SendMessage(WM_GETDLGCODE) == DLGC_STATIC, !row.hotkey);
        FocusForInput(form.dialog, row.mnemonic ? field : static_cast<CWnd&>(button));
        MessageLog log;
        MessageRecorder recorder(log, {WM_COMMAND});
        recorder.Watch(form.dialog, "dialog");
        if (row.mnemonic)
            PressKey('G', false, false, true);
        else
            PressKey(VK_SPACE);
        EXPECT_EQ(Clicks(log, button), row.clicks);
    }
}

TEST_F(HoverButtonTest, AButtonThatRefusesTheFocusNeverTakesIt)
{
    FieldForm form(status.MainWindow());
    kvEdit& field = form.AddField(kAmount, nullptr, "1");
    kvHoverButton& refusing = Add(form, kHover, "Go", [](kvHoverButton& b) { b.SetAllowFocus(false); });
    kvHoverButton& later = Add(form, kOther, "Later", {}, CRect(10, 140, 130, 170));
    EXPECT_EQ(refusing.GetStyle() & WS_TABSTOP, 0u);
    EXPECT_NE(later.GetStyle() & WS_TABSTOP, 0u);
    later.SetAllowFocus(false);
    EXPECT_EQ(later.GetStyle() & WS_TABSTOP, 0u) << "refused after creation";

    FocusForInput(form.dialog, field);
    MessageLog log;
    MessageRecorder recorder(log, {WM_COMMAND});
    recorder.Watch(form.dialog, "dialog");
    ClickAt(refusing, kInside);
    EXPECT_EQ(::GetFocus(), field.m_hWnd) << "by click";
    EXPECT_EQ(Clicks(log, refusing), 1);
    PressKey(VK_TAB);
    EXPECT_EQ(::GetFocus(), field.m_hWnd) << "by Tab";
}

// ---- validation ----

TEST_F(HoverButtonTest, ValidatesTheFieldItWasClickedFrom)
{
    struct Row {
        const char* name;
        UINT id;
        bool pendingAfterClick;
        UINT focusedAfterClick;
    };
    const Row rows[] = {
        {"a plain button lets the dialog check the field", kOther, false, kAmount},
        {"Cancel keeps the field pending", IDCANCEL, true, IDCANCEL},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        status.messages.clear();
        FieldForm form(status.MainWindow());
        kvEdit& amount = form.AddField(kAmount, new NF(3, 2, NF::Separators), "12,345");
        kvHoverButton& button = Add(form, row.id, "Go");
        FocusForInput(form.dialog, amount);
        ClickAt(button, kInside);
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(form.dialog, static_cast<int>(row.focusedAfterClick)));
        EXPECT_EQ(button.GetPendingCtrl() != nullptr, row.pendingAfterClick);
        EXPECT_EQ(status.messages.size(), row.pendingAfterClick ? 0u : 1u);
        if (!row.pendingAfterClick)
            continue;
        EXPECT_FALSE(button.ValidatePendingCtrl());
        flushEvents();
        EXPECT_EQ(::GetFocus(), amount.m_hWnd);
        EXPECT_EQ(SelOf(amount), std::make_pair(0, 6));
        EXPECT_EQ(status.messages.size(), 1u);
        EXPECT_EQ(button.GetPendingCtrl(), nullptr);
    }
}

}  // namespace
