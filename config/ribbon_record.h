#pragma once

#include "config/text_arena.h"
#include "ribbon_info.h"

/// Empty, with a NUL behind it as every text has. Its length is written down: counting it costs a call each time.
inline constexpr std::wstring_view kNoText(L"", 0);

/// A RibbonInfo whose texts lie in an arena: a file has thousands of them. Each text has a NUL behind it.
struct RibbonTexts {
    bool groupBefore = false;
    bool acceptF1 = true;
    bool cateTab = false;
    std::int32_t size = 0;
    std::int32_t width = 0;
    std::wstring_view name = kNoText;
    std::wstring_view type = kNoText;
    std::wstring_view tooltip = kNoText;
    std::wstring_view keyword = kNoText;
    std::wstring_view picPath = kNoText;
    std::wstring_view picDisPath = kNoText;
    std::wstring_view cmd = kNoText;
    std::wstring_view param = kNoText;
    std::wstring_view help = kNoText;
    std::span<const std::wstring_view> valueGroup;
};

/// Sets every field; takes over the memory that the texts of `info` have.
void Assign(RibbonInfo& info, const RibbonTexts& texts);

inline RibbonInfo ToRibbonInfo(const RibbonTexts& texts) {
    RibbonInfo info;
    Assign(info, texts);
    return info;
}

/// An element of a ribbon file with what lies below it. What it is depends on its depth: 1 a row, 2 a category, quick
/// access item or status-bar button, 3 a panel, 4 a ribbon element, 5 a sub-item.
struct RibbonRecord {
    RibbonTexts info;
    std::span<RibbonRecord> children;
};

/// Records and the memory that they lie in. Can be moved, which leaves every record where it is.
struct RibbonRecords {
    TextArena arena;
    /// The records of the uppermost level.
    std::span<RibbonRecord> top;
};
