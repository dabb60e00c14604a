// The bitmap button in real windows: each caption position drawn where the
// layout puts image and caption, the pressed offset under a real mouse press,
// disabled and pseudo-disabled looks and input, cursors, the tool tip, its part
// in validation, and no GDI objects left behind. Pictures of every state go to
// pictures/ in the working directory.
#include "BmpButtonTestResource.h"
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"
#include "monkey/GuiObjectCounter.h"

#include "afx/AfxExtension.h"
#include "buttons/kvBmpButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"
#include "library/resource.h"

#include <commctrl.h>
#include <uxtheme.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using L = kvBmpButtonLayout;

constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kCaption = RGB(0, 0, 160);
constexpr UINT kButtonId = 100;

// The colour of the face inside the frame: the one most of its pixels have.
COLORREF FaceOf(const ClientPixels& pixels)
{
    std::map<COLORREF, int> counts;
    for (int y = 3; y < pixels.Height() - 3; ++y) {
        for (int x = 3; x < pixels.Width() - 3; ++x)
            ++counts[pixels.At(x, y)];
    }
    COLORREF face = CLR_INVALID;
    for (const auto& [colour, count] : counts) {
        if (face == CLR_INVALID || count > counts[face])
            face = colour;
    }
    return face;
}

std::string PicturePath(const std::string& name)
{
    ::CreateDirectoryA("pictures", nullptr);
    return "pictures/bmpbutton-" + name + ".bmp";
}

// A plain window in front that hosts the buttons and logs their clicks.
class ButtonHost : public CWnd {
public:
    ButtonHost(int width, int height)
    {
        const LPCTSTR cls = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                                                reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
        CreateEx(0, cls, "bitmap buttons", WS_POPUP | WS_VISIBLE | WS_BORDER, 30, 30, width, height, nullptr,
                 nullptr);
        ::SetForegroundWindow(m_hWnd);
    }
    ~ButtonHost() override { DestroyWindow(); }

    std::vector<UINT> clicks;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) == BN_CLICKED)
            clicks.push_back(LOWORD(wParam));
        return CWnd::OnCommand(wParam, lParam);
    }
};

std::unique_ptr<kvBmpButton> MakeButton(CWnd& host, L::textPos pos, DWORD style, const CRect& rect,
                                        UINT id = kButtonId)
{
    auto button = std::make_unique<kvBmpButton>(pos);
    button->Create("Save", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, rect, &host, id);
    button->SetTextColor(kCaption);
    button->LoadBitmap(IDB_BMPBUTTON_QUADRANTS, FALSE, kMagenta);
    button->UpdateWindow();
    return button;
}

L::Alignment HorizontalOf(DWORD style)
{
    return (style & BS_CENTER) == BS_LEFT ? L::AlignNear : (style & BS_CENTER) == BS_RIGHT ? L::AlignFar
                                                                                          : L::AlignCentre;
}

L::Alignment VerticalOf(DWORD style)
{
    return (style & BS_VCENTER) == BS_TOP ? L::AlignNear : (style & BS_VCENTER) == BS_BOTTOM ? L::AlignFar
                                                                                            : L::AlignCentre;
}

// The layout the button's own sizes give, as the test computes it.
L LayoutOf(const kvBmpButton& button, L::textPos pos, DWORD style, bool pressed)
{
    CRect client;
    button.GetClientRect(&client);
    return L::Distribute(client, button.GetTextSize(), button.GetImageSize(), pos, HorizontalOf(style),
                         VerticalOf(style), pressed);
}

// The bitmap's quadrants inside the image rectangle and its transparent border
// showing the face; the caption inside its rectangle; the plain face elsewhere
// inside the frame (and inside the focus rectangle, with a margin of 5).
void ExpectDrawnAsLaidOut(const ClientPixels& pixels, const L& layout, int margin = 3)
{
    const CRect& image = layout.image;
    const COLORREF face = FaceOf(pixels);
    EXPECT_EQ(pixels.At(image.left + 3, image.top + 3), RGB(255, 0, 0));
    EXPECT_EQ(pixels.At(image.left + 12, image.top + 3), RGB(0, 0, 255));
    EXPECT_EQ(pixels.At(image.left, image.top), face) << "the transparent border";
    CRect inside = layout.face;
    inside.DeflateRect(margin, margin);
    int strayPixels = 0, captionPixels = 0;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            const bool drawn = pixels.At(x, y) != face;
            if (layout.caption.PtInRect(CPoint(x, y)))
                captionPixels += pixels.At(x, y) == kCaption;
            else if (!image.PtInRect(CPoint(x, y)))
                strayPixels += drawn;
        }
    }
    EXPECT_GT(captionPixels, 10) << "the caption in its colour";
    EXPECT_EQ(strayPixels, 0) << "nothing drawn outside image and caption";
}

struct Arrangement {
    const char* name;
    DWORD style;
};

const Arrangement kAlignments[] = {
    {"left-top", BS_LEFT | BS_TOP},       {"centre-top", BS_TOP},           {"right-top", BS_RIGHT | BS_TOP},
    {"left-middle", BS_LEFT},             {"centred", 0},                   {"right-middle", BS_RIGHT},
    {"left-bottom", BS_LEFT | BS_BOTTOM}, {"centre-bottom", BS_BOTTOM},     {"right-bottom", BS_RIGHT | BS_BOTTOM},
};

const char* const kPositionNames[] = {"above", "below", "left", "right"};

TEST_F(WindowTest, BmpButtonDrawsEachArrangementAsLaidOut)
{
    constexpr int kWidth = 96, kHeight = 60, kGap = 4;
    ButtonHost host(9 * (kWidth + kGap) + kGap, 4 * (kHeight + kGap) + kGap);
    std::vector<std::unique_ptr<kvBmpButton>> buttons;
    for (int pos = L::TextAbove; pos <= L::TextRight; ++pos) {
        for (int column = 0; column < 9; ++column) {
            const CRect rect(CPoint(kGap + column * (kWidth + kGap), kGap + pos * (kHeight + kGap)),
                             CSize(kWidth, kHeight));
            buttons.push_back(MakeButton(host, L::textPos(pos), kAlignments[column].style, rect,
                                         kButtonId + static_cast<UINT>(buttons.size())));
        }
    }
    flushEvents();
    ClientPixels(host).WriteBmp(PicturePath("arrangements"));

    for (size_t i = 0; i < buttons.size(); ++i) {
        const auto pos = L::textPos(i / 9);
        const Arrangement& arrangement = kAlignments[i % 9];
        SCOPED_TRACE(std::string("caption ") + kPositionNames[pos] + ", " + arrangement.name);
        ExpectDrawnAsLaidOut(ClientPixels(*buttons[i]), LayoutOf(*buttons[i], pos, arrangement.style, false));
    }
}

TEST_F(WindowTest, BmpButtonPressedMovesImageAndCaptionByOnePixel)
{
    ButtonHost host(200, 100);
    auto button = MakeButton(host, L::TextRight, 0, CRect(10, 10, 130, 60));
    MoveMouseTo(*button, CPoint(60, 25));
    PressLeftButton(true);
    const ClientPixels down(*button);
    down.WriteBmp(PicturePath("pressed"));
    PressLeftButton(false);

    ExpectDrawnAsLaidOut(down, LayoutOf(*button, L::TextRight, 0, true), 5);
    EXPECT_EQ(host.clicks, std::vector<UINT>{kButtonId}) << "the press ends in a click";
}

enum class Look { Focused, Icon, Disabled, PseudoDisabled };

const std::pair<Look, const char*> kLooks[] = {
    {Look::Focused, "focused"},
    {Look::Icon, "icon"},
    {Look::Disabled, "disabled"},
    {Look::PseudoDisabled, "pseudo-disabled"},
};

void Apply(kvBmpButton& button, Look look)
{
    switch (look) {
    case Look::Focused:
        button.SetFocus();
        break;
    case Look::Icon:
        button.LoadIcon(IDI_BMPBUTTON_QUADRANTS, TRUE);
        break;
    case Look::PseudoDisabled:
        button.SetPseudoDisableMode(TRUE);
        [[fallthrough]];
    case Look::Disabled:
        button.EnableWindow(FALSE);
        break;
    }
}

int CountPixels(const ClientPixels& pixels, const CRect& area, const std::function<bool(COLORREF)>& which)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x)
            count += which(pixels.At(x, y));
    }
    return count;
}

int DifferingPixels(const ClientPixels& a, const ClientPixels& b)
{
    int count = 0;
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x)
            count += a.At(x, y) != b.At(x, y);
    }
    return count;
}

// Each look with the visual style and, the style switched off for the window,
// with the classic frame. A pseudo-disabled button looks exactly like a
// disabled one.
TEST_F(WindowTest, BmpButtonLooksWithAndWithoutVisualStyle)
{
    ButtonHost host(200, 100);
    for (const bool classic : {false, true}) {
        std::vector<ClientPixels> disabledLooks;
        for (const auto& [look, name] : kLooks) {
            SCOPED_TRACE(std::string(classic ? "classic, " : "themed, ") + name);
            auto button = MakeButton(host, L::TextBelow, 0, CRect(10, 10, 110, 70));
            if (classic)
                ::SetWindowTheme(*button, L" ", L" ");  // matches no style: no theme
            Apply(*button, look);
            button->RedrawWindow();
            flushEvents();
            const ClientPixels pixels(*button);
            pixels.WriteBmp(PicturePath(std::string(classic ? "classic-" : "themed-") + name));
            const COLORREF face = FaceOf(pixels);
            if (classic)
                EXPECT_EQ(face, ::GetSysColor(COLOR_BTNFACE));
            const L layout = LayoutOf(*button, L::TextBelow, 0, false);
            const CRect& image = layout.image;
            switch (look) {
            case Look::Focused: {
                CRect ring = layout.face;
                ring.DeflateRect(3, 3);
                const auto isFace = [face](COLORREF c) { return c == face; };
                EXPECT_GT(ring.Width() - CountPixels(pixels, CRect(ring.left, ring.top, ring.right, ring.top + 1), isFace),
                          ring.Width() / 3) << "the focus rectangle 3 pixels inside the face";
                EXPECT_EQ(CountPixels(pixels, CRect(ring.left + 1, ring.top + 1, ring.right - 1, ring.top + 2), isFace),
                          ring.Width() - 2);
                break;
            }
            case Look::Icon:
                EXPECT_EQ(button->GetImageSize(), CSize(16, 16)) << "the icon at its resource's size";
                EXPECT_EQ(button->GetButtonSize(), button->GetFitButtonSize());
                EXPECT_EQ(pixels.At(image.left + 3, image.top + 3), RGB(255, 0, 0));
                EXPECT_EQ(pixels.At(image.left + 12, image.top + 3), RGB(0, 0, 128));
                EXPECT_EQ(pixels.At(image.left + 1, image.top + 1), face) << "the icon's mask";
                break;
            case Look::Disabled:
            case Look::PseudoDisabled:
                EXPECT_EQ(::IsWindowEnabled(*button) != FALSE, look == Look::PseudoDisabled);
                EXPECT_EQ(CountPixels(pixels, layout.face,
                                      [](COLORREF c) { return c == kCaption || c == RGB(255, 0, 0) || c == RGB(0, 0, 255); }),
                          0) << "no caption colour, no colour of the image";
                EXPECT_GT(CountPixels(pixels, image, [](COLORREF c) { return c == ::GetSysColor(COLOR_BTNSHADOW); }), 20)
                    << "the image embossed";
                disabledLooks.push_back(pixels);
                break;
            }
        }
        ASSERT_EQ(disabledLooks.size(), 2u);
        EXPECT_EQ(DifferingPixels(disabledLooks[0], disabledLooks[1]), 0) << "disabled and pseudo-disabled alike";
    }
}

TEST_F(WindowTest, BmpButtonPseudoDisabledTakesNoInput)
{
    ButtonHost host(200, 100);
    auto button = MakeButton(host, L::TextRight, 0, CRect(10, 10, 130, 60));
    button->SetPseudoDisableMode(TRUE);
    EXPECT_EQ(button->EnableWindow(FALSE), TRUE) << "the previous pseudo state";
    EXPECT_EQ(button->GetStyle() & WS_TABSTOP, 0u);

    ClickAt(*button, CPoint(30, 25));
    button->SetFocus();
    PressKey(VK_SPACE);
    EXPECT_TRUE(host.clicks.empty()) << "neither a click nor the space bar clicks it";
    EXPECT_EQ(button->GetState() & BST_PUSHED, 0u) << "no press half-done";

    EXPECT_EQ(button->EnableWindow(TRUE), FALSE);
    EXPECT_NE(button->GetStyle() & WS_TABSTOP, 0u);
    ClickAt(*button, CPoint(80, 35));  // away from the first: no double click
    EXPECT_EQ(host.clicks, std::vector<UINT>{kButtonId});

    button->EnableWindow(FALSE);
    button->SetPseudoDisableMode(FALSE);
    EXPECT_FALSE(::IsWindowEnabled(*button)) << "leaving the mode disables the window for real";
    EXPECT_NE(button->GetStyle() & WS_TABSTOP, 0u);
}

struct CursorRow {
    const char* name;
    bool pseudoDisabled;
    UINT defaultCursor, disabledCursor;
    UINT shown;  // 0: the class's arrow
};

const CursorRow kCursors[] = {
    {"enabled: the default cursor", false, IDC_KVHAND, IDC_BMPBUTTON_CROSS, IDC_KVHAND},
    {"pseudo-disabled: the disabled cursor", true, IDC_KVHAND, IDC_BMPBUTTON_CROSS, IDC_BMPBUTTON_CROSS},
    {"enabled without a default cursor", false, 0, IDC_BMPBUTTON_CROSS, 0},
    {"pseudo-disabled without a disabled cursor", true, IDC_KVHAND, 0, 0},
};

HCURSOR ResourceCursor(UINT id)
{
    if (id == 0)
        return ::LoadCursor(nullptr, IDC_ARROW);
    return ::LoadCursor(AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_GROUP_CURSOR), MAKEINTRESOURCE(id));
}

TEST_F(WindowTest, BmpButtonCursorFollowsTheState)
{
    ButtonHost host(200, 100);
    for (const CursorRow& row : kCursors) {
        SCOPED_TRACE(row.name);
        auto button = MakeButton(host, L::TextRight, 0, CRect(10, 10, 130, 60));
        ASSERT_TRUE(button->SetDefaultCursor(row.defaultCursor));
        ASSERT_TRUE(button->SetDisabledCursor(row.disabledCursor));
        button->SetPseudoDisableMode(TRUE);
        button->EnableWindow(!row.pseudoDisabled);
        MoveMouseTo(host, CPoint(180, 90));
        MoveMouseTo(*button, CPoint(30, 25));
        EXPECT_EQ(::GetCursor(), ResourceCursor(row.shown));
    }
    kvBmpButton button(L::TextRight);
    EXPECT_FALSE(button.SetDefaultCursor(IDC_KVHAND + 12345)) << "no such cursor";
    EXPECT_EQ(button.GetDefaultCursor(), 0u);
}

// The tool tip popup of the buttons of hWndTop.
HWND ToolTipOf(HWND hWndTop)
{
    struct Search {
        HWND top;
        HWND found;
    } search{hWndTop, nullptr};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND hWnd, LPARAM lParam) {
            auto* s = reinterpret_cast<Search*>(lParam);
            char cls[64] = "";
            ::GetClassNameA(hWnd, cls, sizeof cls);
            if (::lstrcmpiA(cls, TOOLTIPS_CLASSA) == 0 &&
                ::GetAncestor(::GetWindow(hWnd, GW_OWNER), GA_ROOT) == s->top)
                s->found = hWnd;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string ToolTipTextOf(HWND hToolTip, const CWnd& button)
{
    char text[80] = "";
    TOOLINFOA info{};
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    info.hwnd = ::GetParent(button);
    info.uId = reinterpret_cast<UINT_PTR>(button.m_hWnd);
    info.lpszText = text;
    ::SendMessageA(hToolTip, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&info));
    return text;
}

TEST_F(WindowTest, BmpButtonToolTipIsTheSecondFieldOfTheText)
{
    ButtonHost host(200, 100);
    auto button = MakeButton(host, L::TextRight, 0, CRect(10, 10, 130, 60));
    EXPECT_FALSE(button->GetToolTip());
    button->SetToolTipText("Saves the file");
    EXPECT_EQ(TextOf(*button), "Save\nSaves the file");
    EXPECT_EQ(std::string(button->GetText()), "Save");
    const HWND hToolTip = ToolTipOf(host);
    ASSERT_TRUE(button->GetToolTip() && hToolTip != nullptr);
    EXPECT_EQ(ToolTipTextOf(hToolTip, *button), "Saves the file");

    button->SetText("Open");
    EXPECT_EQ(TextOf(*button), "Open\nSaves the file");
    button->SetWindowText("Print\nPrints the file");
    EXPECT_EQ(ToolTipTextOf(hToolTip, *button), "Prints the file");
    EXPECT_EQ(std::string(button->GetText()), "Print");

    MessageLog log;
    MessageRecorder recorder(log, {TTM_ACTIVATE, TTM_RELAYEVENT});
    recorder.Watch(hToolTip, "tip");
    MoveMouseTo(*button, CPoint(30, 25));
    std::set<UINT> seen;
    for (const LoggedMessage& entry : log.Entries())
        seen.insert(entry.message);
    EXPECT_EQ(seen, (std::set<UINT>{TTM_ACTIVATE, TTM_RELAYEVENT})) << "the mouse move reaches the tool tip";

    button->SetToolTip(FALSE);
    EXPECT_FALSE(button->GetToolTip());
    EXPECT_EQ(ToolTipOf(host), nullptr);
}

// A Cancel bitmap button holds the invalid field until the owner checks it.
TEST_F(WindowTest, BmpButtonHoldsTheFieldUntilItIsChecked)
{
    FieldForm form(status.MainWindow());
    kvEdit& amount = form.AddField(101, new kvNumEditFormatter(3, 2, kvNumEditFormatter::Separators), "12,345");
    kvBmpButton cancel(L::TextRight);
    ASSERT_TRUE(cancel.Create("Cancel", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 60, 110, 90), &form.dialog,
                              IDCANCEL));
    FocusForInput(form.dialog, amount);
    ClickAt(cancel, CPoint(10, 10));
    ASSERT_EQ(::GetFocus(), cancel.m_hWnd);
    ASSERT_EQ(cancel.GetPendingCtrl(), &amount);
    EXPECT_TRUE(status.messages.empty()) << "Cancel validates nothing by itself";

    EXPECT_FALSE(cancel.ValidatePendingCtrl());
    flushEvents();
    EXPECT_EQ(::GetFocus(), amount.m_hWnd);
    EXPECT_EQ(status.messages.size(), 1u);
    EXPECT_EQ(cancel.GetPendingCtrl(), nullptr);
}

// Icons and gray bitmaps the library makes, which the object counter does not
// watch: each must be gone once its button is.
std::vector<HANDLE> g_madeIcons;
std::vector<HANDLE> g_madeBitmaps;

template <std::vector<HANDLE>& made, auto Create, typename... Args>
auto WINAPI KeepImage(Args... args)
{
    const auto handle = Create(args...);
    if (handle != nullptr)
        made.push_back(handle);
    return handle;
}

bool IconExists(HANDLE handle)
{
    ICONINFO info{};
    if (!::GetIconInfo(static_cast<HICON>(handle), &info))
        return false;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
}

bool BitmapExists(HANDLE handle) { return ::GetObjectType(handle) == OBJ_BITMAP; }

// Without the modal watchdog of the window tests: there is no modal loop here,
// and a thousand tool tip windows take longer than its time.
TEST(BmpButtonGdi, AThousandButtonsLeaveNoObjectsBehind)
{
    ButtonHost host(200, 100);
    CFont font;
    font.CreatePointFont(100, "Arial");
    GuiObjectCounter counter;
    const ImportPatch watched[] = {
        {"kvWin.dll", "user32.dll", "LoadImageA",
         reinterpret_cast<void*>(&KeepImage<g_madeIcons, &::LoadImageA, HINSTANCE, LPCSTR, UINT, int, int, UINT>)},
        {"kvWin.dll", "user32.dll", "CreateIconIndirect",
         reinterpret_cast<void*>(&KeepImage<g_madeIcons, &::CreateIconIndirect, PICONINFO>)},
        {"kvWin.dll", "user32.dll", "CreateIconFromResourceEx",
         reinterpret_cast<void*>(
             &KeepImage<g_madeIcons, &::CreateIconFromResourceEx, PBYTE, DWORD, BOOL, DWORD, int, int, UINT>)},
        {"kvWin.dll", "gdi32.dll", "CreateDIBitmap",
         reinterpret_cast<void*>(&KeepImage<g_madeBitmaps, &::CreateDIBitmap, HDC, const BITMAPINFOHEADER*, DWORD,
                                            const void*, const BITMAPINFO*, UINT>)},
    };
    const GuiObjectCounts start = counter.Count();
    std::vector<int> leakingRounds;
    for (int i = 0; i < 1000; ++i) {
        {
            kvBmpButton button(L::textPos(i % 4));
            button.Create("Save\nSaves the file", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 70), &host, kButtonId);
            if (i % 2 == 0)
                button.LoadBitmap(IDB_BMPBUTTON_QUADRANTS, TRUE, kMagenta);
            else
                button.LoadIcon(IDI_BMPBUTTON_QUADRANTS, TRUE);
            button.SetTextFont(&font);
            button.SetToolTip(TRUE);
            button.EnableWindow(i % 3 != 0);
            button.UpdateWindow();
            button.DestroyWindow();
        }
        // Checked each round: handles of deleted objects come back in later ones.
        if (std::any_of(g_madeIcons.begin(), g_madeIcons.end(), IconExists) ||
            std::any_of(g_madeBitmaps.begin(), g_madeBitmaps.end(), BitmapExists))
            leakingRounds.push_back(i);
        g_madeIcons.clear();
        g_madeBitmaps.clear();
        if (i % 100 == 0)
            pumpPendingEvents();
    }
    flushEvents();
    EXPECT_EQ(counter.Count(), start);
    EXPECT_EQ(leakingRounds, std::vector<int>{}) << "icons or gray bitmaps left behind";
    for (const ImportPatch& patch : watched)
        EXPECT_TRUE(patch.Active());
}

}  // namespace
