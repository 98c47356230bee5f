#include "afxusertoolsmanager.h"

#include "fx/app.h"
#include "fx/archive.h"
#include "fx/state_store.h"

#include <memory>
#include <vector>

CUserToolsManager* afxUserToolsManager = nullptr;

namespace {

constexpr LPCTSTR kEntry = L"Tools";

CString SectionOf(LPCTSTR profile) { return CString(profile != nullptr ? profile : L"") + L"\\UserToolsManager"; }

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

/// Null: the class cannot be created, or is not one of tools.
std::unique_ptr<CUserTool> MakeTool(CRuntimeClass& toolClass) {
    std::unique_ptr<CObject> made(toolClass.CreateObject());
    auto* const tool = DYNAMIC_DOWNCAST(CUserTool, made.get());
    if (tool != nullptr) {
        static_cast<void>(made.release());
    }
    return std::unique_ptr<CUserTool>(tool);
}

/// The tools of the list as one object; what was read is owned here.
class KeptTools : public CObject {
public:
    KeptTools(const CObList& tools, CRuntimeClass& toolClass) : m_tools(tools), m_class(toolClass) {}

    std::vector<std::unique_ptr<CUserTool>> read;

    void Serialize(CArchive& ar) override {
        auto count = static_cast<DWORD>(m_tools.GetCount());
        if (!ar.IsLoading()) {
            ar << count;
            for (POSITION position = m_tools.GetHeadPosition(); position != nullptr;) {
                m_tools.GetNext(position)->Serialize(ar);
            }
            ar << count;
            return;
        }
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        for (DWORD index = 0; index < count; ++index) {
            read.push_back(MakeTool(m_class));
            if (!read.back()) {
                AfxThrowArchiveException(CArchiveException::badClass);
            }
            read.back()->Serialize(ar);
        }
        DWORD countAgain = 0;
        ar >> countAgain;
        if (countAgain != count) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
    }

private:
    const CObList& m_tools;
    CRuntimeClass& m_class;
};

} // namespace

CUserToolsManager::CUserToolsManager() {
    if (afxUserToolsManager == nullptr) {
        afxUserToolsManager = this;
    }
}

CUserToolsManager::CUserToolsManager(const UINT uiCmdToolsDummy, const UINT uiCmdFirst, const UINT uiCmdLast,
                                     CRuntimeClass* pToolRTC, UINT uArgMenuID, UINT uInitDirMenuID)
    : CUserToolsManager() {
    m_uiCmdToolsDummy = uiCmdToolsDummy;
    m_uiCmdFirst = uiCmdFirst;
    m_uiCmdLast = uiCmdLast;
    m_pToolRTC = pToolRTC;
    m_uArgMenuID = uArgMenuID;
    m_uInitDirMenuID = uInitDirMenuID;
}

CUserToolsManager::~CUserToolsManager() {
    RemoveAll();
    if (afxUserToolsManager == this) {
        afxUserToolsManager = nullptr;
    }
}

void CUserToolsManager::RemoveAll() {
    while (!m_lstUserTools.IsEmpty()) {
        const std::unique_ptr<CObject> tool(m_lstUserTools.RemoveHead());
    }
}

int CUserToolsManager::GetMaxTools() const {
    return m_uiCmdLast >= m_uiCmdFirst ? static_cast<int>(m_uiCmdLast - m_uiCmdFirst) + 1 : 0;
}

CUserTool* CUserToolsManager::CreateNewTool() {
    for (int index = 0; index < GetMaxTools(); ++index) {
        const UINT command = m_uiCmdFirst + static_cast<UINT>(index);
        if (FindTool(command) != nullptr) {
            continue;
        }
        std::unique_ptr<CUserTool> tool = m_pToolRTC != nullptr ? MakeTool(*m_pToolRTC) : nullptr;
        if (!tool) {
            return nullptr;
        }
        tool->m_uiCmdId = command;
        m_lstUserTools.AddTail(tool.get());
        return tool.release();
    }
    return nullptr;
}

BOOL CUserToolsManager::RemoveTool(CUserTool* pTool) {
    const POSITION place = m_lstUserTools.Find(pTool);
    if (place == nullptr) {
        return FALSE;
    }
    m_lstUserTools.RemoveAt(place);
    delete pTool;
    return TRUE;
}

BOOL CUserToolsManager::MoveTool(CUserTool* pTool, int nPlaces) {
    const POSITION place = m_lstUserTools.Find(pTool);
    POSITION beside = place;
    if (place != nullptr) {
        nPlaces < 0 ? m_lstUserTools.GetPrev(beside) : m_lstUserTools.GetNext(beside);
    }
    if (beside == nullptr) {
        return FALSE;
    }
    m_lstUserTools.RemoveAt(place);
    if (nPlaces < 0) {
        m_lstUserTools.InsertBefore(beside, pTool);
    } else {
        m_lstUserTools.InsertAfter(beside, pTool);
    }
    return TRUE;
}

BOOL CUserToolsManager::MoveToolUp(CUserTool* pTool) { return MoveTool(pTool, -1); }
BOOL CUserToolsManager::MoveToolDown(CUserTool* pTool) { return MoveTool(pTool, 1); }

CUserTool* CUserToolsManager::FindTool(UINT uiCmdId) const {
    for (POSITION position = m_lstUserTools.GetHeadPosition(); position != nullptr;) {
        auto* const tool = static_cast<CUserTool*>(const_cast<CObject*>(m_lstUserTools.GetNext(position)));
        if (tool->GetCommandId() == uiCmdId) {
            return tool;
        }
    }
    return nullptr;
}

BOOL CUserToolsManager::InvokeTool(UINT uiCmdId) {
    CUserTool* const tool = FindTool(uiCmdId);
    return tool != nullptr && tool->Invoke();
}

BOOL CUserToolsManager::SaveState(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    if (store == nullptr || m_pToolRTC == nullptr) {
        return FALSE;
    }
    KeptTools kept(m_lstUserTools, *m_pToolRTC);
    return store->WriteObject(SectionOf(lpszProfileName), kEntry, kept);
}

BOOL CUserToolsManager::LoadState(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    if (store == nullptr || m_pToolRTC == nullptr) {
        return FALSE;
    }
    KeptTools kept(m_lstUserTools, *m_pToolRTC);
    if (!store->ReadObject(SectionOf(lpszProfileName), kEntry, kept)) {
        return FALSE;
    }
    for (std::size_t index = 0; index < kept.read.size(); ++index) {
        const UINT command = kept.read[index]->GetCommandId();
        const auto hasIt = [command](const std::unique_ptr<CUserTool>& tool) {
            return tool->GetCommandId() == command;
        };
        const auto place = kept.read.begin() + static_cast<std::ptrdiff_t>(index);
        if (!IsUserToolCmd(command) || std::any_of(kept.read.begin(), place, hasIt)) {
            return FALSE;
        }
    }
    RemoveAll();
    for (std::unique_ptr<CUserTool>& tool : kept.read) {
        m_lstUserTools.AddTail(tool.release());
    }
    return TRUE;
}
