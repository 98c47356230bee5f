#include "elements/icon_loading.h"

#include "elements/icon_header.h"

#include <array>
#include <cstring>

std::size_t LoadedIcon::s_readCount = 0;
std::size_t LoadedIcon::s_aliveCount = 0;
std::size_t LoadedIcon::s_listCount = 0;

LoadedIcon::LoadedIcon(HICON owned, int loadedSide) : icon(owned), side(loadedSide) { ++s_aliveCount; }
LoadedIcon::~LoadedIcon() {
    ::DestroyIcon(icon);
    --s_aliveCount;
}

// The system copies an icon's bitmaps for whoever asks what it looks like, which takes longer than to draw it.
CMFCToolBarImages* LoadedIcon::ListOf(int listedSide, BOOL isAlphaBlended) const {
    const auto [place, isNew] = m_lists.try_emplace({listedSide, isAlphaBlended != FALSE});
    if (isNew) {
        ++s_listCount;
        auto list = std::make_unique<CMFCToolBarImages>();
        list->SetImageSize(CSize(listedSide, listedSide));
        if (list->AddIcon(icon, isAlphaBlended) >= 0) {
            place->second = std::move(list);
        }
    }
    return place->second.get();
}

namespace {

/// A file that is open for reading, or none.
class InputFile {
    /// An icon file of 32 pixels fits in.
    static constexpr std::size_t kStartBytes = 4352;

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

    /// An IconFileReader. The first bytes are read once, as most icon files have all headers there, many
    /// their pictures, too.
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
    std::array<std::uint8_t, kStartBytes> m_start;
};

/// The picture of that side, or a file's only one brought to it, from bytes that were read here: a file is opened once
/// then. Null when the system is to choose.
HICON PlainIcon(const IconFileReader& read, int side) {
    auto place = FindPlainPicture(read, side);
    if (!place) {
        place = FindOnlyPlainPicture(read);
    }
    if (!place) {
        return nullptr;
    }
    std::vector<std::uint8_t> bytes(place->count);
    if (read(place->offset, bytes) != bytes.size()) {
        return nullptr;
    }
    constexpr DWORD version = 0x00030000;
    return ::CreateIconFromResourceEx(bytes.data(), place->count, TRUE, version, side, side, LR_DEFAULTCOLOR);
}

} // namespace

SizedIcon ReadIconFile(const wchar_t* path, int usualSide, int drawnSide) {
    ++LoadedIcon::s_readCount;
    InputFile file(path);
    if (!file.IsOpen()) {
        return {};
    }
    const IconFileReader read = [&file](std::uint64_t offset, std::span<std::uint8_t> bytes) {
        return file.Read(offset, bytes);
    };
    const auto pictures = ReadIconHeaders(read);
    if (!MayDecode(pictures)) {
        return {};
    }
    const int side = SideToLoad(*pictures, usualSide, drawnSide);
    HICON icon = PlainIcon(read, side);
    if (!icon) {
        icon = static_cast<HICON>(::LoadImageW(nullptr, path, IMAGE_ICON, side, side, LR_LOADFROMFILE));
    }
    return {icon, side};
}

std::shared_ptr<const LoadedIcon> LoadIconFile(const wchar_t* path, int usualSide, int drawnSide) {
    const SizedIcon read = ReadIconFile(path, usualSide, drawnSide);
    return read.icon ? std::make_shared<const LoadedIcon>(read.icon, read.side) : nullptr;
}
