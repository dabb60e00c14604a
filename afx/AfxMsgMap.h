// The message-map machinery: DECLARE_MESSAGE_MAP, BEGIN_MESSAGE_MAP and
// END_MESSAGE_MAP, and every entry macro with its cracker.
//
// A map is a static table of entries; each stores its message (and, for
// commands and notifications, the notification code and control id range) and
// a captureless lambda that cracks wParam and lParam and calls the handler
// through a member pointer of the exact signature written above each macro, so
// that a handler with a different signature does not compile. Handlers are
// named through ThisClass, which BEGIN_MESSAGE_MAP puts in scope; the base
// class's map is chained by pointer.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CPoint.h"
#include "afx/WinTypes.h"

#include <commctrl.h>

class CCmdTarget;
class CWnd;
class CDC;
class CScrollBar;

// Marks message handlers in class declarations, as MFC code does.
#define afx_msg

// The old combined colour message: the map's key for every WM_CTLCOLOR* message.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif
// A child receives its parent's notification as WM_REFLECT_BASE + message.
#define WM_REFLECT_BASE 0xBC00
// The notification code of a menu or accelerator command.
#define CN_COMMAND 0

// Returns true when the entry handled the message; the _EX entries return the
// handler's verdict so that the search (or the parent) may continue.
using AFX_PMSG = bool (*)(CCmdTarget* pTarget, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;                     // window message, WM_COMMAND, WM_NOTIFY or reflected
    UINT nCode;                        // notification code; 0 for window messages
    UINT nID;                          // first control id
    UINT nLastID;                      // last control id
    const UINT* pnRegisteredMessage;   // ON_REGISTERED_MESSAGE: the variable holding the id
    AFX_PMSG pfn;                      // null ends the table
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// The record behind ON_WM_CTLCOLOR and ON_WM_CTLCOLOR_REFLECT (lParam of both).
struct AFX_CTLCOLOR {
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;  // CTLCOLOR_EDIT, CTLCOLOR_STATIC ...
};

// Wrapper objects for the handles a cracker hands to its handler: the permanent
// object when there is one, otherwise a temporary one that lives until idle time.
AFX_API CWnd* AfxWndFromHandle(HWND hWnd);
AFX_API CDC* AfxDCFromHandle(HDC hDC);
AFX_API CScrollBar* AfxScrollBarFromHandle(HWND hWnd);

#define DECLARE_MESSAGE_MAP()                           \
protected:                                              \
    static const AFX_MSGMAP* GetThisMessageMap();       \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                             \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }       \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                         \
    {                                                                                       \
        typedef theClass ThisClass;                                                         \
        typedef baseClass TheBaseClass;                                                     \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                   \
            {0, 0, 0, 0, nullptr, nullptr}                                                  \
        };                                                                                  \
        static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap,             \
                                              &_messageEntries[0]};                         \
        return &messageMap;                                                                 \
    }

// ---- building blocks of the entries ----

// The handler memberFxn of ThisClass with exactly the signature Result Params,
// bound to the object being dispatched to.
#define AFX_HANDLER(memberFxn, Result, Params)                                              \
    (static_cast<ThisClass*>(pTarget)->*static_cast<Result(ThisClass::*) Params>(&ThisClass::memberFxn))

// An entry whose cracker body decides the verdict itself (returns true or false).
#define AFX_ENTRY(message, code, id, lastId, registered, ...)                               \
    {static_cast<UINT>(message), static_cast<UINT>(code), static_cast<UINT>(id),            \
     static_cast<UINT>(lastId), registered,                                                 \
     [](CCmdTarget* pTarget, [[maybe_unused]] WPARAM wParam, [[maybe_unused]] LPARAM lParam, \
        [[maybe_unused]] LRESULT* pResult) -> bool { __VA_ARGS__ }},

// A window-message entry that always handles the message.
#define AFX_WM_ENTRY(message, ...) AFX_ENTRY(message, 0, 0, 0, nullptr, __VA_ARGS__; return true;)

// Signed coordinates of lParam (windowsx.h is not included: its macros clash
// with member names such as SubclassWindow).
#define AFX_X_LPARAM(lp) static_cast<int>(static_cast<short>(LOWORD(lp)))
#define AFX_Y_LPARAM(lp) static_cast<int>(static_cast<short>(HIWORD(lp)))
#define AFX_POINT_LPARAM CPoint(AFX_X_LPARAM(lParam), AFX_Y_LPARAM(lParam))

// ---- generic entries ----

// afx_msg LRESULT OnMessage(WPARAM wParam, LPARAM lParam);
#define ON_MESSAGE(message, memberFxn)                                                      \
    AFX_WM_ENTRY(message, *pResult = AFX_HANDLER(memberFxn, LRESULT, (WPARAM, LPARAM))(wParam, lParam))

// afx_msg LRESULT OnMessage(WPARAM wParam, LPARAM lParam); the id is read from
// the variable when the message arrives, since registered ids exist only at run time.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                  \
    AFX_ENTRY(0, 0, 0, 0, &nMessageVariable,                                                \
              *pResult = AFX_HANDLER(memberFxn, LRESULT, (WPARAM, LPARAM))(wParam, lParam); \
              return true;)

// ---- commands (WM_COMMAND) ----

// afx_msg void OnCommand();
#define ON_COMMAND(id, memberFxn)                                                           \
    AFX_ENTRY(WM_COMMAND, CN_COMMAND, id, id, nullptr, AFX_HANDLER(memberFxn, void, ())(); return true;)

// afx_msg void OnCommandRange(UINT nID);
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                             \
    AFX_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, nullptr,                                  \
              AFX_HANDLER(memberFxn, void, (UINT))(LOWORD(wParam)); return true;)

// afx_msg void OnNotificationCode();
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                              \
    AFX_ENTRY(WM_COMMAND, wNotifyCode, id, id, nullptr, AFX_HANDLER(memberFxn, void, ())(); return true;)

// afx_msg void OnNotificationCodeRange(UINT nID);
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                \
    AFX_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, nullptr,                                 \
              AFX_HANDLER(memberFxn, void, (UINT))(LOWORD(wParam)); return true;)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)

// A control's own notification, reflected back to it by its parent.
// afx_msg void OnNotificationCode();
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                          \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, nullptr,                     \
              AFX_HANDLER(memberFxn, void, ())(); return true;)

// afx_msg BOOL OnNotificationCode(); FALSE lets the parent handle it too.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                       \
    AFX_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, nullptr,                     \
              return AFX_HANDLER(memberFxn, BOOL, ())() != FALSE;)

// ---- notifications (WM_NOTIFY) ----

// afx_msg void OnNotify(NMHDR* pNotifyStruct, LRESULT* pResult);
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                               \
    AFX_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr,                                      \
              AFX_HANDLER(memberFxn, void, (NMHDR*, LRESULT*))(reinterpret_cast<NMHDR*>(lParam), pResult); \
              return true;)

// afx_msg void OnNotifyRange(UINT nID, NMHDR* pNotifyStruct, LRESULT* pResult);
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                 \
    AFX_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, nullptr,                                  \
              const auto pNMHDR = reinterpret_cast<NMHDR*>(lParam);                         \
              AFX_HANDLER(memberFxn, void, (UINT, NMHDR*, LRESULT*))(                       \
                  static_cast<UINT>(pNMHDR->idFrom), pNMHDR, pResult);                      \
              return true;)

// afx_msg void OnNotify(NMHDR* pNotifyStruct, LRESULT* pResult);
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                           \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, nullptr,                      \
              AFX_HANDLER(memberFxn, void, (NMHDR*, LRESULT*))(reinterpret_cast<NMHDR*>(lParam), pResult); \
              return true;)

// afx_msg BOOL OnNotify(NMHDR* pNotifyStruct, LRESULT* pResult); FALSE lets the
// parent handle it too.
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                        \
    AFX_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, nullptr,                      \
              return AFX_HANDLER(memberFxn, BOOL, (NMHDR*, LRESULT*))(                      \
                  reinterpret_cast<NMHDR*>(lParam), pResult) != FALSE;)

// ---- reflected window messages ----

// afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor); a null brush lets the parent
// choose the colours.
#define ON_WM_CTLCOLOR_REFLECT()                                                            \
    AFX_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, 0, 0, 0, nullptr,                              \
              const auto pCtl = reinterpret_cast<const AFX_CTLCOLOR*>(lParam);              \
              const HBRUSH hBrush = AFX_HANDLER(CtlColor, HBRUSH, (CDC*, UINT))(            \
                  AfxDCFromHandle(pCtl->hDC), pCtl->nCtlType);                              \
              *pResult = reinterpret_cast<LRESULT>(hBrush);                                 \
              return hBrush != nullptr;)

// afx_msg void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
#define ON_WM_DRAWITEM_REFLECT()                                                            \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM,                                             \
                 AFX_HANDLER(DrawItem, void, (LPDRAWITEMSTRUCT))(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); \
                 *pResult = TRUE)

// afx_msg void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
#define ON_WM_MEASUREITEM_REFLECT()                                                         \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM,                                          \
                 AFX_HANDLER(MeasureItem, void, (LPMEASUREITEMSTRUCT))(                     \
                     reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));                        \
                 *pResult = TRUE)

// afx_msg void HScroll(UINT nSBCode, UINT nPos);
#define ON_WM_HSCROLL_REFLECT()                                                             \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_HSCROLL,                                              \
                 AFX_HANDLER(HScroll, void, (UINT, UINT))(LOWORD(wParam), HIWORD(wParam)))

// afx_msg void VScroll(UINT nSBCode, UINT nPos);
#define ON_WM_VSCROLL_REFLECT()                                                             \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_VSCROLL,                                              \
                 AFX_HANDLER(VScroll, void, (UINT, UINT))(LOWORD(wParam), HIWORD(wParam)))

// ---- window messages ----

// afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct); -1 fails the creation.
#define ON_WM_CREATE()                                                                      \
    AFX_WM_ENTRY(WM_CREATE, *pResult = AFX_HANDLER(OnCreate, int, (LPCREATESTRUCT))(        \
                                reinterpret_cast<LPCREATESTRUCT>(lParam)))

// afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct); FALSE fails the creation.
#define ON_WM_NCCREATE()                                                                    \
    AFX_WM_ENTRY(WM_NCCREATE, *pResult = AFX_HANDLER(OnNcCreate, BOOL, (LPCREATESTRUCT))(   \
                                  reinterpret_cast<LPCREATESTRUCT>(lParam)))

// afx_msg void OnDestroy();
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AFX_HANDLER(OnDestroy, void, ())())

// afx_msg void OnNcDestroy();
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AFX_HANDLER(OnNcDestroy, void, ())())

// afx_msg void OnPaint();
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AFX_HANDLER(OnPaint, void, ())())

// afx_msg BOOL OnEraseBkgnd(CDC* pDC); nonzero when the background was erased.
#define ON_WM_ERASEBKGND()                                                                  \
    AFX_WM_ENTRY(WM_ERASEBKGND, *pResult = AFX_HANDLER(OnEraseBkgnd, BOOL, (CDC*))(         \
                                    AfxDCFromHandle(reinterpret_cast<HDC>(wParam))))

// afx_msg void OnSize(UINT nType, int cx, int cy);
#define ON_WM_SIZE()                                                                        \
    AFX_WM_ENTRY(WM_SIZE, AFX_HANDLER(OnSize, void, (UINT, int, int))(                      \
                              static_cast<UINT>(wParam), AFX_X_LPARAM(lParam), AFX_Y_LPARAM(lParam)))

// afx_msg void OnMove(int x, int y);
#define ON_WM_MOVE()                                                                        \
    AFX_WM_ENTRY(WM_MOVE, AFX_HANDLER(OnMove, void, (int, int))(AFX_X_LPARAM(lParam), AFX_Y_LPARAM(lParam)))

// The keyboard messages share one signature:
// afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
#define AFX_KEY_ENTRY(message, memberFxn)                                                   \
    AFX_WM_ENTRY(message, AFX_HANDLER(memberFxn, void, (UINT, UINT, UINT))(                 \
                              static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam)))
#define ON_WM_CHAR() AFX_KEY_ENTRY(WM_CHAR, OnChar)
#define ON_WM_KEYDOWN() AFX_KEY_ENTRY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() AFX_KEY_ENTRY(WM_KEYUP, OnKeyUp)
#define ON_WM_SYSKEYDOWN() AFX_KEY_ENTRY(WM_SYSKEYDOWN, OnSysKeyDown)

// afx_msg void OnSetFocus(CWnd* pOldWnd);
#define ON_WM_SETFOCUS()                                                                    \
    AFX_WM_ENTRY(WM_SETFOCUS, AFX_HANDLER(OnSetFocus, void, (CWnd*))(AfxWndFromHandle(reinterpret_cast<HWND>(wParam))))

// afx_msg void OnKillFocus(CWnd* pNewWnd);
#define ON_WM_KILLFOCUS()                                                                   \
    AFX_WM_ENTRY(WM_KILLFOCUS, AFX_HANDLER(OnKillFocus, void, (CWnd*))(AfxWndFromHandle(reinterpret_cast<HWND>(wParam))))

// The client-area mouse messages share one signature:
// afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
#define AFX_MOUSE_ENTRY(message, memberFxn)                                                 \
    AFX_WM_ENTRY(message, AFX_HANDLER(memberFxn, void, (UINT, CPoint))(static_cast<UINT>(wParam), AFX_POINT_LPARAM))
#define ON_WM_LBUTTONDOWN() AFX_MOUSE_ENTRY(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE_ENTRY(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE_ENTRY(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_MOUSEMOVE() AFX_MOUSE_ENTRY(WM_MOUSEMOVE, OnMouseMove)

// The non-client mouse message has the same signature:
// afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
#define ON_WM_NCLBUTTONDOWN() AFX_MOUSE_ENTRY(WM_NCLBUTTONDOWN, OnNcLButtonDown)

// afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos); pos is (-1, -1) from the keyboard.
#define ON_WM_CONTEXTMENU()                                                                 \
    AFX_WM_ENTRY(WM_CONTEXTMENU, AFX_HANDLER(OnContextMenu, void, (CWnd*, CPoint))(         \
                                     AfxWndFromHandle(reinterpret_cast<HWND>(wParam)), AFX_POINT_LPARAM))

// afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message); nonzero
// stops further cursor processing.
#define ON_WM_SETCURSOR()                                                                   \
    AFX_WM_ENTRY(WM_SETCURSOR, *pResult = AFX_HANDLER(OnSetCursor, BOOL, (CWnd*, UINT, UINT))( \
                                   AfxWndFromHandle(reinterpret_cast<HWND>(wParam)), LOWORD(lParam), HIWORD(lParam)))

// afx_msg void OnTimer(UINT_PTR nIDEvent);
#define ON_WM_TIMER()                                                                       \
    AFX_WM_ENTRY(WM_TIMER, AFX_HANDLER(OnTimer, void, (UINT_PTR))(static_cast<UINT_PTR>(wParam)))

// afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor); the brush
// paints the child's background. Every WM_CTLCOLOR* message arrives here.
#define ON_WM_CTLCOLOR()                                                                    \
    AFX_WM_ENTRY(WM_CTLCOLOR,                                                               \
                 const auto pCtl = reinterpret_cast<const AFX_CTLCOLOR*>(lParam);           \
                 *pResult = reinterpret_cast<LRESULT>(AFX_HANDLER(OnCtlColor, HBRUSH, (CDC*, CWnd*, UINT))( \
                     AfxDCFromHandle(pCtl->hDC), AfxWndFromHandle(pCtl->hWnd), pCtl->nCtlType)))

// afx_msg UINT OnGetDlgCode(); the DLGC_* keys the control wants.
#define ON_WM_GETDLGCODE()                                                                  \
    AFX_WM_ENTRY(WM_GETDLGCODE, *pResult = AFX_HANDLER(OnGetDlgCode, UINT, ())())

// afx_msg void OnEnable(BOOL bEnable);
#define ON_WM_ENABLE()                                                                      \
    AFX_WM_ENTRY(WM_ENABLE, AFX_HANDLER(OnEnable, void, (BOOL))(static_cast<BOOL>(wParam)))

// afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
#define ON_WM_SHOWWINDOW()                                                                  \
    AFX_WM_ENTRY(WM_SHOWWINDOW, AFX_HANDLER(OnShowWindow, void, (BOOL, UINT))(              \
                                    static_cast<BOOL>(wParam), static_cast<UINT>(lParam)))

// afx_msg void OnClose();
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AFX_HANDLER(OnClose, void, ())())

// afx_msg void OnSysColorChange();
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AFX_HANDLER(OnSysColorChange, void, ())())

// afx_msg void OnCaptureChanged(CWnd* pWnd); pWnd gains the capture.
#define ON_WM_CAPTURECHANGED()                                                              \
    AFX_WM_ENTRY(WM_CAPTURECHANGED, AFX_HANDLER(OnCaptureChanged, void, (CWnd*))(           \
                                        AfxWndFromHandle(reinterpret_cast<HWND>(lParam))))

// The scroll messages share one signature:
// afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
// pScrollBar is null for the window's own scroll bar.
#define AFX_SCROLL_ENTRY(message, memberFxn)                                                \
    AFX_WM_ENTRY(message, AFX_HANDLER(memberFxn, void, (UINT, UINT, CScrollBar*))(          \
                              LOWORD(wParam), HIWORD(wParam), AfxScrollBarFromHandle(reinterpret_cast<HWND>(lParam))))
#define ON_WM_HSCROLL() AFX_SCROLL_ENTRY(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() AFX_SCROLL_ENTRY(WM_VSCROLL, OnVScroll)

// afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
#define ON_WM_DRAWITEM()                                                                    \
    AFX_WM_ENTRY(WM_DRAWITEM, AFX_HANDLER(OnDrawItem, void, (int, LPDRAWITEMSTRUCT))(       \
                                  static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); \
                 *pResult = TRUE)

// afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
#define ON_WM_MEASUREITEM()                                                                 \
    AFX_WM_ENTRY(WM_MEASUREITEM, AFX_HANDLER(OnMeasureItem, void, (int, LPMEASUREITEMSTRUCT))( \
                                     static_cast<int>(wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)); \
                 *pResult = TRUE)

// afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
#define ON_WM_WINDOWPOSCHANGING()                                                           \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGING, AFX_HANDLER(OnWindowPosChanging, void, (WINDOWPOS*))( \
                                           reinterpret_cast<WINDOWPOS*>(lParam)))

