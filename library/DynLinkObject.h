// kvWin::DynLinkObject: the library's late initialisation, which needs the
// application object: it makes the library's resources and classes reachable
// through the framework's module chain and keeps the library loaded from then on.
#pragma once

struct AFX_EXTENSION_MODULE;

namespace kvWin {

class DynLinkObject {
public:
    explicit DynLinkObject(AFX_EXTENSION_MODULE& module) : m_module(module) {}
    DynLinkObject(const DynLinkObject&) = delete;
    DynLinkObject& operator=(const DynLinkObject&) = delete;

    void Initialize();

private:
    AFX_EXTENSION_MODULE& m_module;
};

}  // namespace kvWin
