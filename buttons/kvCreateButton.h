// kvCreateButton: how the library's buttons come to be: the platform's button,
// then the parent's font (or the stock GUI font when the parent has none).
#pragma once

#include "afx/CButton.h"
#include "formatting/kvParentFont.h"

inline BOOL kvCreateButton(CButton& button, LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID)
{
    if (!button.CButton::Create(lpszCaption, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    kvSetParentFont(&button, pParentWnd);
    return TRUE;
}
