#include "FieldHarness.h"

#include "buttons/kvButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"


const UINT WM_TEST_REGISTER_SUPER_TARGET = ::RegisterWindowMessageA("kvWin test: register super target");

BEGIN_MESSAGE_MAP(FieldDialog, HostDialog)
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
    ON_REGISTERED_MESSAGE(WM_TEST_REGISTER_SUPER_TARGET, OnRegisterSuperTarget)
    ON_CONTROL_RANGE(EN_CHANGE, 0, 0xFFFF, OnFieldChange)
END_MESSAGE_MAP()

LRESULT FieldDialog::OnChildKillFocus(WPARAM wParam, LPARAM lParam)
{
    return m_validator.OnChildKillFocus(this, forward, wParam, lParam);
}

LRESULT FieldDialog::OnRegisterSuperTarget(WPARAM wParam, LPARAM lParam)
{
    return m_validator.OnRegisterSuperTarget(wParam, lParam);
}

void FieldDialog::OnFieldChange(UINT nID) { changes.Add("dialog", WM_COMMAND, nID); }

// ---- the form ----

FieldForm::FieldForm(CWnd* pParentWnd)
    : m_template("fields", WS_POPUP | WS_CAPTION | WS_SYSMENU, 200, 140), dialog(m_template)
{
    dialog.CreateModeless(pParentWnd);
}

FieldForm::~FieldForm()
{
    dialog.DestroyWindow();
    flushEvents();
}

RECT FieldForm::_NextRect(int height)
{
    const RECT rect{10, m_nextTop, 200, m_nextTop + height};
    m_nextTop += height + 6;
    return rect;
}

kvEdit& FieldForm::AddField(UINT nID, kvEditFormatter* pFormatter, const char* text, int start, int end,
                            DWORD style)
{
    auto* pField = new kvEdit;
    m_controls.emplace_back(pField);
    pField->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | style, _NextRect(22),
                   &dialog, nID);
    pField->SetWindowText(text);
    pField->SetSel(start, end);
    pField->SetFormatter(pFormatter);
    dialog.changes.Clear();
    return *pField;
}

kvButton& FieldForm::AddButton(UINT nID, const char* caption)
{
    auto* pButton = new kvButton;
    m_controls.emplace_back(pButton);
    pButton->Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, _NextRect(24), &dialog, nID);
    return *pButton;
}

bool RefuseBFormatter::DoChar(CString&, unsigned long&, bool, unsigned int key, unsigned int, unsigned int) const
{
    if (key != 'b')
        return true;
    kvShowStatusMessage("b is not allowed.");
    kvBeep(0);
    return false;
}

std::string TextOf(const CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    return text.GetString();
}

std::vector<std::string> MessagesOf(const char* message)
{
    return *message != '\0' ? std::vector<std::string>{message} : std::vector<std::string>{};
}

std::pair<int, int> SelOf(const CWnd& edit)
{
    DWORD start = 0, end = 0;
    edit.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
}

void SendChars(CWnd& wnd, const std::string& chars)
{
    for (const char ch : chars)
        wnd.SendMessage(WM_CHAR, static_cast<unsigned char>(ch), 1);
}

// ---- beeps ----

namespace {

int g_beeps = 0;

BOOL WINAPI RecordBeep(UINT)
{
    ++g_beeps;
    return TRUE;
}

}  // namespace

BeepRecorder::BeepRecorder()
    : m_patch("kvWin.dll", "user32.dll", "MessageBeep", reinterpret_cast<void*>(&RecordBeep))
{
    g_beeps = 0;
}

// -1 tells a test that beeps could not be counted.
int BeepRecorder::Count() const { return m_patch.Active() ? g_beeps : -1; }
