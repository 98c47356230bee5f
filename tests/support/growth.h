#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>

/// The seconds of processor time that the work takes, so that waiting for other programs does not count. Windows only
/// tells that in steps of a timer tick; there it is the time that passes.
inline double MeasureSeconds(const std::function<void()>& work) {
#ifdef _WIN32
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
#else
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
#endif
}

/// How much longer one large piece of work takes than a small one; both functions answer seconds. The small one is
/// repeated `times` times, as often as it goes into the large one, so that both take equally long where time is linear
/// (the answer is then `times`) and other programs slow both down alike. The best of several attempts counts.
inline double MeasureGrowth(int times, const std::function<double()>& small, const std::function<double()>& large) {
    constexpr int attempts = 8;
    double bestSmall = 1e9;
    double bestLarge = 1e9;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        double sum = 0;
        for (int i = 0; i < times; ++i) {
            sum += small();
        }
        bestSmall = std::min(bestSmall, sum);
        bestLarge = std::min(bestLarge, large());
    }
    return times * bestLarge / bestSmall;
}
