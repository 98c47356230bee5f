// From the start of a process to its first usable frame, by phases.
//   bench_startup                       every kind and size, each in processes of its own; a line of JSON a start
//   bench_startup KIND FOLDER COMMANDS  one start: "library", or "floor", the same program without the library: the
//                                       frame, the files parsed, each icon file loaded once
// bench_empty_window is the start of a program with nothing but a window.
#include "add_ribbon_bar.h"
#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "scenario.h"
#include "start_clock.h"
#include "tests/support/message_pump.h"

#include <varnhold/file_op.h>
#include <varnhold/xml.h>

#include <afxcontrolbars.h>

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kIconFiles = 20;
constexpr std::array<std::size_t, 3> kSizes = {100, 1000, 5000};
constexpr int kStarts = 5;

/// The commands of one installation: half in the ribbon, three in ten in menus, the rest on toolbars.
struct Shares {
    std::size_t ribbon, menu, toolbars;
};

Shares SharesOf(std::size_t commands) {
    const std::size_t ribbon = commands / 2, menu = commands * 3 / 10;
    return {ribbon, menu, commands - ribbon - menu};
}

struct Files {
    std::wstring ribbon, menu, toolbars; // below the installation directory
};

Files FilesOf(std::size_t commands) {
    return {L"cfg\\ribbon" + std::to_wstring(SharesOf(commands).ribbon) + L".xml",
            L"cfg\\menu" + std::to_wstring(commands) + L".xml", L"cfg\\toolbar" + std::to_wstring(commands) + L".xml"};
}

void WriteFiles(ScenarioDirectory& directory, std::size_t commands) {
    const Shares shares = SharesOf(commands);
    directory.AddRibbonFile(shares.ribbon, kIconFiles);
    directory.AddFile("menu" + std::to_string(commands) + ".xml", MakeMenuFile(shares.menu, kIconFiles));
    directory.AddFile("toolbar" + std::to_string(commands) + ".xml", MakeToolbarFile(shares.toolbars, kIconFiles));
}

/// Deletes itself with its window.
class CStartFrame : public CMDIFrameWndEx {
public:
    bool Make() {
        return Create(nullptr, L"start", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(0, 0, 1600, 900)) &&
               m_ribbon.Create(this);
    }
    void LoadRibbon(const Files& files) { Require(CAddRibbonBar().Load(files.ribbon, &m_ribbon, TRUE)); }
    void LoadMenu(const Files& files) {
        Require(m_menu.Load(files.menu));
        m_menu.SetAppAccelTable();
    }
    void LoadToolbars(const Files& files) {
        Require(m_toolbars.Load(files.toolbars, this));
        EnableDocking(CBRS_ALIGN_ANY);
        m_toolbars.EnableDocking(CBRS_ALIGN_ANY, this);
        m_toolbars.DockPane(this);
    }
    static void Require(bool isDone) {
        if (!isDone) {
            throw std::runtime_error("a file of the scenario could not be loaded");
        }
    }

private:
    CMFCRibbonBar m_ribbon{FALSE};
    CDynMenuCreater m_menu;
    CDynToolBarCreater m_toolbars;
};

/// What nobody can do without who shows these files.
void ReadWithoutTheLibrary(const std::wstring& folder, const Files& files) {
    for (const std::wstring* const file : {&files.ribbon, &files.menu, &files.toolbars}) {
        CXmlDocumentWrapper document;
        CStartFrame::Require(document.Load(folder + *file));
    }
    for (const int side : {16, 32}) {
        for (std::size_t i = 0; i < kIconFiles; ++i) {
            const std::wstring path = ScenarioIcon(folder, side, i);
            const HANDLE icon = ::LoadImageW(nullptr, path.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE);
            CStartFrame::Require(icon != nullptr);
            ::DestroyIcon(static_cast<HICON>(icon));
        }
    }
}

/// Runs this program, or one beside it, and waits for its end.
void RunProgram(std::wstring commandLine) {
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    CStartFrame::Require(
        ::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process));
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    CStartFrame::Require(code == 0);
}

std::wstring FolderOfPrograms() {
    std::array<wchar_t, MAX_PATH> name = {};
    ::GetModuleFileNameW(nullptr, name.data(), MAX_PATH);
    const std::wstring path = name.data();
    return path.substr(0, path.rfind(L'\\') + 1);
}

class CStartApp : public CWinAppEx {
public:
    BOOL InitInstance() override {
        StartClock clock;
        CWinAppEx::InitInstance();
        try {
            if (__argc == 4) {
                StartOnce(clock, __wargv[1], __wargv[2], static_cast<std::size_t>(_wtoi(__wargv[3])));
            } else {
                StartAll();
            }
            m_exitCode = 0;
        } catch (const std::runtime_error& error) {
            std::fprintf(stderr, "bench_startup: %s\n", error.what());
        }
        return FALSE;
    }
    int ExitInstance() override {
        CWinAppEx::ExitInstance();
        return m_exitCode;
    }

private:
    void StartOnce(StartClock& clock, const std::wstring& kind, const std::wstring& folder, std::size_t commands) {
        FileOp::SetAppPath(folder);
        const Files files = FilesOf(commands);
        auto* const frame = new CStartFrame;
        m_pMainWnd = frame;
        CStartFrame::Require(frame->Make());
        clock.End("frame");
        if (kind == L"library") {
            frame->LoadRibbon(files);
            clock.End("ribbon");
            frame->LoadMenu(files);
            clock.End("menu");
            frame->LoadToolbars(files);
            clock.End("toolbars");
        } else {
            ReadWithoutTheLibrary(folder, files);
            clock.End("files");
        }
        frame->RecalcLayout();
        frame->ShowWindow(SW_SHOW);
        frame->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        clock.End("shown");
        PumpPending();
        clock.End("idle");
        clock.Print(kind == L"library" ? "library" : "floor", static_cast<int>(commands));
        frame->DestroyWindow();
    }

    static void StartAll() {
        const std::wstring programs = FolderOfPrograms();
        for (const std::size_t commands : kSizes) {
            ScenarioDirectory directory;
            WriteFiles(directory, commands);
            const std::wstring scenario = L" \"" + directory.Path().wstring() + L"/\" " + std::to_wstring(commands);
            for (int i = 0; i < kStarts; ++i) {
                RunProgram(L"\"" + programs + L"bench_empty_window.exe\" " + std::to_wstring(commands));
                RunProgram(L"\"" + programs + L"bench_startup.exe\" floor" + scenario);
                RunProgram(L"\"" + programs + L"bench_startup.exe\" library" + scenario);
            }
        }
    }

    int m_exitCode = 1;
};

CStartApp s_app;

} // namespace
