// The hover button in a dialog under real input: the states it draws as the
// mouse moves, presses and drags, its own click, the hyperlink, the keyboard,
// the focus, validation, its image copies, pictures of every look and state,
// and no GDI object left behind.
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"
#include "monkey/GuiObjectCounter.h"

#include "afx/CBitmap.h"
#include "buttons/kvHoverButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"
#include "library/resource.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr UINT kAmount = 100, kHover = 200, kOther = 201;
const CRect kRect(10, 100, 130, 130), kSecondRect(10, 140, 130, 170);
const POINT kInside{60, 15}, kOutside{200, 15};  // outside: on the dialog, right of the button
constexpr COLORREF kMagenta = RGB(255, 0, 255);

class HoverButtonTest : public WindowTest {
protected:
    kvHoverButton& Add(FieldForm& form, UINT nID, const char* caption,
                       const std::function<void(kvHoverButton&)>& setUp = {}, const CRect& rect = kRect)
    {
        kvHoverButton& button = *m_buttons.emplace_back(std::make_unique<kvHoverButton>());
        if (setUp)
            setUp(button);
        button.Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, &form.dialog, nID);
        flushEvents();
        return button;
    }

    std::vector<std::unique_ptr<kvHoverButton>> m_buttons;
};

// The BN_CLICKED notifications a dialog receives from now on.
struct Clicks {
    explicit Clicks(HWND hDialog) { recorder.Watch(hDialog, "dialog"); }
    long Count() const
    {
        return std::count_if(log.Entries().begin(), log.Entries().end(),
                             [](const LoggedMessage& m) { return HIWORD(m.wParam) == BN_CLICKED; });
    }
    MessageLog log;
    MessageRecorder recorder{log, {WM_COMMAND}};
};

const COLORREF kBackgrounds[kvHoverStateCount] = {RGB(250, 240, 200), RGB(200, 240, 250), RGB(220, 220, 220),
                                                  RGB(160, 200, 160)};

TEST_F(HoverButtonTest, MouseScriptsDrawTheStatesAndClickOnlyOnAReleaseInside)
{
    // A step a letter: 'i' into the button, 'o' out of it, 'd' left button down,
    // 'u' up; after each, the state drawn (Normal, Hovering, Pushed) and whether
    // the button holds the capture.
    const std::tuple<const char*, const char*, const char*, const char*, long> rows[] = {
        {"a click inside", "idu", "HPH", "yyy", 1},
        {"released outside", "idou", "HPNN", "yyyn", 0},
        {"dragged off and back", "idoiu", "HPNPH", "yyyyy", 1},
        {"passing over", "io", "HN", "yn", 0},
    };
    // The thin frame's top left: light when hovered, dark when pushed.
    const COLORREF frames[kvHoverStateCount] = {kBackgrounds[0], ::GetSysColor(COLOR_3DHILIGHT), kBackgrounds[2],
                                                ::GetSysColor(COLOR_BTNSHADOW)};
    for (const bool allowFocus : {true, false}) {
        for (const auto& [name, script, drawn, captured, clicks] : rows) {
            SCOPED_TRACE(std::string(name) + (allowFocus ? "" : ", refusing the focus"));
            FieldForm form(status.MainWindow());
            kvHoverButton& button = Add(form, kHover, "Go", [&](kvHoverButton& b) {
                b.SetStandardHoverLook();
                for (int state = 0; state < kvHoverStateCount; ++state)
                    b.SetBackgroundColor(1ul << state, kBackgrounds[state]);
                b.SetAllowFocus(allowFocus);
            });
            MoveMouseTo(button, kOutside);
            const Clicks clicked(form.dialog);
            for (int i = 0; script[i] != '\0'; ++i) {
                if (script[i] == 'i' || script[i] == 'o')
                    MoveMouseTo(button, script[i] == 'i' ? kInside : kOutside);
                else
                    PressLeftButton(script[i] == 'd');
                const int state = std::string("NH.P").find(drawn[i]);
                const ClientPixels pixels(button);
                EXPECT_EQ(pixels.At(8, 8), kBackgrounds[state]) << "background after step " << i;
                EXPECT_EQ(pixels.At(0, 0), frames[state]) << "frame after step " << i;
                EXPECT_EQ(::GetCapture() == button.m_hWnd, captured[i] == 'y') << "capture after step " << i;
            }
            EXPECT_EQ(clicked.Count(), clicks);
            EXPECT_TRUE(allowFocus || ::GetFocus() != button.m_hWnd) << "a refused focus is not taken by a click";
        }
    }
}

// The longest run of pixels unlike the background in one row, and the colour
// of the last such pixel.
std::pair<int, COLORREF> InkOf(HWND hWnd, COLORREF background)
{
    const ClientPixels pixels(hWnd);
    std::pair<int, COLORREF> ink{0, CLR_INVALID};
    for (int y = 0; y < pixels.Height(); ++y) {
        for (int x = 0, run = 0; x < pixels.Width(); ++x) {
            run = pixels.At(x, y) != background ? run + 1 : 0;
            ink.first = std::max(ink.first, run);
            ink.second = run > 0 ? pixels.At(x, y) : ink.second;
        }
    }
    return ink;
}

TEST_F(HoverButtonTest, HyperlinkIsUnderlinedHighlightedAndShowsTheLibrarysHand)
{
    FieldForm form(status.MainWindow());
    kvHoverButton& link = Add(form, kHover, "m m m m", [](kvHoverButton& b) { b.SetStandardHyperlinkLook(); });
    kvHoverButton& standard = Add(form, kOther, "Go", {}, kSecondRect);
    const COLORREF parent = ClientPixels(form.dialog).At(5, 95);
    EXPECT_EQ(InkOf(link, parent).first, link.GetFitButtonSize().cx - 2) << "one line under the whole caption";
    EXPECT_EQ(InkOf(link, parent).second, ::GetSysColor(COLOR_BTNTEXT));
    MoveMouseTo(link, kInside);
    EXPECT_EQ(InkOf(link, parent).second, ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(ClientPixels(link).At(0, 0), parent) << "no background of its own";
    MoveMouseTo(link, kOutside);

    const HCURSOR hHand = ::LoadCursorA(::GetModuleHandleA("kvWin.dll"), MAKEINTRESOURCE(IDC_KVHAND));
    const std::tuple<const char*, CWnd*, bool, UINT, bool> rows[] = {
        {"the hyperlink's hand", &link, true, HTCLIENT, true},
        {"only over the client area", &link, true, HTBORDER, false},
        {"none for a standard button", &standard, true, HTCLIENT, false},
        {"none for a disabled hyperlink", &link, false, HTCLIENT, false},
    };
    for (const auto& [name, button, enabled, hitTest, hand] : rows) {
        button->EnableWindow(enabled);
        ::SetCursor(::LoadCursorA(nullptr, IDC_ARROW));
        button->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(button->m_hWnd), MAKELPARAM(hitTest, WM_MOUSEMOVE));
        EXPECT_EQ(::GetCursor() == hHand, hand) << name;
    }
}

TEST_F(HoverButtonTest, KeysClickAndTabPassesOverAButtonRefusingTheFocus)
{
    // The mnemonic is Alt+G and Tab is pressed in the field, Space on the button.
    const std::tuple<const char*, bool, bool, WORD, long> rows[] = {
        {"Space", true, true, VK_SPACE, 1},
        {"the mnemonic", true, true, 'G', 1},
        {"no mnemonic when hotkeys are off", false, true, 'G', 0},
        {"Tab, the focus refused after creation", true, false, VK_TAB, 0},
    };
    for (const auto& [name, hotkey, allowFocus, key, clicks] : rows) {
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(kAmount, nullptr, "1");
        kvHoverButton& button = Add(form, kHover, "&Go", [&](kvHoverButton& b) { b.SetAllowHotkey(hotkey); });
        button.SetAllowFocus(allowFocus);
        FocusForInput(form.dialog, key == VK_SPACE ? static_cast<CWnd&>(button) : field);
        const Clicks clicked(form.dialog);
        PressKey(key, false, false, key == 'G');
        EXPECT_EQ(clicked.Count(), clicks) << name;
        EXPECT_TRUE(allowFocus || ::GetFocus() == field.m_hWnd) << name;
    }
}

TEST_F(HoverButtonTest, ValidatesTheFieldItWasClickedFrom)
{
    using NF = kvNumEditFormatter;
    // Pending: the field's check is left to the button's action.
    const std::tuple<const char*, UINT, bool> rows[] = {
        {"a plain button lets the dialog check the field", kOther, false},
        {"Cancel keeps the field pending", IDCANCEL, true},
    };
    for (const auto& [name, id, pending] : rows) {
        SCOPED_TRACE(name);
        status.messages.clear();
        FieldForm form(status.MainWindow());
        kvEdit& amount = form.AddField(kAmount, new NF(3, 2, NF::Separators), "12,345");
        kvHoverButton& button = Add(form, id, "Go");
        FocusForInput(form.dialog, amount);
        ClickAt(button, kInside);
        EXPECT_EQ(::GetFocus(), pending ? button.m_hWnd : amount.m_hWnd);
        EXPECT_EQ(status.messages.size(), pending ? 0u : 1u);
        EXPECT_EQ(button.ValidatePendingCtrl(), !pending);
        flushEvents();
        EXPECT_EQ(::GetFocus(), amount.m_hWnd);
        EXPECT_EQ(status.messages.size(), 1u);
    }
}

// Pictures, top row first: '#' dark (gray 35), '.' light (gray 204), 'T'
// transparent; read back also 'S' shadow, 'H' highlight, 'a' gray 35, 'b' gray
// 204, 'W' white, 'K' black.
COLORREF ColourOf(char code)
{
    const COLORREF colours[] = {RGB(20, 40, 60),  RGB(220, 200, 180),  kMagenta, ::GetSysColor(COLOR_BTNSHADOW),
                                ::GetSysColor(COLOR_3DHILIGHT), RGB(35, 35, 35), RGB(204, 204, 204),
                                RGB(255, 255, 255), RGB(0, 0, 0)};
    return colours[std::string("#.TSHabWK").find(code)];
}

// A device-dependent bitmap, as LoadBitmap makes them.
void MakeBitmap(CBitmap& bitmap, const std::vector<std::string>& picture)
{
    std::vector<DWORD> bits;
    for (const std::string& row : picture) {
        for (const char code : row)
            bits.push_back(RGB(GetBValue(ColourOf(code)), GetGValue(ColourOf(code)),
                               GetRValue(ColourOf(code))));  // 0x00RRGGBB
    }
    bitmap.CreateBitmap(static_cast<int>(picture[0].size()), static_cast<int>(picture.size()), 1, 32, bits.data());
}

TEST_F(HoverButtonTest, ImageCopiesReadBackPixelByPixel)
{
    const int kMask = -1;  // in place of a GrayBitmapTypes
    const std::tuple<const char*, int, std::vector<std::string>> rows[] = {
        {"plain", kvHoverButton::GrayPlain, {"abTa", "bbab", "Tbbb"}},
        {"embossed", kvHoverButton::GrayEmbossed, {"STTS", "THST", "TTTH"}},
        {"mask", kMask, {"KKWK", "KKKK", "WKKK"}},
    };
    CBitmap source;
    MakeBitmap(source, {"#.T#", "..#.", "T..."});
    const HDC hDC = ::CreateCompatibleDC(nullptr);
    for (const auto& [name, type, expected] : rows) {
        CBitmap copy;
        ASSERT_TRUE(type == kMask ? kvHoverButton::BuildMaskBitmap(&source, &copy, kMagenta)
                                  : kvHoverButton::BuildGrayBitmap(&source, &copy, kMagenta,
                                                                   static_cast<kvHoverButton::GrayBitmapTypes>(type)));
        const HGDIOBJ hOld = ::SelectObject(hDC, copy.GetSafeHandle());
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(::GetPixel(hDC, i % 4, i / 4), ColourOf(expected[i / 4][i % 4])) << name << ", pixel " << i;
        ::SelectObject(hDC, hOld);
    }
    ::DeleteDC(hDC);
}

TEST_F(HoverButtonTest, PicturesOfEveryLookInEveryStateAndNoGdiObjectLeftBehind)
{
    ::CreateDirectoryA("pictures", nullptr);
    // A 16 by 16 diamond, dark with a light middle, on magenta; its mask and its
    // light gray copy for the disabled state.
    std::vector<std::string> diamond(16, std::string(16, 'T'));
    for (int i = 0; i < 256; ++i) {
        const int distance = std::abs(2 * (i % 16) - 15) + std::abs(2 * (i / 16) - 15);
        diamond[i / 16][i % 16] = distance < 8 ? '.' : distance < 16 ? '#' : 'T';
    }
    CBitmap image, mask, gray, grayMask;
    MakeBitmap(image, diamond);
    kvHoverButton::BuildMaskBitmap(&image, &mask, kMagenta);
    kvHoverButton::BuildGrayBitmap(&image, &gray, kMagenta, kvHoverButton::GrayLight);
    kvHoverButton::BuildMaskBitmap(&gray, &grayMask, kMagenta);
    const std::tuple<std::string, const char*, std::function<void(kvHoverButton&)>> looks[] = {
        {"standard", "&Save", [](kvHoverButton& b) { b.SetStandardButtonLook(); }},
        {"flat", "&Print", [](kvHoverButton& b) { b.SetStandardHoverLook(); }},
        {"hyperlink", "www.example.com", [](kvHoverButton& b) { b.SetStandardHyperlinkLook(); }},
        {"image", "", [&](kvHoverButton& b) {
             b.SetStandardHoverLook();
             b.SetBitmap(kvHoverButton::HoverAllStates, &image, &mask);
             b.SetBitmap(kvHoverButton::HoverDisabled, &gray, &grayMask);
         }},
    };
    for (const auto& [look, caption, setUp] : looks) {
        FieldForm form(status.MainWindow());
        CWnd& field = form.AddField(kAmount, nullptr);
        kvHoverButton& button = Add(form, kHover, caption, setUp);
        // Each state entered from the one before.
        const std::pair<std::string, std::function<void()>> states[] = {
            {"normal", [&] { MoveMouseTo(button, kOutside); }},
            {"hovering", [&] { MoveMouseTo(button, kInside); }},
            {"pushed", [&] { PressLeftButton(true); }},
            {"focused", [&] { MoveMouseTo(button, kOutside), PressLeftButton(false), button.SetFocus(); }},
            {"disabled", [&] { field.SetFocus(), button.EnableWindow(FALSE); }},
        };
        for (const auto& [state, enter] : states) {
            enter();
            flushEvents();
            const ClientPixels pixels(button);
            EXPECT_TRUE(pixels.WriteBmp("pictures/hover-" + look + "-" + state + ".bmp"));
            if (look == "image" && state == "normal") {  // the corner of the image, its middle and its edge
                EXPECT_EQ(std::make_tuple(pixels.At(52, 7), pixels.At(59, 14), pixels.At(53, 14)),
                          std::make_tuple(pixels.At(2, 2), ColourOf('.'), ColourOf('#')));
            }
        }
    }

    // A thousand buttons, each with an underlined caption, a bitmap and a frame.
    FieldForm form(status.MainWindow());
    GuiObjectCounter counter;
    const GuiObjectCounts before = counter.Count();
    for (int i = 0; i < 1000; ++i) {
        kvHoverButton button;
        button.SetStandardHyperlinkLook();
        button.SetBitmap(kvHoverButton::HoverAllStates, &image, &mask);
        button.SetDrawButtonFrame(kvHoverButton::HoverAllStates, kvHoverButton::FrameThin);
        button.Create("&Link", WS_CHILD | WS_VISIBLE, kRect, &form.dialog, kHover);
        button.SetFocus();
        button.SizeToContent();
        button.UpdateWindow();
        button.DestroyWindow();
    }
    flushEvents();
    EXPECT_EQ(counter.Count().libraryGdi, before.libraryGdi);
}

}  // namespace
