// CStatic: the native static text control.
#include "afx/CStatic.h"

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}
