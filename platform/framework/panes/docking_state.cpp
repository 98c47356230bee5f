// Where the panes are, from one run to the next.
#include "afxDockingManager.h"

#include "afxDockSite.h"
#include "afxPane.h"
#include "afxPaneFrameWnd.h"
#include "fx/app.h"
#include "fx/archive.h"
#include "fx/state_store.h"
#include "panes/dock_rows.h"
#include "panes/dock_state.h"
#include "panes/mini_frame_place.h"
#include "panes/pane_state.h"

#include <iterator>
#include <set>

namespace {

constexpr LPCTSTR kEntry = L"Places";

/// In the order of panes::PlaceKind.
constexpr DWORD kAlignments[] = {CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT};

DWORD AlignmentOf(panes::PlaceKind kind) {
    const auto index = static_cast<std::size_t>(kind);
    return index < std::size(kAlignments) ? kAlignments[index] : 0;
}

panes::PlaceKind KindOf(DWORD alignment) {
    std::size_t index = 0;
    while (index + 1 < std::size(kAlignments) && kAlignments[index] != alignment) {
        ++index;
    }
    return static_cast<panes::PlaceKind>(index);
}

/// The bytes of a state in an archive.
class SavedBytes : public CObject {
public:
    SavedBytes() = default;
    explicit SavedBytes(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes)) {}
    const std::vector<std::uint8_t>& Bytes() const { return m_bytes; }

    void Serialize(CArchive& ar) override {
        auto size = static_cast<DWORD>(m_bytes.size());
        if (!ar.IsLoading()) {
            ar << size;
            ar.Write(m_bytes.data(), size);
            return;
        }
        ar >> size;
        fx::ArchiveChecks::RequireElements(ar, size);
        m_bytes.resize(size);
        if (ar.Read(m_bytes.data(), size) != size) {
            AfxThrowArchiveException(CArchiveException::endOfFile);
        }
    }

private:
    std::vector<std::uint8_t> m_bytes;
};

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

CString SectionOf(LPCTSTR profile, UINT id) {
    CString section = profile != nullptr && *profile != 0 ? CString(profile) + L"\\" : CString();
    section += L"DockingManager";
    if (id != static_cast<UINT>(-1)) {
        section.AppendFormat(L"-%x", id);
    }
    return section;
}

panes::SavedRect Saved(const CRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

panes::SavedPane Described(const CPane& pane) {
    const CRecentDockSiteInfo& recent = pane.m_recentDockInfo;
    panes::SavedPane saved;
    saved.id = static_cast<std::uint32_t>(pane.GetDlgCtrlID());
    saved.kind = pane.IsFloating() ? panes::PlaceKind::Floating : KindOf(pane.GetCurrentAlignment());
    saved.row = std::max(0, recent.m_nRecentRowIndex);
    saved.offset = recent.m_nRecentOffset;
    saved.isVisible = pane.GetRecentVisibleState() != FALSE;
    saved.wasDocked = recent.m_dwRecentAlignment != 0;
    saved.dockedAt = KindOf(recent.m_dwRecentAlignment);
    saved.floating = Saved(recent.m_rectRecentFloatingRect);
    return saved;
}

} // namespace

BOOL CDockingManager::SaveState(LPCTSTR lpszProfileName, UINT uiID) {
    BOOL isSaved = SavePlaces(lpszProfileName, uiID);
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        isSaved &= static_cast<CBasePane*>(m_lstControlBars.GetNext(position))->SaveState(lpszProfileName);
    }
    return isSaved;
}

// A pane of which nothing was kept, such as one that the program has had for the first time, loses nothing.
BOOL CDockingManager::LoadState(LPCTSTR lpszProfileName, UINT uiID) {
    BOOL isLoaded = TRUE;
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position;) {
        auto& pane = *static_cast<CBasePane*>(m_lstControlBars.GetNext(position));
        const bool isPaneLoaded = pane.LoadState(lpszProfileName) != FALSE;
        isLoaded &= isPaneLoaded || !panes::HasKeptState(pane, lpszProfileName);
    }
    if (!m_isRestoreDisabled) {
        isLoaded &= LoadPlaces(lpszProfileName, uiID);
    }
    AdjustDockingLayout();
    return isLoaded;
}

BOOL CDockingManager::SavePlaces(LPCTSTR profile, UINT id) {
    fx::StateStore* const store = Store();
    if (store == nullptr) {
        return FALSE;
    }
    panes::DockState state;
    std::set<std::uint32_t> ids; // of two panes with one id the first counts, as for FindPaneByID
    const auto add = [&](CPane& pane) {
        pane.RememberPlace();
        const panes::SavedPane saved = Described(pane);
        if (ids.insert(saved.id).second) {
            state.push_back(saved);
        }
    };
    for (const std::unique_ptr<CDockSite>& site : m_sites) {
        for (const panes::DockRow& row : site != nullptr ? site->Rows().Rows() : std::vector<panes::DockRow>()) {
            for (const panes::DockedPane& docked : row.panes) {
                add(*reinterpret_cast<CPane*>(docked.key));
            }
        }
    }
    for (POSITION position = m_lstControlBars.GetHeadPosition(); position != nullptr;) {
        auto* const pane = DYNAMIC_DOWNCAST(CPane, m_lstControlBars.GetNext(position));
        if (pane != nullptr && pane->IsFloating()) {
            add(*pane);
        }
    }
    SavedBytes bytes(panes::WriteDockState(state));
    return store->WriteObject(SectionOf(profile, id), kEntry, bytes);
}

BOOL CDockingManager::LoadPlaces(LPCTSTR profile, UINT id) {
    fx::StateStore* const store = Store();
    SavedBytes bytes;
    if (store == nullptr || !store->ReadObject(SectionOf(profile, id), kEntry, bytes)) {
        return FALSE;
    }
    const std::optional<panes::DockState> state = panes::ReadDockState(bytes.Bytes());
    if (!state) {
        return FALSE;
    }
    TakePlaces(*state);
    return TRUE;
}

// Panes that the state does not know stay where they are, and so do those that may not be where they were.
void CDockingManager::TakePlaces(const std::vector<panes::SavedPane>& state) {
    struct Known {
        CPane* pane;
        const panes::SavedPane* saved;
    };
    CancelDrag();
    std::vector<Known> docked;
    std::vector<Known> floating;
    for (const panes::SavedPane& saved : state) {
        auto* const pane = DYNAMIC_DOWNCAST(CPane, FindPaneByID(saved.id));
        const DWORD allowed = pane != nullptr ? pane->GetEnabledAlignment() & m_dwEnabledAlignment : 0;
        if (saved.kind == panes::PlaceKind::Floating && pane != nullptr && pane->CanFloat()) {
            floating.push_back({pane, &saved});
        } else if ((AlignmentOf(saved.kind) & allowed) != 0) {
            docked.push_back({pane, &saved});
        }
    }
    LockUpdate(TRUE);
    for (const Known& known : docked) {
        if (CDockSite* const site = known.pane->GetParentDockSite()) {
            site->RemovePane(known.pane, DM_UNKNOWN);
        }
    }
    const panes::SavedPane* last = nullptr;
    for (const Known& known : docked) {
        const bool inNewRow = last == nullptr || last->kind != known.saved->kind || last->row != known.saved->row;
        last = known.saved;
        CDockSite* const site = SiteFor(AlignmentOf(known.saved->kind));
        if (site != nullptr) {
            site->Append(*known.pane, inNewRow, known.saved->offset);
            known.pane->ShowPane(known.saved->isVisible, TRUE, FALSE);
        }
    }
    for (const Known& known : floating) {
        const panes::SavedRect& rect = known.saved->floating;
        known.pane->FloatPane(panes::BroughtOnScreen(CRect(rect.left, rect.top, rect.right, rect.bottom)), DM_UNKNOWN,
                              false);
        known.pane->ShowPane(known.saved->isVisible, TRUE, FALSE);
    }
    LockUpdate(FALSE);
    for (const Known& known : docked) {
        known.pane->RememberPlace();
        const panes::SavedRect& rect = known.saved->floating;
        known.pane->m_recentDockInfo.m_rectRecentFloatingRect = CRect(rect.left, rect.top, rect.right, rect.bottom);
    }
    for (const Known& known : floating) {
        CRecentDockSiteInfo& recent = known.pane->m_recentDockInfo;
        recent.m_dwRecentAlignment = known.saved->wasDocked ? AlignmentOf(known.saved->dockedAt) : 0;
        recent.m_nRecentRowID = 0;
        recent.m_nRecentRowIndex = known.saved->row;
        recent.m_nRecentOffset = known.saved->offset;
    }
}
