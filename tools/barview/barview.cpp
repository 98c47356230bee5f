#include <afxcontrolbars.h>

#include "batch.h"
#include "options.h"

#include "add_ribbon_bar.h"
#include "command_line.h"
#include "configuration_problems.h"
#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "frame_dump.h"
#include "ribbon_bar_ex.h"
#include "ribbon_icon_button.h"
#include "ribbon_status_bar_ex.h"
#include "screenshot.h"
#include "skin_visual_managers.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace {

constexpr int kLoadFailed = 1;
constexpr int kWrongUsage = 2;

void Complain(const std::wstring& text) { std::fprintf(stderr, "barview: %s\n", wstring2String(text).c_str()); }

/// The frame around the previewed bars. Every configured command is enabled, because no host is there to say otherwise.
class CPreviewFrame : public CFrameWndEx {
public:
    explicit CPreviewFrame(const BarviewOptions& options) : m_options(options), m_ribbon(FALSE) {}

    BOOL CreateFrame() {
        CRect rect(CPoint(0, 0), CSize(m_options.width, m_options.height));
        const DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
        ::AdjustWindowRectEx(rect, style, FALSE, 0);
        rect.MoveToXY(0, 0);
        return Create(nullptr, m_options.directory.c_str(), style, rect);
    }

    /// Builds the bars; false when a file could not be loaded, or when what was asked for is not there.
    bool Build() {
        bool isComplete = !m_options.ribbonFiles.empty();
        if (!isComplete) {
            Complain(L"no ribbon file: " + m_options.directory + L"cfg\\ribbon*.xml");
        }
        for (const std::wstring& file : m_options.ribbonFiles) {
            CAddRibbonBar builder;
            if (!builder.Load(file, &m_ribbon, TRUE)) {
                Complain(L"not loaded: " + file);
                isComplete = false;
            }
            DeclarePath(file, builder);
            m_commands.push_back(builder.m_cmdList);
        }
        isComplete = BuildMenus() && isComplete;
        isComplete = BuildToolBars() && isComplete;
        isComplete = ShowPath() && isComplete;
        isComplete = ShowCategory() && isComplete;
        isComplete = ShowApplication() && isComplete;
        m_ribbon.ForceRecalcLayout();
        return isComplete;
    }

    DumpSources Sources() {
        DumpSources sources{.ribbon = &m_ribbon,
                            .statusBar = m_status.GetSafeHwnd() != nullptr ? &m_status : nullptr,
                            .commands = m_commands,
                            .accelerators = m_hAccelTable,
                            .application = m_options.application};
        for (const auto& creater : m_menus) {
            sources.menus.push_back(creater->GetMenu());
        }
        for (const auto& [group, bar] : m_toolBars.GetGroupedToolBars()) {
            sources.toolBars.emplace_back(group, bar);
        }
        return sources;
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct) {
        if (CFrameWndEx::OnCreate(createStruct) == -1 || !m_ribbon.Create(this)) {
            return -1;
        }
        m_ribbon.EnableToolTips(TRUE, TRUE);
        return 0;
    }
    afx_msg void OnCommandOfFile(UINT) {}
    afx_msg void OnUpdateCommandOfFile(CCmdUI* commandUi) { commandUi->Enable(TRUE); }
    DECLARE_MESSAGE_MAP()

private:
    /// What a host would declare: the categories that the file added and its quick access commands.
    void DeclarePath(const std::wstring& file, const CAddRibbonBar& builder) {
        int first = -1, last = -1;
        if (builder.GetAddIndex(first, last) <= 0) {
            return;
        }
        std::vector<unsigned int> commands;
        builder.GetQAToolBar(commands);
        m_ribbon.setPath(std::filesystem::path(file).stem().wstring(), first, last, {commands.begin(), commands.end()});
    }

    /// False when there is no path of the name that was asked for.
    bool ShowPath() {
        if (m_options.path.empty() || m_ribbon.ShowPath(m_options.path)) {
            return true;
        }
        Complain(L"no path named " + m_options.path);
        return false;
    }

    /// False when a file could not be loaded.
    bool BuildMenus() {
        bool isComplete = true;
        for (const std::wstring& file : m_options.menuFiles) {
            auto creater = std::make_unique<CDynMenuCreater>();
            try {
                if (!creater->Load(file)) {
                    Complain(L"not loaded: " + file);
                    isComplete = false;
                }
            } catch (const std::out_of_range&) {
                Complain(L"not loaded: " + file + L": a shortcut names no key");
                isComplete = false;
            }
            creater->SetAppAccelTable();
            m_menus.push_back(std::move(creater));
        }
        return isComplete;
    }

    /// False when a file could not be loaded, or holds no toolbar.
    bool BuildToolBars() {
        bool isComplete = true;
        EnableDocking(CBRS_ALIGN_ANY);
        for (const std::wstring& file : m_options.toolBarFiles) {
            const std::size_t before = m_toolBars.GetAllToolBar().size();
            if (!m_toolBars.Load(file, this) || m_toolBars.GetAllToolBar().size() == before) {
                Complain(L"not loaded: " + file);
                isComplete = false;
            }
        }
        for (CMFCToolBar* const bar : m_toolBars.GetAllToolBar()) {
            bar->EnableDocking(CBRS_ALIGN_ANY);
            DockPane(bar);
        }
        return isComplete;
    }

    /// False when there is no category of the name that was asked for.
    bool ShowCategory() {
        for (int i = 0; i < m_ribbon.GetCategoryCount(); ++i) {
            CMFCRibbonCategory* const category = m_ribbon.GetCategory(i);
            // A path has made a category of its own active.
            const bool isFirst = i == 0 && m_options.path.empty();
            const bool isNamed = category->IsVisible() && m_options.category == category->GetName();
            if (m_options.category.empty() ? isFirst : isNamed) {
                m_ribbon.SetActiveCategory(category);
                return true;
            }
        }
        if (m_options.category.empty()) {
            return true;
        }
        Complain(L"no category named " + m_options.category);
        return false;
    }

    /// False when no ribbon file of that name has a status row.
    bool ShowApplication() {
        if (m_options.application.empty()) {
            return true;
        }
        const bool isKnown = CAddRibbonBar::m_smStatusExBtns.contains(m_options.application);
        if (!isKnown) {
            Complain(L"no status row in a ribbon file named " + m_options.application);
        }
        m_status.Create(this);
        m_status.SetExEleApp(m_options.application.c_str());
        RecalcLayout();
        return isKnown;
    }

    const BarviewOptions& m_options;
    CMFCRibbonBarEx m_ribbon;
    CMFCRibbonStatusBarEx m_status;
    std::vector<std::vector<std::wstring>> m_commands;
    std::vector<std::unique_ptr<CDynMenuCreater>> m_menus;
    CDynToolBarCreater m_toolBars;
};

BEGIN_MESSAGE_MAP(CPreviewFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(41000, 57343, OnCommandOfFile)
ON_UPDATE_COMMAND_UI_RANGE(41000, 57343, OnUpdateCommandOfFile)
END_MESSAGE_MAP()

} // namespace

/// Shows what a configuration builds.
class CBarviewApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        CWinAppEx::InitInstance();
        const std::vector<std::wstring> words = CommandLineWords();
        if (std::ranges::find(words, L"--help") != words.end()) {
            std::fputs(wstring2String(BarviewUsage()).c_str(), stdout);
            return FALSE;
        }
        std::wstring error;
        std::optional<BarviewOptions> options = ParseBarviewOptions(words, error);
        if (!options) {
            Complain(error);
            std::fputs(wstring2String(BarviewUsage()).c_str(), stderr);
            m_exitCode = kWrongUsage;
            return FALSE;
        }
        m_options = *options;
        m_gdiPlus = std::make_unique<GdiPlusSession>();
        if (m_options.IsUnattended()) {
            m_answer = std::make_unique<ScopedMessageBoxHandler>([](const std::wstring& message, int, HWND) {
                Complain(message);
                return IDOK;
            });
        }
        if (!m_options.batch.empty()) {
            RunBatch();
            return FALSE;
        }
        Prepare(m_options.directory);
        CPreviewFrame* const frame = Build();
        if (frame == nullptr || !m_options.IsUnattended()) {
            return frame != nullptr;
        }
        SettleWindow(frame->GetSafeHwnd());
        WriteOutputs(*frame);
        frame->DestroyWindow();
        return FALSE;
    }

    int ExitInstance() override {
        CWinAppEx::ExitInstance();
        m_answer.reset();
        m_gdiPlus.reset();
        return m_exitCode;
    }

private:
    /// The bars that the options describe; null when there is no window for them. Destroys itself with its window.
    CPreviewFrame* Build() {
        auto* const frame = new CPreviewFrame(m_options);
        m_pMainWnd = frame;
        if (!frame->CreateFrame()) {
            m_exitCode = kLoadFailed;
            return nullptr;
        }
        if (!frame->Build()) {
            m_exitCode = kLoadFailed;
        }
        frame->ShowWindow(SW_SHOW);
        frame->UpdateWindow();
        return frame;
    }

    void RunBatch() {
        std::wstring error;
        const std::optional<std::vector<BatchEntry>> entries = ReadBatch(m_options.batch, error);
        if (!entries) {
            Complain(error);
            m_exitCode = kWrongUsage;
            return;
        }
        const BarviewOptions given = m_options;
        for (const BatchEntry& entry : *entries) {
            m_options = given;
            RunEntry(entry);
        }
    }

    void RunEntry(const BatchEntry& entry) {
        if (!EnterDirectory(entry.directory)) {
            Complain(L"no such directory: " + entry.directory);
            m_exitCode = kLoadFailed;
            return;
        }
        ForgetConfiguration();
        TakeDirectory(kCurrentDirectory, m_options);
        Prepare(kCurrentDirectory);
        CPreviewFrame* const frame = Build();
        if (frame == nullptr) {
            return;
        }
        SettleWindow(frame->GetSafeHwnd());
        nlohmann::ordered_json dump = DumpFrame(frame->Sources());
        NameDirectory(dump, entry.directory);
        if (!WriteJson(dump, entry.dump)) {
            Complain(L"not written: " + entry.dump);
            m_exitCode = kLoadFailed;
        }
        m_pMainWnd = nullptr; // its end is not that of the program
        frame->DestroyWindow();
    }

    void Prepare(const std::wstring& directory) {
        FileOp::SetAppPath(directory);
        CMultiLanguageMgr::SetProblemSink([](const std::wstring& problem) { Complain(problem); });
        SetConfigurationProblemSink([this](const ConfigurationProblem& problem) {
            const std::wstring& directory = m_options.directory;
            ConfigurationProblem shown = problem;
            if (shown.file.starts_with(directory)) {
                shown.file.erase(0, directory.size());
            }
            std::fprintf(stderr, "%s\n", wstring2String(FormatConfigurationProblem(shown)).c_str());
        });
        if (!m_options.language.empty() && !CMultiLanguageMgr::SetLanguage(m_options.language)) {
            Complain(L"no usable language " + m_options.language);
            m_exitCode = kLoadFailed;
        }
        if (m_options.scalePercent > 0) {
            afxGlobalData.SetRibbonImageScale(m_options.scalePercent / 100.0);
        }
        const bool isBlack = m_options.skin == L"black";
        CMFCRibbonUNIcoButton::SetSkinStyle(isBlack ? L"0" : L"1"); // light icons on dark ground
        CMFCVisualManager::SetDefaultManager(isBlack ? RUNTIME_CLASS(CQKVisualManagerOffice2007Black)
                                                     : RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    }

    void WriteOutputs(CPreviewFrame& frame) {
        if (!m_options.screenshot.empty() && !WriteScreenshot(frame.GetSafeHwnd(), m_options.screenshot)) {
            Complain(L"not written: " + m_options.screenshot);
            m_exitCode = kLoadFailed;
        }
        if (!m_options.dump.empty() && !WriteJson(DumpFrame(frame.Sources()), m_options.dump)) {
            Complain(L"not written: " + m_options.dump);
            m_exitCode = kLoadFailed;
        }
    }

    BarviewOptions m_options;
    std::unique_ptr<GdiPlusSession> m_gdiPlus;
    std::unique_ptr<ScopedMessageBoxHandler> m_answer;
    int m_exitCode = 0;
};

static CBarviewApp s_barview;
