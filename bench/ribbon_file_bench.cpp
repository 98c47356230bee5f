// Reading a ribbon file into records, beside parsing the same file and nothing else.
#include "config/diagnostics.h"
#include "config/ribbon_file.h"
#include "scenario.h"

#include <benchmark/benchmark.h>

#include <pugixml.hpp>

namespace {

constexpr std::size_t kIconFiles = 20;

ScenarioDirectory& Scenario() {
    static ScenarioDirectory directory;
    return directory;
}

std::filesystem::path FileOf(const benchmark::State& state) {
    return Scenario().Path() / "cfg" / Scenario().AddRibbonFile(static_cast<std::size_t>(state.range(0)), kIconFiles);
}

void ReadFile(benchmark::State& state) {
    const std::wstring path = FileOf(state).wstring();
    for (auto _ : state) {
        RibbonRecords rows;
        if (!LoadRibbonFile(path, rows, DroppedDiagnostics())) {
            state.SkipWithError("the file could not be read");
        }
        benchmark::DoNotOptimize(rows.top.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ReadFileFloor(benchmark::State& state) {
    const std::filesystem::path path = FileOf(state);
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_file(path.c_str())) {
            state.SkipWithError("the file could not be read");
        }
        benchmark::DoNotOptimize(document.document_element().internal_object());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(ReadFile)->Name("file into records")->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadFileFloor)
    ->Name("file into records/floor: pugixml alone")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
