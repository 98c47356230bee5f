// Registry and dispatcher: 5,000 keywords of 20 characters, ten reactors.
#include "menu_event.h"
#include "menu_id_mgr.h"
#include "scenario.h"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <map>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace {

constexpr std::size_t kKeywords = 5000;
constexpr std::size_t kKeywordLength = 20;
constexpr int kReactors = 10;

const std::vector<std::wstring>& Keywords() {
    static const std::vector<std::wstring> keywords = MakeKeywords(kKeywords, kKeywordLength);
    return keywords;
}

void FillRegistry() {
    int id = 41000;
    for (const std::wstring& keyword : Keywords()) {
        CMenuIdMgr::Ins()->Add(keyword, id++, L"name", L"command", L"tooltip", L"parameter", L"help.swf");
    }
}

void RegistryAdd(benchmark::State& state) {
    for (auto _ : state) {
        FillRegistry();
        state.PauseTiming();
        CMenuIdMgr::Destroy();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kKeywords));
}

/// The same three maps, filled without a registry around them.
void RegistryAddFloor(benchmark::State& state) {
    struct Record {
        std::wstring keyword, tooltip, command, parameter, help;
    };
    struct Maps {
        std::map<std::wstring, int> ids;
        std::map<std::wstring, std::wstring> names;
        std::map<int, Record> records;
    };
    std::recursive_mutex mutex;
    for (auto _ : state) {
        auto maps = std::make_unique<Maps>();
        int id = 41000;
        for (const std::wstring& keyword : Keywords()) {
            const std::lock_guard<std::recursive_mutex> lock(mutex);
            maps->ids[keyword] = id;
            maps->names[keyword] = L"name";
            maps->records[id] = {keyword, L"tooltip", L"command", L"parameter", L"help.swf"};
            ++id;
        }
        state.PauseTiming();
        maps.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kKeywords));
}

void RegistryLookUp(benchmark::State& state) {
    FillRegistry();
    const CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    std::size_t at = 0;
    int id = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(registry->GetMenuId(Keywords()[at], id));
        benchmark::DoNotOptimize(id);
        at = (at + 1) % kKeywords;
    }
    CMenuIdMgr::Destroy();
}

template <class Map>
void LookUpFloor(benchmark::State& state) {
    Map map;
    int id = 41000;
    for (const std::wstring& keyword : Keywords()) {
        map[keyword] = id++;
    }
    std::recursive_mutex mutex;
    std::size_t at = 0;
    for (auto _ : state) {
        const std::lock_guard<std::recursive_mutex> lock(mutex);
        const auto found = map.find(Keywords()[at]);
        benchmark::DoNotOptimize(id = found->second);
        at = (at + 1) % kKeywords;
    }
}

class CRefusingReactor : public CMenuReactor {
protected:
    bool MenuClick(unsigned int id) const override { return id == 0; }
};

void Dispatch(benchmark::State& state) {
    CMenuEvtHandleMgr* const dispatcher = CMenuEvtHandleMgr::Ins();
    while (dispatcher->getReactors().size() < kReactors) {
        dispatcher->addReactor(boost::make_shared<CRefusingReactor>());
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(dispatcher->MenuClick(41000));
    }
}

struct Handler {
    virtual ~Handler() = default;
    virtual bool Click(unsigned int id) const = 0;
};

// Kept out of the optimiser's sight, or the ten calls would be inlined and the floor be none.
struct RefusingHandler : Handler {
    __attribute__((noipa)) bool Click(unsigned int id) const override { return id == 0; }
};

__attribute__((noipa)) std::unique_ptr<Handler> MakeHandler() { return std::make_unique<RefusingHandler>(); }

void DispatchFloor(benchmark::State& state) {
    std::recursive_mutex mutex;
    std::vector<std::unique_ptr<Handler>> handlers;
    for (int i = 0; i < kReactors; ++i) {
        handlers.push_back(MakeHandler());
    }
    for (auto _ : state) {
        const std::lock_guard<std::recursive_mutex> lock(mutex);
        bool isHandled = false;
        for (const auto& handler : handlers) {
            isHandled = isHandled || handler->Click(41000);
        }
        benchmark::DoNotOptimize(isHandled);
    }
}

} // namespace

BENCHMARK(RegistryAdd)->Name("registry add 5000")->Unit(benchmark::kMicrosecond);
BENCHMARK(RegistryAddFloor)
    ->Name("registry add 5000/floor: three std::map, one lock each")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(RegistryLookUp)->Name("registry look-up of 5000");
BENCHMARK(LookUpFloor<std::map<std::wstring, int>>)->Name("registry look-up of 5000/floor: std::map and a lock");
BENCHMARK(LookUpFloor<std::unordered_map<std::wstring, int>>)
    ->Name("registry look-up of 5000/floor: std::unordered_map and a lock");
BENCHMARK(Dispatch)->Name("dispatch to 10 reactors");
BENCHMARK(DispatchFloor)->Name("dispatch to 10 reactors/floor: ten virtual calls under a recursive mutex");

BENCHMARK_MAIN();
