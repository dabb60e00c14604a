// _kvControlColors: colour setters and the reflected colour answer.
#include "formatting/_kvControlColors.h"

#include "afx/CDC.h"
#include "afx/CWnd.h"

namespace {
void Repaint(CWnd& control)
{
    if (control.GetSafeHwnd() != nullptr)
        control.Invalidate();
}
}  // namespace

_kvControlColors::_kvControlColors()
    : m_crText(::GetSysColor(COLOR_WINDOWTEXT)), m_crBk(::GetSysColor(COLOR_WINDOW)), m_brBk(m_crBk)
{
}

void _kvControlColors::SetTextColor(CWnd& control, COLORREF crText)
{
    if (crText == m_crText)
        return;
    m_crText = crText;
    Repaint(control);
}

void _kvControlColors::SetBkColor(CWnd& control, COLORREF crBk)
{
    if (crBk == m_crBk)
        return;
    m_crBk = crBk;
    m_brBk.DeleteObject();
    m_brBk.CreateSolidBrush(crBk);
    Repaint(control);
}

HBRUSH _kvControlColors::CtlColor(CDC* pDC, UINT nCtlColor, UINT kinds) const
{
    if ((KindBit(nCtlColor) & kinds) == 0)
        return nullptr;
    pDC->SetTextColor(m_crText);
    pDC->SetBkColor(m_crBk);
    return m_brBk;
}
