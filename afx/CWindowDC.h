// CWindowDC: the device context of a whole window, frame included (the whole
// screen for a null window), released when the object is destroyed.
#pragma once

#include "afx/CDC.h"

class CWnd;

class AFX_API CWindowDC : public CDC {
public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd = nullptr;
};
