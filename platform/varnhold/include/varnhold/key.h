#pragma once

#include "varnhold/varnhold_api.h"

#include <windows.h>

#include <string>

/// An open registry key, for reading. Closes itself. Movable, not copyable.
class VARNHOLD_API CKey {
public:
    CKey() = default;
    ~CKey();
    CKey(CKey&& other) noexcept;
    CKey& operator=(CKey&& other) noexcept;
    CKey(const CKey&) = delete;
    CKey& operator=(const CKey&) = delete;

    /// Opens an existing key below `root` for reading; a closing backslash in the path does no harm. False when it does
    /// not exist or may not be read; whatever was open before is closed in either case.
    bool Open(HKEY root, const wchar_t* path);
    bool Open(HKEY root, const std::wstring& path);

    void Close();
    bool IsOpen() const { return m_key != nullptr; }

    /// Reads a REG_SZ or REG_EXPAND_SZ value (the latter with its environment variables replaced), up to its first
    /// NUL, whether the stored text is terminated or not. A null or empty name is the key's default value. False, with
    /// `value` untouched, when no key is open, there is no such value or it is of another type.
    bool GetStringValue(const wchar_t* name, std::wstring& value) const;
    bool GetStringValue(const std::wstring& name, std::wstring& value) const;

private:
    HKEY m_key = nullptr;
};
