#include "tests/support/fault_watch.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cwchar>
#include <sstream>

namespace {

std::atomic<int> g_count = 0;
std::atomic<void*> g_first = nullptr;

LONG CALLBACK Count(EXCEPTION_POINTERS* exception) {
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION && g_count++ == 0) {
        g_first = exception->ExceptionRecord->ExceptionAddress;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

/// Program or library, and how far in it.
std::string NameOf(void* address) {
    MEMORY_BASIC_INFORMATION memory{};
    ::VirtualQuery(address, &memory, sizeof(memory));
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(static_cast<HMODULE>(memory.AllocationBase), path, MAX_PATH);
    std::ostringstream name;
    name << path << " + 0x" << std::hex << static_cast<char*>(address) - static_cast<char*>(memory.AllocationBase);
    return name.str();
}

class FaultListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& /*test*/) override { g_count = 0; }
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        if (g_count != 0) {
            ADD_FAILURE() << g_count << " accesses to memory that is not there, the first by " << NameOf(g_first);
        }
    }
};

} // namespace

void WatchFaults() {
    static const bool isWatched = [] {
        // The printer of results comes last, so that it hears of the failures.
        testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
        testing::TestEventListener* const printer = listeners.Release(listeners.default_result_printer());
        listeners.Append(new FaultListener);
        if (printer != nullptr) {
            listeners.Append(printer);
        }
        return ::AddVectoredExceptionHandler(1, Count) != nullptr;
    }();
    EXPECT_TRUE(isWatched);
}
