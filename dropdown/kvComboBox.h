// kvComboBox: the native combo box with the library's colours and menus; its
// edit part is a kvEdit, and typed text is completed from the items.
#pragma once

#include "afx/CComboBox.h"
#include "formatting/_kvControlColors.h"
#include "library/kvWinExport.h"

#include <memory>

class kvEdit;

class KVWIN_API kvComboBox : public CComboBox {
public:
    kvComboBox();
    ~kvComboBox() override;

    // A drop-down combo's edit part becomes the kvEdit, in the system font;
    // the other kinds take the parent's font.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    // A combo from a dialog template: its edit part becomes the kvEdit.
    void PreSubclassWindow() override;
    // Deleting never completes again.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // A drop-down list has no edit part: its kvEdit has no window.
    kvEdit* GetEditControl() const { return m_pEdit.get(); }
    bool IsDropDownList() const { return (GetStyle() & 3) > CBS_DROPDOWN; }
    void SetTextColor(COLORREF crText);
    void SetBkColor(COLORREF crBk);

protected:
    afx_msg void OnEditUpdate();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

private:
    void _AttachEdit();
    bool _HasEditWindow() const;

    _kvControlColors m_Colors;
    bool m_bEditSubclassed = false;
    bool m_bCompleteOnUpdate = true;
    std::unique_ptr<kvEdit> m_pEdit;
};
