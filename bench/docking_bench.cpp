// The layout of docked toolbars when their frame changes its width, beside the moves of as many plain windows.
#include "run_benchmarks.h"

#include <afxcontrolbars.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int kButtons = 8;
constexpr int kWide = 1000;
constexpr int kNarrow = 700;

class DockFrame : public CFrameWndEx {
public:
    bool Make(int bars) {
        if (!Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW, CRect(0, 0, kWide, kWide))) {
            return false;
        }
        EnableDocking(CBRS_ALIGN_ANY);
        for (int index = 0; index < bars; ++index) {
            m_bars.push_back(std::make_unique<CMFCToolBar>());
            CMFCToolBar& bar = *m_bars.back();
            bar.Create(this, AFX_DEFAULT_TOOLBAR_STYLE, static_cast<UINT>(100 + index));
            for (UINT button = 1; button <= kButtons; ++button) {
                bar.InsertButton(CMFCToolBarButton(button, -1, L"Ab"));
            }
            bar.EnableDocking(CBRS_ALIGN_ANY);
            DockPane(&bar);
        }
        ShowWindow(SW_SHOWNOACTIVATE);
        RecalcLayout();
        return true;
    }

private:
    std::vector<std::unique_ptr<CMFCToolBar>> m_bars;
};

void DockingLayout(benchmark::State& state) {
    auto* const frame = new DockFrame; // deletes itself with its window
    if (!frame->Make(static_cast<int>(state.range(0)))) {
        state.SkipWithError("the frame could not be made");
        return;
    }
    bool isWide = true;
    for (auto _ : state) {
        isWide = !isWide;
        frame->SetWindowPos(nullptr, 0, 0, isWide ? kWide : kNarrow, kWide, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    frame->DestroyWindow();
}

/// As many windows, moved there and back in one batch, in a window that changes its width.
void DockingLayoutFloor(benchmark::State& state) {
    const HWND frame = ::CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, kWide, kWide,
                                         nullptr, nullptr, nullptr, nullptr);
    std::vector<HWND> windows;
    const auto count = static_cast<int>(state.range(0));
    for (int index = 0; index < count; ++index) {
        windows.push_back(::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 0, index * 24, 190, 24, frame,
                                            nullptr, nullptr, nullptr));
    }
    int shift = 0;
    for (auto _ : state) {
        shift = 1 - shift;
        ::SetWindowPos(frame, nullptr, 0, 0, shift == 0 ? kWide : kNarrow, kWide,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        HDWP batch = ::BeginDeferWindowPos(count);
        for (int index = 0; index < count; ++index) {
            batch = ::DeferWindowPos(batch, windows[static_cast<std::size_t>(index)], nullptr, 200 * shift, index * 24,
                                     190, 24, SWP_NOZORDER | SWP_NOACTIVATE);
        }
        ::EndDeferWindowPos(batch);
    }
    ::DestroyWindow(frame);
}

class DockingBench : public CWinAppEx {
public:
    BOOL InitInstance() override {
        RunBenchmarks();
        return FALSE;
    }
};

DockingBench s_app;

} // namespace

BENCHMARK(DockingLayout)->Name("docking layout")->Arg(10)->Arg(50)->Unit(benchmark::kMicrosecond);
BENCHMARK(DockingLayoutFloor)
    ->Name("docking layout/floor: windows moved in a batch")
    ->Arg(50)
    ->Unit(benchmark::kMicrosecond);
