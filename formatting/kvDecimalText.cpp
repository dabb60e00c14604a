// Appending decimal numbers to a text.
#include "formatting/kvDecimalText.h"

#include <algorithm>

void kvAppendDecimal(CString& text, int value, int minDigits)
{
    char written[kvDecimalMaxLength + 1];
    written[kvWriteDecimal(written, value, std::min(minDigits, kvDecimalMaxLength))] = '\0';
    text += written;
}
