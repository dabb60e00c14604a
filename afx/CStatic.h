// CStatic: the native static text control ("STATIC").
#pragma once

#include "afx/CWnd.h"

class AFX_API CStatic : public CWnd {
public:
    CStatic() = default;

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);
};
