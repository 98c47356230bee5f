#pragma once

#include <benchmark/benchmark.h>

#include <cstdlib>

/// Those that the command line asks for.
inline void RunBenchmarks() {
    int count = __argc;
    benchmark::Initialize(&count, __argv);
    benchmark::RunSpecifiedBenchmarks();
}
