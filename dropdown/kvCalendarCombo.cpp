// kvCalendarCombo: creation with the calendar and its glyph.
#include "dropdown/kvCalendarCombo.h"

#include "afx/AfxExtension.h"
#include "dropdown/_kvCalendarComboPopup.h"
#include "formatting/kvDateEditFormatter.h"
#include "library/kvLibraryModule.h"
#include "library/resource.h"

namespace {

constexpr COLORREF kGlyphBackground = RGB(192, 192, 192);
constexpr int kButtonWidth = 18;

}  // namespace

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
    if (!m_pCalendar->Create(pParentWnd) || !kvFormattedDropEdit::Create(dwStyle, rect, pParentWnd, nID, dwEffects))
        return FALSE;
    SetBitmap(&m_ButtonImage, kGlyphBackground);
    SetButtonWidth(kButtonWidth);
    SetPopup(m_pCalendar.get());
    return TRUE;
}

void kvCalendarCombo::_ShowDate(const CString& text) { ReplaceText(text); }
