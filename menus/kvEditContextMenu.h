// kvEditContextMenu: the right-click menu of edit fields, Undo, Cut, Copy,
// Paste, Delete, Select All and context help, each enabled by the edit's state
// and acting through the edit's ordinary messages, so that the field's own
// handling of cut, paste and undo applies.
#pragma once

#include "menus/kvCtrlContextMenu.h"

class KVWIN_API kvEditContextMenu : public kvCtrlContextMenu {
public:
    kvEditContextMenu();
    kvEditContextMenu(const kvEditContextMenu&) = default;
    kvEditContextMenu& operator=(const kvEditContextMenu&) = default;
    ~kvEditContextMenu() override;

    void AppendDefaultMenu() override;
    // The edit inside a combo box takes the combo box's help id.
    CMI_Flag HelpAdvisor(CWnd* pWnd, CPoint& point) override;

    virtual CMI_Flag UndoAdvisor(CWnd* pWnd, CPoint& point);
    virtual CMI_Flag PasteAdvisor(CWnd* pWnd, CPoint& point);
    virtual CMI_Flag CutCopyDeleteAdvisor(CWnd* pWnd, CPoint& point);
    virtual CMI_Flag SelectAdvisor(CWnd* pWnd, CPoint& point);

    virtual void DoUndo(CWnd* pWnd, CPoint& point);
    virtual void DoCut(CWnd* pWnd, CPoint& point);
    virtual void DoCopy(CWnd* pWnd, CPoint& point);
    virtual void DoPaste(CWnd* pWnd, CPoint& point);
    virtual void DoDelete(CWnd* pWnd, CPoint& point);
    virtual void DoSelectAll(CWnd* pWnd, CPoint& point);

private:
    typedef void (kvEditContextMenu::*Command)(CWnd*, CPoint&);
    typedef CMI_Flag (kvEditContextMenu::*CommandAdvisor)(CWnd*, CPoint&);

    void _AppendCommand(const CString& label, Command command, CommandAdvisor advisor);
    void _AppendSeparator();
    CMI_Flag _CutCopyAdvisor(CWnd* pWnd, CPoint& point);
};
