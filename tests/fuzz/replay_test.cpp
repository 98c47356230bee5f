#include "corpus_file.h"
#include "targets.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

namespace fs = std::filesystem;

class KeptInputs : public testing::TestWithParam<FuzzTarget> {};

/// Debug builds under a sanitizer are several times slower than what people run.
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
constexpr std::chrono::seconds kMost{5};
#else
constexpr std::chrono::seconds kMost{1};
#endif

TEST_P(KeptInputs, BreakNothingAndTakeNoSecond) {
    const auto inputs = ReadCorpus(fs::path(FUZZ_CORPUS) / (std::string(GetParam().name) + ".corpus"));
    ASSERT_TRUE(inputs.has_value());
    EXPECT_FALSE(inputs->empty());
    for (const std::string& input : *inputs) {
        const auto start = std::chrono::steady_clock::now();
        GetParam().function(input); // aborts where a rule does not hold
        EXPECT_LT(std::chrono::steady_clock::now() - start, kMost) << input;
    }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, KeptInputs, testing::ValuesIn(kFuzzTargets),
                         [](const testing::TestParamInfo<FuzzTarget>& info) { return std::string(info.param.name); });

TEST(KeptCorpus, IsSmall) {
    std::uintmax_t bytes = 0;
    for (const auto& entry : fs::directory_iterator(FUZZ_CORPUS)) {
        bytes += entry.file_size();
    }
    EXPECT_GT(bytes, 0u);
    EXPECT_LT(bytes, 2u << 20);
}

} // namespace
