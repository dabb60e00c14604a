// _kvCallback2: the common body of the two-argument callback values CBFunctor2
// and CBFunctor2wRet. A callback binds an object and one of its member
// functions, or a free function, and is copied by value: the member-function
// pointer is kept in a fixed buffer and called through a small typed entry, so
// a callback never allocates and copying it copies the binding.
#pragma once

#include <cstring>

template <class RT, class P1, class P2>
class _kvCallback2 {
public:
    typedef RT (*FreeFunction)(P1, P2);

    // Empty: no object, no function.
    _kvCallback2() noexcept = default;

    _kvCallback2(FreeFunction function) noexcept
        : m_entry(function ? &_CallFree : nullptr)
    {
        _Store(function);
    }

    // Calls callee->*member, with virtual dispatch when the member is virtual.
    template <class Callee, class Member>
    _kvCallback2(Callee* callee, Member member) noexcept
        : m_callee(const_cast<void*>(static_cast<const void*>(callee))),
          m_entry(member ? &_CallMember<Callee, Member> : nullptr)
    {
        _Store(member);
    }

    bool IsEmpty() const noexcept { return m_callee == nullptr && m_entry == nullptr; }

    // Without a function there is nothing to call: the result is value-initialised.
    RT operator()(P1 p1, P2 p2) const { return m_entry ? m_entry(*this, p1, p2) : RT(); }

private:
    typedef RT (*Entry)(const _kvCallback2&, P1, P2);

    // Pointers to members take two words in the ABI this library is built with;
    // the assertion in _Store keeps it honest.
    static constexpr std::size_t kFunctionSize = 2 * sizeof(void*);

    template <class Function>
    void _Store(Function function) noexcept
    {
        static_assert(sizeof(Function) <= kFunctionSize, "function pointer does not fit the callback");
        std::memcpy(m_function, &function, sizeof(Function));
    }

    template <class Function>
    Function _Load() const noexcept
    {
        Function function;
        std::memcpy(&function, m_function, sizeof(Function));
        return function;
    }

    static RT _CallFree(const _kvCallback2& self, P1 p1, P2 p2)
    {
        return self._Load<FreeFunction>()(p1, p2);
    }

    template <class Callee, class Member>
    static RT _CallMember(const _kvCallback2& self, P1 p1, P2 p2)
    {
        Callee* callee = static_cast<Callee*>(self.m_callee);
        return (callee->*self._Load<Member>())(p1, p2);
    }

    void* m_callee = nullptr;
    Entry m_entry = nullptr;
    alignas(void*) unsigned char m_function[kFunctionSize] = {};
};
