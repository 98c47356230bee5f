#pragma once

#include "last_messages.h"

#include <windows.h>

#include <atomic>
#include <chrono>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

/// For long tests: asks a window from a thread of its own, again and again, whether it still answers, and adds what it
/// finds to a file, each as a line of JSON: {"longest": N, ...} whenever a second has passed, the longest wait so
/// far in milliseconds and how many objects of each kind the process holds from the system; and for each wait that a
/// person would notice one with its begin and end (milliseconds since 1970), the processor time that the window's
/// thread and the whole process spent meanwhile, and the last messages that it had taken from its queue when it was
/// noticed. At its end {"left": [...]}, the last messages: what closed the window is among them.
class Watchman {
public:
    /// Begins at once, from the window's own thread; the window outlives this.
    Watchman(HWND window, const std::wstring& file);
    ~Watchman();
    Watchman(const Watchman&) = delete;
    Watchman& operator=(const Watchman&) = delete;

private:
    using Clock = std::chrono::system_clock; // what the file's reader compares with

    struct HandleCloser {
        void operator()(HANDLE handle) const { ::CloseHandle(handle); }
    };
    /// Milliseconds of a processor.
    struct Spent {
        long long thread = 0;
        long long process = 0;
    };

    struct WaitTime {
        Clock::time_point asked;
        Clock::time_point answered;
    };

    void Run();
    static void TellHeld(std::ofstream& lines, long long longest);
    Spent SpentSoFar() const;
    void TellWait(std::ofstream& lines, const WaitTime& wait, const Spent& before,
                  const std::vector<LastMessages::Entry>& taken) const;

    HWND m_window;
    std::wstring m_file;
    std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser> m_windowThread;
    LastMessages m_messages;
    std::atomic<bool> m_isLeaving{false};
    std::thread m_thread; ///< Last: it uses all of the above.
};
