#include <afxwin.h>

#include "command_reactor.h"

#include "menu_id_mgr.h"

void CCommandReactor::Serve(const std::wstring& command, Action run, Question isChecked, Question isEnabled) {
    m_entries[command] = {std::move(run), std::move(isChecked), std::move(isEnabled)};
}

const CCommandReactor::Entry* CCommandReactor::Find(unsigned int id, std::wstring& parameter) const {
    const CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    std::wstring command;
    if (!registry->GetCmd(static_cast<int>(id), command)) {
        return nullptr;
    }
    const auto found = m_entries.find(command);
    if (found == m_entries.end()) {
        return nullptr;
    }
    registry->GetCmdParam(static_cast<int>(id), parameter);
    return &found->second;
}

bool CCommandReactor::MenuClick(unsigned int id) const {
    std::wstring parameter;
    const Entry* const entry = Find(id, parameter);
    if (!entry) {
        return false;
    }
    entry->run(parameter);
    return true;
}

bool CCommandReactor::Update(CCmdUI* commandUi) const {
    std::wstring parameter;
    const Entry* const entry = Find(commandUi->m_nID, parameter);
    if (!entry) {
        return false;
    }
    commandUi->Enable(!entry->isEnabled || entry->isEnabled(parameter));
    if (entry->isChecked) {
        commandUi->SetCheck(entry->isChecked(parameter));
    }
    return true;
}
