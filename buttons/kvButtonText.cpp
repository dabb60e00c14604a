#include "buttons/kvButtonText.h"

CString kvRemoveAmpersand(const char* text)
{
    CString shown;
    if (text == nullptr)
        return shown;
    for (const char* p = text; *p != '\0'; ++p) {
        // The "&" after a dropped one is shown.
        if (*p == '&' && *++p == '\0')
            break;
        shown += *p;
    }
    return shown;
}
