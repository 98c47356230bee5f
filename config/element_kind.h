#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a ribbon file's TYPE attribute asks for.
enum class ElementKind { Unknown, Button, Group, Slider, Label, Edit, CheckCombo, MultiCombo, LightCombo };

/// TYPE in any letter case.
ElementKind KindOfElement(std::wstring_view type) noexcept;

/// The words that KindOfElement knows.
std::vector<std::wstring> ElementTypes();

/// Whether an element of this kind takes the elements below it; below any other kind they are skipped.
constexpr bool TakesSubItems(ElementKind kind) noexcept {
    return kind == ElementKind::Button || kind == ElementKind::Group;
}
