// kvBase::SmartPtr: the shared pointer of the base library. Copies share one
// object, which is deleted through its virtual destructor when the last copy
// lets go. The count is a plain 16-bit counter: the pointers live on the user
// interface thread only, and no object is shared by more than 65535 of them.
#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

namespace kvBase {

template <class T>
class SmartPtr {
public:
    SmartPtr() noexcept = default;
    SmartPtr(std::nullptr_t) noexcept {}

    // Takes ownership of a heap object; a null pointer gives a null SmartPtr.
    explicit SmartPtr(T* object) : m_object(object), m_count(NewCount(object)) {}

    SmartPtr(const SmartPtr& other) noexcept : m_object(other.m_object), m_count(other.m_count) { Share(); }
    SmartPtr(SmartPtr&& other) noexcept { Swap(other); }

    // A pointer to a derived class shares its object as the base class.
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    SmartPtr(const SmartPtr<U>& other) noexcept : m_object(other.m_object), m_count(other.m_count)
    {
        static_assert(std::has_virtual_destructor_v<T>, "the base class is deleted through its destructor");
        Share();
    }

    ~SmartPtr() { Release(); }

    // By value: covers copy and move, and assignment to itself.
    SmartPtr& operator=(SmartPtr other) noexcept
    {
        Swap(other);
        return *this;
    }

    T* get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    void Swap(SmartPtr& other) noexcept
    {
        std::swap(m_object, other.m_object);
        std::swap(m_count, other.m_count);
    }

private:
    template <class U>
    friend class SmartPtr;

    using Count = unsigned short;

    // If the counter cannot be allocated the object is not leaked.
    static Count* NewCount(T* object)
    {
        if (!object)
            return nullptr;
        try {
            return new Count(1);
        } catch (...) {
            Delete(object);
            throw;
        }
    }

    static void Delete(T* object)
    {
        static_assert(!std::is_polymorphic_v<T> || std::has_virtual_destructor_v<T>,
                      "a shared base class needs a virtual destructor");
        delete object;
    }

    void Share() noexcept
    {
        if (m_count)
            ++*m_count;
    }

    void Release() noexcept
    {
        if (m_count && --*m_count == 0) {
            Delete(m_object);
            delete m_count;
        }
    }

    T* m_object = nullptr;
    Count* m_count = nullptr;
};

template <class T, class U>
bool operator==(const SmartPtr<T>& a, const SmartPtr<U>& b) noexcept { return a.get() == b.get(); }
template <class T, class U>
bool operator!=(const SmartPtr<T>& a, const SmartPtr<U>& b) noexcept { return a.get() != b.get(); }
template <class T>
bool operator==(const SmartPtr<T>& a, std::nullptr_t) noexcept { return !a; }
template <class T>
bool operator!=(const SmartPtr<T>& a, std::nullptr_t) noexcept { return static_cast<bool>(a); }
// Ordering by address, so that SmartPtrs can be keys of ordered containers.
template <class T>
bool operator<(const SmartPtr<T>& a, const SmartPtr<T>& b) noexcept { return std::less<T*>()(a.get(), b.get()); }

}  // namespace kvBase
