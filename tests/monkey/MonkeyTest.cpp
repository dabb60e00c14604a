// The monkey test: reproducible random keys, clicks, pastes and focus moves over the
// gallery's customer form. Nothing may crash; an invalid field may never lose
// the focus to a window that validates it; and once the form is gone the
// process holds the GDI and USER objects it held before.
//
// KVWIN_MONKEY_RUN (which random sequence) and KVWIN_MONKEY_EVENTS replay or lengthen a run.
#include "GuiObjectCounter.h"

#include "win/ModalWatchdog.h"
#include "win/RealInput.h"
#include "text/StatusRecorder.h"

#include "afx/CFrameWnd.h"
#include "afx/CWinThread.h"
#include "formatting/kvEdit.h"
#include "gallery/CustomerForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

unsigned EnvironmentNumber(const char* name, unsigned fallback)
{
    const char* value = std::getenv(name);
    return value != nullptr ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : fallback;
}

// Keys a person types into such a form: data, separators, editing keys.
const char kTypedCharacters[] = "0123456789012345678.,-()/: aZx";
const WORD kEditingKeys[] = {VK_BACK, VK_DELETE, VK_INSERT, VK_HOME, VK_END, VK_LEFT, VK_RIGHT};

// What a paste brings: valid values of every field, values out of range and junk.
const char* const kClipboardTexts[] = {
    "a", "b", "x", "Ada", "1,234.56", "2500000", "-0", "(12.5)", "12345678901234567890", "12/31/1999",
    "02/30/2020", "9:30", "25:61", "123-45-6789", "12-3", "\xE9t\xE9 \xA3 5", "", "  ", "1..5", "0.005",
};

kvEdit* FieldOf(HWND hWnd)
{
    return dynamic_cast<kvEdit*>(CWnd::FromHandlePermanent(hWnd));
}

bool HoldsValidText(kvEdit& field)
{
    CString text;
    field.GetWindowText(text);
    return field.GetFormatter()->IsValid(text, nullptr);
}

// The gallery's form in a frame of its own, as the gallery shows it.
class FormWindow {
public:
    FormWindow() : m_pFrame(new CFrameWnd)
    {
        m_pFrame->Create(nullptr, "monkey", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 420, 360));
        m_form.Create(m_pFrame);
        // The frame's view: the form covers all of it.
        m_form.SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        m_form.ShowWindow(SW_SHOW);
        m_pFrame->RecalcLayout();
        FocusForInput(m_pFrame->m_hWnd, m_form.GetNextDlgTabItem(nullptr)->m_hWnd);
    }
    ~FormWindow() { m_pFrame->DestroyWindow(); }

    CustomerForm& Form() { return m_form; }

private:
    CFrameWnd* m_pFrame;  // deletes itself when destroyed
    CustomerForm m_form;
};

class Monkey {
public:
    Monkey(CustomerForm& form, unsigned run) : m_form(form), m_random(run) {}

    // One random event; false when it let an invalid field lose the focus.
    bool Act()
    {
        HWND hBefore = ::GetFocus();
        kvEdit* pField = FieldOf(hBefore);
        m_last = RandomEvent();
        pumpPendingEvents();
        HWND hAfter = ::GetFocus();
        return pField == nullptr || hAfter == hBefore || !Validates(hAfter) || HoldsValidText(*pField);
    }

    const std::string& LastEvent() const { return m_last; }

private:
    std::string RandomEvent()
    {
        const unsigned kind = Pick(100);
        if (kind < 45)
            return TypeCharacter();
        if (kind < 60)
            return PressEditingKey();
        if (kind < 72)
            return MoveFocus();
        if (kind < 87)
            return Click();
        if (kind < 95)
            return Paste();
        return ClipboardCommand();
    }

    std::string TypeCharacter()
    {
        const char ch = kTypedCharacters[Pick(sizeof kTypedCharacters - 1)];
        const SHORT scan = ::VkKeyScanA(ch);
        QueueKey(LOBYTE(scan), (HIBYTE(scan) & 1) != 0, false);
        return std::string("type ") + ch;
    }

    std::string PressEditingKey()
    {
        const WORD vk = kEditingKeys[Pick(std::size(kEditingKeys))];
        QueueKey(vk, Pick(4) == 0, false);
        return "key " + std::to_string(vk);
    }

    // Tab and Shift+Tab mostly; Enter saves the form, Escape discards it.
    std::string MoveFocus()
    {
        const WORD keys[] = {VK_TAB, VK_TAB, VK_TAB, VK_RETURN, VK_ESCAPE};
        const WORD vk = keys[Pick(std::size(keys))];
        const bool shift = vk == VK_TAB && Pick(2) == 0;
        QueueKey(vk, shift, false);
        return "focus key " + std::to_string(vk) + (shift ? " with shift" : "");
    }

    // Half the clicks land on a control, the others anywhere on the form. All
    // stay a pixel inside: a click on the frame's edge would reach the bare
    // display, which takes the keyboard from the application without a check.
    std::string Click()
    {
        CRect area;
        CWnd* pTarget = &m_form;
        if (Pick(2) == 0) {
            std::vector<HWND> controls;
            for (HWND h = ::GetWindow(m_form.m_hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
                controls.push_back(h);
            pTarget = CWnd::FromHandle(controls[Pick(controls.size())]);
        }
        pTarget->GetClientRect(&area);
        area.DeflateRect(1, 1);
        const POINT point{area.left + static_cast<LONG>(Pick(std::max(area.Width(), 1))),
                          area.top + static_cast<LONG>(Pick(std::max(area.Height(), 1)))};
        QueueClickAt(pTarget->m_hWnd, point);
        return "click";
    }

    std::string Paste()
    {
        const char* text = kClipboardTexts[Pick(std::size(kClipboardTexts))];
        SetClipboardText(text);
        QueueKey('V', false, true);
        return std::string("paste \"") + text + "\"";
    }

    std::string ClipboardCommand()
    {
        const char keys[] = {'X', 'C', 'A'};
        const char key = keys[Pick(std::size(keys))];
        QueueKey(key, false, true);
        return std::string("control+") + key;
    }

    // Every window of the form but Cancel checks a field the focus leaves.
    bool Validates(HWND hWnd) const
    {
        return hWnd != nullptr && ::IsChild(m_form.m_hWnd, hWnd) && ::GetDlgCtrlID(hWnd) != IDCANCEL;
    }

    unsigned Pick(size_t count) { return std::uniform_int_distribution<unsigned>(0, count - 1)(m_random); }

    CustomerForm& m_form;
    std::mt19937 m_random;
    std::string m_last;
};

TEST(Monkey, RandomInputOverTheCustomerForm)
{
    const unsigned run = EnvironmentNumber("KVWIN_MONKEY_RUN", 20261122);
    const unsigned events = EnvironmentNumber("KVWIN_MONKEY_EVENTS", 20000);
    StatusRecorder status;
    ModalWatchdog watchdog(600000);
    GuiObjectCounter counter;
    const GuiObjectCounts start = counter.Count();
    {
        FormWindow window;
        Monkey monkey(window.Form(), run);
        for (unsigned i = 0; i < events; ++i) {
            ASSERT_TRUE(monkey.Act()) << "event " << i << " (" << monkey.LastEvent()
                                      << ") let an invalid field lose the focus; run " << run;
            if (i % 500 == 0)
                flushEvents();
        }
    }
    flushEvents();
    EXPECT_FALSE(status.messages.empty()) << "no field ever refused anything: the input did not arrive";
    EXPECT_EQ(counter.Count(), start);
    EXPECT_FALSE(watchdog.Fired());
}

}  // namespace
