// CPaintDC: the device context of one WM_PAINT, from BeginPaint to EndPaint.
#pragma once

#include "afx/CDC.h"

class CWnd;

class AFX_API CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd = nullptr;
};
