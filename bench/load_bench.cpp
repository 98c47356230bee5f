// CAddRibbonBar::Load of a whole file into a ribbon bar, beside the icon loads that it cannot do without.
#include "add_ribbon_bar.h"
#include "bench_frame.h"
#include "configuration_problems.h"
#include "menu_id_mgr.h"
#include "run_benchmarks.h"
#include "scenario.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/xml.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <vector>

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

/// An installation of which nothing changes, as most of the time: all kinds of files and two languages.
struct Installation : ScenarioDirectory {
    Installation() {
        AddInstallation(1000, kIconFiles, 2);
        const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(Path())) {
            if (entry.is_regular_file()) {
                std::filesystem::last_write_time(entry.path(), longAgo);
            }
        }
    }
};

void LoadInInstallation(benchmark::State& state, const ConfigurationProblemSink& sink) {
    static const Installation installation;
    const std::wstring earlier = Scenario().Path().wstring() + L"\\";
    FileOp::SetAppPath(installation.Path().wstring() + L"\\");
    CMultiLanguageMgr::SetLanguage(L"en");
    SetConfigurationProblemSink(sink);
    for (auto _ : state) {
        CAddRibbonBar builder;
        if (!builder.Load(L"cfg\\ribbon625.xml", &g_frame->m_ribbon, 1)) {
            state.SkipWithError("the file could not be loaded");
        }
        state.PauseTiming();
        g_frame->m_ribbon.RemoveAllCategories();
        CMenuIdMgr::Destroy();
        state.ResumeTiming();
    }
    SetConfigurationProblemSink({});
    CMultiLanguageMgr::SetLanguage(L"");
    FileOp::SetAppPath(earlier);
}

void LoadHeard(benchmark::State& state) {
    LoadInInstallation(state, [&state](const ConfigurationProblem&) { state.SkipWithError("there are problems"); });
}

void LoadUnheard(benchmark::State& state) { LoadInInstallation(state, {}); }

void TryIcon(const std::wstring& root, std::size_t number, int side, benchmark::State& state) {
    const std::wstring path = ScenarioIcon(root, side, number);
    const HANDLE icon = ::LoadImage(nullptr, path.c_str(), IMAGE_ICON, side, side, LR_LOADFROMFILE);
    if (!icon) {
        state.SkipWithError("an icon could not be loaded");
    }
    ::DestroyIcon(static_cast<HICON>(icon));
}

void LoadFloor(benchmark::State& state) {
    Scenario().AddRibbonFile(100, kIconFiles);
    const std::wstring root = Scenario().Path().wstring() + L"\\";
    for (auto _ : state) {
        for (const int side : {16, 32}) {
            for (std::size_t i = 0; i < kIconFiles; ++i) {
                TryIcon(root, i, side, state);
            }
        }
    }
}

// What no way to load the file can do without: it is parsed, each icon file is tried once, each command has an entry in
// the registry and an element.
void LoadOwnFloor(benchmark::State& state) {
    const auto buttons = static_cast<std::size_t>(state.range(0));
    const std::wstring file = L"cfg\\" + Scenario().AddRibbonFile(buttons, kIconFiles);
    const std::wstring root = Scenario().Path().wstring() + L"\\";
    for (auto _ : state) {
        CXmlDocumentWrapper document;
        if (!document.Load(root + file)) {
            state.SkipWithError("the file could not be parsed");
        }
        std::vector<std::unique_ptr<CMFCRibbonButton>> elements;
        elements.reserve(buttons);
        for (std::size_t i = 0; i < buttons; ++i) {
            if (i < kIconFiles) {
                TryIcon(root, i, 16, state);
                TryIcon(root, i, 32, state);
            }
            const std::wstring number = std::to_wstring(buttons) + L"_" + std::to_wstring(i);
            const int id = 41000 + static_cast<int>(i);
            const std::wstring keyword = L"Command" + number;
            CMenuIdMgr::Ins()->Add(keyword, id, keyword, L"command", L"", number, L"");
            elements.push_back(std::make_unique<CMFCRibbonButton>(static_cast<UINT>(id), keyword.c_str()));
        }
        state.PauseTiming();
        elements.clear();
        CMenuIdMgr::Destroy();
        state.ResumeTiming();
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
BENCHMARK(LoadHeard)->Name("Load with a sink")->Unit(benchmark::kMillisecond);
BENCHMARK(LoadUnheard)->Name("Load with a sink/floor: without")->Unit(benchmark::kMillisecond);
BENCHMARK(LoadFloor)->Name("Load/floor: each icon file loaded once")->Unit(benchmark::kMillisecond);
BENCHMARK(LoadOwnFloor)
    ->Name("Load/floor: parse, trial loads, an entry and an element each")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
