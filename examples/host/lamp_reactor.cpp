#include <afxwin.h>

#include "lamp_reactor.h"
#include "main_frame.h"
#include "menu_id_mgr.h"
#include "varnhold/language.h"

#include <optional>
#include <string>
#include <utility>

namespace {

/// The parameter of a command, when its command text is the one given. Ids are chosen at run time: what a command means
/// stands in the registry, under CMD and PARAM.
std::optional<std::wstring> ParameterOf(unsigned int id, const wchar_t* command) {
    const CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    std::wstring text;
    if (!registry->GetCmd(static_cast<int>(id), text) || text != command) {
        return std::nullopt;
    }
    std::wstring parameter;
    registry->GetCmdParam(static_cast<int>(id), parameter); // stays empty when there is none
    return parameter;
}

} // namespace

CLampReactor::CLampReactor(std::shared_ptr<LampBoard> board) : m_board(std::move(board)) {}

// True ends the matter; false lets the dispatcher ask the next reactor.
bool CLampReactor::MenuClick(unsigned int id) const {
    const std::optional<std::wstring> parameter = ParameterOf(id, L"lamp");
    if (!parameter) {
        return false;
    }
    if (*parameter == L"next") {
        m_board->LightNext();
    } else if (*parameter == L"out") {
        m_board->PutOut();
    }
    return true;
}

// Asked in idle time for every command that is shown. A reactor that has nothing to say returns false, and the command
// stays enabled.
bool CLampReactor::Update(CCmdUI* commandUi) const {
    const std::optional<std::wstring> parameter = ParameterOf(commandUi->m_nID, L"lamp");
    if (parameter != L"out") {
        return false;
    }
    commandUi->Enable(m_board->LitCount() > 0);
    return true;
}

bool CLanguageReactor::MenuClick(unsigned int id) const {
    const std::optional<std::wstring> code = ParameterOf(id, L"language");
    if (!code) {
        return false;
    }
    // The clicked button is still at work: whatever destroys it, as a new ribbon does, is posted and comes afterwards.
    if (CMultiLanguageMgr::SetLanguage(*code)) {
        AfxGetMainWnd()->PostMessage(kRebuildRibbonMessage);
    }
    return true;
}

bool CLanguageReactor::Update(CCmdUI* commandUi) const {
    const std::optional<std::wstring> code = ParameterOf(commandUi->m_nID, L"language");
    if (!code) {
        return false;
    }
    commandUi->SetCheck(CMultiLanguageMgr::GetLanguage() == *code);
    return true;
}
