// kvBmpButton: an owner-drawn push button that shows an image (a bitmap or icon
// resource) with its caption above, below, left or right of it. It keeps three
// images in an image list (normal, gray, embossed for disabled), draws a themed
// or classic face, carries an optional tool tip and cursors, can look disabled
// while staying a live window (pseudo-disabled), and takes part in validation
// on focus loss like kvButton. The window text holds the caption, a line feed,
// then the tool-tip text.
#pragma once

#include "afx/CButton.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CPalette.h"
#include "afx/CToolTipCtrl.h"
#include "buttons/kvBmpButtonLayout.h"
#include "formatting/_kvPendingCtrl.h"
#include "library/kvWinExport.h"

class CBitmap;

class KVWIN_API kvBmpButton : public CButton {
public:
    using textPos = kvBmpButtonLayout::textPos;
    static constexpr textPos TextAbove = kvBmpButtonLayout::TextAbove;
    static constexpr textPos TextBelow = kvBmpButtonLayout::TextBelow;
    static constexpr textPos TextLeft = kvBmpButtonLayout::TextLeft;
    static constexpr textPos TextRight = kvBmpButtonLayout::TextRight;

    static constexpr int m_nNormalImageIndex = 0;
    static constexpr int m_nInactiveImageIndex = 1;
    static constexpr int m_nDisabledImageIndex = 2;
    static const CPoint m_ptImageOffset;
    static const CPoint m_ptTextOffset;
    static const CPoint m_ptOuterFocusOffset;
    static const CPoint m_ptInnerFocusOffset;
    static const CPoint m_ptDownOffset;
    // The face colour of disabled images, read again when the system colours change.
    static COLORREF m_defaultButtonColor;

    explicit kvBmpButton(textPos pos);
    ~kvBmpButton() override;

    // The images: normal, gray and embossed. The transparent colour (0xFFFFFFFF:
    // none) masks the bitmap. FALSE when the resource cannot be loaded.
    BOOL LoadBitmap(LPCTSTR lpszResourceName, int bSizeToContent = FALSE, COLORREF crTransparent = 0xFFFFFFFF);
    BOOL LoadBitmap(UINT nIDResource, int bSizeToContent = FALSE, COLORREF crTransparent = 0xFFFFFFFF);
    BOOL LoadIcon(LPCTSTR lpszResourceName, int bSizeToContent = FALSE);
    BOOL LoadIcon(UINT nIDResource, int bSizeToContent = FALSE);
    CPalette* GetPalette() { return &m_palette; }

    // BS_LEFT, BS_RIGHT or centred; BS_TOP, BS_BOTTOM or centred. Kept in the style.
    void SetHorizontalAlignment(DWORD dwAlignment);
    DWORD GetHorizontalAlignment() const;
    void SetVerticalAlignment(DWORD dwAlignment);
    DWORD GetVerticalAlignment() const;

    void SetTextColor(COLORREF crText);
    COLORREF GetTextColor() const { return m_crText; }
    // The button keeps a copy of the font.
    void SetTextFont(CFont* pFont);
    // The caption's font: the one set, else the window's, its parent's or the GUI font.
    CFont* GetTextFont() const;
    void SetText(LPCTSTR lpszText);
    CString GetText() const;
    // Switches the tool tip on when the text is not empty.
    void SetToolTipText(LPCTSTR lpszText);
    CString GetToolTipText() const;
    void SetToolTip(int bOn);
    int GetToolTip() const;
    // A fixed left edge for the caption, in client coordinates; 0 for none.
    void SetTextLeftOffset(long nLeft);

    CSize GetButtonSize() const;
    CSize GetImageSize() const;
    CSize GetTextSize() const;
    virtual void SizeToContent();
    virtual CSize GetFitButtonSize() const;

    // Cursor resources of the application; 0 for none. FALSE when not found.
    BOOL SetDefaultCursor(UINT nIDCursor);
    UINT GetDefaultCursor() const { return m_nDefaultCursor; }
    BOOL SetDisabledCursor(UINT nIDCursor);
    UINT GetDisabledCursor() const { return m_nDisabledCursor; }

    // In pseudo-disable mode the button only looks disabled: the window stays
    // enabled, but takes no clicks or keys and is no tab stop.
    BOOL SetPseudoDisableMode(int bOn);
    int GetPseudoDisableMode() const { return m_bPseudoDisableMode; }
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;

    // Hides and shows the button so that the parent paints what lies beneath.
    void RegrabBackground();
    // Records the button's size on the bitmap resource, which is released again.
    BOOL ResizeBitmap(UINT nIDResource);

    static CString GetSubString(LPCTSTR lpszText, int n, TCHAR chSeparator);
    static CString RemoveAmpersand(LPCTSTR lpszText);

    // Gray and embossed images and palettes of the application's resources.
    static int MakeGray(BITMAPINFOHEADER* pDib, COLORREF crTransparent);
    static int BuildGrayBitmap(LPCTSTR lpszResourceName, COLORREF crTransparent, CBitmap* pResult);
    static int BuildGrayIcon(LPCTSTR lpszResourceName, HICON* phResult);
    static int BuildDisabledImage(HICON hIcon, CSize size, HICON& hResult);
    static int GetImagePalette(BITMAPINFOHEADER* pDib, CPalette& palette);
    static int GetBitmapPalette(LPCTSTR lpszResourceName, CPalette& palette);
    static int GetIconPalette(LPCTSTR lpszResourceName, CPalette& palette);

    // Validation on focus loss, as kvButton.
    bool ValidatePendingCtrl();
    CWnd* GetPendingCtrl() const;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Without borders the face is plain: a flat button.
    virtual BOOL DrawWithoutBorders() const;
    virtual CPalette* SelectPalette(CDC* pDC);
    virtual void DrawButton(CDC* pDC, const CRect& rcFace, UINT nState);
    virtual void DrawImage(CDC* pDC, const CRect& rcImage, UINT nState);
    virtual void DrawText(CDC* pDC, const CRect& rcText, UINT nState);
    virtual void DrawFocusRectangle(CDC* pDC, const CRect& rcFace, UINT nState);
    virtual void RestorePalette(CDC* pDC, CPalette* pOldPalette);

    kvBmpButtonLayout DistributeSpace(UINT nState, const CRect& rect) const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnSysColorChange();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    // The images after the normal one, which the list already holds.
    void AddDerivedImages(HICON hGray, CSize size);
    void SetWindowTextFields(const CString& caption, const CString& toolTip);
    void PassOnWhenEnabled();
    BOOL LoadCursorResource(UINT nIDCursor, UINT& nID, HCURSOR& hCursor);

    textPos m_textPos;
    CImageList m_imageList;
    CPalette m_palette;
    COLORREF m_crText = 0;
    CFont m_textFont;
    CToolTipCtrl m_toolTip;
    UINT m_nDefaultCursor = 0;
    HCURSOR m_hDefaultCursor = nullptr;
    UINT m_nDisabledCursor = 0;
    HCURSOR m_hDisabledCursor = nullptr;
    bool m_bPseudoDisableMode = false;
    bool m_bPseudoEnabled = true;
    bool m_bHadTabStop = false;
    long m_nTextLeftOffset = 0;
    _kvPendingCtrl m_PendingCtrl;
};
