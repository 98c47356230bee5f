#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

inline double MeasureSeconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// How much longer one large piece of work takes than a small one; both functions answer seconds. The small one is
/// repeated `times` times, as often as it goes into the large one, so that both take equally long where time is linear
/// (the answer is then `times`) and other programs slow both down alike. The best of several attempts counts.
inline double MeasureGrowth(int times, const std::function<double()>& small, const std::function<double()>& large) {
    constexpr int attempts = 4;
    double bestSmall = 1e9;
    double bestLarge = 1e9;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        double sum = 0;
        for (int i = 0; i < times; ++i)
            sum += small();
        bestSmall = std::min(bestSmall, sum);
        bestLarge = std::min(bestLarge, large());
    }
    return times * bestLarge / bestSmall;
}
