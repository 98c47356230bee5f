#pragma once

#include "varnhold/varnhold_api.h"

#include <boost/function.hpp>

#include <string>

/// File helpers and the place where the host is installed. Paths are wide; on Linux they are turned into UTF-8.
class VARNHOLD_API FileOp {
public:
    /// Fills the installation directory and returns true, or returns false and leaves the argument alone.
    typedef boost::function<bool(std::wstring&)> AppPathProvider;

    /// The installation directory with its closing separator, so that a relative path can be put straight behind it.
    /// Unless set otherwise it is the folder of the running program. False, with `path` untouched, when it is unknown.
    static bool GetAppPath(std::wstring& path);

    /// From now on `path` is the installation directory (a missing closing separator is added). An empty text brings
    /// the folder of the running program back.
    static void SetAppPath(const std::wstring& path);

    /// Puts `provider` in the place of whatever answers GetAppPath and returns the earlier one; an empty function is
    /// the folder of the running program. The provider owes the closing separator.
    static AppPathProvider SetAppPathProvider(const AppPathProvider& provider);

    /// True when `path` names an existing file. A folder is not a file.
    static bool FileExist(const std::wstring& path);
};

/// Sets the installation directory for as long as the object lives; for tests and tools.
class VARNHOLD_API ScopedAppPath {
public:
    explicit ScopedAppPath(const std::wstring& path);
    explicit ScopedAppPath(const wchar_t* path);
    explicit ScopedAppPath(const FileOp::AppPathProvider& provider);
    ~ScopedAppPath();
    ScopedAppPath(const ScopedAppPath&) = delete;
    ScopedAppPath& operator=(const ScopedAppPath&) = delete;

private:
    FileOp::AppPathProvider m_earlier;
};
