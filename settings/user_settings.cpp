#include "user_settings.h"

#include "dyn_toolbar_creater.h"
#include "menu_id_mgr.h"
#include "ribbon_bar_ex.h"
#include "settings/kept_commands.h"
#include "settings/settings_file.h"
#include "settings/shortcut_keys.h"

#include <algorithm>
#include <limits>
#include <map>
#include <tuple>
#include <unordered_set>

namespace {

/// Stands for a command without a keyword while the program runs; such commands are not kept.
constexpr wchar_t kNumberMark = L'\x1';

std::wstring KeywordOf(unsigned int id) {
    std::wstring keyword;
    return CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(id), keyword) && !keyword.empty()
               ? keyword
               : kNumberMark + std::to_wstring(id);
}

/// 0: no command has that keyword.
unsigned int IdOf(const std::wstring& keyword) {
    if (!keyword.empty() && keyword[0] == kNumberMark) {
        return static_cast<unsigned int>(std::stoul(keyword.substr(1)));
    }
    int id = 0;
    return CMenuIdMgr::Ins()->GetMenuId(keyword, id) ? static_cast<unsigned int>(id) : 0;
}

bool IsKept(const std::wstring& keyword) { return keyword.empty() || keyword[0] != kNumberMark; }

Keywords KeywordsOf(const std::list<unsigned int>& ids) {
    Keywords keywords;
    std::transform(ids.begin(), ids.end(), std::back_inserter(keywords), KeywordOf);
    return keywords;
}

std::list<unsigned int> QuickAccessOf(CMFCRibbonBar& ribbon) {
    CList<UINT, UINT> commands;
    ribbon.GetQuickAccessCommands(commands);
    std::list<unsigned int> ids;
    for (POSITION at = commands.GetHeadPosition(); at != nullptr;) {
        ids.push_back(commands.GetNext(at));
    }
    return ids;
}

bool IsMinimized(const CMFCRibbonBar& ribbon) { return (ribbon.GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS) != 0; }

/// The entry that meets the condition, made when there is none.
template <class Entry, class Condition, class Make>
Entry& Obtain(std::vector<Entry>& entries, Condition condition, Make make) {
    const auto found = std::find_if(entries.begin(), entries.end(), condition);
    return found != entries.end() ? *found : entries.emplace_back(make());
}

std::vector<ShortcutRow> RowsOf(HACCEL table) {
    const int count = table != nullptr ? ::CopyAcceleratorTableW(table, nullptr, 0) : 0;
    std::vector<ACCEL> entries(static_cast<std::size_t>(std::max(count, 0)));
    entries.resize(static_cast<std::size_t>(
        std::max(::CopyAcceleratorTableW(table, entries.data(), static_cast<int>(entries.size())), 0)));
    std::vector<ShortcutRow> rows;
    for (const ACCEL& entry : entries) {
        constexpr BYTE modifiers = FSHIFT | FCONTROL | FALT;
        rows.push_back({{static_cast<std::uint8_t>(entry.fVirt & modifiers), entry.key},
                        (entry.fVirt & FVIRTKEY) != 0,
                        entry.cmd});
    }
    return rows;
}

HACCEL MakeTable(const std::vector<ShortcutRow>& rows) {
    std::vector<ACCEL> entries;
    for (const ShortcutRow& row : rows) {
        entries.push_back(
            {static_cast<BYTE>(row.key.modifiers | (row.isVirtualKey ? FVIRTKEY : 0)), row.key.key, row.id});
    }
    if (entries.empty()) {
        entries.push_back({}); // a table has a row; no key sends this one's
    }
    return ::CreateAcceleratorTableW(entries.data(), static_cast<int>(entries.size()));
}

} // namespace

class CUserSettings::Keeper {
public:
    explicit Keeper(std::wstring path) : file(std::move(path)) {}

    /// Group, name and the number among the bars of that name.
    using BarName = std::tuple<std::wstring, std::wstring, int>;

    static void DropNumbers(KeptSettings& settings) {
        const auto isNumber = [](const std::wstring& keyword) { return !IsKept(keyword); };
        for (KeptCommands& commands : settings.quickAccess) {
            std::erase_if(commands.commands, isNumber);
            std::erase_if(commands.seen, isNumber);
        }
        std::erase_if(settings.shortcuts, [&](const KeptShortcuts& shortcuts) { return isNumber(shortcuts.keyword); });
    }

    void MeetUnknown(const std::wstring& keyword) {
        if (IsKept(keyword) && metUnknown.insert(keyword).second) {
            unknown.push_back(keyword);
        }
    }

    KeptCommands CommandsOf(const std::wstring& path) const {
        const auto found = std::find_if(kept.quickAccess.begin(), kept.quickAccess.end(),
                                        [&path](const KeptCommands& commands) { return commands.path == path; });
        return found != kept.quickAccess.end() ? *found : KeptCommands{path, {}, {}};
    }

    /// The commands to show, and what of them the ribbon cannot show now.
    std::list<unsigned int> Restore(const CMFCRibbonBarEx& ribbon, const std::wstring& path,
                                    const std::list<unsigned int>& asConfigured) {
        const Keywords before = KeywordsOf(asConfigured);
        configured[path] = before;
        std::list<unsigned int> ids;
        for (const std::wstring& keyword : MergeCommands(CommandsOf(path), before)) {
            const unsigned int id = IdOf(keyword);
            if (id != 0) {
                ids.push_back(id);
            }
            if (!CanShow(ribbon, keyword)) {
                MeetUnknown(keyword);
            }
        }
        return ids;
    }

    void Keep(const CMFCRibbonBarEx& ribbon, const std::wstring& path, const std::list<unsigned int>& shown) {
        const auto before = configured.find(path);
        if (before == configured.end()) {
            return;
        }
        const std::optional<KeptCommands> after =
            KeepCommands(CommandsOf(path), KeywordsOf(shown), before->second,
                         [&ribbon](const std::wstring& keyword) { return CanShow(ribbon, keyword); });
        std::erase_if(kept.quickAccess, [&path](const KeptCommands& commands) { return commands.path == path; });
        if (after) {
            kept.quickAccess.push_back(*after);
        }
    }

    template <class Visit>
    static void ForEachBar(const CDynToolBarCreater& toolbars, Visit visit) {
        std::map<std::pair<std::wstring, std::wstring>, int> numbers;
        for (const auto& [group, bar] : toolbars.GetGroupedToolBars()) {
            if (bar->GetSafeHwnd() != nullptr) {
                const std::wstring name = toolbars.GetName(bar);
                visit(*bar, BarName{group, name, numbers[{group, name}]++});
            }
        }
    }

    std::vector<KeptToolBar>::iterator FindBar(const BarName& name) {
        return std::find_if(kept.toolBars.begin(), kept.toolBars.end(), [&name](const KeptToolBar& bar) {
            return std::tie(bar.group, bar.title, bar.number) == name;
        });
    }

    template <class Frame>
    void RestoreBars(const CDynToolBarCreater& toolbars, Frame& frame) {
        ForEachBar(toolbars, [&](CMFCToolBar& bar, const BarName& name) {
            const bool isShown = bar.IsVisible() != FALSE;
            configuredBars[name] = isShown;
            const auto bars = FindBar(name);
            if (bars != kept.toolBars.end() && bars->isShown != isShown) {
                frame.ShowPane(&bar, bars->isShown ? TRUE : FALSE, TRUE, FALSE);
            }
        });
    }

    /// Of toolbars that none of those to which the settings were applied is; none before the first.
    Keywords UnknownBars() const {
        Keywords names;
        for (const KeptToolBar& bar : kept.toolBars) {
            const bool isKnown = configuredBars.empty() || configuredBars.contains({bar.group, bar.title, bar.number});
            if (!isKnown && std::find(names.begin(), names.end(), bar.title) == names.end()) {
                names.push_back(bar.title);
            }
        }
        return names;
    }

    static bool CanShow(const CMFCRibbonBarEx& ribbon, const std::wstring& keyword) {
        const unsigned int id = IdOf(keyword);
        return id != 0 && ribbon.FindByID(id, FALSE, TRUE) != nullptr;
    }

    SettingsFile file;
    KeptSettings kept;
    /// As it was before the user's changes were applied: the quick access toolbar of each path, the toolbars.
    std::map<std::wstring, Keywords> configured;
    std::map<BarName, bool> configuredBars;
    std::optional<bool> configuredMinimized;
    std::optional<bool> configuredBelow;
    Keywords unknown;
    std::unordered_set<std::wstring> metUnknown;
};

CUserSettings::CUserSettings(std::wstring file) : m_keeper(std::make_unique<Keeper>(std::move(file))) {}

CUserSettings::~CUserSettings() = default;

CUserSettings::Source CUserSettings::Load() {
    m_keeper->unknown.clear();
    m_keeper->metUnknown.clear();
    const SettingsFile::Source source = m_keeper->file.Load(m_keeper->kept);
    Keeper::DropNumbers(m_keeper->kept); // somebody may have written into the file what stands for a number
    switch (source) {
    case SettingsFile::Source::File:
        return Source::File;
    case SettingsFile::Source::LastGood:
        return Source::LastGood;
    case SettingsFile::Source::Damaged:
        return Source::Damaged;
    case SettingsFile::Source::Nowhere:
        break;
    }
    return Source::Nowhere;
}

bool CUserSettings::Save() {
    KeptSettings written = m_keeper->kept;
    Keeper::DropNumbers(written);
    return m_keeper->file.Save(written);
}

std::vector<std::wstring> CUserSettings::UnknownKeywords() const {
    Keywords all = m_keeper->unknown;
    const Keywords bars = m_keeper->UnknownBars();
    all.insert(all.end(), bars.begin(), bars.end());
    return all;
}

void CUserSettings::ApplyTo(CMFCRibbonBarEx& ribbon) {
    const std::list<std::wstring> paths = ribbon.Paths();
    for (const std::wstring& path : paths) {
        const std::list<unsigned int> commands = m_keeper->Restore(ribbon, path, ribbon.PathCommands(path));
        ribbon.setPath(path, 0, 0, commands); // a path that is known keeps its categories
    }
    const std::wstring shown = ribbon.Path();
    if (paths.empty() || !shown.empty()) {
        const std::list<unsigned int> now = QuickAccessOf(ribbon);
        const std::list<unsigned int> wanted =
            paths.empty() ? m_keeper->Restore(ribbon, L"", now) : ribbon.PathCommands(shown);
        if (wanted != now) {
            CList<UINT, UINT> commands;
            for (const unsigned int id : wanted) {
                commands.AddTail(id);
            }
            ribbon.SetQuickAccessCommands(commands);
        }
    }
    m_keeper->configuredMinimized = IsMinimized(ribbon);
    m_keeper->configuredBelow = ribbon.IsQuickAccessToolbarOnTop() == FALSE;
    if (m_keeper->kept.isQuickAccessBelow.value_or(*m_keeper->configuredBelow) != *m_keeper->configuredBelow) {
        ribbon.SetQuickAccessToolbarOnTop(*m_keeper->configuredBelow ? TRUE : FALSE);
    }
    if (m_keeper->kept.isMinimized.value_or(*m_keeper->configuredMinimized) != *m_keeper->configuredMinimized) {
        ribbon.ToggleMimimizeState();
    }
}

void CUserSettings::TakeFrom(CMFCRibbonBarEx& ribbon) {
    if (!m_keeper->configuredMinimized) {
        return;
    }
    const std::list<std::wstring> paths = ribbon.Paths();
    if (paths.empty()) {
        m_keeper->Keep(ribbon, L"", QuickAccessOf(ribbon));
    }
    ribbon.UpdateCurQATollBar(L"");
    for (const std::wstring& path : paths) {
        m_keeper->Keep(ribbon, path, ribbon.PathCommands(path));
    }
    // What is as configured need not be kept, unless it was once changed: then it was the user who changed it back.
    KeptSettings& kept = m_keeper->kept;
    if (const bool now = IsMinimized(ribbon); kept.isMinimized || now != m_keeper->configuredMinimized) {
        kept.isMinimized = now;
    }
    if (const bool now = ribbon.IsQuickAccessToolbarOnTop() == FALSE;
        kept.isQuickAccessBelow || now != m_keeper->configuredBelow) {
        kept.isQuickAccessBelow = now;
    }
}

void CUserSettings::ApplyTo(const CDynToolBarCreater& toolbars, CMDIFrameWndEx& frame) {
    m_keeper->RestoreBars(toolbars, frame);
}

void CUserSettings::ApplyTo(const CDynToolBarCreater& toolbars, CFrameWndEx& frame) {
    m_keeper->RestoreBars(toolbars, frame);
}

void CUserSettings::TakeFrom(const CDynToolBarCreater& toolbars) {
    Keeper::ForEachBar(toolbars, [&](CMFCToolBar& bar, const Keeper::BarName& name) {
        const bool isShown = bar.IsVisible() != FALSE;
        const auto configured = m_keeper->configuredBars.find(name);
        if (configured == m_keeper->configuredBars.end()) {
            return;
        }
        if (const auto kept = m_keeper->FindBar(name); kept != m_keeper->kept.toolBars.end()) {
            kept->isShown = isShown;
        } else if (isShown != configured->second) {
            const auto& [group, title, number] = name;
            m_keeper->kept.toolBars.push_back({group, title, number, isShown});
        }
    });
}

HACCEL CUserSettings::ApplyTo(HACCEL configured) {
    std::vector<UserKeys> users;
    for (const KeptShortcuts& shortcuts : m_keeper->kept.shortcuts) {
        const unsigned int id = IdOf(shortcuts.keyword);
        if (id == 0 || id > std::numeric_limits<std::uint16_t>::max()) {
            m_keeper->MeetUnknown(shortcuts.keyword);
            continue;
        }
        UserKeys keys{static_cast<std::uint16_t>(id), {}};
        for (const std::wstring& text : shortcuts.keys) {
            if (const std::optional<ShortcutKey> key = ReadShortcutKey(text)) {
                keys.keys.push_back(*key);
            }
        }
        users.push_back(std::move(keys));
    }
    const std::vector<ShortcutRow> before = RowsOf(configured);
    const std::vector<ShortcutRow> after = MergeShortcuts(before, users);
    return after == before ? nullptr : MakeTable(after);
}

void CUserSettings::TakeFrom(HACCEL configured, HACCEL now) {
    using Keys = std::vector<ShortcutKey>;
    std::map<std::uint16_t, std::pair<Keys, Keys>> commands;
    for (const auto& [table, keys] :
         {std::pair(configured, &std::pair<Keys, Keys>::first), std::pair(now, &std::pair<Keys, Keys>::second)}) {
        for (const ShortcutRow& row : RowsOf(table)) {
            if (row.isVirtualKey && row.id != 0) {
                (commands[row.id].*keys).push_back(row.key);
            }
        }
    }
    for (const auto& [id, keys] : commands) {
        const std::wstring keyword = KeywordOf(id);
        const auto& [before, after] = keys;
        if (!IsKept(keyword)) {
            continue;
        }
        if (std::is_permutation(before.begin(), before.end(), after.begin(), after.end())) {
            ResetShortcuts(keyword);
            continue;
        }
        std::vector<std::wstring> texts;
        std::transform(after.begin(), after.end(), std::back_inserter(texts), ShortcutKeyText);
        SetShortcuts(keyword, texts);
    }
}

void CUserSettings::SetShortcuts(const std::wstring& keyword, const std::vector<std::wstring>& keys) {
    KeptShortcuts& kept = Obtain(
        m_keeper->kept.shortcuts, [&keyword](const KeptShortcuts& shortcuts) { return shortcuts.keyword == keyword; },
        [&keyword] {
            return KeptShortcuts{keyword, {}};
        });
    kept.keys.clear();
    std::copy_if(keys.begin(), keys.end(), std::back_inserter(kept.keys),
                 [](const std::wstring& key) { return ReadShortcutKey(key).has_value(); });
}

void CUserSettings::ResetShortcuts(const std::wstring& keyword) {
    std::erase_if(m_keeper->kept.shortcuts,
                  [&keyword](const KeptShortcuts& shortcuts) { return shortcuts.keyword == keyword; });
}

void CUserSettings::Reset() { m_keeper->kept = {}; }
