#pragma once

// CHandleMap: finds the framework object of a Windows handle, on the calling thread.

#include "fx/object.h"

#include <memory>
#include <unordered_map>
#include <vector>

/// Permanent entries belong to objects that own their handle and unregister it. For any other handle a temporary object
/// is made on request; it owns nothing of the handle and lives until DeleteTemp, which runs at idle. One map serves one
/// thread. Object needs a run-time class.
template <class Object, class Handle>
class CHandleMap {
public:
    /// Makes an object around a handle that it does not own; kind is the class asked for.
    typedef std::unique_ptr<Object> (*TemporaryFactory)(Handle handle, CRuntimeClass* kind);
    /// Takes the handle out of a temporary object before it is deleted, so that the destructor leaves it alone.
    typedef void (*TemporaryRelease)(Object& object);

    CHandleMap(TemporaryFactory makeTemporary, TemporaryRelease releaseTemporary)
        : m_makeTemporary(makeTemporary), m_releaseTemporary(releaseTemporary) {}
    ~CHandleMap() { DeleteTemp(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /// Null for a null handle, or when the factory answers null. An entry of another class than kind is stale (its
    /// handle value was used again by Windows) and is passed over.
    Object* FromHandle(Handle handle, CRuntimeClass* kind) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (Object* const permanent = LookupPermanent(handle); permanent != nullptr && permanent->IsKindOf(kind)) {
            return permanent;
        }
        std::unique_ptr<Object>& temporary = m_temporary[handle];
        if (temporary != nullptr && !temporary->IsKindOf(kind)) {
            m_retired.push_back(std::move(temporary));
        }
        if (temporary == nullptr) {
            temporary = m_makeTemporary(handle, kind);
        }
        if (temporary == nullptr) {
            m_temporary.erase(handle);
            return nullptr;
        }
        return temporary.get();
    }
    Object* LookupPermanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }
    Object* LookupTemporary(Handle handle) const {
        const auto found = m_temporary.find(handle);
        return found == m_temporary.end() ? nullptr : found->second.get();
    }
    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }
    /// Leaves an entry alone that another object has taken over meanwhile.
    void RemovePermanent(Handle handle, const Object* object) {
        const auto found = m_permanent.find(handle);
        if (found != m_permanent.end() && found->second == object) {
            m_permanent.erase(found);
        }
    }
    void DeleteTemp() {
        // Destructors may ask this map again: what they see is already empty.
        std::unordered_map<Handle, std::unique_ptr<Object>> temporary;
        temporary.swap(m_temporary);
        std::vector<std::unique_ptr<Object>> retired;
        retired.swap(m_retired);
        for (auto& entry : temporary) {
            m_releaseTemporary(*entry.second);
        }
        for (auto& object : retired) {
            m_releaseTemporary(*object);
        }
    }
    std::size_t TemporaryCount() const { return m_temporary.size() + m_retired.size(); }
    std::size_t PermanentCount() const { return m_permanent.size(); }

private:
    TemporaryFactory m_makeTemporary;
    TemporaryRelease m_releaseTemporary;
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
    std::vector<std::unique_ptr<Object>> m_retired;
};
