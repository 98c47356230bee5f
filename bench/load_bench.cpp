// CAddRibbonBar::Load of a whole file into a ribbon bar, beside the icon loads that it cannot do without.
#include "add_ribbon_bar.h"
#include "bench_frame.h"
#include "menu_id_mgr.h"
#include "run_benchmarks.h"
#include "scenario.h"

#include "varnhold/file_op.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

namespace {

constexpr std::size_t kIconFiles = 20;

ScenarioDirectory& Scenario() {
    static ScenarioDirectory directory;
    return directory;
}

CBenchFrame* g_frame = nullptr;

void Load(benchmark::State& state) {
    const std::wstring file = L"cfg\\" + Scenario().AddRibbonFile(static_cast<std::size_t>(state.range(0)), kIconFiles);
    for (auto _ : state) {
        CAddRibbonBar builder;
        if (!builder.Load(file, &g_frame->m_ribbon, 1)) {
            state.SkipWithError("the file could not be loaded");
        }
        state.PauseTiming();
        g_frame->m_ribbon.RemoveAllCategories();
        CMenuIdMgr::Destroy();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void LoadFloor(benchmark::State& state) {
    Scenario().AddRibbonFile(100, kIconFiles);
    const std::wstring root = Scenario().Path().wstring() + L"\\pic\\modle\\";
    for (auto _ : state) {
        for (const int side : {16, 32}) {
            for (std::size_t i = 0; i < kIconFiles; ++i) {
                const std::wstring path = root + std::to_wstring(side) + L"\\icon" + std::to_wstring(i) + L".ico";
                const HANDLE icon = ::LoadImage(nullptr, path.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE);
                if (!icon) {
                    state.SkipWithError("an icon could not be loaded");
                }
                ::DestroyIcon(static_cast<HICON>(icon));
            }
        }
    }
}

class CLoadApp : public CBenchApp<CBenchFrame> {
protected:
    void Measure(CBenchFrame& frame) override {
        g_frame = &frame;
        FileOp::SetAppPath(Scenario().Path().wstring() + L"\\");
        RunBenchmarks();
    }
};

CLoadApp s_app;

} // namespace

BENCHMARK(Load)->Name("Load")->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadFloor)->Name("Load/floor: each icon file loaded once")->Unit(benchmark::kMillisecond);
