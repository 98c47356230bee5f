#pragma once

#include "barwright_api.h"

#include <varnhold/recursive_mutex.h>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

class CCmdUI;

/// Base class of the host's handlers of command events. Derive, override what you handle, return true for an event that
/// you took: no later reactor is then asked. Held by boost::shared_ptr, which destroys a reactor as the type that it
/// was made as; the destructor is therefore not virtual.
class BARWRIGHT_API CMenuReactor {
    friend class CMenuEvtHandleMgr;

protected:
    /// Is the main window to be disabled?
    virtual bool DisableMain() const;
    /// The command `id` was clicked. CMenuIdMgr tells its keyword and parameter.
    virtual bool MenuClick(unsigned int id) const;
    /// The state of the command `cmdUI->m_nID` is wanted.
    virtual bool Update(CCmdUI* cmdUI) const;
};

/// The process-wide dispatcher of command events to the reactors, in the order of their registration. One instance,
/// made by the first Ins() and destroyed at process exit, when it lets go of the reactors.
///
/// Every operation holds one recursive lock while it works, also while reactors run: two threads never dispatch at
/// once, and a reactor may call back into the dispatcher. What a reactor throws passes out of the dispatch.
class BARWRIGHT_API CMenuEvtHandleMgr {
public:
    CMenuEvtHandleMgr(const CMenuEvtHandleMgr&) = delete;
    CMenuEvtHandleMgr& operator=(const CMenuEvtHandleMgr&) = delete;

    /// Never null.
    static CMenuEvtHandleMgr* Ins();

    /// Appends a reactor, which stays until the process ends; must not be empty. One added twice is asked twice. Added
    /// by a reactor within a dispatch, it is asked in that same dispatch.
    void addReactor(boost::shared_ptr<CMenuReactor> reactor);
    /// A copy of the list, in the order of registration.
    std::vector<boost::shared_ptr<CMenuReactor>> getReactors();

    /// Each asks the reactors one after the other until one returns true; false when none did.
    bool MenuClick(unsigned int id) const;
    bool Update(CCmdUI* cmdUI) const;
    bool DisableMain() const;

private:
    CMenuEvtHandleMgr();
    ~CMenuEvtHandleMgr() = default;

    template <class Question>
    bool AskInOrder(Question question) const;

    mutable xrecursive_mutex m_mutex;
    std::vector<boost::shared_ptr<CMenuReactor>> m_reactors;
};
