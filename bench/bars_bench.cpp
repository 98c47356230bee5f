// Menus and toolbars of whole files, and a long menu that opens.
#include "bench_frame.h"
#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "menu_id_mgr.h"
#include "menubar_ex.h"
#include "run_benchmarks.h"
#include "scenario.h"

#include "varnhold/file_op.h"
#include "varnhold/xml.h"

#include <benchmark/benchmark.h>

namespace {

constexpr std::size_t kIconFiles = 20;
constexpr int kIconSide = 16;
constexpr int kLongMenu = 500;

CBenchFrame* g_frame = nullptr;

ScenarioDirectory& Scenario() {
    static ScenarioDirectory directory;
    return directory;
}

std::wstring MenuFile(benchmark::State& state) {
    const auto items = static_cast<std::size_t>(state.range(0));
    return Scenario().AddFile("menu" + std::to_string(items) + ".xml", MakeMenuFile(items, kIconFiles));
}

std::wstring ToolbarFile(benchmark::State& state) {
    const auto buttons = static_cast<std::size_t>(state.range(0));
    Scenario().AddRibbonFile(1, kIconFiles); // brings the icon files
    return Scenario().AddFile("toolbar" + std::to_string(buttons) + ".xml", MakeToolbarFile(buttons, kIconFiles));
}

std::wstring FullName(const std::wstring& file) { return Scenario().Path().wstring() + L"\\" + file; }

void Parse(const std::wstring& file, benchmark::State& state) {
    CXmlDocumentWrapper document;
    if (!document.Load(FullName(file))) {
        state.SkipWithError("the file could not be parsed");
    }
}

void LoadMenu(benchmark::State& state) {
    const std::wstring file = MenuFile(state);
    for (auto _ : state) {
        CDynMenuCreater creater;
        if (!creater.Load(file)) {
            state.SkipWithError("the file could not be loaded");
        }
        state.PauseTiming();
        CMenuIdMgr::Destroy();
        creater.DestroyMenu();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Reading the same file, and as many items in a menu of the system.
void LoadMenuFloor(benchmark::State& state) {
    const std::wstring file = MenuFile(state);
    for (auto _ : state) {
        Parse(file, state);
        const HMENU menu = ::CreateMenu();
        for (int i = 0; i < state.range(0); ++i) {
            ::AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(i) + 1, L"Item of a menu");
        }
        ::DestroyMenu(menu);
    }
}

void LoadToolbars(benchmark::State& state) {
    const std::wstring file = ToolbarFile(state);
    for (auto _ : state) {
        CDynToolBarCreater creater;
        if (!creater.Load(file, g_frame)) {
            state.SkipWithError("the file could not be loaded");
        }
        state.PauseTiming();
        for (CMFCToolBar* const bar : creater.GetAllToolBar()) {
            bar->DestroyWindow();
        }
        if (CMFCToolBarImages* const images = CMFCToolBar::GetUserImages()) {
            images->Clear();
            CMFCToolBar::SetUserImages(nullptr);
        }
        CMenuIdMgr::Destroy();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Reading the same file, and each icon file once.
void LoadToolbarsFloor(benchmark::State& state) {
    const std::wstring file = ToolbarFile(state);
    for (auto _ : state) {
        Parse(file, state);
        for (std::size_t i = 0; i < kIconFiles; ++i) {
            const std::wstring icon = ScenarioIcon(FullName(L""), kIconSide, i);
            ::DestroyIcon(static_cast<HICON>(
                ::LoadImageW(nullptr, icon.c_str(), IMAGE_ICON, kIconSide, kIconSide, LR_LOADFROMFILE)));
        }
    }
}

/// A menu bar with one button that opens a menu of so many items.
class LongMenu {
public:
    explicit LongMenu(int items) {
        const HMENU popup = ::CreatePopupMenu();
        for (int i = 0; i < items; ++i) {
            ::AppendMenuW(popup, MF_STRING, static_cast<UINT_PTR>(41000 + i), L"Item of a long menu");
        }
        ::AppendMenuW(m_menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"Long");
        m_bar.Create(g_frame);
        m_bar.CreateFromMenu(m_menu, FALSE, TRUE);
    }
    ~LongMenu() {
        m_bar.DestroyWindow();
        ::DestroyMenu(m_menu);
    }
    LongMenu(const LongMenu&) = delete;
    LongMenu& operator=(const LongMenu&) = delete;
    CMFCToolBarButton& Button() { return *m_bar.GetButton(0); }
    CMFCMenuBar& Bar() { return m_bar; }

private:
    HMENU m_menu = ::CreateMenu();
    CMFCMenuBar m_bar;
};

void OpenMenu(benchmark::State& state) {
    g_frame->ShowWindow(SW_SHOW);
    LongMenu menu(static_cast<int>(state.range(0)));
    g_frame->RecalcLayout();
    for (auto _ : state) {
        if (!menu.Button().OnClick(&menu.Bar())) {
            state.SkipWithError("the menu did not open");
        }
        state.PauseTiming();
        CMFCPopupMenu::CloseAll();
        state.ResumeTiming();
    }
}

// A window that shows nothing, and the measuring of as many texts.
void OpenMenuFloor(benchmark::State& state) {
    for (auto _ : state) {
        CWnd window;
        window.CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, AfxRegisterWndClass(0), L"", WS_POPUP,
                        CRect(0, 0, 200, 800), g_frame, 0);
        CClientDC dc(&window);
        dc.SelectObject(&afxGlobalData.fontRegular);
        for (int i = 0; i < state.range(0); ++i) {
            CRect rect(0, 0, 0, 0);
            dc.DrawText(L"Item of a long menu", rect, DT_SINGLELINE | DT_CALCRECT);
        }
        window.ShowWindow(SW_SHOWNOACTIVATE);
        window.UpdateWindow();
        window.DestroyWindow();
    }
}

class CBarsApp : public CBenchApp<CBenchFrame> {
protected:
    void Measure(CBenchFrame& frame) override {
        g_frame = &frame;
        FileOp::SetAppPath(Scenario().Path().wstring() + L"\\");
        RunBenchmarks();
    }
};

CBarsApp s_app;

} // namespace

BENCHMARK(LoadMenu)->Name("LoadMenu")->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadMenuFloor)
    ->Name("LoadMenu/floor: the file parsed, a menu of the system")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(LoadToolbars)->Name("LoadToolbars")->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadToolbarsFloor)
    ->Name("LoadToolbars/floor: the file parsed, each icon file once")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(OpenMenu)->Name("OpenMenu")->Arg(kLongMenu)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenMenuFloor)
    ->Name("OpenMenu/floor: an empty window, the texts measured")
    ->Arg(kLongMenu)
    ->Unit(benchmark::kMillisecond);
