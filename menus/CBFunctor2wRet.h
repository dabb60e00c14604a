// CBFunctor2wRet: a copyable callback taking two arguments and returning a
// value; a menu item's advisor is one, answering how the item is shown.
#pragma once

#include "menus/_kvCallback2.h"

template <class P1, class P2, class RT>
class CBFunctor2wRet : public _kvCallback2<RT, P1, P2> {
public:
    using _kvCallback2<RT, P1, P2>::_kvCallback2;
    CBFunctor2wRet() noexcept = default;
};
