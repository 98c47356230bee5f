// What is counted of commands, what menus hide for it, and what holds for all toolbars.
#include "toolbar/command_usage.h"

#include "afxmenubar.h"
#include "afxtoolbar.h"
#include "fx/archive.h"
#include "fx/state_store.h"
#include "window/command_id.h"

#include <limits>

namespace toolbar {

void CommandUsage::Add(std::uint32_t command, std::uint64_t times) {
    // A damaged count must not carry over.
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    if (times == 0 || m_total > kMost || times > kMost) {
        return;
    }
    m_counts[command] += times;
    m_total += times;
}

bool CommandUsage::IsRare(std::uint32_t command, const Options& options) const {
    if (m_total == 0 || m_total < options.startCount) {
        return false;
    }
    const auto found = m_counts.find(command);
    const std::uint64_t count = found == m_counts.end() ? 0 : found->second;
    return count * 100 < options.leastPercentage * m_total;
}

} // namespace toolbar

namespace {

/// One set for the process: the menus are the application's, not a toolbar's.
struct CommandRules {
    toolbar::CommandUsage usage;
    toolbar::CommandUsage::Options options;
    CList<UINT, UINT> basic;
    CList<UINT, UINT> forbidden;
};

CommandRules& Rules() {
    static CommandRules rules;
    return rules;
}

void Take(CList<UINT, UINT>& list, CList<UINT, UINT>& given) {
    list.RemoveAll();
    for (POSITION position = given.GetHeadPosition(); position != nullptr;) {
        list.AddTail(given.GetNext(position));
    }
}

constexpr LPCTSTR kUsageEntry = L"CommandsUsage";
constexpr LPCTSTR kTooltipsEntry = L"Tooltips";
constexpr LPCTSTR kLargeIconsEntry = L"LargeIcons";
constexpr LPCTSTR kShortcutKeysEntry = L"ShortcutKeys";
constexpr LPCTSTR kHidesRareEntry = L"RecentlyUsedMenus";
constexpr LPCTSTR kShowsAllEntry = L"ShowAllCommands";

CString ParametersSection(LPCTSTR profile) {
    return CString(profile != nullptr ? profile : L"") + L"\\MFCToolBarParameters";
}

fx::StateStore* Store() {
    CWinApp* const application = AfxGetApp();
    return application != nullptr ? application->GetStateStore() : nullptr;
}

/// The counts as the settings keep them. Its number stands behind the counts as well: a damaged one is found.
class KeptUsage : public CObject {
public:
    toolbar::CommandUsage usage;

    void Serialize(CArchive& ar) override {
        if (!ar.IsLoading()) {
            const auto count = static_cast<DWORD>(usage.Counts().size());
            ar << count;
            for (const auto& [command, times] : usage.Counts()) {
                ar << static_cast<DWORD>(command) << static_cast<ULONGLONG>(times);
            }
            ar << count;
            return;
        }
        DWORD count = 0;
        ar >> count;
        fx::ArchiveChecks::RequireElements(ar, count);
        toolbar::CommandUsage read;
        for (DWORD index = 0; index < count; ++index) {
            DWORD command = 0;
            ULONGLONG times = 0;
            ar >> command >> times;
            read.Add(command, times);
        }
        DWORD countAgain = 0;
        ar >> countAgain;
        if (countAgain != count) {
            AfxThrowArchiveException(CArchiveException::badIndex);
        }
        usage = read;
    }
};

} // namespace

bool toolbar::HasCommandUsage() { return !Rules().usage.Counts().empty(); }
void toolbar::ForgetCommandUsage() { Rules().usage = {}; }

void CMFCToolBar::AddBasicCommand(UINT uiCmd) {
    if (!IsBasicCommand(uiCmd)) {
        Rules().basic.AddTail(uiCmd);
    }
}

void CMFCToolBar::SetBasicCommands(CList<UINT, UINT>& lstCommands) { Take(Rules().basic, lstCommands); }
const CList<UINT, UINT>& CMFCToolBar::GetBasicCommands() { return Rules().basic; }
BOOL CMFCToolBar::IsBasicCommand(UINT uiCmd) { return Rules().basic.Find(uiCmd) != nullptr; }
void CMFCToolBar::AddCommandUsage(UINT uiCommand) { Rules().usage.Add(uiCommand); }

BOOL CMFCToolBar::SetCommandUsageOptions(UINT nStartCount, UINT nMinUsagePercentage) {
    if (nMinUsagePercentage >= 100) {
        return FALSE;
    }
    Rules().options = {nStartCount, nMinUsagePercentage};
    return TRUE;
}

BOOL CMFCToolBar::IsCommandRarelyUsed(UINT uiCmd) {
    // Windows and recent files come and go: how often one of them was chosen says nothing of the next.
    const bool isCommand = fx::IsSendableCommand(uiCmd);
    return isCommand && !IsBasicCommand(uiCmd) && Rules().usage.IsRare(uiCmd, Rules().options);
}

void CMFCToolBar::SetNonPermittedCommands(CList<UINT, UINT>& lstCommands) { Take(Rules().forbidden, lstCommands); }
BOOL CMFCToolBar::IsCommandPermitted(UINT uiCmd) { return Rules().forbidden.Find(uiCmd) == nullptr; }

BOOL CMFCToolBar::SaveLargeIconsState(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    return store != nullptr && store->WriteInt(ParametersSection(lpszProfileName), kLargeIconsEntry, m_bLargeIcons);
}

BOOL CMFCToolBar::LoadLargeIconsState(LPCTSTR lpszProfileName) {
    constexpr int kMissing = -1;
    fx::StateStore* const store = Store();
    const int kept =
        store != nullptr ? store->ReadInt(ParametersSection(lpszProfileName), kLargeIconsEntry, kMissing) : kMissing;
    if (kept != TRUE && kept != FALSE) {
        return FALSE;
    }
    if (kept != m_bLargeIcons) {
        SetLargeIcons(kept);
    }
    return TRUE;
}

BOOL CMFCToolBar::SaveParameters(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    const CString section = ParametersSection(lpszProfileName);
    KeptUsage kept;
    kept.usage = Rules().usage;
    return store != nullptr && store->WriteInt(section, kTooltipsEntry, m_bShowTooltips) &&
           store->WriteInt(section, kShortcutKeysEntry, m_bShowShortcutKeys) && SaveLargeIconsState(lpszProfileName) &&
           store->WriteInt(section, kHidesRareEntry, CMFCMenuBar::IsRecentlyUsedMenus()) &&
           store->WriteInt(section, kShowsAllEntry, CMFCMenuBar::IsShowAllCommands()) &&
           store->WriteObject(section, kUsageEntry, kept);
}

// Each part by itself: one that is missing or damaged leaves the program's own and the others.
BOOL CMFCToolBar::LoadParameters(LPCTSTR lpszProfileName) {
    fx::StateStore* const store = Store();
    const CString section = ParametersSection(lpszProfileName);
    if (store == nullptr || !store->HasObject(section, kUsageEntry)) {
        return FALSE;
    }
    m_bShowTooltips = store->ReadInt(section, kTooltipsEntry, m_bShowTooltips) != 0;
    CMFCMenuBar::SetRecentlyUsedMenus(store->ReadInt(section, kHidesRareEntry, CMFCMenuBar::IsRecentlyUsedMenus()));
    CMFCMenuBar::SetShowAllCommands(store->ReadInt(section, kShowsAllEntry, CMFCMenuBar::IsShowAllCommands()));
    m_bShowShortcutKeys = store->ReadInt(section, kShortcutKeysEntry, m_bShowShortcutKeys) != 0;
    LoadLargeIconsState(lpszProfileName);
    KeptUsage kept;
    if (!store->ReadObject(section, kUsageEntry, kept)) {
        return FALSE;
    }
    Rules().usage = kept.usage;
    return TRUE;
}
