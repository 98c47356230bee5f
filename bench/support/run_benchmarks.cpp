#include "run_benchmarks.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

void RunBenchmarks() {
    int count = __argc;
    benchmark::Initialize(&count, __argv);
    benchmark::RunSpecifiedBenchmarks();
}
