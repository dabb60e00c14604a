// kvEdit: the formatted edit field. Typing, deletion, the clipboard, text set
// from outside, focus changes and verification all go through the formatter it
// hosts (or through an application's older kvFormatter); without one it is a
// plain edit with its own colours. The overtype state is not the field's: the
// main window keeps it for every field, through the status message.
#pragma once

#include "afx/CEdit.h"
#include "formatting/_kvControlColors.h"
#include "formatting/kvEditFormatter.h"
#include "formatting/kvFormatter.h"
#include "library/kvWinExport.h"

class KVWIN_API kvEdit : public CEdit {
public:
    kvEdit();
    // Takes the legacy formatter over.
    explicit kvEdit(kvFormatter* pFormatter);
    ~kvEdit() override;

    // A WS_BORDER style becomes a sunken client edge.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    // Each setter deletes the formatters of both kinds and keeps only its own
    // pointer: give a field formatters of one kind only.
    void SetFormatter(kvEditFormatter* pFormatter);
    void SetFormatter(kvFormatter* pFormatter);
    kvEditFormatter* GetFormatter() const { return m_pFormatter; }
    kvFormatter* GetOldFormatter() const { return m_pOldFormatter; }

    void SetTextColor(COLORREF crText);
    void SetBkColor(COLORREF crBk);
    COLORREF GetTextColor() const { return m_Colors.GetTextColor(); }
    COLORREF GetBkColor() const { return m_Colors.GetBkColor(); }

    // The legacy formatter's verdict on the text (true without one).
    bool IsValidExitField();
    // Keeps the caret of a right-aligned field in view.
    void FixRightJustifiedText();

protected:
    // The formatter's entry form of the text, written back with its selection.
    void EnterField();
    // The formatter's own keys (Delete ...); false when the key is left to the caller.
    bool FormatterKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    // Text the control chose for the user (a date picked in a popup): written
    // with all of it selected, and announced as a change when it is one.
    void ReplaceText(const CString& text);

    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg LRESULT OnCut(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCopy(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnClear(WPARAM wParam, LPARAM lParam);
    // The native control's own EN_CHANGE while the field writes its text.
    afx_msg BOOL OnChangeReflect();

    DECLARE_MESSAGE_MAP()

private:
    // Writes the field's own text past OnSetText.
    void _WriteText(const CString& text);
    // The same, keeping the modified flag.
    void _SetWindowText(const CString& text);
    void _Select(unsigned long sel);
    // Write back and select; a changed text marks the field modified and
    // tells the parent: the end of every formatted edit.
    void _ShowEdit(const CString& before, const CString& text, unsigned long sel);
    CString _Text() const;
    bool _IsReadOnly() const;
    bool _IsPassword() const;
    // Read in full: the packed form stops at 65,535 characters.
    bool _IsSelectionEmpty() const;
    CString _SelectedText() const;
    bool _TakesFormattedEdits() const;
    // Cut and clear through the formatter's Delete; false when it leaves the
    // key to the native control.
    bool _DeleteThroughFormatter(CString& text, unsigned long& sel) const;
    // Places text on the clipboard as CF_TEXT; false when any step fails.
    bool _PutOnClipboard(const CString& text);
    void _PasteChar(CString& text, unsigned long& sel, char ch) const;
    void _EmulateOvertype(bool overtype, UINT nChar);
    void _AnchorRightAlignedText();
    void _DeleteFormatters();

    void _FormatterOnChar(UINT nChar);
    void _FormatterOnKeyDown(UINT nChar);
    LRESULT _FormatterOnSetText(WPARAM wParam, LPARAM lParam);
    void _FormatterOnSetFocus(CString& text);
    LRESULT _FormatterDoOnVerify();
    void _FormatterBackspace();
    void _FormatterReformat(UINT nChar);
    bool _LegacyTextFull() const;
    void _InsertNatively(bool upperCase);

    _kvControlColors m_Colors;
    kvEditFormatter* m_pFormatter;
    bool m_bSetTextPassThrough;
    kvFormatter* m_pOldFormatter;
};
