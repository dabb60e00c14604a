// kvEditFormatterError: what validation found wrong, for the host to report.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

class KVWIN_API kvEditFormatterError {
public:
    kvEditFormatterError() = default;
    kvEditFormatterError(const kvEditFormatterError&) = default;
    kvEditFormatterError& operator=(const kvEditFormatterError&) = default;
    ~kvEditFormatterError() = default;

    long code = 0;                // copied by the host into the status record's code
    CString message;              // ready to show, limits filled in
    unsigned long selection = 0;  // packed selection of the offending characters
};
