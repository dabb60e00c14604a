// kvContextMenuItem: an entry of a context menu. At display time the item asks
// its advisor whether it is shown, grayed or checked, then adds itself to the
// native popup and registers its action under the command id it was given.
#pragma once

#include "afx/CPoint.h"
#include "afx/CString.h"
#include "library/kvWinExport.h"
#include "menus/CBFunctor2.h"
#include "menus/CBFunctor2wRet.h"

#include <map>

class CMenu;
class CWnd;

class KVWIN_API kvContextMenuItem {
public:
    // Bits returned by an advisor; bit 1 means nothing. CMI_UNCHECKED is the
    // native default and adds nothing; CMI_CHECKED wins over it.
    enum CMI_Flag {
        CMI_ENABLED = 0,
        CMI_GRAYED = 2,
        CMI_CHECKED = 4,
        CMI_UNCHECKED = 8,
        CMI_HIDDEN = 16
    };

    typedef CBFunctor2<CWnd*, CPoint&> Action;
    typedef CBFunctor2wRet<CWnd*, CPoint&, CMI_Flag> Advisor;
    // Native command id to action, alive while one popup is shown.
    typedef std::map<int, Action> ActionMap;

    // The next command id to hand out while a popup is built; shared by all
    // menus, restarted at 1 for every popup.
    static unsigned short m_ActionID;

    static const CString CMI_UNDO_LABEL;
    static const CString CMI_CUT_LABEL;
    static const CString CMI_COPY_LABEL;
    static const CString CMI_PASTE_LABEL;
    static const CString CMI_DELETE_LABEL;
    static const CString CMI_SELECTALL_LABEL;
    static const CString CMI_HELP_LABEL;

    explicit kvContextMenuItem(const Advisor& advisor);
    kvContextMenuItem(const kvContextMenuItem&) = default;
    kvContextMenuItem& operator=(const kvContextMenuItem&) = default;
    virtual ~kvContextMenuItem();

    // Whether the item carries this label, compared exactly; only labelled
    // items and menus can be found by label.
    virtual bool MyLabel(const CString& label) const;

    // Adds the item to the native menu unless its advisor hides it.
    void MakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions) const;

protected:
    // nFlags: the native MF_ flags worked out from the advisor's answer.
    virtual void _DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                                    unsigned long nFlags) const = 0;

private:
    Advisor m_Advisor;
};
