#pragma once

// CHandleMap: finds the framework object of a Windows handle, on the calling thread.

#include "fx/handle_bits.h"
#include "fx/object.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <vector>

/// Permanent entries belong to objects that own their handle and unregister it. For any other handle a temporary object
/// is made on request; it owns nothing of the handle and lives until it is deleted at idle. Idle time may come while a
/// handler that asked for it still runs a modal loop: so each knows at which depth of nested handlers it was asked for.
/// One map serves one thread. Object needs a run-time class. Handles are compared as fx::IsSameHandle does.
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
    /// handle value was used again by Windows) and is passed over. depth: how many handlers run.
    Object* FromHandle(Handle handle, CRuntimeClass* kind, int depth = 0) {
        if (handle == nullptr) {
            return nullptr;
        }
        handle = fx::CanonicalHandle(handle);
        if (Object* const permanent = LookupPermanent(handle); permanent != nullptr && permanent->IsKindOf(kind)) {
            return permanent;
        }
        Temporary& temporary = m_temporary[handle];
        if (temporary.object != nullptr && !temporary.object->IsKindOf(kind)) {
            m_retired.push_back(std::move(temporary));
        }
        if (temporary.object == nullptr) {
            temporary = {m_makeTemporary(handle, kind), depth};
        }
        if (temporary.object == nullptr) {
            m_temporary.erase(handle);
            return nullptr;
        }
        temporary.depth = std::min(temporary.depth, depth);
        return temporary.object.get();
    }
    Object* LookupPermanent(Handle handle) const {
        const auto found = m_permanent.find(fx::CanonicalHandle(handle));
        return found == m_permanent.end() ? nullptr : found->second;
    }
    Object* LookupTemporary(Handle handle) const {
        const auto found = m_temporary.find(fx::CanonicalHandle(handle));
        return found == m_temporary.end() ? nullptr : found->second.object.get();
    }
    void SetPermanent(Handle handle, Object* object) { m_permanent[fx::CanonicalHandle(handle)] = object; }
    /// Leaves an entry alone that another object has taken over meanwhile.
    void RemovePermanent(Handle handle, const Object* object) {
        const auto found = m_permanent.find(fx::CanonicalHandle(handle));
        if (found != m_permanent.end() && found->second == object) {
            m_permanent.erase(found);
        }
    }
    /// All of them, whoever asked for them.
    void DeleteTemp() {
        DeleteTempIf([](const Temporary&) { return true; });
    }
    /// Those that handlers asked for which have returned, when this many still run.
    void DeleteReleasedTemp(int depth) {
        DeleteTempIf([depth](const Temporary& temporary) { return depth == 0 || temporary.depth > depth; });
    }
    std::size_t TemporaryCount() const { return m_temporary.size() + m_retired.size(); }
    std::size_t PermanentCount() const { return m_permanent.size(); }

private:
    struct Temporary {
        std::unique_ptr<Object> object;
        int depth = 0; ///< the least at which it was asked for
    };

    template <class Condition>
    void DeleteTempIf(Condition condition) {
        // Destructors may ask this map again: what they see is already without these.
        std::vector<Temporary> gone;
        for (auto entry = m_temporary.begin(); entry != m_temporary.end();) {
            if (condition(entry->second)) {
                gone.push_back(std::move(entry->second));
                entry = m_temporary.erase(entry);
            } else {
                ++entry;
            }
        }
        const auto kept = std::partition(m_retired.begin(), m_retired.end(), condition);
        std::move(m_retired.begin(), kept, std::back_inserter(gone));
        m_retired.erase(m_retired.begin(), kept);
        for (Temporary& temporary : gone) {
            m_releaseTemporary(*temporary.object);
        }
    }

    TemporaryFactory m_makeTemporary;
    TemporaryRelease m_releaseTemporary;
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Temporary> m_temporary;
    std::vector<Temporary> m_retired;
};
