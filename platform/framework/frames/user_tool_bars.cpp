// Toolbars that users make for themselves, and the frame's state, of which they are a part.
#include "fx/frame_impl.h"

#include "afxtoolbar.h"
#include "fx/app.h"
#include "fx/archive.h"
#include "fx/state_store.h"

#include <algorithm>
#include <utility>

namespace {

// In the range of control bars, above those that the framework has names for.
constexpr UINT kFirstUserBar = 0xE8C0;
constexpr UINT kLastUserBar = 0xE8DF;
constexpr LPCTSTR kSection = L"UserToolbars";
constexpr LPCTSTR kEntry = L"Names";

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

/// Ids and names in the settings. Their number stands behind them as well: a damaged list is found.
class KeptBars : public CObject {
public:
    std::vector<std::pair<UINT, CString>> bars;

    void Serialize(CArchive& ar) override {
        auto count = static_cast<DWORD>(bars.size());
        if (!ar.IsLoading()) {
            ar << count;
            for (const auto& [id, name] : bars) {
                ar << static_cast<DWORD>(id) << name;
            }
            ar << count;
            return;
        }
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        for (DWORD index = 0; index < count; ++index) {
            DWORD id = 0;
            CString name;
            ar >> id >> name;
            bars.emplace_back(id, name);
        }
        DWORD countAgain = 0;
        ar >> countAgain;
        if (countAgain != count) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
    }
};

} // namespace

CFrameImpl::CFrameImpl(CFrameWnd* frame, CDockingManager& dockingManager)
    : m_frame(frame), m_dockingManager(dockingManager) {}

CFrameImpl::~CFrameImpl() = default;

BOOL CFrameImpl::SaveState() {
    const BOOL isSaved = SaveUserToolBars();
    return m_dockingManager.SaveState() && isSaved;
}

// The bars must be there before their buttons and places are read.
BOOL CFrameImpl::LoadState() {
    LoadUserToolBars();
    return m_dockingManager.LoadState();
}

BOOL CFrameImpl::SaveUserToolBars() {
    fx::StateStore* const store = Store();
    KeptBars kept;
    for (const auto& bar : m_userToolBars) {
        if (bar->m_hWnd != nullptr) {
            CString name;
            bar->GetWindowText(name);
            kept.bars.emplace_back(static_cast<UINT>(bar->GetDlgCtrlID()), name);
        }
    }
    const bool hasKept = store != nullptr && store->HasObject(kSection, kEntry);
    if (kept.bars.empty() && !hasKept) {
        return TRUE; // most programs have none, and nothing of them in their settings
    }
    return store != nullptr && store->WriteObject(kSection, kEntry, kept);
}

void CFrameImpl::LoadUserToolBars() {
    fx::StateStore* const store = Store();
    KeptBars kept;
    if (store == nullptr || !store->HasObject(kSection, kEntry) || !store->ReadObject(kSection, kEntry, kept)) {
        return;
    }
    for (const auto& [id, name] : kept.bars) {
        if (id >= kFirstUserBar && id <= kLastUserBar && !name.IsEmpty()) {
            MakeUserToolBar(id, name);
        }
    }
}

CMFCToolBar* CFrameImpl::CreateUserToolBar(LPCTSTR name) {
    for (UINT id = kFirstUserBar; id <= kLastUserBar; ++id) {
        if (::GetDlgItem(m_frame->m_hWnd, static_cast<int>(id)) == nullptr &&
            m_dockingManager.FindPaneByID(id) == nullptr) {
            return MakeUserToolBar(id, name);
        }
    }
    return nullptr;
}

CMFCToolBar* CFrameImpl::MakeUserToolBar(UINT id, LPCTSTR name) {
    if (m_dockingManager.FindPaneByID(id) != nullptr) {
        return nullptr; // LoadState once more
    }
    auto bar = std::make_unique<CMFCToolBar>();
    if (!bar->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, id)) {
        return nullptr;
    }
    bar->SetWindowText(name);
    bar->EnableDocking(CBRS_ALIGN_ANY);
    m_dockingManager.DockPane(bar.get());
    m_frame->RecalcLayout();
    m_userToolBars.push_back(std::move(bar));
    return m_userToolBars.back().get();
}

BOOL CFrameImpl::DeleteUserToolBar(const CMFCToolBar* bar) {
    const auto isIt = [bar](const std::unique_ptr<CMFCToolBar>& known) { return known.get() == bar; };
    const auto found = std::ranges::find_if(m_userToolBars, isIt);
    if (found == m_userToolBars.end()) {
        return FALSE;
    }
    const std::unique_ptr<CMFCToolBar> ended = std::move(*found);
    m_userToolBars.erase(found);
    if (ended->m_hWnd != nullptr) {
        ended->RemoveStateFromRegistry();
        ended->DestroyWindow(); // which takes it out of its dock site
    }
    m_frame->RecalcLayout();
    return TRUE;
}
