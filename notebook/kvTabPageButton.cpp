// kvTabPageButton: a click, from a mnemonic, selects the button's tab.
#include "notebook/kvTabPageButton.h"

#include "formatting/kvNotifyParent.h"
#include "notebook/kvTabNotebook.h"

BEGIN_MESSAGE_MAP(kvTabPageButton, CButton)
    ON_CONTROL_REFLECT(BN_CLICKED, OnClicked)
    ON_MESSAGE(BM_CLICK, OnClick)
END_MESSAGE_MAP()

// Some button implementations click only when the mouse is released inside the
// button, which a zero-size button never has: report the click directly.
LRESULT kvTabPageButton::OnClick(WPARAM, LPARAM)
{
    if (IsWindowEnabled())
        kvNotifyParent(this, BN_CLICKED);
    return 0;
}

void kvTabPageButton::OnClicked()
{
    if (m_pNotebook != nullptr && m_nPage >= 0)
        m_pNotebook->OnPageButtonClicked(m_nPage);
}
