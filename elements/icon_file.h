#pragma once

#include <windows.h>

#include <utility>

/// Owns an icon handle; may be empty.
class OwnedIcon {
public:
    OwnedIcon() = default;
    explicit OwnedIcon(HICON icon) : m_icon(icon) {}
    OwnedIcon(OwnedIcon&& other) noexcept : m_icon(std::exchange(other.m_icon, nullptr)) {}
    OwnedIcon& operator=(OwnedIcon&& other) noexcept {
        std::swap(m_icon, other.m_icon);
        return *this;
    }
    ~OwnedIcon() {
        if (m_icon)
            ::DestroyIcon(m_icon);
    }

    HICON Get() const { return m_icon; }

private:
    HICON m_icon = nullptr;
};

/// The icon file at `side` x `side` pixels; empty for an empty path and for what is not a loadable icon.
OwnedIcon LoadIconFile(const wchar_t* path, int side);

/// Loads an icon file once as a test and releases it. A file that was tried and has not changed since is not read
/// again, so that thousands of buttons with the same few pictures cost one look at the file's time stamp each.
void TryIconFile(const wchar_t* path, int side);
