#pragma once

#include "configuration_watch.h"

#include <functional>
#include <string>

/// For those who work on the viewer's configuration: shows what they write as soon as they have written it. Lives in
/// the thread of the windows.
class FollowedFiles {
public:
    /// What builds the bars anew from files that have changed since it was last done, and says whether it could; and
    /// what says why they stay as they are: the first of the lines about files that cannot be read, or none once they
    /// can.
    struct Host {
        std::function<bool(const ConfigurationChange& change)> rebuild;
        std::function<void(const std::wstring& problem)> showProblem;
    };

    /// Begins at once. What was built or not is written to standard output, each file that is broken to standard error.
    explicit FollowedFiles(Host host);

    bool IsFollowing() const { return m_watch.IsWatching(); }

private:
    void Take(const ConfigurationChange& change);

    Host m_host;
    ConfigurationChange m_waiting; ///< What is not shown yet, because something was broken.
    CConfigurationWatch m_watch;
};
