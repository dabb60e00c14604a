// CGdiObject: the owner of one GDI handle (pen, brush, font, bitmap, palette,
// region). The object deletes its handle when it is destroyed; FromHandle wraps
// a handle nobody owns in a temporary object of the handle's own kind, deleted
// at idle time (DeleteTempMap) without touching the handle.
#pragma once

#include "afx/AfxExport.h"
#include "afx/WinTypes.h"

class AFX_API CGdiObject {
public:
    CGdiObject() noexcept = default;
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    virtual ~CGdiObject();

    static CGdiObject* FromHandle(HGDIOBJ hObject);
    static void DeleteTempMap() noexcept;

    operator HGDIOBJ() const noexcept { return m_hObject; }
    HGDIOBJ GetSafeHandle() const noexcept { return m_hObject; }

    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    BOOL CreateStockObject(int nIndex);

    int GetObject(int nCount, LPVOID lpObject) const;
    UINT GetObjectType() const;

    HGDIOBJ m_hObject = nullptr;
};
