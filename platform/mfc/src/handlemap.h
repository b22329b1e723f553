#pragma once
// The map from a Win32 handle to the object that wraps it, one for each thread and family of objects.
//
// A handle is wrapped permanently by an object that a program attached to it, or temporarily by one that the
// map made because somebody asked `FromHandle` for a handle without an object. Temporary objects belong to
// the map and live until `DeleteTemp`, which the thread calls in its idle time; they never own their handle.
//
//     template <> struct CHandleTraits<CMenu>
//     {
//         using Handle = HMENU;
//         static void Assign(CMenu& menu, HMENU handle) { menu.m_hMenu = handle; }
//     };
//
//     CMenu* CMenu::FromHandle(HMENU menu) { return CHandleMap<CMenu>::OfThread().FromHandle(menu); }

#include <windows.h>

#include <memory>
#include <unordered_map>
#include <utility>

/// Says how a family of objects keeps its handle: the member type `Handle` and `Assign(object, handle)`.
/// A family whose objects hold a handle twice, as CDC does, assigns both.
template <class Object>
struct CHandleTraits;

template <class Object>
class CHandleMap
{
public:
    using Traits = CHandleTraits<Object>;
    using Handle = typename Traits::Handle;

    CHandleMap() = default;
    ~CHandleMap() { DeleteTemp(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /// The map of the calling thread, made at its first use and released when the thread ends.
    static CHandleMap& OfThread();

    /// The map of the calling thread, or null if the thread never made one. Costs no allocation, which suits
    /// destructors that may run after the thread gave its map back.
    static CHandleMap* OfThreadIfAny() { return static_cast<CHandleMap*>(::FlsGetValue(Slot())); }

    /// The object of the handle, permanent or temporary; a temporary one is made if there is none.
    /// Null for a null handle.
    Object* FromHandle(Handle handle);

    /// The object attached to the handle by the program, or null.
    Object* FromHandlePermanent(Handle handle) const;

    /// The temporary object of the handle, or null; makes none.
    Object* LookupTemporary(Handle handle) const;

    /// Makes the object the handle's own. The object stays the caller's.
    void SetPermanent(Handle handle, Object* object)
    {
        m_permanent[handle] = object;
        RecentOf(handle) = {};
    }

    /// Forgets the permanent object of the handle. A temporary one stays until `DeleteTemp`.
    void RemoveHandle(Handle handle)
    {
        m_permanent.erase(handle);
        RecentOf(handle) = {};
    }

    /// Deletes the temporary objects; their handles are left as they are.
    void DeleteTemp();

private:
    /// The thread-local slot of this family. Fiber-local storage is used for its callback at thread end,
    /// which also covers threads that were not started through the framework.
    class CSlot
    {
    public:
        CSlot() : m_index(::FlsAlloc(&Release)) {}
        ~CSlot() { ::FlsFree(m_index); }
        CSlot(const CSlot&) = delete;
        CSlot& operator=(const CSlot&) = delete;
        DWORD index() const { return m_index; }

    private:
        static void WINAPI Release(void* map) { delete static_cast<CHandleMap*>(map); }
        DWORD m_index;
    };

    static DWORD Slot()
    {
        static const CSlot slot;
        return slot.index();
    }

    /// A handle that was asked for, and its permanent object. Each message asks, mostly for the same few windows.
    struct CRecent
    {
        Handle handle = nullptr;
        Object* object = nullptr;
    };
    static constexpr size_t recentCount = 16;
    CRecent& RecentOf(Handle handle) const
    {
        const auto number = reinterpret_cast<size_t>(handle); // even, and counted up
        return m_recent[number / 2 % recentCount];
    }

    mutable CRecent m_recent[recentCount];
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};

template <class Object>
CHandleMap<Object>& CHandleMap<Object>::OfThread()
{
    if (CHandleMap* map = OfThreadIfAny())
        return *map;
    auto made = std::make_unique<CHandleMap>();
    ::FlsSetValue(Slot(), made.get());
    return *made.release();
}

template <class Object>
Object* CHandleMap<Object>::FromHandle(Handle handle)
{
    if (handle == nullptr)
        return nullptr;
    if (Object* permanent = FromHandlePermanent(handle))
        return permanent;
    std::unique_ptr<Object>& temporary = m_temporary[handle];
    if (!temporary)
        temporary = std::make_unique<Object>();
    // Assigned at each request: a caller may have detached the object that it was given before.
    Traits::Assign(*temporary, handle);
    return temporary.get();
}

template <class Object>
Object* CHandleMap<Object>::FromHandlePermanent(Handle handle) const
{
    CRecent& recent = RecentOf(handle);
    if (recent.handle == handle && handle != nullptr)
        return recent.object;
    const auto found = m_permanent.find(handle);
    if (found == m_permanent.end())
        return nullptr;
    recent = {handle, found->second};
    return found->second;
}

template <class Object>
Object* CHandleMap<Object>::LookupTemporary(Handle handle) const
{
    const auto found = m_temporary.find(handle);
    return found == m_temporary.end() ? nullptr : found->second.get();
}

template <class Object>
void CHandleMap<Object>::DeleteTemp()
{
    // Moved out first: a destructor may ask for the map again.
    auto temporary = std::move(m_temporary);
    m_temporary.clear();
    for (auto& entry : temporary)
        Traits::Assign(*entry.second, nullptr);
}

/// What the families' Attach, Detach and DeleteTempMap do. `member` is where the object keeps its handle.
template <class Object, class Handle>
BOOL AttachHandle(Object& object, Handle& member, Handle handle)
{
    ASSERT(member == nullptr);
    if (handle == nullptr)
        return FALSE;
    member = handle;
    CHandleMap<Object>::OfThread().SetPermanent(handle, &object);
    return TRUE;
}

template <class Object, class Handle>
Handle DetachHandle(Object&, Handle& member)
{
    if (CHandleMap<Object>* map = CHandleMap<Object>::OfThreadIfAny())
        map->RemoveHandle(member);
    return std::exchange(member, nullptr);
}

template <class Object>
void DeleteTempOfThread()
{
    if (CHandleMap<Object>* map = CHandleMap<Object>::OfThreadIfAny())
        map->DeleteTemp();
}
