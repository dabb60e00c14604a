// kvTextProgressCtrl: position and range kept by kvProgressBarState, and the
// bar's own painting, repeated only when the filled width moves.
#include "progress/kvTextProgressCtrl.h"

#include "afx/CDC.h"
#include "afx/CPaintDC.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

void DrawPart(CDC& dc, const CString& text, CPoint origin, const CRect& part, COLORREF textColor,
              COLORREF background)
{
    dc.SetTextColor(textColor);
    dc.SetBkColor(background);
    dc.ExtTextOut(origin.x, origin.y, ETO_CLIPPED | ETO_OPAQUE, part, text, text.GetLength(), nullptr);
}

}  // namespace

BEGIN_MESSAGE_MAP(kvTextProgressCtrl, CProgressCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SYSCOLORCHANGE()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_MESSAGE(WM_GETTEXT, OnGetText)
END_MESSAGE_MAP()

kvTextProgressCtrl::kvTextProgressCtrl()
{
    m_Font.CreatePointFont(90, "MS Sans Serif");
    _LoadColors();
}

void kvTextProgressCtrl::SetRange(int nLower, int nUpper)
{
    m_State.lower = nLower;
    m_State.upper = nUpper;
}

int kvTextProgressCtrl::SetPos(int nPos)
{
    if (m_hWnd == nullptr)
        return -1;
    const int previous = m_State.SetPos(nPos);
    if (m_State.NeedsRepaint())
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return previous;
}

int kvTextProgressCtrl::OffsetPos(int nPos) { return SetPos(m_State.pos + nPos); }

int kvTextProgressCtrl::StepIt() { return OffsetPos(m_State.step); }

int kvTextProgressCtrl::GetPos() const { return m_State.pos; }

int kvTextProgressCtrl::SetStep(int nStep) { return std::exchange(m_State.step, nStep); }

void kvTextProgressCtrl::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    CFont* pOldFont = dc.SelectObject(&m_Font);
    const CString text = m_strText.IsEmpty() ? m_State.PercentText() : m_strText;
    const CPoint origin = m_strText.IsEmpty()
        ? kvProgressBarState::CenteredOrigin(client.Size(), dc.GetTextExtent(text)) : CPoint(0, 0);
    m_State.clientWidth = client.Width();
    m_State.filledWidth = m_State.FilledWidth(client.Width());
    const int split = std::clamp(client.left + m_State.filledWidth, client.left, client.right);
    DrawPart(dc, text, origin, CRect(client.left, client.top, split, client.bottom), m_crFilledText,
              m_crFilledBackground);
    DrawPart(dc, text, origin, CRect(split, client.top, client.right, client.bottom), m_crText, m_crBackground);
    dc.SelectObject(pOldFont);
}

// The painting covers everything.
BOOL kvTextProgressCtrl::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void kvTextProgressCtrl::OnSysColorChange()
{
    _LoadColors();
    CProgressCtrl::OnSysColorChange();
}

LRESULT kvTextProgressCtrl::OnSetText(WPARAM /*wParam*/, LPARAM lParam)
{
    const auto* text = reinterpret_cast<LPCTSTR>(lParam);
    m_strText = text != nullptr ? text : "";
    Invalidate();
    // The native text stays the same, for the length the platform reports.
    return Default();
}

LRESULT kvTextProgressCtrl::OnGetText(WPARAM wParam, LPARAM lParam)
{
    auto* buffer = reinterpret_cast<LPTSTR>(lParam);
    if (wParam == 0 || buffer == nullptr)
        return 0;
    const size_t count = std::min(static_cast<size_t>(m_strText.GetLength()), static_cast<size_t>(wParam) - 1);
    std::memcpy(buffer, m_strText.GetString(), count);
    buffer[count] = '\0';
    return static_cast<LRESULT>(count);
}

void kvTextProgressCtrl::_LoadColors()
{
    m_crText = ::GetSysColor(COLOR_MENUTEXT);
    m_crBackground = ::GetSysColor(COLOR_MENU);
    m_crFilledText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    m_crFilledBackground = ::GetSysColor(COLOR_HIGHLIGHT);
}
