#include "elements/icon_file.h"

#include "elements/icon_header.h"

#include <varnhold/file_op.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <string>

std::size_t FileIcon::s_readCount = 0;
std::size_t FileIcon::s_aliveCount = 0;

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

/// A file that is open for reading, or none.
class InputFile {
public:
    explicit InputFile(const wchar_t* path)
        : m_handle(::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~InputFile() {
        if (IsOpen()) {
            ::CloseHandle(m_handle);
        }
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

    /// An IconFileReader. The first bytes are read once, as most icon files have all headers there.
    std::size_t Read(std::uint64_t offset, std::span<std::uint8_t> bytes) {
        if (!m_isStartRead) {
            m_isStartRead = true;
            m_startLength = ReadFromFile(0, m_start);
        }
        if (offset + bytes.size() > m_startLength) {
            return ReadFromFile(offset, bytes);
        }
        std::memcpy(bytes.data(), m_start.data() + offset, bytes.size());
        return bytes.size();
    }

private:
    std::size_t ReadFromFile(std::uint64_t offset, std::span<std::uint8_t> bytes) const {
        OVERLAPPED place{};
        place.Offset = static_cast<DWORD>(offset);
        place.OffsetHigh = static_cast<DWORD>(offset >> 32);
        DWORD count = 0;
        const BOOL done = ::ReadFile(m_handle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, &place);
        return done ? count : 0;
    }

    HANDLE m_handle;
    bool m_isStartRead = false;
    std::size_t m_startLength = 0;
    std::array<std::uint8_t, 512> m_start;
};

/// What the headers of a file say of its pictures, nothing of one that cannot be opened. No value when they forbid to
/// decode it.
std::optional<std::vector<IconPicture>> PicturesToDecode(const wchar_t* path) {
    InputFile file(path);
    if (!file.IsOpen()) {
        return std::vector<IconPicture>();
    }
    auto pictures = ReadIconHeaders(
        [&file](std::uint64_t offset, std::span<std::uint8_t> bytes) { return file.Read(offset, bytes); });
    return MayDecode(pictures) ? std::move(pictures) : std::nullopt;
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

FileIcon::FileIcon(const wchar_t* path, int usualSide, int drawnSide) {
    if (!*path || LeavesInstallation(path)) {
        return;
    }
    ++s_readCount;
    const auto pictures = PicturesToDecode(path);
    if (!pictures) {
        return;
    }
    m_side = SideToLoad(*pictures, usualSide, drawnSide);
    m_icon = static_cast<HICON>(::LoadImageW(nullptr, path, IMAGE_ICON, m_side, m_side, LR_LOADFROMFILE));
    if (m_icon) {
        ++s_aliveCount;
    }
}

FileIcon::~FileIcon() {
    if (!m_icon) {
        return;
    }
    ::DestroyIcon(m_icon);
    --s_aliveCount;
}

void TryIconFile(const wchar_t* path, int side) {
    if (!*path || LeavesInstallation(path)) {
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
