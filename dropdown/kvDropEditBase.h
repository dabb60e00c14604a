// kvDropEditBase: a one-line edit with a drop button inside its right end and a
// pluggable popup below it (a list, a month calendar). Towards its parent it
// behaves like a combo box: it sends the combo-box notification codes. Its
// message map stands on the native edit's, not on kvEdit's: a plain drop edit
// types, pastes and takes text natively; its subclasses add their own editing.
#pragma once

#include "formatting/kvEdit.h"
#include "library/kvWinExport.h"

#include <memory>

class CBitmap;
class _kvDropEditButton;
class kvDropEditPopup;

class KVWIN_API kvDropEditBase : public kvEdit {
public:
    // Special effects, given to Create or set before the window exists.
    enum SpecialEffects : DWORD {
        EffectFlatBordered = 0x1,
        EffectFlatBorderless = 0x2,
        EffectRightAligned = 0x4,
    };
    // The drop button's control id, under the field.
    static constexpr UINT m_ButtonID = 100;

    kvDropEditBase();
    ~kvDropEditBase() override;

    // A WS_BORDER style without a flat effect becomes a sunken client edge.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects);
    // With the effects set before.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    // Takes the place of a dialog's control: its rectangle, its style with a
    // border, and its place in the tab order.
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);

    // Ignored once the window exists; the previous effects either way.
    DWORD SetSpecialEffects(DWORD dwEffects);
    DWORD GetSpecialEffects() const { return m_dwEffects; }
    // The button's image instead of the arrow (the caller keeps it); null: the arrow.
    void SetBitmap(CBitmap* pBitmap, DWORD transparent);
    // The previous popup, which goes back to the caller.
    kvDropEditPopup* SetPopup(kvDropEditPopup* pPopup);
    virtual void ShowPopup(bool show);
    bool GetPopupState() const;
    // Pixels; any negative width is the system's scroll-bar width.
    void SetButtonWidth(int width);
    void SetTextColor(COLORREF crText);
    void SetBkColor(COLORREF crBk);

    virtual void LocateButton();

protected:
    afx_msg virtual void OnEnable(BOOL bEnable);
    afx_msg virtual void OnSize(UINT nType, int cx, int cy);
    afx_msg virtual void OnMove(int x, int y);
    afx_msg virtual void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg virtual void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg virtual void OnSetFocus(CWnd* pOldWnd);
    afx_msg virtual void OnKillFocus(CWnd* pNewWnd);
    afx_msg virtual void OnDropDownClick();
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetReadOnly(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnClosePopup(WPARAM wParam, LPARAM lParam);
    afx_msg void OnChange();
    afx_msg void OnUpdate();

    bool IsReadOnly() const;
    // The style as created, after the effects (WS_BORDER with a flat border).
    DWORD GetCreatedStyle() const { return m_dwStyle; }
    // The F4 and Alt+Up/Down toggle: a popup about to open is announced.
    void TogglePopup();
    int FontHeight();

    DECLARE_MESSAGE_MAP()

private:
    bool _IsFlat() const;
    void _CreateDropButton();

    DWORD m_dwEffects = 0;
    DWORD m_dwStyle = 0;
    std::unique_ptr<_kvDropEditButton> m_pButton;
    kvDropEditPopup* m_pPopup = nullptr;
    int m_nButtonWidth = -1;
};
