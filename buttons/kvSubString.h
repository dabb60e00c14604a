// kvSubString: one field of a text cut at a separator, as the bitmap button
// keeps its caption and tool-tip text in one window text.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

// Whether a byte opens a two-byte character of the code page in use.
using kvLeadByteTest = bool (*)(unsigned char byte);

// The n-th field (from 1) of text cut at separator; empty for a null text or
// when there are fewer fields. The second byte of a two-byte character is never
// taken for the separator.
KVWIN_API CString kvSubString(const char* text, int n, char separator, kvLeadByteTest isLeadByte = nullptr);
