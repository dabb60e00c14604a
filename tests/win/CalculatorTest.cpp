// The calculator keypad under real input: keys typed and clicked on the key
// rectangles with the display each leaves, in its own edit and in a paired
// one, and focus dropping a half-entered operation; the flash of a pressed
// key ending with its timer, and the key under the mouse drawn hot.
#include "ClientPixels.h"
#include "HostDialog.h"
#include "WindowTest.h"

#include "calculator/kvCalculatorCtrl.h"

#include <string>

namespace {

constexpr UINT kCalculator = 100, kAmount = 10;
const DialogTemplate kForm = DialogTemplate("calculator", WS_POPUP | WS_CAPTION | WS_VISIBLE, 220, 160)
                                 .Add("Edit", kAmount, "", WS_TABSTOP | WS_BORDER | ES_RIGHT, 130, 4, 80, 12);

class Keypad : public kvCalculatorCtrl {
public:
    using kvCalculatorCtrl::ButtonRect;
};

class CalculatorTest : public WindowTest {
protected:
    void Open(bool paired = false, bool showMyEdit = true)
    {
        ASSERT_TRUE(form.CreateModeless());
        EXPECT_TRUE(keypad.GetMinReqRect().IsRectEmpty());
        keypad.SetShowMyEdit(showMyEdit);
        ASSERT_TRUE(keypad.Create(WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(8, 8, 130, 180), &form, kCalculator));
        keypad.MoveWindow(CRect(CPoint(8, 8), keypad.GetMinReqRect().Size()));
        amount.SubclassDlgItem(kAmount, &form);
        if (paired)
            keypad.SetPairedEdit(&amount);
        FocusForInput(form, keypad);
    }
    std::string Display(bool paired = false) const
    {
        CString text;
        (paired ? &amount : keypad.GetWindow(GW_CHILD))->GetWindowText(text);
        return text.GetString();
    }
    void Click(const std::string& captions)
    {
        static const std::string kCaptions = "789/456*123-0.\xB1+C\b=";
        for (char caption : captions)
            ClickAt(keypad, keypad.ButtonRect(static_cast<int>(kCaptions.find(caption))).CenterPoint());
    }
    // A point of a key's face clear of its edges and caption.
    COLORREF FaceAt(int button) const
    {
        const CRect rect = keypad.ButtonRect(button);
        return ClientPixels(keypad).At(rect.left + 3, rect.bottom - 3);
    }

    HostDialog form{kForm};
    CEdit amount;
    Keypad keypad;
};

// Each row starts from Delete, which clears the display and the operator.
struct KeyRow { const char* name; const char* keys; bool click; const char* display; };
const KeyRow kKeys[] = {
    {"typed sum with Enter as equals", "12+3\r", false, "15"},
    {"typed chain with separators, a comma as the point", "1234,5*2=", false, "2,469"},
    {"backspace on a result", "12+3=\b", false, "1"},
    {"clicked sum", "12+3=", true, "15"},
    {"clicked sign and backspace", "56\xB1\b", true, "-5"},
};

TEST_F(CalculatorTest, KeysAndClicksInTheOwnEdit)
{
    Open();
    for (const KeyRow& row : kKeys) {
        SCOPED_TRACE(row.name);
        PressKey(VK_DELETE);
        EXPECT_EQ(Display(), "0");
        row.click ? Click(row.keys) : TypeText(row.keys);
        EXPECT_EQ(Display(), row.display);
    }
}

TEST_F(CalculatorTest, PairedEditIsTheDisplay)
{
    Open(true, false);
    EXPECT_FALSE(keypad.GetWindow(GW_CHILD)->IsWindowVisible());
    EXPECT_EQ(keypad.ButtonRect(0).top, 7);
    TypeText("1234.5*2=");
    EXPECT_EQ(Display(true), "2,469");
    // A double click is two presses.
    Click("C");
    const CPoint seven = keypad.ButtonRect(0).CenterPoint();
    ClickAt(keypad, seven);
    ClickAt(keypad, seven);
    EXPECT_EQ(Display(true), "77");
    // The focus coming back drops the operation half entered.
    TypeText("+");
    FocusForInput(form, amount);
    FocusForInput(form, keypad);
    TypeText("3=");
    EXPECT_EQ(Display(true), "773");
    // The options rewrite the display from the calculator's own (empty) title.
    keypad.SetParenNegative(true);
    EXPECT_EQ(Display(true), "0");
    keypad.SetWindowText("-1234");
    keypad.SetShowCommas(false);
    EXPECT_EQ(Display(true), "(1234)");
    EXPECT_EQ(Display(), "0");
}

TEST_F(CalculatorTest, FlashEndsAndTheKeyUnderTheMouseIsHot)
{
    Open();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    keypad.SendMessage(WM_CHAR, '5');
    EXPECT_EQ(FaceAt(5), RGB(0, 0, 0));
    ::Sleep(150);
    flushEvents();
    EXPECT_EQ(FaceAt(5), face);

    MoveMouseTo(keypad, keypad.ButtonRect(6).CenterPoint());
    EXPECT_EQ(FaceAt(6), shadow);
    EXPECT_EQ(FaceAt(5), face);
    MoveMouseTo(form, CPoint(400, 10));
    EXPECT_EQ(FaceAt(6), face);
    EXPECT_EQ(::GetCapture(), nullptr);
    ::CreateDirectoryA("pictures", nullptr);
    EXPECT_TRUE(ClientPixels(form).WriteBmp("pictures/calculator.bmp"));
}

}  // namespace
