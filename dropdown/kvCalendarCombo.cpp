// kvCalendarCombo: creation with the calendar and its glyph, and the date
// formatter's part in typing, keys, focus and verification.
#include "dropdown/kvCalendarCombo.h"

#include "afx/AfxExtension.h"
#include "dropdown/_kvCalendarComboPopup.h"
#include "formatting/kvDateEditFormatter.h"
#include "formatting/kvMessages.h"
#include "library/kvLibraryModule.h"
#include "library/resource.h"

namespace {

constexpr COLORREF kGlyphBackground = RGB(192, 192, 192);
constexpr int kButtonWidth = 18;

}  // namespace

BEGIN_MESSAGE_MAP(kvCalendarCombo, kvDropEditBase)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
    ON_WM_CHAR()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

// The glyph is the library's own, whatever resources the application has.
kvCalendarCombo::kvCalendarCombo()
{
    SetFormatter(new kvDateEditFormatter(kvDateEditFormatter::DefaultMonthDayYear));
    const HINSTANCE hPrevious = AfxGetResourceHandle();
    AfxSetResourceHandle(kvWin::LibraryModule());
    m_ButtonImage.LoadBitmap(IDB_KVCALENDAR);
    AfxSetResourceHandle(hPrevious);
}

kvCalendarCombo::~kvCalendarCombo() = default;

kvDateEditFormatter& kvCalendarCombo::_Formatter() const
{
    return *static_cast<kvDateEditFormatter*>(GetFormatter());
}

// SubclassDlgItem comes here too, through the base's creation.
BOOL kvCalendarCombo::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects)
{
    m_pCalendar = std::make_unique<_kvCalendarComboPopup>(this);
    if (!m_pCalendar->Create(pParentWnd) || !kvDropEditBase::Create(dwStyle, rect, pParentWnd, nID, dwEffects))
        return FALSE;
    SetBitmap(&m_ButtonImage, kGlyphBackground);
    SetButtonWidth(kButtonWidth);
    SetPopup(m_pCalendar.get());
    return TRUE;
}

void kvCalendarCombo::_ShowDate(const CString& text) { ReplaceText(text); }

void kvCalendarCombo::OnSetFocus(CWnd* pOldWnd)
{
    kvDropEditBase::OnSetFocus(pOldWnd);
    EnterField();
}

void kvCalendarCombo::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (IsReadOnly() || !FormatterKeyDown(nChar, nRepCnt, nFlags))
        kvDropEditBase::OnKeyDown(nChar, nRepCnt, nFlags);
}

// The date formatter's verdict, not the plain drop edit's "always valid".
LRESULT kvCalendarCombo::OnVerify(WPARAM wParam, LPARAM lParam) { return kvEdit::OnVerify(wParam, lParam); }
