#include "buttons/kvSubString.h"

namespace {

// The separator at or after p, or the terminating null.
const char* NextSeparator(const char* p, char separator, kvLeadByteTest isLeadByte)
{
    while (*p != '\0' && *p != separator) {
        if (isLeadByte != nullptr && isLeadByte(static_cast<unsigned char>(*p)) && p[1] != '\0')
            ++p;
        ++p;
    }
    return p;
}

}  // namespace

CString kvSubString(const char* text, int n, char separator, kvLeadByteTest isLeadByte)
{
    if (text == nullptr || n < 1)
        return CString();
    const char* start = text;
    for (int field = 1; field < n; ++field) {
        start = NextSeparator(start, separator, isLeadByte);
        if (*start == '\0')
            return CString();
        ++start;
    }
    const char* end = NextSeparator(start, separator, isLeadByte);
    return CString(start, static_cast<int>(end - start));
}
