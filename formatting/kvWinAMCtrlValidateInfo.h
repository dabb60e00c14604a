// kvWinAMCtrlValidateInfo: the record a status message carries to the main window.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

class CWnd;

class KVWIN_API kvWinAMCtrlValidateInfo {
public:
    // Only the message is initialised: whoever fills the record sets the others.
    kvWinAMCtrlValidateInfo() = default;
    explicit kvWinAMCtrlValidateInfo(const CString& text) : message(text), control(nullptr), code(0) {}
    kvWinAMCtrlValidateInfo(const kvWinAMCtrlValidateInfo&) = default;
    kvWinAMCtrlValidateInfo& operator=(const kvWinAMCtrlValidateInfo&) = default;

    CString message;
    CWnd* control;  // the reporting control; null when a formatter reports on its own
    long code;
};
