// kvHoverButton: the per-state looks and their drawing, mouse tracking with
// its own click, the fit size, the image helpers, and the button's part in
// validation, which the pending control carries.
#include "buttons/kvHoverButton.h"

#include "buttons/kvCreateButton.h"
#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CPen.h"
#include "formatting/kvMessages.h"
#include "library/resource.h"
#include "menus/kvCtrlContextMenu.h"
#include "menus/kvShowContextMenu.h"

#include <algorithm>
#include <iterator>

namespace {

kvHoverSystemColors SystemColors()
{
    return {::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_3DHILIGHT),
            ::GetSysColor(COLOR_BTNSHADOW)};
}

// The library's own hand pointer; the system keeps cursors loaded from resources.
HCURSOR HandCursor()
{
    LPCTSTR name = MAKEINTRESOURCE(IDC_KVHAND);
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

// The image helpers' result has the source's dimensions and format.
bool CreateLike(CBitmap* pSource, CBitmap* pResult, BITMAP& bm)
{
    if (pSource == nullptr || pResult == nullptr || pSource->GetSafeHandle() == nullptr ||
        pSource->GetBitmap(&bm) == 0)
        return false;
    return pResult->CreateBitmap(bm.bmWidth, bm.bmHeight, bm.bmPlanes, bm.bmBitsPixel, nullptr) != FALSE;
}

BITMAPINFO BottomUp24(const kvDibPixels& pixels)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = pixels.Width();
    info.bmiHeader.biHeight = pixels.Height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

void ReadPixels(CBitmap* pSource, kvDibPixels& pixels)
{
    CClientDC screen(nullptr);
    BITMAPINFO info = BottomUp24(pixels);
    ::GetDIBits(screen, *pSource, 0, static_cast<UINT>(pixels.Height()), pixels.Bits(), &info, DIB_RGB_COLORS);
}

void WritePixels(CBitmap* pResult, kvDibPixels& pixels)
{
    CClientDC screen(nullptr);
    const BITMAPINFO info = BottomUp24(pixels);
    ::SetDIBits(screen, *pResult, 0, static_cast<UINT>(pixels.Height()), pixels.Bits(), &info, DIB_RGB_COLORS);
}

CSize SizeOf(CBitmap* pBitmap)
{
    BITMAP bm{};
    pBitmap->GetBitmap(&bm);
    return CSize(bm.bmWidth, bm.bmHeight);
}

}  // namespace

BEGIN_MESSAGE_MAP(kvHoverButton, CButton)
    ON_WM_CONTEXTMENU()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_ERASEBKGND()
    ON_WM_CAPTURECHANGED()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

kvHoverButton::kvHoverButton() { SetStandardButtonLook(); }

kvHoverButton::~kvHoverButton() = default;

// ---- creation ----

void kvHoverButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(WS_BORDER | (m_bAllowFocus ? 0 : WS_TABSTOP), BS_OWNERDRAW);
    ModifyStyleEx(0, WS_EX_TRANSPARENT);
}

BOOL kvHoverButton::DestroyWindow()
{
    m_PendingCtrl.Clear();
    return CButton::DestroyWindow();
}

BOOL kvHoverButton::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= BS_OWNERDRAW;
    cs.style &= ~WS_BORDER;
    if (!m_bAllowFocus)
        cs.style &= ~WS_TABSTOP;
    cs.dwExStyle |= WS_EX_TRANSPARENT;
    return CButton::PreCreateWindow(cs);
}

BOOL kvHoverButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return kvCreateButton(*this, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

// ---- settings ----

void kvHoverButton::_InvalidateIfCreated()
{
    if (::IsWindow(m_hWnd))
        Invalidate(FALSE);
}

void kvHoverButton::SetTextUnderline(bool underline)
{
    if (m_bTextUnderline == underline)
        return;
    m_bTextUnderline = underline;
    _InvalidateIfCreated();
}

void kvHoverButton::SetAllowHotkey(bool allow)
{
    if (m_bAllowHotkey == allow)
        return;
    m_bAllowHotkey = allow;
    _InvalidateIfCreated();
}

void kvHoverButton::SetAllowFocus(bool allow)
{
    const bool refused = m_bAllowFocus && !allow;
    m_bAllowFocus = allow;
    if (refused && ::IsWindow(m_hWnd))
        ModifyStyle(WS_TABSTOP, 0);
}

void kvHoverButton::SetShowHandPointer(bool show) { m_bShowHandPointer = show; }

void kvHoverButton::SetOffsetPushed(bool offset) { m_bOffsetPushed = offset; }

void kvHoverButton::SetTextColor(unsigned long mask, unsigned long color)
{
    kvSetHoverStates(m_TextColors, mask, static_cast<COLORREF>(color));
    _InvalidateIfCreated();
}

void kvHoverButton::SetBackgroundColor(unsigned long mask, unsigned long color)
{
    kvSetHoverStates(m_BackgroundColors, mask, static_cast<COLORREF>(color));
    _InvalidateIfCreated();
}

void kvHoverButton::SetDrawButtonFrame(unsigned long mask, FrameStyles style)
{
    kvSetHoverStates(m_FrameStyles, mask, style);
    _InvalidateIfCreated();
}

void kvHoverButton::SetBitmap(unsigned long mask, CBitmap* pBitmap, CBitmap* pMask)
{
    kvSetHoverStates(m_pBitmaps, mask, pBitmap);
    kvSetHoverStates(m_pMasks, mask, pMask);
    _InvalidateIfCreated();
}

void kvHoverButton::SetStandardButtonLook()
{
    SetTextUnderline(false);
    SetAllowFocus(true);
    SetAllowHotkey(true);
    SetShowHandPointer(false);
    SetOffsetPushed(true);
    SetTextColor(HoverAllStates, HoverColorDefault);
    SetBackgroundColor(HoverAllStates, HoverColorDefault);
    SetDrawButtonFrame(HoverAllStates, FrameStandard);
}

void kvHoverButton::SetStandardHoverLook()
{
    SetStandardButtonLook();
    SetDrawButtonFrame(HoverNormal | HoverDisabled, FrameNone);
    SetDrawButtonFrame(HoverHovering | HoverPushed, FrameThin);
}

void kvHoverButton::SetStandardHyperlinkLook()
{
    SetTextUnderline(true);
    SetAllowFocus(true);
    SetAllowHotkey(false);
    SetShowHandPointer(true);
    SetOffsetPushed(false);
    SetTextColor(HoverAllStates, HoverColorDefault);
    SetTextColor(HoverHovering, ::GetSysColor(COLOR_HIGHLIGHT));
    SetBackgroundColor(HoverAllStates, HoverColorNone);
    SetDrawButtonFrame(HoverAllStates, FrameNone);
}

// ---- size ----

CSize kvHoverButton::GetFitButtonSize()
{
    CString caption;
    GetWindowText(caption);
    CClientDC dc(this);
    CFont underlined;
    CFont* pOldFont = dc.SelectObject(_TextFont(underlined));
    const CSize text = dc.GetTextExtent(kvHoverMeasuredCaption(caption, m_bAllowHotkey));
    dc.SelectObject(pOldFont);

    CSize bitmaps[kvHoverStateCount];
    int count = 0;
    for (CBitmap* pBitmap : m_pBitmaps) {
        if (pBitmap != nullptr)
            bitmaps[count++] = SizeOf(pBitmap);
    }
    return kvHoverFitSize(text, bitmaps, count);
}

void kvHoverButton::SizeToContent()
{
    const CSize size = GetFitButtonSize();
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
    Invalidate();
}

// ---- validation ----

CWnd* kvHoverButton::GetPendingCtrl() const { return m_PendingCtrl.Get(); }

bool kvHoverButton::ValidatePendingCtrl() { return m_PendingCtrl.Validate(this); }

// The dialog's validator sends this when the focus comes here from a field.
LRESULT kvHoverButton::OnChildKillFocus(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnChildKillFocus(wParam); }

void kvHoverButton::OnKillFocus(CWnd* pNewWnd)
{
    CButton::OnKillFocus(pNewWnd);
    // The focus rectangle leaves no trace on a background of none only when
    // the parent paints under it again.
    if (_ShowsParent())
        _Repaint();
    m_PendingCtrl.OnKillFocus(this, pNewWnd);
}

LRESULT kvHoverButton::OnVerify(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnVerify(wParam); }

void kvHoverButton::OnContextMenu(CWnd*, CPoint point) { kvShowContextMenu<kvCtrlContextMenu>(this, point); }

// ---- mouse and keyboard ----

bool kvHoverButton::_ShowsParent() const
{
    return std::find(std::begin(m_BackgroundColors), std::end(m_BackgroundColors), kvHoverColorNone) !=
           std::end(m_BackgroundColors);
}

void kvHoverButton::_Repaint()
{
    CWnd* pParent = GetParent();
    if (pParent == nullptr || !_ShowsParent()) {
        Invalidate(TRUE);
        return;
    }
    // Nothing fills a background of none: the parent paints it again first, or
    // the smoothed edges of the previous state's text would show under the new.
    CRect rect;
    GetWindowRect(rect);
    pParent->ScreenToClient(rect);
    pParent->RedrawWindow(rect, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

BOOL kvHoverButton::OnSetCursor(CWnd*, UINT nHitTest, UINT)
{
    if (nHitTest == HTCLIENT && IsWindowEnabled() && m_bShowHandPointer) {
        if (const HCURSOR hHand = HandCursor())
            ::SetCursor(hHand);
    }
    return FALSE;
}

void kvHoverButton::OnMouseMove(UINT nFlags, CPoint point)
{
    CRect client;
    GetClientRect(client);
    const bool inside = client.PtInRect(point) != FALSE;
    if (::GetCapture() == m_hWnd) {
        if (!inside && m_bHovering) {
            m_bHovering = false;
            // While dragging the capture stays, so that a release outside is seen.
            if (m_bButtonDown)
                _Repaint();
            else
                ::ReleaseCapture();
        } else if (inside && !m_bHovering) {
            m_bHovering = true;
            _Repaint();
        }
    } else if (inside) {
        m_bButtonDown = false;
        SetCapture();
        m_bHovering = true;
        _Repaint();
    }
    CButton::OnMouseMove(nFlags, point);
}

void kvHoverButton::OnLButtonDown(UINT nFlags, CPoint point)
{
    // The native handling gives the button the focus.
    if (m_bAllowFocus)
        CButton::OnLButtonDown(nFlags, point);
    m_bButtonDown = true;
    m_bHovering = true;
    _Repaint();
}

void kvHoverButton::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (m_bButtonDown && m_bHovering) {
        if (CWnd* pParent = GetParent())
            pParent->PostMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID() & 0xFFFF, BN_CLICKED),
                                 reinterpret_cast<LPARAM>(m_hWnd));
        // The native button, pressed by the default handling of the button
        // going down, would report this click a second time.
        SetState(FALSE);
    }
    m_bButtonDown = false;
    if (m_bHovering)
        _Repaint();
    else if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    CButton::OnLButtonUp(nFlags, point);
}

void kvHoverButton::OnCaptureChanged(CWnd* pWnd)
{
    if (pWnd != this) {
        m_bHovering = false;
        m_bButtonDown = false;
        _Repaint();
    }
    CButton::OnCaptureChanged(pWnd);
}

// The states paint every pixel they want; a "none" background shows the parent.
BOOL kvHoverButton::OnEraseBkgnd(CDC*) { return TRUE; }

UINT kvHoverButton::OnGetDlgCode()
{
    // As a static, the caption's "&" is no mnemonic to the dialog manager.
    return m_bAllowHotkey ? CButton::OnGetDlgCode() : DLGC_STATIC;
}

// ---- drawing ----

void kvHoverButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    const UINT state = lpDrawItemStruct->itemState;
    if ((lpDrawItemStruct->itemAction & ODA_DRAWENTIRE) != 0) {
        const bool enabled = (state & ODS_DISABLED) == 0;
        switch (kvHoverDrawnState(enabled, m_bButtonDown, m_bHovering)) {
        case kvHoverNormal:
            DrawNormal(pDC, rect);
            break;
        case kvHoverHovering:
            DrawHovering(pDC, rect);
            break;
        case kvHoverDisabled:
            DrawDisabled(pDC, rect);
            return;
        case kvHoverPushed:
            DrawPushed(pDC, rect);
            break;
        }
        if ((state & ODS_FOCUS) != 0 && m_bAllowFocus)
            DrawFocusRect(pDC, CRect(lpDrawItemStruct->rcItem));
    } else if ((lpDrawItemStruct->itemAction & ODA_FOCUS) != 0 && m_bAllowFocus) {
        ToggleFocusRect(pDC, rect);
    }
}

void kvHoverButton::DrawNormal(CDC* pDC, CRect& rect) { _DrawState(pDC, rect, kvHoverNormal); }

void kvHoverButton::DrawHovering(CDC* pDC, CRect& rect) { _DrawState(pDC, rect, kvHoverHovering); }

void kvHoverButton::DrawDisabled(CDC* pDC, CRect& rect) { _DrawState(pDC, rect, kvHoverDisabled); }

void kvHoverButton::DrawPushed(CDC* pDC, CRect& rect)
{
    _FillBackground(pDC, rect, kvHoverPushed);
    DrawButtonFrame(pDC, rect, m_FrameStyles[kvHoverPushed], true);
    CRect imageRect = rect;
    if (m_bOffsetPushed)
        imageRect.OffsetRect(1, 1);
    DrawBitmap(pDC, imageRect, m_pBitmaps[kvHoverPushed], m_pMasks[kvHoverPushed]);
    DrawText(pDC, rect, m_bOffsetPushed);
}

void kvHoverButton::_DrawState(CDC* pDC, CRect& rect, kvHoverState state)
{
    _FillBackground(pDC, rect, state);
    DrawButtonFrame(pDC, rect, m_FrameStyles[state], false);
    DrawBitmap(pDC, rect, m_pBitmaps[state], m_pMasks[state]);
    DrawText(pDC, rect, false);
}

void kvHoverButton::_FillBackground(CDC* pDC, const CRect& rect, kvHoverState state) const
{
    COLORREF fill = 0;
    if (kvHoverBackground(m_BackgroundColors[state], SystemColors(), fill))
        pDC->FillSolidRect(rect, fill);
}

void kvHoverButton::DrawButtonFrame(CDC* pDC, CRect& rect, FrameStyles style, bool pushed)
{
    if (style == FrameStandard) {
        pDC->DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pushed ? DFCS_PUSHED : 0));
        return;
    }
    if (style != FrameThin)
        return;
    CPen highlight(PS_SOLID, 1, ::GetSysColor(COLOR_3DHILIGHT));
    CPen shadow(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
    CPen* pTopLeft = pushed ? &shadow : &highlight;
    CPen* pBottomRight = pushed ? &highlight : &shadow;
    CPen* pOldPen = pDC->SelectObject(pTopLeft);
    pDC->MoveTo(rect.left, rect.bottom);
    pDC->LineTo(rect.left, rect.top);
    pDC->LineTo(rect.right - 1, rect.top);
    pDC->SelectObject(pBottomRight);
    pDC->LineTo(rect.right - 1, rect.bottom - 1);
    pDC->LineTo(rect.left - 1, rect.bottom - 1);
    pDC->SelectObject(pOldPen);
}

void kvHoverButton::DrawBitmap(CDC* pDC, CRect& rect, CBitmap* pBitmap, CBitmap* pMask)
{
    if (pBitmap == nullptr)
        return;
    const CSize size = SizeOf(pBitmap);
    CImageList images;
    if (!images.Create(size.cx, size.cy, ILC_COLORDDB | (pMask != nullptr ? ILC_MASK : 0), 1, 0))
        return;
    images.Add(pBitmap, pMask);
    if (pMask != nullptr)
        images.SetBkColor(CLR_NONE);
    const CPoint topLeft(rect.left + (rect.Width() - size.cx) / 2, rect.top + (rect.Height() - size.cy) / 2);
    images.Draw(pDC, 0, topLeft, ILD_NORMAL);
}

CFont* kvHoverButton::_TextFont(CFont& underlined) const
{
    CFont* pFont = GetFont();
    if (pFont == nullptr)
        pFont = CFont::FromHandle(static_cast<HFONT>(::GetStockObject(SYSTEM_FONT)));
    if (!m_bTextUnderline)
        return pFont;
    LOGFONT logFont{};
    pFont->GetLogFont(&logFont);
    logFont.lfUnderline = TRUE;
    return underlined.CreateFontIndirect(&logFont) ? &underlined : pFont;
}

UINT kvHoverButton::_TextFormat() const
{
    UINT format = DT_SINGLELINE | (m_bAllowHotkey ? 0 : DT_NOPREFIX);
    const DWORD style = GetStyle();
    switch (style & BS_CENTER) {
    case BS_LEFT:
        format |= DT_LEFT;
        break;
    case BS_RIGHT:
        format |= DT_RIGHT;
        break;
    default:
        format |= DT_CENTER;
    }
    switch (style & BS_VCENTER) {
    case BS_TOP:
        format |= DT_TOP;
        break;
    case BS_BOTTOM:
        format |= DT_BOTTOM;
        break;
    default:
        format |= DT_VCENTER;
    }
    return format;
}

void kvHoverButton::DrawText(CDC* pDC, CRect rect, bool pushed)
{
    CString caption;
    GetWindowText(caption);
    const int oldMode = pDC->SetBkMode(TRANSPARENT);
    CFont underlined;
    CFont* pOldFont = pDC->SelectObject(_TextFont(underlined));
    const UINT format = _TextFormat();
    if (pushed)
        rect.OffsetRect(1, 1);
    const kvHoverSystemColors system = SystemColors();
    const kvHoverInk ink = kvHoverTextInk(m_TextColors, IsWindowEnabled() != FALSE, m_bHovering, pushed, system);
    // The embossed look's highlight pass shares the text's rectangle.
    const COLORREF oldColor = pDC->SetTextColor(ink.embossed ? system.highlight : ink.color);
    if (ink.embossed) {
        pDC->DrawText(caption, rect, format);
        pDC->SetTextColor(ink.color);
    }
    pDC->DrawText(caption, rect, format);
    pDC->SetTextColor(oldColor);
    pDC->SelectObject(pOldFont);
    pDC->SetBkMode(oldMode);
}

void kvHoverButton::DrawFocusRect(CDC* pDC, CRect rect)
{
    const int inset = kvHoverFocusInset(m_FrameStyles);
    rect.DeflateRect(inset, inset);
    CBitmap pattern;
    if (!pattern.LoadBitmap(IDB_KVFOCUSPATTERN))
        return;
    CBrush brush;
    if (brush.CreatePatternBrush(&pattern))
        pDC->FrameRect(rect, &brush);
}

void kvHoverButton::ToggleFocusRect(CDC* pDC, CRect rect)
{
    const int inset = kvHoverFocusInset(m_FrameStyles);
    rect.DeflateRect(inset, inset);
    pDC->DrawFocusRect(rect);
}

// ---- image helpers ----

bool kvHoverButton::BuildGrayBitmap(CBitmap* pSource, CBitmap* pResult, unsigned long transparent,
                                    GrayBitmapTypes type)
{
    BITMAP bm{};
    if (!CreateLike(pSource, pResult, bm))
        return false;
    kvDibPixels pixels(bm.bmWidth, bm.bmHeight);
    ReadPixels(pSource, pixels);
    pixels.MakeGray(static_cast<kvGrayType>(type), transparent, ::GetSysColor(COLOR_BTNSHADOW),
                    ::GetSysColor(COLOR_3DHILIGHT));
    WritePixels(pResult, pixels);
    return true;
}

bool kvHoverButton::BuildMaskBitmap(CBitmap* pSource, CBitmap* pResult, unsigned long transparent)
{
    BITMAP bm{};
    if (!CreateLike(pSource, pResult, bm))
        return false;
    kvDibPixels pixels(bm.bmWidth, bm.bmHeight);
    ReadPixels(pSource, pixels);
    pixels.MakeMask(transparent);
    WritePixels(pResult, pixels);
    return true;
}
