// The bitmap button in real windows: each arrangement drawn where the layout
// puts image and caption, the pressed offset under a real press, the enabled,
// disabled and pseudo-disabled states with their looks, input and cursors, the
// tool tip, validation, the derived images read back, and no GDI objects left
// behind. Pictures of them go to pictures/ in the working directory.
#include "BmpButtonTestResource.h"
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "WindowTest.h"
#include "monkey/GuiObjectCounter.h"

#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CClientDC.h"
#include "buttons/kvBmpButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"
#include "library/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using L = kvBmpButtonLayout;

constexpr COLORREF kMagenta = RGB(255, 0, 255), kGreen = RGB(0, 255, 0), kCaption = RGB(0, 0, 160);

void Save(const ClientPixels& pixels, const std::string& name)
{
    ::CreateDirectoryA("pictures", nullptr);
    pixels.WriteBmp("pictures/bmpbutton-" + name + ".bmp");
}

// How many pixels of an area are of the kind asked.
template <typename Which>
int Count(const ClientPixels& pixels, const CRect& area, Which which)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x)
            count += which(pixels.At(x, y), CPoint(x, y));
    }
    return count;
}

// A window in front that hosts the buttons and logs their clicks.
struct ButtonHost : CWnd {
    ButtonHost(int width, int height)
    {
        CreateEx(0, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), HBRUSH(COLOR_BTNFACE + 1)), "host",
                 WS_POPUP | WS_VISIBLE | WS_BORDER, 30, 30, width, height, nullptr, nullptr);
        ::SetForegroundWindow(m_hWnd);
    }
    std::vector<UINT> clicks;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) == BN_CLICKED)
            clicks.push_back(LOWORD(wParam));
        return CWnd::OnCommand(wParam, lParam);
    }
};

std::unique_ptr<kvBmpButton> MakeButton(CWnd& host, L::textPos pos, DWORD style, const CRect& rect)
{
    auto button = std::make_unique<kvBmpButton>(pos);
    button->Create("Save", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, rect, &host, 100);
    button->SetTextColor(kCaption);
    button->LoadBitmap(IDB_BMPBUTTON_QUADRANTS, FALSE, kMagenta);
    return button;
}

// The layout of the button's own sizes, with alignments 0 near, 1 centred, 2 far.
L LayoutOf(const kvBmpButton& button, L::textPos pos, int h, int v, bool pressed)
{
    return L::Distribute(CRect(CPoint(0, 0), button.GetButtonSize()), button.GetTextSize(), button.GetImageSize(), pos,
                         L::Alignment(h), L::Alignment(v), pressed);
}

// The bitmap's red and blue quadrants in the image rectangle, its transparent
// border showing the face (themed or classic), the caption in its rectangle,
// and nothing else drawn inside the frame (or the focus rectangle: margin 5).
void ExpectDrawnAsLaidOut(const ClientPixels& pixels, const L& layout, int margin)
{
    const CRect &image = layout.image, &text = layout.caption;
    const COLORREF face = pixels.At(image.left, image.top);
    EXPECT_NE(face, kMagenta) << "the transparent border";
    EXPECT_EQ(pixels.At(image.left + 3, image.top + 3), RGB(255, 0, 0));
    EXPECT_EQ(pixels.At(image.left + 12, image.top + 3), RGB(0, 0, 255));
    EXPECT_GT(Count(pixels, text, [](COLORREF c, CPoint) { return c == kCaption; }), 10);
    const auto stray = [&](COLORREF c, CPoint p) { return c != face && !image.PtInRect(p) && !text.PtInRect(p); };
    EXPECT_EQ(Count(pixels, CRect(margin, margin, pixels.Width() - margin, pixels.Height() - margin), stray), 0)
        << "nothing drawn outside image and caption";
}

const DWORD kHorizontal[] = {BS_LEFT, 0, BS_RIGHT}, kVertical[] = {BS_TOP, 0, BS_BOTTOM};
const char* const kPositions[] = {"above", "below", "left", "right"}, *const kAlignments[] = {"near", "centre", "far"};

TEST_F(WindowTest, BmpButtonDrawsEachArrangementAsLaidOut)
{
    constexpr int kWidth = 96, kHeight = 60, kGap = 4;
    ButtonHost host(9 * (kWidth + kGap) + kGap, 4 * (kHeight + kGap) + kGap);
    std::vector<std::unique_ptr<kvBmpButton>> buttons;
    for (int i = 0; i < 36; ++i) {  // a row per caption position, three columns per vertical alignment
        const CPoint at(kGap + i % 9 * (kWidth + kGap), kGap + i / 9 * (kHeight + kGap));
        buttons.push_back(MakeButton(host, L::textPos(i / 9), kHorizontal[i % 3] | kVertical[i % 9 / 3],
                                     CRect(at, CSize(kWidth, kHeight))));
    }
    flushEvents();
    Save(ClientPixels(host), "arrangements");
    for (int i = 0; i < 36; ++i) {
        SCOPED_TRACE(std::string("caption ") + kPositions[i / 9] + ", horizontal " + kAlignments[i % 3] +
                     ", vertical " + kAlignments[i % 9 / 3]);
        const L layout = LayoutOf(*buttons[i], L::textPos(i / 9), i % 3, i % 9 / 3, false);
        ExpectDrawnAsLaidOut(ClientPixels(*buttons[i]), layout, 3);
    }
}

// Each button is disabled first, then enabled as the row says; the default
// cursor is the hand.
const struct {
    const char* name;  // also the pictures'
    bool pseudoMode, enable, leaveMode;
    UINT disabledCursor;
    bool reallyEnabled, tabStop, takesInput;
    UINT cursor;  // 0: the arrow
} kStates[] = {
    {"enabled-again", false, true, false, IDC_BMPBUTTON_CROSS, true, true, true, IDC_KVHAND},
    {"disabled", false, false, false, IDC_BMPBUTTON_CROSS, false, true, false, 0},
    {"pseudo-disabled", true, false, false, IDC_BMPBUTTON_CROSS, true, false, false, IDC_BMPBUTTON_CROSS},
    {"pseudo-disabled-without-disabled-cursor", true, false, false, 0, true, false, false, 0},
    {"pseudo-enabled-again", true, true, false, IDC_BMPBUTTON_CROSS, true, true, true, IDC_KVHAND},
    {"pseudo-mode-left-while-disabled", true, false, true, IDC_BMPBUTTON_CROSS, false, true, false, 0},
};

HCURSOR CursorOf(UINT id)
{
    return id == 0 ? ::LoadCursor(nullptr, IDC_ARROW)
                   : ::LoadCursor(AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_GROUP_CURSOR), MAKEINTRESOURCE(id));
}

TEST_F(WindowTest, BmpButtonStatesLookTakeInputAndShowCursors)
{
    ButtonHost host(200, 100);
    std::vector<ClientPixels> disabledLooks;
    for (const auto& row : kStates) {
        SCOPED_TRACE(row.name);
        auto button = MakeButton(host, L::TextBelow, 0, CRect(10, 10, 130, 70));
        ASSERT_TRUE(button->SetDefaultCursor(IDC_KVHAND) && button->SetDisabledCursor(row.disabledCursor));
        button->SetPseudoDisableMode(row.pseudoMode);
        button->EnableWindow(FALSE);
        button->EnableWindow(row.enable);
        if (row.leaveMode)
            button->SetPseudoDisableMode(FALSE);
        flushEvents();
        const ClientPixels pixels(*button);
        Save(pixels, row.name);
        const L layout = LayoutOf(*button, L::TextBelow, 1, 1, false);
        EXPECT_EQ(::IsWindowEnabled(*button) != FALSE, row.reallyEnabled);
        EXPECT_EQ((button->GetStyle() & WS_TABSTOP) != 0, row.tabStop);
        const auto coloured = [](COLORREF c, CPoint) { return c == kCaption || c == RGB(255, 0, 0); };
        EXPECT_EQ(Count(pixels, layout.face, coloured) != 0, row.takesInput) << "caption and image colours if enabled";
        if (!row.takesInput) {
            const auto shadow = [](COLORREF c, CPoint) { return c == ::GetSysColor(COLOR_BTNSHADOW); };
            EXPECT_GT(Count(pixels, layout.image, shadow), 20) << "the image embossed";
            disabledLooks.push_back(pixels);
            EXPECT_EQ(Count(pixels, CRect(0, 0, pixels.Width(), pixels.Height()),
                            [&](COLORREF c, CPoint p) { return c != disabledLooks.front().At(p.x, p.y); }),
                      0) << "every disabled look alike";
        }
        MoveMouseTo(host, CPoint(180, 90));
        MoveMouseTo(*button, CPoint(30, 25));
        EXPECT_EQ(::GetCursor(), CursorOf(row.cursor));
        PressLeftButton(true);
        const ClientPixels down(*button);
        Save(down, std::string(row.name) + "-pressed");
        PressLeftButton(false);
        if (row.takesInput)  // image and caption one pixel down and right, inside the focus rectangle
            ExpectDrawnAsLaidOut(down, LayoutOf(*button, L::TextBelow, 1, 1, true), 5);
        button->SetFocus();
        PressKey(VK_SPACE);
        EXPECT_EQ(host.clicks.size(), row.takesInput ? 2u : 0u) << "a press of the mouse and one of the space bar";
        EXPECT_EQ(button->GetState() & BST_PUSHED, 0u) << "no press half-done";
        host.clicks.clear();
    }
}

// The text the tool tip of hWndTop's windows holds for the button; "(none)"
// without a tool tip.
std::string ToolTipText(HWND hWndTop, const CWnd& button)
{
    HWND hTip = nullptr;
    do
        hTip = ::FindWindowExA(nullptr, hTip, TOOLTIPS_CLASSA, nullptr);
    while (hTip != nullptr && ::GetAncestor(::GetWindow(hTip, GW_OWNER), GA_ROOT) != hWndTop);
    char text[80] = "(none)";
    TOOLINFOA info{};
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    info.hwnd = ::GetParent(button);
    info.uId = reinterpret_cast<UINT_PTR>(button.m_hWnd);
    info.lpszText = text;
    if (hTip != nullptr)
        ::SendMessageA(hTip, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&info));
    return text;
}

TEST_F(WindowTest, BmpButtonToolTipIsTheSecondFieldOfTheText)
{
    ButtonHost host(200, 100);
    auto button = MakeButton(host, L::TextRight, 0, CRect(10, 10, 130, 60));
    EXPECT_EQ(ToolTipText(host, *button), "(none)");
    button->SetToolTipText("Saves the file");
    EXPECT_EQ(TextOf(*button), "Save\nSaves the file");
    EXPECT_EQ(ToolTipText(host, *button), "Saves the file");
    button->SetWindowText("Print\nPrints the file");
    EXPECT_EQ(ToolTipText(host, *button), "Prints the file");
    button->SetToolTip(FALSE);
    EXPECT_EQ(ToolTipText(host, *button), "(none)");
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
    ASSERT_EQ(cancel.GetPendingCtrl(), &amount);
    EXPECT_TRUE(status.messages.empty()) << "Cancel validates nothing by itself";
    EXPECT_FALSE(cancel.ValidatePendingCtrl());
    flushEvents();
    EXPECT_EQ(::GetFocus(), amount.m_hWnd);
    EXPECT_EQ(status.messages.size(), 1u);
    EXPECT_EQ(cancel.GetPendingCtrl(), nullptr);
}

COLORREF Quadrants(int x, int y, int tl, int tr, int bl, int br)  // four grays
{
    const int level = y < 8 ? (x < 8 ? tl : tr) : (x < 8 ? bl : br);
    return RGB(level, level, level);
}
bool InIcon(int x, int y) { return x >= 2 && x <= 13 && y >= 2 && y <= 13; }
bool DarkInIcon(int x, int y) { return InIcon(x, y) && (y < 8 || x < 8); }  // all but the white quadrant

// The derived images of the test resources side by side over green, pixel by pixel.
const struct {
    const char* name;
    COLORREF (*at)(int x, int y);
} kDerived[] = {
    {"gray bitmap: red, blue, yellow, cyan to 128, 0, 255, 192 in its transparent border",
     [](int x, int y) { return x % 15 == 0 || y % 15 == 0 ? kMagenta : Quadrants(x, y, 128, 0, 255, 192); }},
    {"gray icon: red, navy, black, white to 128, 0, 0, 255, green through its mask",
     [](int x, int y) { return !InIcon(x, y) ? kGreen : Quadrants(x, y, 128, 0, 0, 255); }},
    {"embossed icon: dark parts in shadow with a highlight below right, light ones the face",
     [](int x, int y) {
         return !InIcon(x, y) ? kGreen : DarkInIcon(x, y) ? ::GetSysColor(COLOR_3DSHADOW)
              : DarkInIcon(x - 1, y - 1) ? ::GetSysColor(COLOR_3DHILIGHT) : kvBmpButton::m_defaultButtonColor;
     }},
};

TEST_F(WindowTest, ImageGrayDerivedImagesPixelByPixel)
{
    CBitmap grayBitmap, notGrayed;
    HICON hGray = nullptr, hEmbossed = nullptr;
    const auto hIcon = static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_BMPBUTTON_QUADRANTS), IMAGE_ICON, 0, 0, 0));
    ASSERT_TRUE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS), kMagenta, &grayBitmap));
    ASSERT_TRUE(kvBmpButton::BuildGrayIcon(MAKEINTRESOURCE(IDI_BMPBUTTON_QUADRANTS), &hGray));
    ASSERT_TRUE(kvBmpButton::BuildDisabledImage(hIcon, CSize(16, 16), hEmbossed) && hEmbossed != nullptr);
    EXPECT_FALSE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_TRUECOLOUR), kMagenta, &notGrayed));
    ButtonHost canvas(50, 18);  // a client area of 48 x 16 inside the border
    flushEvents();
    CClientDC dc(&canvas);
    dc.FillSolidRect(0, 0, 48, 16, kGreen);
    dc.DrawState(CPoint(0, 0), CSize(16, 16), HBITMAP(grayBitmap.GetSafeHandle()), DST_BITMAP);
    dc.DrawState(CPoint(16, 0), CSize(16, 16), hGray, DST_ICON);
    dc.DrawState(CPoint(32, 0), CSize(16, 16), hEmbossed, DST_ICON);
    const ClientPixels pixels(canvas);
    Save(pixels, "derived-images");
    for (HICON h : {hIcon, hGray, hEmbossed})
        ::DestroyIcon(h);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Count(pixels, CRect(16 * i, 0, 16 * i + 16, 16),
                        [&](COLORREF c, CPoint p) { return c != kDerived[i].at(p.x - 16 * i, p.y); }),
                  0) << kDerived[i].name;
    }
}

// Icons and gray bitmaps the library made in a round, which the object counter
// does not watch: each must be gone once its button is.
std::vector<HANDLE> g_made;

// A replacement of Create's type that keeps what Create makes.
template <auto Create, typename R, typename... Args>
void* Keeping(R(WINAPI*)(Args...))
{
    return reinterpret_cast<void*>(+[](Args... args) {
        const R handle = Create(args...);
        g_made.push_back(handle);
        return handle;
    });
}

bool Exists(HANDLE handle)
{
    ICONINFO info{};  // a leak found leaks the copies made here too
    return ::GetObjectType(handle) == OBJ_BITMAP || ::GetIconInfo(static_cast<HICON>(handle), &info);
}

// Without the modal watchdog: there is no modal loop, and a thousand tool tip
// windows take longer than its time.
TEST(BmpButtonGdi, AThousandButtonsLeaveNoObjectsBehind)
{
    ButtonHost host(200, 100);
    CFont font;
    font.CreatePointFont(100, "Arial");
    GuiObjectCounter counter;
    const ImportPatch watched[] = {
        {"kvWin.dll", "user32.dll", "LoadImageA", Keeping<&::LoadImageA>(&::LoadImageA)},
        {"kvWin.dll", "user32.dll", "CreateIconIndirect", Keeping<&::CreateIconIndirect>(&::CreateIconIndirect)},
        {"kvWin.dll", "user32.dll", "CreateIconFromResourceEx",
         Keeping<&::CreateIconFromResourceEx>(&::CreateIconFromResourceEx)},
        {"kvWin.dll", "gdi32.dll", "CreateDIBitmap", Keeping<&::CreateDIBitmap>(&::CreateDIBitmap)},
    };
    const GuiObjectCounts start = counter.Count();
    int leakingRounds = 0;
    for (int i = 0; i < 1000; ++i) {
        {
            kvBmpButton button(L::textPos(i % 4));
            button.Create("Save\nSaves the file", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 70), &host, 100);
            i % 2 == 0 ? button.LoadBitmap(IDB_BMPBUTTON_QUADRANTS, TRUE, kMagenta)
                       : button.LoadIcon(IDI_BMPBUTTON_QUADRANTS, TRUE);
            button.SetTextFont(&font);
            button.SetToolTip(TRUE);
            button.EnableWindow(i % 3 != 0);
            button.UpdateWindow();
            button.DestroyWindow();
        }
        // Checked each round: handles of deleted objects come back in later ones.
        leakingRounds += std::any_of(g_made.begin(), g_made.end(), Exists);
        g_made.clear();
        if (i % 100 == 0)
            pumpPendingEvents();
    }
    flushEvents();
    EXPECT_EQ(counter.Count(), start);
    EXPECT_EQ(leakingRounds, 0) << "rounds leaving icons or gray bitmaps behind";
    EXPECT_TRUE(std::all_of(std::begin(watched), std::end(watched), [](auto& patch) { return patch.Active(); }));
}

}  // namespace
