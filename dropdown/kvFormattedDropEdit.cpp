// kvFormattedDropEdit: the formatter's part in typing, keys, focus and
// verification, on top of the drop edit's own.
#include "dropdown/kvFormattedDropEdit.h"

#include "formatting/kvMessages.h"

BEGIN_MESSAGE_MAP(kvFormattedDropEdit, kvDropEditBase)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
    ON_WM_CHAR()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

void kvFormattedDropEdit::OnSetFocus(CWnd* pOldWnd)
{
    kvDropEditBase::OnSetFocus(pOldWnd);
    EnterField();
}

void kvFormattedDropEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (IsReadOnly() || !FormatterKeyDown(nChar, nRepCnt, nFlags))
        kvDropEditBase::OnKeyDown(nChar, nRepCnt, nFlags);
}

// The formatter's verdict, not the plain drop edit's "always valid".
LRESULT kvFormattedDropEdit::OnVerify(WPARAM wParam, LPARAM lParam) { return kvEdit::OnVerify(wParam, lParam); }
