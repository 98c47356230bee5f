#include "tests/support/message_pump.h"

#include "afxwin.h"

namespace {

constexpr DWORD LongestWaitForOtherThreads = 10; // ms: how often a condition without a message is looked at

/// False when the queue holds the end of the program.
bool HandleQueue() {
    MSG next;
    while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
        if (next.message == WM_QUIT || !AfxPumpMessage()) {
            return false;
        }
    }
    return true;
}

} // namespace

void RunIdle() {
    constexpr LONG MostRounds = 100;
    CWinThread* thread = AfxGetThread();
    for (LONG count = 0; thread != nullptr && count < MostRounds && thread->OnIdle(count); ++count) {
    }
}

void PumpPending() {
    MSG next;
    do {
        if (!HandleQueue()) {
            return;
        }
        RunIdle();
    } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE) && next.message != WM_QUIT);
}

bool PumpUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!done()) {
        PumpPending();
        if (done()) {
            return true;
        }
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, LongestWaitForOtherThreads, QS_ALLINPUT);
    }
    return true;
}
