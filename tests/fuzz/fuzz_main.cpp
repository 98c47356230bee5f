#include "targets.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>

// One target as a program of libFuzzer; FUZZ_FUNCTION says which. The time of the processor is measured: on a busy
// machine the clock says nothing about an input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const std::clock_t start = std::clock();
    FUZZ_FUNCTION({reinterpret_cast<const char*>(bytes), count});
    if (std::clock() - start > CLOCKS_PER_SEC) {
        std::fputs("this input took more than a second\n", stderr);
        std::abort();
    }
    return 0;
}
