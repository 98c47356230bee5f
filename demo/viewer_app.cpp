#include "command_line.h"
#include "configuration_problems.h"
#include "followed_files.h"
#include "main_frame.h"
#include "map_menu.h"
#include "options.h"
#include "resource.h"
#include "screenshot.h"
#include "viewer_tool.h"
#include "watchman.h"

#include "varnhold/language.h"
#include "varnhold/strings.h"

#include <cstdio>
#include <optional>

/// The map viewer.
class CViewerApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        CWinAppEx::InitInstance();
        SetRegistryKey(L"Barwright");
        LoadStdProfileSettings();
        std::wstring error;
        const std::optional<DemoOptions> options = ParseDemoOptions(CommandLineWords(), error);
        if (!options) {
            std::fprintf(stderr, "demo: %s\n", wstring2String(error).c_str());
            m_exitCode = 2;
            return FALSE;
        }
        SetConfigurationProblemSink(
            [](const ConfigurationProblem& problem) { PrintLine(FormatConfigurationProblem(problem)); });
        CMultiLanguageMgr::SetProblemSink(PrintLine);
        m_gdiPlus.emplace();
        InitContextMenuManager(); // the right clicks on ribbon and map ask it
        EnableUserTools(ID_TOOLS_ENTRY, ID_USER_TOOL_FIRST, ID_USER_TOOL_LAST, RUNTIME_CLASS(CViewerTool),
                        IDR_TOOL_ARGUMENTS);
        if (options->scalePercent > 0) {
            afxGlobalData.SetRibbonImageScale(options->scalePercent / 100.0);
        }
        EnableLoadWindowPlacement(FALSE);             // the viewer keeps it with the rest
        auto* const frame = new CMainFrame(*options); // destroys itself with its window
        m_pMainWnd = frame;
        if (options->followsFiles) {
            m_followed.emplace(
                FollowedFiles::Host{[frame](const ConfigurationChange& change) { return frame->ShowFilesAnew(change); },
                                    [frame](const std::wstring& problem) { frame->ShowProblem(problem); }});
        }
        if (!frame->CreateFrame()) {
            std::fputs("demo: the window could not be made\n", stderr);
            m_exitCode = 1;
            return FALSE;
        }
        frame->Show();
        frame->TellTroubles();
        if (!options->mapFile.empty()) {
            frame->OpenMapFile(options->mapFile);
        }
        if (!options->record.empty()) {
            frame->FinishMap(); // a record says what is to be seen
        }
        frame->WriteRecord();
        if (m_followed) {
            m_followed->Begin();
        }
        if (options->screenshot.empty()) {
            if (!options->watch.empty()) {
                m_watchman.emplace(frame->GetSafeHwnd(), options->watch);
            }
            return TRUE;
        }
        SettleWindow(frame->GetSafeHwnd());
        frame->FinishMap();
        SettleWindow(frame->GetSafeHwnd()); // the status bar no longer shows that it is drawn
        m_exitCode = WriteScreenshot(frame->GetSafeHwnd(), options->screenshot) ? 0 : 1;
        frame->DestroyWindow();
        return FALSE;
    }

    /// Much of what a user does to the ribbon is no command.
    BOOL OnIdle(LONG count) override {
        const BOOL wantsMore = CWinAppEx::OnIdle(count);
        if (count == 0 && m_pMainWnd != nullptr) {
            static_cast<CMainFrame*>(m_pMainWnd)->WriteRecord(CMainFrame::Moment::Idle);
        }
        return wantsMore;
    }

    /// What the framework asks, too, is asked in the viewer's skin.
    int DoMessageBox(LPCTSTR text, UINT style, UINT helpId) override {
        const UINT shown = (style & MB_ICONMASK) == 0 ? style | MB_ICONEXCLAMATION : style;
        return m_pMainWnd != nullptr ? static_cast<CMainFrame*>(m_pMainWnd)->AskMessage(text, shown, nullptr)
                                     : CWinAppEx::DoMessageBox(text, style, helpId);
    }

    int ExitInstance() override {
        m_followed.reset();
        m_watchman.reset();
        CWinAppEx::ExitInstance();
        m_gdiPlus.reset();
        return m_exitCode;
    }

protected:
    /// The frame keeps its state itself, and a start that is to keep nothing does not.
    void OnClosingMainFrame(CFrameImpl*) override {}
    // The user's tools are kept with the rest of the state; context menus are the program's to keep.
    void LoadCustomState() override { map_menu::Load(); }
    void SaveCustomState() override { map_menu::Save(); }

private:
    static void PrintLine(const std::wstring& line) { std::fprintf(stderr, "%s\n", wstring2String(line).c_str()); }

    std::optional<GdiPlusSession> m_gdiPlus;
    std::optional<Watchman> m_watchman;
    std::optional<FollowedFiles> m_followed;
    int m_exitCode = 0;
};

static CViewerApp s_viewer;
