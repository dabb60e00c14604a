// CHandleMap: one thread's map from a Windows handle to the framework object
// that wraps it. Permanent entries belong to objects their owners created and
// attached; temporary entries are made on demand by FromHandle for handles that
// nobody wrapped, and are deleted at idle time (DeleteTemp) without destroying
// the handle, as the framework has always done. T is the wrapper's base class,
// Handle its public handle member.
#pragma once

#include <memory>
#include <unordered_map>

template <class T, class H, H T::*Handle>
class CHandleMap {
public:
    // Makes the temporary wrapper of a handle (its most derived type may depend
    // on the handle's kind). The map stores the handle into it.
    using Factory = std::unique_ptr<T> (*)(H);

    // The calling thread's map. It is never destroyed, so that objects that die
    // late (statics of other modules at exit) can still detach from it; its
    // temporaries go when the thread ends.
    static CHandleMap& OfThisThread(Factory makeTemporary)
    {
        struct TemporariesCleanup {
            CHandleMap* map;
            ~TemporariesCleanup() { map->DeleteTemp(); }
        };
        thread_local CHandleMap* map = new CHandleMap(makeTemporary);
        thread_local TemporariesCleanup cleanup{map};
        return *map;
    }

    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    T* FromHandle(H h)
    {
        if (h == nullptr)
            return nullptr;
        if (T* permanent = LookupPermanent(h))
            return permanent;
        auto found = m_temporary.find(h);
        if (found != m_temporary.end()) {
            // A caller may have detached or destroyed through the temporary.
            found->second.get()->*Handle = h;
            return found->second.get();
        }
        std::unique_ptr<T> temporary = m_makeTemporary(h);
        temporary.get()->*Handle = h;
        return m_temporary.emplace(h, std::move(temporary)).first->second.get();
    }

    T* LookupPermanent(H h) const
    {
        auto found = m_permanent.find(h);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    void SetPermanent(H h, T* object) { m_permanent[h] = object; }

    // Only the permanent entry goes: a temporary wrapper of the same handle may
    // still be in a caller's hands until idle time.
    void RemoveHandle(H h) { m_permanent.erase(h); }

    void DeleteTemp() noexcept
    {
        for (auto& entry : m_temporary)
            entry.second.get()->*Handle = nullptr;
        m_temporary.clear();
    }

private:
    explicit CHandleMap(Factory makeTemporary) noexcept : m_makeTemporary(makeTemporary) {}

    Factory m_makeTemporary;
    std::unordered_map<H, T*> m_permanent;
    std::unordered_map<H, std::unique_ptr<T>> m_temporary;
};
