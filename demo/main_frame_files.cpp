#include "main_frame.h"

#include "configuration_watch.h"
#include "kept_command_ids.h"
#include "menu_id_mgr.h"
#include "viewer_text.h"

#include <set>

// The frame of somebody who works on its files.

namespace {

/// As long as it lives, commands are registered as the files have them now, with the ids that they had. Those that no
/// file registers by then, as those of toolbars that stay, are afterwards as they were.
class CommandsAnew {
public:
    CommandsAnew()
        : m_keywords(CKeptCommandIds::RegisteredKeywords()), m_earlier(Describe(m_keywords)), m_kept(m_keywords) {}
    ~CommandsAnew() {
        for (const Command& command : m_earlier) {
            int id = 0;
            if (!CMenuIdMgr::Ins()->GetMenuId(command.keyword, id)) {
                CMenuIdMgr::Ins()->Add(command.keyword, command.id, command.name, command.text, command.toolTip,
                                       command.parameter, command.helpFile);
            }
        }
    }
    CommandsAnew(const CommandsAnew&) = delete;
    CommandsAnew& operator=(const CommandsAnew&) = delete;

private:
    struct Command {
        std::wstring keyword;
        int id = 0;
        std::wstring name;
        std::wstring text;
        std::wstring toolTip;
        std::wstring parameter;
        std::wstring helpFile;
    };

    static std::vector<Command> Describe(const std::set<std::wstring>& keywords) {
        CMenuIdMgr& registry = *CMenuIdMgr::Ins();
        std::vector<Command> commands;
        for (const std::wstring& keyword : keywords) {
            Command command;
            command.keyword = keyword;
            registry.GetMenuId(keyword, command.id);
            registry.GetMenuName(keyword, command.name);
            registry.GetCmd(command.id, command.text);
            registry.GetToolTip(command.id, command.toolTip);
            registry.GetCmdParam(command.id, command.parameter);
            registry.GetHelpFile(command.id, command.helpFile);
            commands.push_back(std::move(command));
        }
        return commands;
    }

    const std::set<std::wstring> m_keywords;
    const std::vector<Command> m_earlier;
    const CKeptCommandIds m_kept;
};

} // namespace

bool CMainFrame::ShowFilesAnew(const ConfigurationChange& change) {
    ReloadFiles();
    MSG posted{};
    if (!::PeekMessageW(&posted, GetSafeHwnd(), kRebuildMessage, kRebuildMessage, PM_REMOVE)) {
        return false; // the texts could not be read, which was said
    }
    {
        const CommandsAnew anew;
        CUserSettings* const settings = m_memory.Bars();
        const bool hasUserKeys = settings != nullptr && m_bars.LeaveUserKeys(*settings);
        if (ClassicBars::HasKeys(change)) {
            m_bars.TakeShortcuts(); // first, as at the start
        }
        if (change.Has(ConfigurationFileKind::ToolBars)) {
            m_bars.ForgetToolbars();
        }
        BuildRibbon();
        if (hasUserKeys) {
            m_bars.ApplyUserKeys(*settings);
        }
    }
    m_ribbon.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    WriteRecord();
    return true;
}

void CMainFrame::ShowProblem(const std::wstring& problem) {
    const std::wstring title = ViewerText("ViewerTitle");
    SetWindowText((problem.empty() ? title : problem + L" - " + title).c_str());
}
