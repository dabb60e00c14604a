// CWnd: the framework's window object. It wraps one HWND, dispatches the
// window's messages through the class's message map (unhandled ones go to the
// window's original procedure), reflects the notifications of its children back
// to them, and offers MFC's thin operations on the handle.
#pragma once

#include "afx/AfxExport.h"
#include "afx/AfxMsgMap.h"
#include "afx/CCmdTarget.h"
#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "afx/CSize.h"
#include "afx/CString.h"
#include "afx/WinTypes.h"

class CDC;
class CFont;
class CMenu;
class CFrameWnd;

// Registers (once) a window class with these attributes and returns its name.
AFX_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                    HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

class AFX_API CWnd : public CCmdTarget {
public:
    HWND m_hWnd = nullptr;

    // Predefined placement for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    CWnd() = default;
    // Destroys the window when this object still owns it.
    ~CWnd() override;

    // Both accept a null object, as framework code has always relied on. (The
    // compiler may then take the pointer for non-null: test it before, not after.)
    operator HWND() const;
    HWND GetSafeHwnd() const;
    bool operator==(const CWnd& wnd) const { return m_hWnd == wnd.m_hWnd; }
    bool operator!=(const CWnd& wnd) const { return m_hWnd != wnd.m_hWnd; }

    // ---- the handle map ----
    // The permanent object of hWnd, or a temporary one deleted at idle time.
    static CWnd* FromHandle(HWND hWnd);
    // The object attached to hWnd, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    // Deletes this thread's temporary objects (the handles stay alive).
    static void DeleteTempMap();

    BOOL Attach(HWND hWndNew);
    HWND Detach();
    // Routes hWnd's messages through this object's map; unhandled ones go to the
    // procedure the window had before.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();

    // ---- creation ----
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID, void* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                          HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();

    // ---- dispatch ----
    // The message being handled by this thread (the innermost one when handlers
    // send messages that come back).
    static const MSG* GetCurrentMessage();
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Keyboard and mouse messages go through the dialog manager (Tab, arrows, Enter).
    BOOL PreTranslateInput(LPMSG lpMsg);
    BOOL IsDialogMessage(LPMSG lpMsg);
    // Gives the child hWndChild the message being handled; true when it took it.
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    // Runs PreTranslateMessage of pMsg's window and its parents up to hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    // ---- text ----
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;

    // ---- style ----
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);

    // ---- geometry ----
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    CWnd* ChildWindowFromPoint(POINT point) const;
    static CWnd* WindowFromPoint(POINT point);

    // ---- state and painting ----
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, HRGN hrgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    BOOL OpenClipboard();

    // ---- focus, capture, activation ----
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    CWnd* SetActiveWindow();
    static CWnd* GetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* GetForegroundWindow();

    // ---- timers ----
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD) = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);

    // ---- relatives ----
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    CWnd* GetTopLevelParent() const;
    CFrameWnd* GetParentFrame() const;
    CWnd* GetWindow(UINT nCmd) const;
    BOOL IsChild(const CWnd* pWnd) const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;

    // ---- help ----
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    DWORD GetWindowContextHelpId() const;
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);

    // ---- overridables ----
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PreSubclassWindow();
    virtual void PostNcDestroy();
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Called on the child for a notification its parent received; the default
    // gives it to the child's own reflected entries.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    // The procedure unhandled messages go to (the class's or the one replaced by
    // SubclassWindow); null means ::DefWindowProc.
    WNDPROC m_pfnSuper = nullptr;

protected:
    // Passes the message being handled to the original procedure.
    LRESULT Default();

    // Default handlers: each passes the current message on unchanged.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnClose();
    afx_msg void OnSysColorChange();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);

private:
    // The window procedure of every framework window.
    static LRESULT CALLBACK WndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
    explicit CWnd(HWND hWndConstant) : m_hWnd(hWndConstant) {}
    // Runs the map entries of a message, as the window's own message or, reflected,
    // as its parent's notification about it.
    BOOL DispatchKeyed(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult, bool reflected);
    // After WM_NCDESTROY: forget the handle, give the window its procedure back.
    void FinishNcDestroy();

    HWND m_hWndOwner = nullptr;  // SetOwner's window; the parent when null
};
