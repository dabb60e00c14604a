// DialogTemplate: a dialog template built in memory (the format resource
// compilers produce), so that tests describe their host dialogs in code.
#pragma once

#include "afx/WinTypes.h"

#include <vector>

class DialogTemplate {
public:
    // A dialog in dialog units, in the 8-point "MS Shell Dlg" font.
    DialogTemplate(const char* caption, DWORD style, short cx, short cy);

    // Adds a control; className is a window class name ("Edit", "Button" ...).
    DialogTemplate& Add(const char* className, WORD id, const char* text, DWORD style, short x, short y,
                        short cx, short cy, DWORD exStyle = 0);

    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void AppendDWord(DWORD value);
    void AppendString(const char* text);
    void AlignToDWord();

    std::vector<WORD> m_words;  // vector storage is aligned for DWORDs
};
