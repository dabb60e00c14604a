// HelpText: kvformat --help, and the options of one family with FAMILY --help.
#pragma once

#include "FamilyTable.h"

#include <iosfwd>

// family null: the overview with every family's name.
void WriteHelp(std::ostream& out, const FamilyEntry* family);
