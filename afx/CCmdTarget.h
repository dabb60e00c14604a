// CCmdTarget: the root of every class with a message map. It owns the map
// lookup; windows, threads and the extension-module records derive from it.
#pragma once

#include "afx/AfxExport.h"
#include "afx/AfxMsgMap.h"

class AFX_API CCmdTarget {
public:
    CCmdTarget() = default;
    CCmdTarget(const CCmdTarget&) = delete;
    CCmdTarget& operator=(const CCmdTarget&) = delete;
    virtual ~CCmdTarget() = default;

protected:
    // The root of every map chain: no entries, no base.
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // Runs the entries of this object's map chain that match, most derived class
    // first, until one reports the message handled. nCode and nID are 0 for plain
    // window messages. *pResult is left alone when nothing handles the message.
    bool DispatchToMap(UINT nMessage, UINT nCode, UINT nID, WPARAM wParam, LPARAM lParam,
                       LRESULT* pResult);
};
