#include "config/element_kind.h"

#include "varnhold/letter_case.h"

namespace {

struct KindName {
    std::wstring_view type;
    ElementKind kind;
};

constexpr KindName kindNames[] = {
    {L"BUTTON", ElementKind::Button},
    {L"GROUP", ElementKind::Group},
    {L"SLIDER", ElementKind::Slider},
    {L"label", ElementKind::Label},
    {L"edit", ElementKind::Edit},
    {L"qkRibbonCheckComb", ElementKind::CheckCombo},
    {L"qkRibbonMultiComb", ElementKind::MultiCombo},
    {L"qkRibbonMultiComb2", ElementKind::LightCombo},
};

} // namespace

ElementKind KindOfElement(std::wstring_view type) noexcept {
    for (const KindName& name : kindNames) {
        if (varnhold::EqualsIgnoringCase(type, name.type)) {
            return name.kind;
        }
    }
    return ElementKind::Unknown;
}

std::vector<std::wstring> ElementTypes() {
    std::vector<std::wstring> types;
    for (const KindName& name : kindNames) {
        types.emplace_back(name.type);
    }
    return types;
}
