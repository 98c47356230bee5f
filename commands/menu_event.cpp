#include "menu_event.h"

bool CMenuReactor::DisableMain() const { return false; }

bool CMenuReactor::MenuClick(unsigned int) const { return false; }

bool CMenuReactor::Update(CCmdUI*) const { return false; }

CMenuEvtHandleMgr::CMenuEvtHandleMgr() { m_mutex.setPrompt("CMenuEvtHandleMgr::m_mutex"); }

CMenuEvtHandleMgr* CMenuEvtHandleMgr::Ins() {
    static CMenuEvtHandleMgr instance;
    return &instance;
}

void CMenuEvtHandleMgr::addReactor(boost::shared_ptr<CMenuReactor> reactor) {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    m_reactors.push_back(std::move(reactor));
}

std::vector<boost::shared_ptr<CMenuReactor>> CMenuEvtHandleMgr::getReactors() {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    return m_reactors;
}

template <class Question>
bool CMenuEvtHandleMgr::AskInOrder(Question question) const {
    xrecursive_mutex::scoped_lock lock(m_mutex);
    // By index and with the length read again each time: a reactor may append another one.
    for (std::size_t i = 0; i < m_reactors.size(); ++i) {
        if (question(*m_reactors[i])) {
            return true;
        }
    }
    return false;
}

bool CMenuEvtHandleMgr::MenuClick(unsigned int id) const {
    return AskInOrder([id](const CMenuReactor& reactor) { return reactor.MenuClick(id); });
}

bool CMenuEvtHandleMgr::Update(CCmdUI* cmdUI) const {
    return AskInOrder([cmdUI](const CMenuReactor& reactor) { return reactor.Update(cmdUI); });
}

bool CMenuEvtHandleMgr::DisableMain() const {
    return AskInOrder([](const CMenuReactor& reactor) { return reactor.DisableMain(); });
}
