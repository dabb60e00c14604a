// CProgressCtrl: the common-controls progress bar.
#pragma once

#include "afx/CWnd.h"

class AFX_API CProgressCtrl : public CWnd {
public:
    CProgressCtrl() = default;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const;
    // The next four return the previous position (SetStep: the previous step).
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int SetStep(int nStep);
    int StepIt();
};
