#pragma once

#include "configuration_watch.h"

#include <functional>
#include <string>
#include <vector>

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

    /// Notices from here on what is changed, so that it belongs before the files are read. What was built or not is
    /// written to standard output, each file that is broken to standard error.
    explicit FollowedFiles(Host host);
    /// The bars are there: what has been noticed so far is shown, or what was broken from the start is told; what comes
    /// is shown at once.
    void Begin();

    bool IsFollowing() const { return m_watch.IsWatching(); }

private:
    bool AreAllWhole() const;
    void Take(const ConfigurationChange& change);
    void Show(const std::vector<std::wstring>& files);

    Host m_host;
    bool m_hasBegun = false;
    ConfigurationChange m_waiting; ///< What is not shown yet, because something was broken.
    CConfigurationWatch m_watch;
};
