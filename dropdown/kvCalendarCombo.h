// kvCalendarCombo: a date field whose typing is a date formatter's and whose
// popup is a month calendar. Opening shows the field's date (or today's, which
// is then written into the field); browsing writes each date at once; picking a
// day closes the popup.
#pragma once

#include "afx/CBitmap.h"
#include "dropdown/kvFormattedDropEdit.h"
#include "library/kvWinExport.h"

#include <memory>

class _kvCalendarComboPopup;
class kvDateEditFormatter;

class KVWIN_API kvCalendarCombo : public kvFormattedDropEdit {
public:
    kvCalendarCombo();
    ~kvCalendarCombo() override;

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects) override;
    using kvFormattedDropEdit::Create;

private:
    friend class _kvCalendarComboPopup;

    kvDateEditFormatter& _Formatter() const;
    // Text the calendar chose, as the user's change.
    void _ShowDate(const CString& text);

    std::unique_ptr<_kvCalendarComboPopup> m_pCalendar;
    CBitmap m_ButtonImage;
};
