#pragma once

#include "configuration_watch.h"

#include <functional>
#include <string>

/// For those who work on the viewer's configuration: shows what they write as soon as they have written it. Lives in
/// the thread of the windows.
class FollowedFiles {
public:
    /// What builds the bars anew, and what says why they stay as they are: the first of the lines about files that
    /// cannot be read, or none once they can.
    struct Host {
        std::function<void()> rebuild;
        std::function<void(const std::wstring& problem)> showProblem;
    };

    /// Begins at once. What was built or not is written to standard output, each file that is broken to standard error.
    explicit FollowedFiles(Host host);

    bool IsFollowing() const { return m_watch.IsWatching(); }

private:
    void Take(const ConfigurationChange& change) const;

    Host m_host;
    CConfigurationWatch m_watch;
};
