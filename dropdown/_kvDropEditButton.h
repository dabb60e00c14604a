// _kvDropEditButton: the drop button inside a drop edit's right end. It never
// takes the focus (a click gives it to the field), and draws an arrow or the
// field's image in the flat or the 3-D look, in the field's colours.
#pragma once

#include "buttons/kvHoverButton.h"

#include <memory>

class CBitmap;
class kvDropEditBase;

class _kvDropEditButton : public kvHoverButton {
public:
    _kvDropEditButton(kvDropEditBase* pOwner, bool flat, bool bordered);
    ~_kvDropEditButton() override;

    // The image stays the caller's; null returns to the arrow.
    void SetImage(CBitmap* pImage, COLORREF transparent);
    void SetColors(COLORREF crText, COLORREF crBk);
    void Enable(bool enable);

protected:
    void DrawNormal(CDC* pDC, CRect& rect) override;
    void DrawHovering(CDC* pDC, CRect& rect) override;
    void DrawDisabled(CDC* pDC, CRect& rect) override;
    void DrawPushed(CDC* pDC, CRect& rect) override;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    void _DrawLeftEdge(CDC* pDC, const CRect& rect, COLORREF crUnbordered) const;
    void _DrawGlyph(CDC* pDC, CRect rect, bool disabled);
    void _DrawArrow(CDC* pDC, const CRect& rect, COLORREF color) const;
    void _DrawFrame3D(CDC* pDC, CRect rect) const;

    bool m_bFlat;
    bool m_bBordered;
    CBitmap* m_pImage = nullptr;
    std::unique_ptr<CBitmap> m_pImageMask;
    std::unique_ptr<CBitmap> m_pGrayImage;
    std::unique_ptr<CBitmap> m_pGrayImageMask;
    COLORREF m_crText;
    COLORREF m_crBk;
    kvDropEditBase* m_pOwner;
};
