#pragma once

#include <windows.h>

#include <cstddef>
#include <utility>

/// Owns an icon that was loaded from a file; may be empty.
class FileIcon {
public:
    FileIcon() = default;
    /// The file at `usualSide` x `usualSide` pixels, or where it is drawn in another size, `drawnSide`, the picture of
    /// the file that fits it best (see SideToLoad); empty for an empty path, for one that LeavesInstallation and for
    /// what is not a loadable icon, as a file with a picture beyond kLongestIconSide is not.
    FileIcon(const wchar_t* path, int usualSide, int drawnSide);
    FileIcon(FileIcon&& other) noexcept : m_icon(std::exchange(other.m_icon, nullptr)), m_side(other.m_side) {}
    FileIcon& operator=(FileIcon&& other) noexcept {
        std::swap(m_icon, other.m_icon);
        std::swap(m_side, other.m_side);
        return *this;
    }
    ~FileIcon();

    HICON Get() const { return m_icon; }
    /// The side at which it was loaded.
    int GetSide() const { return m_side; }

    /// Files that were read, successfully or not, and icons that are loaded now, in the whole process.
    static std::size_t GetReadCount() { return s_readCount; }
    static std::size_t GetAliveCount() { return s_aliveCount; }

private:
    // User-interface thread only, like every ribbon element.
    static std::size_t s_readCount;
    static std::size_t s_aliveCount;

    HICON m_icon = nullptr;
    int m_side = 0;
};

/// Whether a path that is written below the installation directory leads out of it ("C:\app\pic\..\..\a.ico"). No file
/// is read or looked for there: configured paths stay inside. A host's own path, which starts elsewhere, never does.
bool LeavesInstallation(const wchar_t* path);

/// Loads an icon file once as a test and releases it. A file that was tried and has not changed since is not read
/// again, so that thousands of buttons with the same few pictures cost one look at the file's time stamp each.
void TryIconFile(const wchar_t* path, int side);
