#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <utility>

/// A thread that has begun when the constructor returns, and has ended when the object is gone.
class WatchedThread {
public:
    explicit WatchedThread(std::function<void()> work)
        : m_thread([this, work = std::move(work)] {
              m_hasStarted = true;
              work();
              m_hasFinished = true;
          }) {
        while (!m_hasStarted) {
            std::this_thread::yield();
        }
    }
    ~WatchedThread() { Join(); }
    WatchedThread(const WatchedThread&) = delete;
    WatchedThread& operator=(const WatchedThread&) = delete;

    bool HasFinished() const { return m_hasFinished; }
    /// Whether it finishes while the caller looks that often, other threads running between two looks.
    bool FinishesWithin(int looks) const {
        for (int i = 0; i < looks && !m_hasFinished; ++i) {
            std::this_thread::yield();
        }
        return m_hasFinished;
    }
    void Join() {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }

private:
    std::atomic<bool> m_hasStarted = false;
    std::atomic<bool> m_hasFinished = false;
    std::thread m_thread;
};
