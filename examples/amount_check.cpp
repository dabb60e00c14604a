// amount_check: checks the amounts given on the command line with the rules of
// an amount field (two decimals, thousands separators, at most 1,000,000.00)
// and prints each one as the field would show it, or the field's message.
// The exit status is 1 when an amount is refused.
#include "kvwin.h"

#include <cstdio>

int main(int argc, char** argv)
{
    kvNumEditFormatter amount(9, 2, kvNumEditFormatter::Separators | kvNumEditFormatter::PadDecimals);
    amount.SetUpperLimit(1000000, kvNumEditFormatter::UpperInclusive);

    int status = 0;
    for (int i = 1; i < argc; ++i) {
        CString text(argv[i]);
        kvEditFormatterError error;
        if (amount.IsValid(text, &error)) {
            unsigned long selection = 0;
            amount.DoExitField(text, selection);  // the display form, as the field leaves it
            std::printf("%s: %s\n", argv[i], text.GetString());
        } else {
            std::printf("%s: refused: %s\n", argv[i], error.message.GetString());
            status = 1;
        }
    }
    return status;
}
