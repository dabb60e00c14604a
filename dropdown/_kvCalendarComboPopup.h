// _kvCalendarComboPopup: the calendar combo's popup, a month calendar that
// holds the mouse capture while open, writes its dates into the field and
// closes on a picked day, Escape, F4, Enter, Tab, Alt+Up/Down, a click outside
// and a focus lost outside.
#pragma once

#include "afx/CWnd.h"
#include "dropdown/kvDropEditPopup.h"

class kvCalendarCombo;

class _kvCalendarComboPopup : public CWnd, public kvDropEditPopup {
public:
    explicit _kvCalendarComboPopup(kvCalendarCombo* pField) : m_pField(pField) {}

    // The hidden calendar, owned by the field's parent.
    bool Create(CWnd* pParent);

    void Show(CRect field, const CString& text) override;
    void Hide() override;
    int IsVisible() override;

protected:
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSelChange(NMHDR* pNotifyStruct, LRESULT* pResult);
    afx_msg void OnSelect(NMHDR* pNotifyStruct, LRESULT* pResult);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);

    DECLARE_MESSAGE_MAP()

private:
    void _ShowDate(const SYSTEMTIME& date);
    void _Close();
    void _CloseOnClickOutside(CPoint point);

    kvCalendarCombo* m_pField;
    bool m_bClosing = false;
};
