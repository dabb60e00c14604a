// kvWin::DynLinkObject
#include "library/DynLinkObject.h"

#include "afx/CDynLinkLibrary.h"
#include "library/kvLibraryModule.h"

namespace kvWin {

void DynLinkObject::Initialize()
{
    // The chain owns the entry; terminating the module record deletes it.
    new CDynLinkLibrary(m_module);
    // The chain entry must not outlive the code: a second load of our own file,
    // never undone, keeps the library in the process until it ends.
    ::LoadLibraryA(LibraryFileName());
}

}  // namespace kvWin
