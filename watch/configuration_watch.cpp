#include "configuration_watch.h"

#include "watch/file_snapshot.h"

#include <afxwin.h>

#include <algorithm>
#include <array>
#include <deque>
#include <mutex>
#include <thread>

namespace {

constexpr UINT kChangeMessage = WM_APP + 1;
constexpr DWORD kChanges = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME | FILE_NOTIFY_CHANGE_SIZE |
                           FILE_NOTIFY_CHANGE_LAST_WRITE;
constexpr int kMostQuietTimes = 10;
/// In milliseconds. Drives of other machines, and some systems, do not tell of everything.
constexpr DWORD kLookAgain = 1000;

/// A handle of the system, closed at the end.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    ~Handle() {
        if (m_handle) {
            ::CloseHandle(m_handle);
        }
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// Asks the system to tell of the next change below a directory. What has changed is not read: it is looked up.
class ChangeSignal {
public:
    explicit ChangeSignal(const std::wstring& directory)
        : m_directory(::CreateFileW(directory.c_str(), FILE_LIST_DIRECTORY,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OVERLAPPED, nullptr)),
          m_event(::CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}
    ~ChangeSignal() {
        if (m_isAsking) {
            ::CancelIoEx(m_directory.Get(), &m_asked);
            DWORD bytes = 0;
            ::GetOverlappedResult(m_directory.Get(), &m_asked, &bytes, TRUE); // the system writes no more from here on
        }
    }
    ChangeSignal(const ChangeSignal&) = delete;
    ChangeSignal& operator=(const ChangeSignal&) = delete;

    bool Ask() {
        m_asked = {};
        m_asked.hEvent = m_event.Get();
        m_isAsking = m_directory.Get() &&
                     ::ReadDirectoryChangesW(m_directory.Get(), m_buffer.data(), static_cast<DWORD>(sizeof m_buffer),
                                             TRUE, kChanges, nullptr, &m_asked, nullptr);
        return m_isAsking;
    }
    HANDLE Event() const { return m_event.Get(); }
    bool IsDirectory() const { return m_directory.Get() != nullptr; }

private:
    Handle m_directory;
    Handle m_event;
    OVERLAPPED m_asked{};
    bool m_isAsking = false;
    std::array<DWORD, 4096> m_buffer{};
};

} // namespace

/// One watched directory: a thread that waits, and a window that brings what it found to the thread of the listener.
class CConfigurationWatch::Watching : public CWnd, public std::enable_shared_from_this<Watching> {
public:
    Watching(const std::wstring& directory, const Listener& listener, std::chrono::milliseconds quiet)
        : m_directory(directory),
          m_listener(listener),
          m_quiet(static_cast<DWORD>(quiet.count())),
          m_signal(directory),
          m_stop(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}

    bool Start() {
        if (!m_signal.IsDirectory() ||
            !CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr)) {
            return false;
        }
        // What is written from here on is seen: the system keeps it until it is waited for.
        m_isTold = m_signal.Ask();
        m_last = TakeFileSnapshot(m_directory);
        m_thread = std::thread([this, window = m_hWnd] { Run(window); });
        return true;
    }

    void Stop() {
        ::SetEvent(m_stop.Get());
        if (m_thread.joinable()) {
            m_thread.join();
        }
        DestroyWindow();
    }

protected:
    afx_msg LRESULT OnChange(WPARAM, LPARAM) {
        ConfigurationChange change;
        {
            const std::scoped_lock lock(m_mutex);
            if (m_found.empty()) {
                return 0;
            }
            change = std::move(m_found.front());
            m_found.pop_front();
        }
        const std::shared_ptr<Watching> self = shared_from_this(); // the listener may end the object
        m_listener(change);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    /// In the thread.
    void Run(HWND window) {
        while (WaitForChange()) {
            FileSnapshot now = TakeFileSnapshot(m_directory);
            ConfigurationChange change{ChangedFiles(m_last, now)};
            m_last = std::move(now);
            if (change.files.empty()) {
                continue;
            }
            const std::scoped_lock lock(m_mutex);
            m_found.push_back(std::move(change));
            ::PostMessageW(window, kChangeMessage, 0, 0);
        }
    }

    /// Whether the event came; false after the time. Nothing comes any more once `m_isStopped`.
    bool WaitFor(DWORD milliseconds) {
        const std::array<HANDLE, 2> handles = {m_stop.Get(), m_signal.Event()};
        const DWORD count = m_isTold ? 2 : 1;
        const DWORD which = ::WaitForMultipleObjects(count, handles.data(), FALSE, milliseconds);
        m_isStopped = which == WAIT_OBJECT_0;
        if (which == WAIT_OBJECT_0 + 1) {
            m_isTold = m_signal.Ask();
            return true;
        }
        return false;
    }

    /// Returns when something has happened and nothing more for a while, or it is time to look again; false when it is
    /// time to stop.
    bool WaitForChange() {
        WaitFor(kLookAgain);
        for (int times = 0; times < kMostQuietTimes && !m_isStopped && WaitFor(m_quiet);) {
            ++times;
        }
        return !m_isStopped;
    }

    const std::wstring m_directory;
    const Listener m_listener;
    const DWORD m_quiet;
    ChangeSignal m_signal;
    const Handle m_stop;
    std::thread m_thread;
    FileSnapshot m_last; // the thread's own, once that runs
    bool m_isTold = false;
    bool m_isStopped = false;
    std::mutex m_mutex;
    std::deque<ConfigurationChange> m_found;
};

BEGIN_MESSAGE_MAP(CConfigurationWatch::Watching, CWnd)
ON_MESSAGE(kChangeMessage, OnChange)
END_MESSAGE_MAP()

CConfigurationWatch::CConfigurationWatch() = default;

CConfigurationWatch::~CConfigurationWatch() { Stop(); }

bool CConfigurationWatch::Start(const std::wstring& directory, const Listener& listener,
                                std::chrono::milliseconds quiet) {
    Stop();
    auto watching = std::make_shared<Watching>(directory, listener, quiet);
    if (!watching->Start()) {
        return false;
    }
    m_watching = std::move(watching);
    return true;
}

void CConfigurationWatch::Stop() {
    if (const std::shared_ptr<Watching> watching = std::move(m_watching)) {
        m_watching = nullptr;
        watching->Stop();
    }
}
