// CStatusBar: a frame's status line.
#include "afx/CStatusBar.h"

#include "afx/AfxExtension.h"
#include "afx/AfxInitCommonControls.h"
#include "afx/CClientDC.h"
#include "afx/CFont.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace {

// Room for the pane's sunken border and a little air on both sides of the text.
constexpr int kPaneTextMargin = 8;

// String resources live in blocks of 16; the block is what the chain is asked for.
bool LoadIndicatorText(UINT nID, CString& text)
{
    const HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCE((nID >> 4) + 1), RT_STRING);
    char buffer[256] = "";
    const int nLength = ::LoadString(hInst, nID, buffer, sizeof buffer);
    text = CString(buffer, nLength);
    return nLength > 0;
}

}  // namespace

BEGIN_MESSAGE_MAP(CStatusBar, CWnd)
    ON_WM_SIZE()
END_MESSAGE_MAP()

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID)
{
    AfxInitCommonControls(ICC_BAR_CLASSES);
    return CWnd::Create(STATUSCLASSNAME, nullptr, dwStyle, CRect(), pParentWnd, nID);
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount)
{
    assert(::IsWindow(m_hWnd) && (lpIDArray != nullptr || nIDCount == 0));
    std::vector<Pane> panes;
    std::vector<CString> texts;
    for (int i = 0; i < nIDCount; ++i) {
        const UINT nID = lpIDArray[i];
        CString text;
        if (nID != ID_SEPARATOR && !LoadIndicatorText(nID, text))
            return FALSE;
        const int cxWidth = nID == ID_SEPARATOR ? ::GetSystemMetrics(SM_CXSCREEN) / 4 : TextWidth(text);
        panes.push_back({nID, cxWidth});
        texts.push_back(text);
    }
    m_panes = std::move(panes);
    LayOutPanes();
    for (int i = 0; i < nIDCount; ++i)
        SetPaneText(i, texts[static_cast<size_t>(i)]);
    return TRUE;
}

int CStatusBar::CommandToIndex(UINT nIDFind) const
{
    const auto found = std::find_if(m_panes.begin(), m_panes.end(),
                                    [nIDFind](const Pane& pane) { return pane.nID == nIDFind; });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int nIndex) const
{
    assert(nIndex >= 0 && nIndex < static_cast<int>(m_panes.size()));
    return m_panes[static_cast<size_t>(nIndex)].nID;
}

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    assert(::IsWindow(m_hWnd));
    SendMessage(SB_GETRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect));
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(
        SendMessage(SB_SETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszNewText)));
}

CString CStatusBar::GetPaneText(int nIndex) const
{
    CString text;
    GetPaneText(nIndex, text);
    return text;
}

void CStatusBar::GetPaneText(int nIndex, CString& rString) const
{
    assert(::IsWindow(m_hWnd));
    const int nLength = LOWORD(SendMessage(SB_GETTEXTLENGTH, static_cast<WPARAM>(nIndex)));
    char* buffer = rString.GetBuffer(nLength);
    buffer[0] = '\0';
    SendMessage(SB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(buffer));
    rString.ReleaseBuffer(nLength);
}

void CStatusBar::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    LayOutPanes();
}

int CStatusBar::TextWidth(const CString& text)
{
    CClientDC dc(this);
    CFont* pFont = GetFont();
    CFont* pOldFont = pFont != nullptr ? dc.SelectObject(pFont) : nullptr;
    const int cx = dc.GetTextExtent(text).cx + kPaneTextMargin;
    if (pOldFont != nullptr)
        dc.SelectObject(pOldFont);
    return cx;
}

// The status window places its parts by their right edges.
void CStatusBar::LayOutPanes()
{
    if (m_panes.empty())
        return;
    const bool stretchFirst = m_panes.front().nID == ID_SEPARATOR;
    int cxOthers = 0;
    for (size_t i = stretchFirst ? 1 : 0; i < m_panes.size(); ++i)
        cxOthers += m_panes[i].cxWidth;

    CRect client;
    GetClientRect(&client);
    std::vector<int> rights;
    int right = 0;
    for (size_t i = 0; i < m_panes.size(); ++i) {
        right += i == 0 && stretchFirst ? std::max(0, client.Width() - cxOthers) : m_panes[i].cxWidth;
        rights.push_back(right);
    }
    SendMessage(SB_SETPARTS, rights.size(), reinterpret_cast<LPARAM>(rights.data()));
}
