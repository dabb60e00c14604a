// CClientDC: the device context of a window's client area (the whole screen
// for a null window), released when the object is destroyed.
#pragma once

#include "afx/CDC.h"

class CWnd;

class AFX_API CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd = nullptr;
};
