#include "elements/icon_file.h"

#include "elements/icon_loading.h"
#include "installed_icon.h"

#include <fx/paint_round.h>
#include <varnhold/file_op.h>

#include <array>
#include <cwchar>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace {

/// What changes when a file is written anew.
struct FileStamp {
    ULONGLONG writeTime = 0;
    ULONGLONG size = 0;
    bool operator==(const FileStamp&) const = default;
};

ULONGLONG Joined(DWORD high, DWORD low) { return (static_cast<ULONGLONG>(high) << 32) | low; }

/// All zero where there is no file.
FileStamp StampOf(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) {
        return {};
    }
    return {Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            Joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

/// The path as the system walks it: absolute, without "." and "..". Empty for what is no path.
std::wstring WalkedPath(const wchar_t* path) {
    std::array<wchar_t, MAX_PATH> usual;
    const DWORD length = ::GetFullPathNameW(path, static_cast<DWORD>(usual.size()), usual.data(), nullptr);
    if (length < usual.size()) {
        return std::wstring(usual.data(), length);
    }
    std::wstring walked(length, L'\0');
    walked.resize(::GetFullPathNameW(path, length, walked.data(), nullptr));
    return walked;
}

bool StartsWith(const std::wstring& text, const std::wstring& start) {
    return text.size() >= start.size() &&
           ::CompareStringOrdinal(text.data(), static_cast<int>(start.size()), start.data(),
                                  static_cast<int>(start.size()), TRUE) == CSTR_EQUAL;
}

} // namespace

// A configured path stands straight behind the installation directory's text. Any other is the host's own, wherever it
// leads.
bool LeavesInstallation(const wchar_t* path) {
    std::wstring directory;
    if (!FileOp::GetAppPath(directory) || directory.empty() ||
        std::wcsncmp(path, directory.c_str(), directory.size()) != 0) {
        return false;
    }
    return !StartsWith(WalkedPath(path), WalkedPath(directory.c_str()));
}

namespace {

using SharedIcon = std::shared_ptr<const LoadedIcon>;

SharedIcon Load(const wchar_t* path, int usualSide, int drawnSide) {
    return LeavesInstallation(path) ? nullptr : LoadIconFile(path, usualSide, drawnSide);
}

/// What one painting has loaded. User-interface thread only, like every ribbon element.
class IconsOfThisPaint {
public:
    /// Where nothing is painted, one that is shared with nobody.
    static SharedIcon Find(const wchar_t* path, int usualSide, int drawnSide) {
        auto& icons = Icons();
        if (icons.empty()) {
            if (!fx::CallAtPaintEnd([] { Icons().clear(); })) {
                return Load(path, usualSide, drawnSide);
            }
        } else if (icons.size() >= kMostShared) {
            icons.clear();
        }
        const auto [place, isNew] = icons.try_emplace({path, usualSide, drawnSide});
        if (isNew) {
            place->second = Load(path, usualSide, drawnSide);
        }
        return place->second;
    }

private:
    using Key = std::tuple<std::wstring, int, int>;

    static std::map<Key, SharedIcon>& Icons() {
        static std::map<Key, SharedIcon> icons;
        return icons;
    }
    // Each takes three of the 10,000 objects that the system gives a process, and one more for each size that it was
    // listed in.
    static constexpr std::size_t kMostShared = 500;
};

} // namespace

HICON LoadInstalledIcon(const wchar_t* path, int side) {
    return *path == 0 || LeavesInstallation(path) ? nullptr : ReadIconFile(path, side, side).icon;
}

FileIcon::FileIcon(const wchar_t* path, int usualSide, int drawnSide) {
    if (*path) {
        m_loaded = IconsOfThisPaint::Find(path, usualSide, drawnSide);
    }
}

HICON FileIcon::Get() const { return m_loaded ? m_loaded->icon : nullptr; }
int FileIcon::GetSide() const { return m_loaded ? m_loaded->side : 0; }
CMFCToolBarImages* FileIcon::GetList(int listedSide, BOOL isAlphaBlended) const {
    return m_loaded ? m_loaded->ListOf(listedSide, isAlphaBlended) : nullptr;
}
std::size_t FileIcon::GetReadCount() { return LoadedIcon::s_readCount; }
std::size_t FileIcon::GetAliveCount() { return LoadedIcon::s_aliveCount; }
std::size_t FileIcon::GetListCount() { return LoadedIcon::s_listCount; }

namespace {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
};
using Paths = std::unordered_set<std::wstring, TextHash, std::equal_to<>>;

/// By their side, the files that were tried since the first IconTrials was made.
std::map<int, Paths>& TriedFiles() {
    static std::map<int, Paths> s_tried;
    return s_tried;
}

} // namespace

int IconTrials::s_depth = 0;

IconTrials::~IconTrials() {
    if (--s_depth == 0) {
        TriedFiles().clear();
    }
}

bool IconTrials::HasTried(const wchar_t* path, int side) {
    if (s_depth == 0) {
        return false;
    }
    Paths& paths = TriedFiles()[side];
    const std::wstring_view asked(path);
    if (paths.contains(asked)) {
        return true;
    }
    paths.emplace(asked);
    return false;
}

void TryIconFile(const wchar_t* path, int side) {
    if (!*path || IconTrials::HasTried(path, side) || LeavesInstallation(path)) {
        return;
    }
    static std::map<std::pair<std::wstring, int>, FileStamp> stamps;
    const FileStamp stamp = StampOf(path);
    const auto [tried, isNew] = stamps.try_emplace({path, side}, stamp);
    if (!isNew && tried->second == stamp) {
        return;
    }
    tried->second = stamp;
    const FileIcon trial(path, side, side);
}
