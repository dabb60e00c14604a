// _kvDropEditButton: the drop button's four drawings in the flat and 3-D looks,
// and its mouse handling, which leaves the focus with the field.
#include "dropdown/_kvDropEditButton.h"

#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "dropdown/kvDropEditBase.h"

#include <algorithm>

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

COLORREF SysColor(int index) { return ::GetSysColor(index); }

// A vertical line of one pixel, from top to bottom inclusive.
void VerticalLine(CDC* pDC, int x, int top, int bottom, COLORREF color)
{
    pDC->FillSolidRect(x, top, 1, bottom - top + 1, color);
}

}  // namespace

BEGIN_MESSAGE_MAP(_kvDropEditButton, kvHoverButton)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

_kvDropEditButton::_kvDropEditButton(kvDropEditBase* pOwner, bool flat, bool bordered)
    : m_bFlat(flat),
      m_bBordered(bordered),
      m_crText(SysColor(COLOR_WINDOWTEXT)),
      m_crBk(SysColor(COLOR_WINDOW)),
      m_pOwner(pOwner)
{
    SetAllowFocus(false);
}

_kvDropEditButton::~_kvDropEditButton() = default;

void _kvDropEditButton::SetImage(CBitmap* pImage, COLORREF transparent)
{
    m_pImage = pImage;
    m_pImageMask.reset();
    m_pGrayImage.reset();
    m_pGrayImageMask.reset();
    if (pImage != nullptr) {
        m_pImageMask = std::make_unique<CBitmap>();
        BuildMaskBitmap(pImage, m_pImageMask.get(), transparent);
        m_pGrayImage = std::make_unique<CBitmap>();
        BuildGrayBitmap(pImage, m_pGrayImage.get(), transparent, GrayEmbossed);
        m_pGrayImageMask = std::make_unique<CBitmap>();
        BuildMaskBitmap(m_pGrayImage.get(), m_pGrayImageMask.get(), transparent);
    }
    if (::IsWindow(m_hWnd))
        Invalidate();
}

void _kvDropEditButton::SetColors(COLORREF crText, COLORREF crBk)
{
    m_crText = crText;
    m_crBk = crBk;
    if (::IsWindow(m_hWnd))
        Invalidate();
}

void _kvDropEditButton::Enable(bool enable) { EnableWindow(enable ? TRUE : FALSE); }

// ---- mouse ----

// The hover handling sets no cursor of its own over the button.
void _kvDropEditButton::OnMouseMove(UINT nFlags, CPoint point)
{
    kvHoverButton::OnMouseMove(nFlags, point);
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
}

// The field, not the button, is where the user is typing.
void _kvDropEditButton::OnLButtonDown(UINT nFlags, CPoint point)
{
    kvHoverButton::OnLButtonDown(nFlags, point);
    m_pOwner->SetFocus();
}

// ---- drawing ----

void _kvDropEditButton::DrawNormal(CDC* pDC, CRect& rect)
{
    if (m_bFlat) {
        pDC->FillSolidRect(&rect, m_crBk);
        _DrawLeftEdge(pDC, rect, m_crText);
    } else {
        _DrawFrame3D(pDC, rect);
    }
    _DrawGlyph(pDC, rect, false);
}

// The drop button does not light up under the mouse.
void _kvDropEditButton::DrawHovering(CDC* pDC, CRect& rect) { DrawNormal(pDC, rect); }

void _kvDropEditButton::DrawDisabled(CDC* pDC, CRect& rect)
{
    if (m_bFlat) {
        pDC->FillSolidRect(&rect, SysColor(COLOR_BTNFACE));
        _DrawLeftEdge(pDC, rect, SysColor(COLOR_BTNSHADOW));
    } else {
        _DrawFrame3D(pDC, rect);
    }
    _DrawGlyph(pDC, rect, true);
}

void _kvDropEditButton::DrawPushed(CDC* pDC, CRect& rect)
{
    if (m_bFlat) {
        pDC->FillSolidRect(&rect, m_crBk);
        _DrawLeftEdge(pDC, rect, m_crText);
        const COLORREF face = SysColor(COLOR_BTNFACE);
        VerticalLine(pDC, rect.left + 1, rect.top, rect.bottom - 1, face);
        pDC->FillSolidRect(rect.left + 1, rect.top, rect.right - rect.left - 1, 1, face);
    } else {
        pDC->FillSolidRect(&rect, SysColor(COLOR_BTNFACE));
        CBrush shadow(SysColor(COLOR_BTNSHADOW));
        pDC->FrameRect(&rect, &shadow);
    }
    CRect moved = rect;
    moved.OffsetRect(1, 1);
    _DrawGlyph(pDC, moved, false);
}

// The line between the text and the button: black against the field's border.
void _kvDropEditButton::_DrawLeftEdge(CDC* pDC, const CRect& rect, COLORREF crUnbordered) const
{
    VerticalLine(pDC, rect.left, rect.top, rect.bottom, m_bBordered ? kBlack : crUnbordered);
}

// The push-button frame, its outer edges toned down to sit inside the sunken field.
void _kvDropEditButton::_DrawFrame3D(CDC* pDC, CRect rect) const
{
    pDC->DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONPUSH);
    pDC->Draw3dRect(&rect, SysColor(COLOR_BTNFACE), SysColor(COLOR_BTNSHADOW));
}

void _kvDropEditButton::_DrawGlyph(CDC* pDC, CRect rect, bool disabled)
{
    if (m_pImage != nullptr) {
        if (m_bFlat && m_bBordered)
            rect.OffsetRect(1, 0);
        if (disabled)
            DrawBitmap(pDC, rect, m_pGrayImage.get(), m_pGrayImageMask.get());
        else
            DrawBitmap(pDC, rect, m_pImage, m_pImageMask.get());
        return;
    }
    const COLORREF ink = m_bFlat ? m_crText : kBlack;
    if (!disabled) {
        _DrawArrow(pDC, rect, ink);
        return;
    }
    CRect below = rect;
    below.OffsetRect(1, 1);
    _DrawArrow(pDC, below, SysColor(COLOR_BTNHIGHLIGHT));
    _DrawArrow(pDC, rect, SysColor(COLOR_BTNSHADOW));
}

// A triangle pointing down, a quarter of the smaller side high, twice that
// less one wide, centred: drawn row by row so its pixels are exact.
void _kvDropEditButton::_DrawArrow(CDC* pDC, const CRect& rect, COLORREF color) const
{
    const int size = std::max(std::min(rect.Width(), rect.Height()) / 4, 2);
    const CPoint centre = rect.CenterPoint();
    const int top = centre.y - size / 2;
    for (int row = 0; row < size; ++row) {
        const int half = size - 1 - row;
        pDC->FillSolidRect(centre.x - half, top + row, 2 * half + 1, 1, color);
    }
}
