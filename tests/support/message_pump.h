#pragma once

#include <chrono>
#include <functional>

/// Runs the calling thread's messages the way the framework's loop does (PreTranslateMessage, dispatch, idle). Never
/// sleeps for a fixed time.

/// Handles what waits in the queue, then runs idle processing until it has no more to do, until the queue stays empty.
void PumpPending();

/// Pumps until done answers true. False: it did not within the limit, which is there for a broken program only.
[[nodiscard]] bool PumpUntil(const std::function<bool()>& done,
                             std::chrono::milliseconds limit = std::chrono::seconds(20));

/// One complete round of idle processing of the calling thread, without handling messages: command items are updated,
/// temporary objects deleted.
void RunIdle();
