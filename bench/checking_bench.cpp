// Checking an installation, beside parsing its files and one look at each of its icon files.
#include "config/check/configuration_check.h"
#include "scenario.h"

#include <benchmark/benchmark.h>

#include <pugixml.hpp>

#include <array>
#include <cstdint>
#include <fstream>

namespace {

constexpr std::size_t kCommands = 5000;
constexpr std::size_t kIconFiles = 200;
constexpr std::size_t kLanguages = 4;

const ScenarioDirectory& Scenario() {
    struct Installation : ScenarioDirectory {
        Installation() { AddInstallation(kCommands, kIconFiles, kLanguages); }
    };
    static const Installation installation;
    return installation;
}

void Check(benchmark::State& state) {
    const std::wstring directory = (Scenario().Path() / "").wstring();
    for (auto _ : state) {
        if (!CheckConfiguration({directory, {}, {}}).empty()) {
            state.SkipWithError("there are findings");
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCommands));
}

bool Parse(const std::filesystem::path& path) {
    pugi::xml_document document;
    return document.load_file(path.c_str());
}

/// As much of it as says how large its pictures are.
bool LookAt(const std::filesystem::path& path) {
    std::array<char, 22> header{};
    std::ifstream stream(path, std::ios::binary);
    return static_cast<bool>(stream.read(header.data(), static_cast<std::streamsize>(header.size())));
}

void CheckFloor(benchmark::State& state) {
    const std::filesystem::path directory = Scenario().Path();
    for (auto _ : state) {
        bool isRead = true;
        for (const char* const folder : {"cfg", "lang"}) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(directory / folder)) {
                isRead = isRead && (entry.is_directory() || Parse(entry.path()));
            }
        }
        for (const char* const folder : {"16", "32"}) { // the files name one of the sets
            for (const auto& entry : std::filesystem::directory_iterator(directory / "pic" / "modle" / folder)) {
                isRead = isRead && LookAt(entry.path());
            }
        }
        if (!isRead) {
            state.SkipWithError("a file could not be read");
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kCommands));
}

} // namespace

BENCHMARK(Check)->Name("check of 5000 commands in four languages")->Unit(benchmark::kMillisecond);
BENCHMARK(CheckFloor)
    ->Name("check of 5000 commands in four languages/floor: pugixml and a look at each icon")
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
