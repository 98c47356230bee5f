#include <afxcontrolbars.h>

#include "batch.h"
#include "matrix.h"
#include "options.h"
#include "preview_frame.h"

#include "command_line.h"
#include "configuration_problems.h"
#include "configuration_watch.h"
#include "frame_dump.h"
#include "problem_report.h"
#include "ribbon_icon_button.h"
#include "screenshot.h"
#include "skin_visual_managers.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

namespace {

constexpr int kLoadFailed = 1;
constexpr int kWrongUsage = 2;

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
        if (m_options.IsUnattended() || m_options.isWatching) {
            m_answer = std::make_unique<ScopedMessageBoxHandler>([](const std::wstring& message, int, HWND) {
                Complain(message);
                return IDOK;
            });
        }
        if (!m_options.batch.empty()) {
            RunBatch();
            return FALSE;
        }
        if (!m_options.matrix.empty()) {
            const BarviewOptions given = m_options; // those of each combination take their place
            m_exitCode = WriteMatrix(given, [this](const BarviewOptions& options,
                                                   const PictureTaker& take) { return ShowTabs(options, take); })
                             ? m_exitCode
                             : kLoadFailed;
            return FALSE;
        }
        Prepare(m_options.directory);
        if (m_options.isWatching && !Watch()) {
            return FALSE;
        }
        CPreviewFrame* const frame = Build();
        if (frame == nullptr) {
            return FALSE;
        }
        if (m_options.isWatching) {
            frame->ShowFaults();
        }
        if (m_options.isWatching || m_options.IsUnattended()) {
            SettleWindow(frame->GetSafeHwnd());
            WriteOutputs(*frame);
        }
        if (!m_options.IsUnattended()) {
            return TRUE;
        }
        frame->DestroyWindow();
        return FALSE;
    }

    int ExitInstance() override {
        m_watch.Stop();
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

    /// False when the directory cannot be watched. What is written from here on is seen, also while the bars are built.
    bool Watch() {
        const bool isWatching =
            m_watch.Start(m_options.directory, [this](const ConfigurationChange& change) { Take(change); });
        if (!isWatching) {
            Complain(L"cannot be watched: " + m_options.directory);
            m_exitCode = kLoadFailed;
        }
        return isWatching;
    }

    void Take(const ConfigurationChange& change) {
        auto& frame = *static_cast<CPreviewFrame*>(m_pMainWnd);
        FindUnnamedFiles(m_options);           // one may be new, or gone
        m_report.emplace(m_options.directory); // the lines are other ones now
        const bool isBuilt = frame.Rebuild(change);
        SettleWindow(frame.GetSafeHwnd());
        WriteOutputs(frame);
        std::wstring built;
        std::wstring kept;
        for (const std::wstring& file : change.files) {
            (isBuilt && !frame.IsWaiting(file) ? built : kept) += L" " + file;
        }
        PrintFiles(L"built anew:", built);
        PrintFiles(L"as before:", kept);
        std::fflush(stdout);
        if (m_options.changes > 0 && --m_options.changes == 0) {
            m_watch.Stop();
            frame.PostMessage(WM_CLOSE);
        }
    }

    /// Nothing where there are no files.
    static void PrintFiles(const std::wstring& what, const std::wstring& files) {
        if (!files.empty()) {
            std::fprintf(stdout, "barview: %s\n", wstring2String(what + files).c_str());
        }
    }

    /// Builds the bars of one combination and shows one tab after the other. False when there is no window for them.
    bool ShowTabs(const BarviewOptions& options, const PictureTaker& take) {
        ForgetConfiguration();
        m_options = options;
        if (!EnterDirectory(options.directory)) {
            return false;
        }
        m_options.directory = kCurrentDirectory;
        Prepare(kCurrentDirectory);
        CPreviewFrame* const frame = Build();
        if (frame == nullptr) {
            return false;
        }
        CMFCRibbonBar& ribbon = *frame->Sources().ribbon;
        for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
            CMFCRibbonCategory* const category = ribbon.GetCategory(i);
            if (category->IsVisible()) {
                ribbon.SetActiveCategory(category);
                ribbon.ForceRecalcLayout();
                ribbon.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
                SettleWindow(frame->GetSafeHwnd());
                take(category->GetName(), i, frame->GetSafeHwnd());
            }
        }
        m_pMainWnd = nullptr; // its end is not that of the program
        frame->DestroyWindow();
        return true;
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
        m_report.emplace(m_options.directory);
        SetConfigurationProblemSink([this](const ConfigurationProblem& problem) {
            std::fputs(wstring2String(m_report->Of(problem)).c_str(), stderr);
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
    std::optional<ProblemReport> m_report; ///< Of the files as they are now.
    CConfigurationWatch m_watch;
    int m_exitCode = 0;
};

static CBarviewApp s_barview;
