#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>

class CMFCToolBarImages;
struct LoadedIcon;

/// An icon that was loaded from a file; may be empty. The file is read anew for each, with one exception: whatever is
/// drawn from a file while one window paints (fx::CallAtPaintEnd) shares one icon, which is destroyed when that
/// painting ends. So a file that was changed, removed or put back shows at the very next paint, whatever its size and
/// time stamp say, and no icon is alive between two paints.
class FileIcon {
public:
    FileIcon() = default;
    /// The file at `usualSide` x `usualSide` pixels, or where it is drawn in another size, `drawnSide`, the picture of
    /// the file that fits it best (see SideToLoad); empty for an empty path, for one that LeavesInstallation and for
    /// what is not a loadable icon, as a file with a picture beyond kLongestIconSide is not.
    FileIcon(const wchar_t* path, int usualSide, int drawnSide);

    /// Valid for as long as this object lives, which is not longer than the draw.
    HICON Get() const;
    /// The side at which it was loaded.
    int GetSide() const;
    /// The icon alone in an image list of so many pixels a side, shared like the icon itself, and valid as long; null
    /// for none.
    CMFCToolBarImages* GetList(int listedSide, BOOL isAlphaBlended) const;

    /// Files that were read, successfully or not, icons that are loaded now, and image lists that were made of icons,
    /// in the whole process.
    static std::size_t GetReadCount();
    static std::size_t GetAliveCount();
    static std::size_t GetListCount();

private:
    std::shared_ptr<const LoadedIcon> m_loaded;
};

/// Whether a path that is written below the installation directory leads out of it ("C:\app\pic\..\..\a.ico"). No file
/// is read or looked for there: configured paths stay inside. A host's own path, which starts elsewhere, never does.
bool LeavesInstallation(const wchar_t* path);

/// Loads an icon file once as a test and releases it. A file that was tried and has not changed since is not read
/// again, so that thousands of buttons with the same few pictures cost one look at the file's time stamp each. An empty
/// path and one that LeavesInstallation are not tried. User-interface thread only.
void TryIconFile(const wchar_t* path, int side);

/// While one lives, TryIconFile looks at no file twice: whoever makes many buttons at once asks the system for each of
/// their few files once. The first that is made says for how long, where one lives inside another. User-interface
/// thread only.
class IconTrials {
public:
    IconTrials() { ++s_depth; }
    ~IconTrials();
    IconTrials(const IconTrials&) = delete;
    IconTrials& operator=(const IconTrials&) = delete;

    /// False when none lives, and for the first call with the path and the side since the first was made.
    static bool HasTried(const wchar_t* path, int side);

private:
    static int s_depth;
};
