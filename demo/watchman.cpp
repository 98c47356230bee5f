#include "watchman.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>

namespace {

constexpr UINT kPatience = 10000; // milliseconds that a window may be silent before it is taken for dead
constexpr DWORD kPause = 100;
constexpr auto kBetweenLines = std::chrono::seconds(1);

} // namespace

Watchman::Watchman(HWND window, const std::wstring& file)
    : m_window(window), m_file(file), m_thread([this] { Run(); }) {}

Watchman::~Watchman() {
    m_isLeaving = true;
    m_thread.join();
}

void Watchman::Run() {
    using Clock = std::chrono::steady_clock;
    std::ofstream lines(std::filesystem::path(m_file), std::ios::app);
    long long longest = 0;
    auto last = Clock::now() - kBetweenLines;
    while (!m_isLeaving) {
        const auto asked = Clock::now();
        DWORD_PTR answer = 0;
        ::SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
        const auto now = Clock::now();
        longest =
            std::max<long long>(longest, std::chrono::duration_cast<std::chrono::milliseconds>(now - asked).count());
        if (now - last >= kBetweenLines) {
            last = now;
            lines << "{\"longest\": " << longest << "}" << std::endl;
        }
        ::Sleep(kPause);
    }
}
