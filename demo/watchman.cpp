#include "watchman.h"

#include "process_objects.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

namespace {

constexpr UINT kPatience = 10000; // milliseconds that a window may be silent before it is taken for dead
constexpr DWORD kPause = 100;
constexpr UINT kNoticed = 300; // a wait as long as this gets a line of its own
constexpr auto kBetweenLines = std::chrono::seconds(1);

long long Milliseconds(const FILETIME& time) {
    constexpr long long ticks = 10000; // of 100 ns in a millisecond
    const ULARGE_INTEGER whole{{time.dwLowDateTime, time.dwHighDateTime}};
    return static_cast<long long>(whole.QuadPart) / ticks;
}

template <class Duration>
long long Milliseconds(Duration duration) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(duration).count();
}

/// With their times since a moment.
nlohmann::ordered_json MessageLines(const std::vector<LastMessages::Entry>& taken,
                                    std::chrono::system_clock::time_point since) {
    nlohmann::ordered_json messages = nlohmann::ordered_json::array();
    for (const LastMessages::Entry& entry : taken) {
        messages.push_back({{"at", Milliseconds(entry.when - since)},
                            {"message", entry.message},
                            {"wParam", entry.wParam},
                            {"lParam", entry.lParam},
                            {"class", entry.windowClass.data()}});
    }
    return messages;
}

} // namespace

Watchman::Watchman(HWND window, const std::wstring& file)
    : m_window(window),
      m_file(file),
      m_windowThread(::OpenThread(THREAD_QUERY_INFORMATION, FALSE, ::GetWindowThreadProcessId(window, nullptr))),
      m_thread([this] { Run(); }) {}

Watchman::~Watchman() {
    m_isLeaving = true;
    m_thread.join();
}

Watchman::Spent Watchman::SpentSoFar() const {
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    Spent spent;
    if (m_windowThread && ::GetThreadTimes(m_windowThread.get(), &created, &ended, &kernel, &user)) {
        spent.thread = Milliseconds(kernel) + Milliseconds(user);
    }
    if (::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user)) {
        spent.process = Milliseconds(kernel) + Milliseconds(user);
    }
    return spent;
}

void Watchman::TellWait(std::ofstream& lines, const WaitTime& wait, const Spent& before,
                        const std::vector<LastMessages::Entry>& taken) const {
    const Spent after = SpentSoFar();
    const nlohmann::ordered_json line = {{"wait", Milliseconds(wait.answered - wait.asked)},
                                         {"began", Milliseconds(wait.asked.time_since_epoch())},
                                         {"ended", Milliseconds(wait.answered.time_since_epoch())},
                                         {"thread", after.thread - before.thread},
                                         {"process", after.process - before.process},
                                         {"messages", MessageLines(taken, wait.asked)}};
    lines << line.dump() << std::endl;
}

void Watchman::TellHeld(std::ofstream& lines, long long longest) {
    const ProcessObjects held = CountProcessObjects();
    const nlohmann::ordered_json line = {{"longest", longest},
                                         {"gdi", held.gdi},
                                         {"icons", held.icons},
                                         {"menus", held.menus},
                                         {"windows", held.windows}};
    lines << line.dump() << std::endl;
}

void Watchman::Run() {
    std::ofstream lines(std::filesystem::path(m_file), std::ios::app);
    long long longest = 0;
    auto last = Clock::now() - kBetweenLines;
    while (!m_isLeaving) {
        const Spent before = SpentSoFar();
        const auto asked = Clock::now();
        DWORD_PTR answer = 0;
        std::vector<LastMessages::Entry> messages;
        if (::SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_NORMAL, kNoticed, &answer) == 0) {
            messages = m_messages.Copy(); // before others come that were only waiting, too
            ::SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience - kNoticed, &answer);
        }
        const auto now = Clock::now();
        longest = std::max(longest, Milliseconds(now - asked));
        if (!messages.empty()) {
            TellWait(lines, {asked, now}, before, messages);
        }
        if (now - last >= kBetweenLines) {
            last = now;
            TellHeld(lines, longest);
        }
        ::Sleep(kPause);
    }
    const nlohmann::ordered_json left = {{"left", MessageLines(m_messages.Copy(), Clock::now())}};
    lines << left.dump() << std::endl;
}
