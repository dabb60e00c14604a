// The calculator keypad under real input: keys typed and clicked on the key
// rectangles with the display each leaves, in its own edit and in a paired
// one; focus dropping a half-entered operation; the flash of a pressed key
// ending with its timer, and the key under the mouse drawn hot.
#include "ClientPixels.h"
#include "HostDialog.h"
#include "WindowTest.h"

#include "calculator/kvCalculatorCtrl.h"

#include <memory>
#include <string>

namespace {

constexpr UINT kCalculator = 100, kAmount = 10;
const DialogTemplate kForm = DialogTemplate("calculator", WS_POPUP | WS_CAPTION | WS_VISIBLE, 220, 160)
                                 .Add("Edit", kAmount, "", WS_TABSTOP | WS_BORDER | ES_RIGHT, 130, 4, 80, 12);
constexpr char kDelete = '\x7f';

class Keypad : public kvCalculatorCtrl {
public:
    using kvCalculatorCtrl::ButtonRect;
};

// A fresh form and keypad for each row, so that no state carries over.
struct Rig {
    HostDialog form{kForm};
    Keypad keypad;
};

class CalculatorTest : public WindowTest {
protected:
    void Open(bool paired = false, bool showMyEdit = true)
    {
        rig = std::make_unique<Rig>();
        ASSERT_TRUE(rig->form.CreateModeless());
        EXPECT_TRUE(rig->keypad.GetMinReqRect().IsRectEmpty());
        rig->keypad.SetShowMyEdit(showMyEdit);
        ASSERT_TRUE(rig->keypad.Create(WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(8, 8, 130, 180), &rig->form, kCalculator));
        rig->keypad.MoveWindow(CRect(CPoint(8, 8), rig->keypad.GetMinReqRect().Size()));
        if (paired)
            rig->keypad.SetPairedEdit(rig->form.GetDlgItem(kAmount));
        FocusForInput(rig->form, rig->keypad);
    }
    std::string Display(bool paired = false) const
    {
        CString text;
        (paired ? rig->form.GetDlgItem(kAmount) : rig->keypad.GetWindow(GW_CHILD))->GetWindowText(text);
        return text.GetString();
    }
    void Type(const std::string& keys)
    {
        for (char key : keys) {
            if (key == kDelete)
                PressKey(VK_DELETE);
            else
                TypeText(std::string(1, key));
        }
    }
    void Click(const std::string& captions)
    {
        static const std::string kCaptions = "789/456*123-0.\xB1+C\b=";
        for (char caption : captions)
            ClickAt(rig->keypad, rig->keypad.ButtonRect(static_cast<int>(kCaptions.find(caption))).CenterPoint());
    }
    // A point of a key's face clear of its edges and caption.
    COLORREF FaceAt(int button) const
    {
        const CRect rect = rig->keypad.ButtonRect(button);
        return ClientPixels(rig->keypad).At(rect.left + 3, rect.bottom - 3);
    }

    std::unique_ptr<Rig> rig;
};

struct KeyRow { const char* name; const char* keys; bool click; const char* display; };
const KeyRow kKeys[] = {
    {"typed sum with Enter as equals", "12+3\r", false, "15"},
    {"typed chain with separators", "1234*2=", false, "2,468"},
    {"comma typed as the point", "7,5", false, "7.5"},
    {"backspace on a result", "12+3=\b", false, "1"},
    {"backspace ignored with an operator pending", "12+\b", false, "12"},
    {"Delete clears", "99\x7f", false, "0"},
    {"dividing by zero", "8/0=", false, "0"},
    {"clicked sum", "12+3=", true, "15"},
    {"clicked sign and backspace", "56\xB1\b", true, "-5"},
    {"clicked clear", "9C", true, "0"},
};

TEST_F(CalculatorTest, KeysAndClicksInTheOwnEdit)
{
    for (const KeyRow& row : kKeys) {
        SCOPED_TRACE(row.name);
        Open();
        row.click ? Click(row.keys) : Type(row.keys);
        EXPECT_EQ(Display(), row.display);
    }
}

TEST_F(CalculatorTest, PairedEditIsTheDisplay)
{
    Open(true, false);
    EXPECT_FALSE(rig->keypad.GetWindow(GW_CHILD)->IsWindowVisible());
    EXPECT_EQ(rig->keypad.ButtonRect(0).top, 7);
    Type("1234.5*2=");
    EXPECT_EQ(Display(true), "2,469");
    // A double click is two presses.
    Click("C");
    const CPoint seven = rig->keypad.ButtonRect(0).CenterPoint();
    ClickAt(rig->keypad, seven);
    ClickAt(rig->keypad, seven);
    EXPECT_EQ(Display(true), "77");
    // The options rewrite the display from the calculator's own (empty) title.
    rig->keypad.SetParenNegative(true);
    EXPECT_EQ(Display(true), "0");
    rig->keypad.SetWindowText("-1234");
    rig->keypad.SetShowCommas(false);
    EXPECT_EQ(Display(true), "(1234)");
    EXPECT_EQ(Display(), "0");
}

TEST_F(CalculatorTest, FocusDropsAHalfEnteredOperation)
{
    Open();
    Type("12+");
    FocusForInput(rig->form, *rig->form.GetDlgItem(kAmount));
    FocusForInput(rig->form, rig->keypad);
    Type("3=");
    EXPECT_EQ(Display(), "123");
}

TEST_F(CalculatorTest, FlashEndsAndTheKeyUnderTheMouseIsHot)
{
    Open();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    rig->keypad.SendMessage(WM_CHAR, '5');
    EXPECT_EQ(FaceAt(5), RGB(0, 0, 0));
    ::Sleep(150);
    flushEvents();
    EXPECT_EQ(FaceAt(5), face);

    MoveMouseTo(rig->keypad, rig->keypad.ButtonRect(6).CenterPoint());
    EXPECT_EQ(FaceAt(6), shadow);
    EXPECT_EQ(FaceAt(5), face);
    MoveMouseTo(rig->form, CPoint(400, 10));
    EXPECT_EQ(FaceAt(6), face);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(ClientPixels(rig->form).WriteBmp("pictures/calculator.bmp"));
}

}  // namespace
