#pragma once

#include "config/text_arena.h"
#include "ribbon_info.h"

/// A RibbonInfo whose texts lie in an arena: a file has thousands of them. Each text has a NUL behind it.
struct RibbonTexts {
    bool groupBefore = false;
    bool acceptF1 = true;
    bool cateTab = false;
    std::int32_t size = 0;
    std::int32_t width = 0;
    std::wstring_view name = L"";
    std::wstring_view type = L"";
    std::wstring_view tooltip = L"";
    std::wstring_view keyword = L"";
    std::wstring_view picPath = L"";
    std::wstring_view picDisPath = L"";
    std::wstring_view cmd = L"";
    std::wstring_view param = L"";
    std::wstring_view help = L"";
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
