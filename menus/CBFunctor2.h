// CBFunctor2: a copyable callback taking two arguments and returning nothing;
// a menu item's action is one, called with the window and the point of the menu.
#pragma once

#include "menus/_kvCallback2.h"

template <class P1, class P2>
class CBFunctor2 : public _kvCallback2<void, P1, P2> {
public:
    using _kvCallback2<void, P1, P2>::_kvCallback2;
    CBFunctor2() noexcept = default;
};
