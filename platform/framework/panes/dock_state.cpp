#include "panes/dock_state.h"

#include <algorithm>
#include <set>

namespace panes {

namespace {

constexpr std::uint32_t kMagic = 0x4B434F44; // "DOCK"
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kWord = 4;
constexpr std::size_t kHeader = 3 * kWord; // magic, version, number of panes
constexpr std::size_t kPane = 9 * kWord;
constexpr std::uint32_t kMostPanes = 10000;
// No screen and no bar is larger; sums of such numbers do not overflow.
constexpr std::int32_t kFarthest = 1 << 20;

class Writer {
public:
    void Put(std::uint32_t value) {
        for (std::size_t index = 0; index < kWord; ++index) {
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * index)));
        }
    }
    void Put(std::int32_t value) { Put(static_cast<std::uint32_t>(value)); }
    const std::vector<std::uint8_t>& Bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
};

/// The length has been checked: whoever reads never leaves the bytes.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}
    std::uint32_t Unsigned() {
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < kWord; ++index) {
            value |= static_cast<std::uint32_t>(m_rest[index]) << (8 * index);
        }
        m_rest = m_rest.subspan(kWord);
        return value;
    }
    std::int32_t Signed() { return static_cast<std::int32_t>(Unsigned()); }

private:
    std::span<const std::uint8_t> m_rest;
};

// What else there is to say about a pane, in one word.
constexpr std::uint32_t kKindMask = 0x7;
constexpr std::uint32_t kVisible = 0x8;
constexpr std::uint32_t kDockedShift = 4;
constexpr std::uint32_t kWasDocked = 0x80;
constexpr std::uint32_t kKnownBits = 0xFF;
constexpr std::uint32_t kFloatingKind = static_cast<std::uint32_t>(PlaceKind::Floating);

std::uint32_t FlagsOf(const SavedPane& pane) {
    return static_cast<std::uint32_t>(pane.kind) | (pane.isVisible ? kVisible : 0U) |
           (static_cast<std::uint32_t>(pane.dockedAt) << kDockedShift) | (pane.wasDocked ? kWasDocked : 0U);
}

bool ReadFlags(std::uint32_t flags, SavedPane& pane) {
    const std::uint32_t kind = flags & kKindMask;
    const std::uint32_t docked = (flags >> kDockedShift) & kKindMask;
    if ((flags & ~kKnownBits) != 0 || kind > kFloatingKind || docked >= kFloatingKind) {
        return false;
    }
    pane.kind = static_cast<PlaceKind>(kind);
    pane.isVisible = (flags & kVisible) != 0;
    pane.dockedAt = static_cast<PlaceKind>(docked);
    pane.wasDocked = (flags & kWasDocked) != 0;
    return true;
}

bool IsNear(std::int32_t value) { return value >= -kFarthest && value <= kFarthest; }

bool IsPossible(const SavedPane& pane) {
    const SavedRect& rect = pane.floating;
    return pane.row >= 0 && pane.row <= static_cast<std::int32_t>(kMostPanes) && IsNear(pane.offset) &&
           IsNear(rect.left) && IsNear(rect.top) && IsNear(rect.right) && IsNear(rect.bottom) &&
           rect.left <= rect.right && rect.top <= rect.bottom;
}

bool ReadPane(Reader& reader, SavedPane& pane) {
    pane.id = reader.Unsigned();
    const std::uint32_t flags = reader.Unsigned();
    pane.row = reader.Signed();
    pane.offset = reader.Signed();
    pane.floating.left = reader.Signed();
    pane.floating.top = reader.Signed();
    pane.floating.right = reader.Signed();
    pane.floating.bottom = reader.Signed();
    const std::uint32_t reserved = reader.Unsigned();
    return reserved == 0 && ReadFlags(flags, pane) && IsPossible(pane);
}

} // namespace

std::uint32_t CheckSumOf(std::span<const std::uint8_t> bytes) {
    // FNV-1a.
    std::uint32_t sum = 2166136261U;
    for (const std::uint8_t byte : bytes) {
        sum = (sum ^ byte) * 16777619U;
    }
    return sum;
}

std::vector<std::uint8_t> WriteDockState(const DockState& state) {
    Writer writer;
    writer.Put(kMagic);
    writer.Put(kVersion);
    writer.Put(static_cast<std::uint32_t>(state.size()));
    for (const SavedPane& pane : state) {
        writer.Put(pane.id);
        writer.Put(FlagsOf(pane));
        writer.Put(pane.row);
        writer.Put(std::clamp(pane.offset, -kFarthest, kFarthest));
        writer.Put(pane.floating.left);
        writer.Put(pane.floating.top);
        writer.Put(pane.floating.right);
        writer.Put(pane.floating.bottom);
        writer.Put(0U);
    }
    writer.Put(CheckSumOf(writer.Bytes()));
    return writer.Bytes();
}

std::optional<DockState> ReadDockState(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < kHeader + kWord) {
        return std::nullopt;
    }
    const std::span<const std::uint8_t> body = bytes.first(bytes.size() - kWord);
    if (Reader(bytes.last(kWord)).Unsigned() != CheckSumOf(body)) {
        return std::nullopt;
    }
    Reader reader(body);
    const bool isOurs = reader.Unsigned() == kMagic && reader.Unsigned() == kVersion;
    const std::uint32_t count = isOurs ? reader.Unsigned() : kMostPanes + 1;
    if (count > kMostPanes || body.size() != kHeader + count * kPane) {
        return std::nullopt;
    }
    DockState state(count);
    std::set<std::uint32_t> ids;
    for (SavedPane& pane : state) {
        if (!ReadPane(reader, pane) || !ids.insert(pane.id).second) {
            return std::nullopt;
        }
    }
    return state;
}

} // namespace panes
