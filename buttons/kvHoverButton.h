// kvHoverButton: an owner-drawn push button with four looks, one for each of
// its states (normal, hovering, disabled, pushed): text and background colour,
// bitmap with mask, and frame. Preset looks make it a standard button, a flat
// button framed only under the mouse, or a hyperlink. It tracks the mouse with
// the capture and sends its own click, sizes itself to its content, and takes
// part in validation on focus loss like kvButton.
#pragma once

#include "afx/CButton.h"
#include "buttons/kvDibPixels.h"
#include "buttons/kvHoverLook.h"
#include "formatting/_kvPendingCtrl.h"
#include "library/kvWinExport.h"

class CBitmap;
class CDC;
class CFont;

class KVWIN_API kvHoverButton : public CButton {
public:
    // Mask bits of the per-state setters.
    enum HoverStates : unsigned long {
        HoverNormal = 1ul << kvHoverNormal,
        HoverHovering = 1ul << kvHoverHovering,
        HoverDisabled = 1ul << kvHoverDisabled,
        HoverPushed = 1ul << kvHoverPushed,
        HoverAllStates = HoverNormal | HoverHovering | HoverDisabled | HoverPushed,
    };
    // Colour values beside the ordinary ones: the system colour (button face,
    // button text), and for a background no fill at all (for text: the default).
    static constexpr unsigned long HoverColorDefault = kvHoverColorDefault;
    static constexpr unsigned long HoverColorNone = kvHoverColorNone;

    enum FrameStyles { FrameNone = 0, FrameStandard = 1, FrameThin = 2 };
    enum GrayBitmapTypes { GrayPlain = kvGrayPlain, GrayLight = kvGrayLight, GrayEmbossed = kvGrayEmbossed };

    kvHoverButton();
    ~kvHoverButton() override;

    void PreSubclassWindow() override;
    BOOL DestroyWindow() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    // Creates the button with its parent's font.
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

    void SetTextUnderline(bool underline);
    void SetAllowHotkey(bool allow);
    // A button that refuses the focus never takes it, by click or by Tab.
    void SetAllowFocus(bool allow);
    void SetShowHandPointer(bool show);
    void SetOffsetPushed(bool offset);

    // Each sets the value of the states whose HoverStates bits are in mask.
    void SetTextColor(unsigned long mask, unsigned long color);
    void SetBackgroundColor(unsigned long mask, unsigned long color);
    void SetDrawButtonFrame(unsigned long mask, FrameStyles style);
    // The bitmaps stay the caller's.
    void SetBitmap(unsigned long mask, CBitmap* pBitmap, CBitmap* pMask);

    void SetStandardButtonLook();
    // Flat: a thin frame only while hovered or pushed.
    void SetStandardHoverLook();
    // Underlined text on the parent's background, the hand pointer and the
    // highlight colour under the mouse.
    void SetStandardHyperlinkLook();

    CSize GetFitButtonSize();
    void SizeToContent();

    // Validates the pending control; false when it was invalid and has the
    // focus again, so the button's action must not go ahead.
    bool ValidatePendingCtrl();
    CWnd* GetPendingCtrl() const;

    // A copy of source, grayed by type, except the pixels of the transparent colour.
    static bool BuildGrayBitmap(CBitmap* pSource, CBitmap* pResult, unsigned long transparent, GrayBitmapTypes type);
    // White where source has the transparent colour, black elsewhere.
    static bool BuildMaskBitmap(CBitmap* pSource, CBitmap* pResult, unsigned long transparent);

protected:
    virtual void DrawNormal(CDC* pDC, CRect& rect);
    virtual void DrawHovering(CDC* pDC, CRect& rect);
    virtual void DrawDisabled(CDC* pDC, CRect& rect);
    virtual void DrawPushed(CDC* pDC, CRect& rect);
    virtual void DrawText(CDC* pDC, CRect rect, bool pushed);
    // Centred; nothing without a bitmap.
    virtual void DrawBitmap(CDC* pDC, CRect& rect, CBitmap* pBitmap, CBitmap* pMask);
    virtual void DrawButtonFrame(CDC* pDC, CRect& rect, FrameStyles style, bool pushed);
    virtual void DrawFocusRect(CDC* pDC, CRect rect);
    virtual void ToggleFocusRect(CDC* pDC, CRect rect);

    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg UINT OnGetDlgCode();

    DECLARE_MESSAGE_MAP()

private:
    void _DrawState(CDC* pDC, CRect& rect, kvHoverState state);
    void _FillBackground(CDC* pDC, const CRect& rect, kvHoverState state) const;
    // The font text is drawn and measured with: the window's, or its
    // underlined copy (created into underlined) when underline is on.
    CFont* _TextFont(CFont& underlined) const;
    UINT _TextFormat() const;
    void _InvalidateIfCreated();
    // A background of none somewhere: repaints go through the parent.
    bool _ShowsParent() const;
    void _Repaint();

    _kvPendingCtrl m_PendingCtrl;
    bool m_bTextUnderline = false;
    bool m_bAllowFocus = true;
    bool m_bAllowHotkey = true;
    bool m_bShowHandPointer = false;
    bool m_bOffsetPushed = true;
    bool m_bHovering = false;
    bool m_bButtonDown = false;
    COLORREF m_TextColors[kvHoverStateCount] = {};
    COLORREF m_BackgroundColors[kvHoverStateCount] = {};
    CBitmap* m_pBitmaps[kvHoverStateCount] = {};
    CBitmap* m_pMasks[kvHoverStateCount] = {};
    FrameStyles m_FrameStyles[kvHoverStateCount] = {};
};
