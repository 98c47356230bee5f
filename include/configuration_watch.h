#pragma once

#include "barwright_api.h"

#include <boost/function.hpp>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

/// What a file of an installation is for, by its path below the installation directory.
enum class ConfigurationFileKind {
    Ribbon,   ///< cfg/ribbon*.xml
    Menu,     ///< cfg/menu*.xml
    ToolBars, ///< cfg/toolbar*.xml
    Texts,    ///< lang/LANGUAGE/*.xlf
    Icon,     ///< *.ico
    Other,    ///< any other *.xml or *.xlf: a file that the host names otherwise
};
BARWRIGHT_API ConfigurationFileKind KindOfConfigurationFile(const std::wstring& path);

/// The files that were changed, made or removed in one go, relative to the installation directory with backslashes, in
/// the order of their names.
struct BARWRIGHT_API ConfigurationChange {
    std::vector<std::wstring> files;

    bool Has(ConfigurationFileKind kind) const;
};

/// Watches an installation directory and tells which configuration files, translation tables and icons below it were
/// changed, so that a host can build its bars anew while it runs. An editor that writes in several steps, or a new file
/// that then takes the old one's name, is one change: what counts is what has become of the files when nothing has
/// happened for a while. A file that is written as it was is no change.
///
///     CConfigurationWatch watch;
///     watch.Start(directory, [this](const ConfigurationChange& change) { Rebuild(change); });
///
/// The listener is called in the thread that called Start, from its message loop, and never once Stop has returned. It
/// may call Stop, and may end the object. What it throws leaves the message loop.
class BARWRIGHT_API CConfigurationWatch {
public:
    typedef boost::function<void(const ConfigurationChange& change)> Listener;

    CConfigurationWatch();
    /// Stops.
    ~CConfigurationWatch();
    CConfigurationWatch(const CConfigurationWatch&) = delete;
    CConfigurationWatch& operator=(const CConfigurationWatch&) = delete;

    /// Begins to watch; what was watched before is not any more. `quiet`: how long nothing may happen before a change
    /// is told, at most ten times as long after it began. Where the system tells of no changes (some network drives),
    /// the files are looked at each second. False when there is no such directory.
    bool Start(const std::wstring& directory, const Listener& listener,
               std::chrono::milliseconds quiet = std::chrono::milliseconds(200));
    void Stop();
    bool IsWatching() const { return m_watching != nullptr; }

private:
    class Watching;
    std::shared_ptr<Watching> m_watching;
};
