// The family table. A new family is its own source file defining a FamilyEntry,
// plus one line here.
#include "FamilyTable.h"

#define KVFORMAT_FAMILIES(FAMILY) \
    FAMILY(kStringFamily)         \
    FAMILY(kNumberFamily)         \
    FAMILY(kDateFamily)           \
    FAMILY(kTimeFamily)           \
    FAMILY(kSsnFamily)

#define KVFORMAT_DECLARE_FAMILY(entry) extern const FamilyEntry entry;
KVFORMAT_FAMILIES(KVFORMAT_DECLARE_FAMILY)
#undef KVFORMAT_DECLARE_FAMILY

const std::vector<const FamilyEntry*>& AllFamilies()
{
#define KVFORMAT_LIST_FAMILY(entry) &entry,
    static const std::vector<const FamilyEntry*> families = {KVFORMAT_FAMILIES(KVFORMAT_LIST_FAMILY)};
#undef KVFORMAT_LIST_FAMILY
    return families;
}

const FamilyEntry* FindFamily(const std::string& name)
{
    for (const FamilyEntry* family : AllFamilies()) {
        if (name == family->name)
            return family;
    }
    return nullptr;
}
