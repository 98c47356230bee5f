#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

/// For long tests: asks a window from a thread of its own, again and again, whether it still answers, and writes what
/// it finds as a line of JSON whenever a second has passed: the longest wait so far in milliseconds.
class Watchman {
public:
    /// Begins at once; the window outlives this.
    Watchman(HWND window, const std::wstring& file);
    ~Watchman();
    Watchman(const Watchman&) = delete;
    Watchman& operator=(const Watchman&) = delete;

private:
    void Run();

    HWND m_window;
    std::wstring m_file;
    std::atomic<bool> m_isLeaving{false};
    std::thread m_thread; ///< Last: it uses all of the above.
};
