#include "config/ribbon_element_factory.h"

#include "add_ribbon_bar.h"
#include "config/element_kind.h"
#include "library_context.h"
#include "ribbon_check_combo.h"
#include "ribbon_icon_button.h"
#include "ribbon_multi_combo.h"

#include <afxRibbonEdit.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

namespace {

using Creator = CMFCRibbonBaseElement* (*)(unsigned int id, const RibbonInfo& info, F1Hint hint);

constexpr int smallButtonSize = 16;
constexpr int largeIconSize = 32;
constexpr int smallIconSize = 16;
/// Of sliders and edits that name none, in pixels at 96 DPI.
constexpr int defaultWidth = 50;

int WidthOf(const RibbonInfo& info) { return info.width < 1 ? defaultWidth : info.width; }

CMFCRibbonBaseElement* WithTexts(CMFCRibbonBaseElement* element, const RibbonInfo& info) {
    element->SetText(info.name.c_str());
    element->SetToolTipText(info.tooltip.c_str());
    return element;
}

CMFCRibbonBaseElement* CreateButton(unsigned int id, const RibbonInfo& info, F1Hint hint) {
    const CString smallIcon = GetIconPathStr(info.picPath, smallIconSize);
    CMFCRibbonUNIcoButton* button = nullptr;
    if (info.size == smallButtonSize) {
        auto* const small = new CMFCRibbonSmallButton(id, info.name.c_str(), smallIcon, FALSE, CString(), TRUE, FALSE);
        small->SetSmallMode();
        button = small;
    } else {
        button = new CMFCRibbonUNIcoButton(id, info.name.c_str(), GetIconPathStr(info.picPath, largeIconSize), FALSE,
                                           smallIcon, TRUE, FALSE, FALSE);
    }
    if (hint == F1Hint::Yes && info.acceptF1) {
        button->SetDescription(CAddRibbonBar::m_strHelpF1);
    }
    button->SetToolTipText(info.tooltip.c_str());
    return button;
}

CMFCRibbonBaseElement* CreateSlider(unsigned int id, const RibbonInfo& info, F1Hint) {
    return WithTexts(new CMFCRibbonSlider(id, WidthOf(info)), info);
}

CMFCRibbonBaseElement* CreateLabel(unsigned int id, const RibbonInfo& info, F1Hint) {
    auto* const label = new CMFCRibbonLabel(info.name.c_str(), FALSE);
    label->SetID(id);
    return label;
}

CMFCRibbonBaseElement* CreateEdit(unsigned int id, const RibbonInfo& info, F1Hint) {
    auto* const edit = new CMFCRibbonEdit(id, WidthOf(info), nullptr, -1);
    edit->SetID(id);
    edit->SetEditText(info.name.c_str());
    edit->SetToolTipText(info.tooltip.c_str());
    return edit;
}

/// A combo with marks, which nobody can type into, without label and image and in the default width.
template <class Combo>
CMFCRibbonBaseElement* CreateCombo(unsigned int id, const RibbonInfo& info, F1Hint) {
    auto* const combo = new Combo(id, FALSE, -1, nullptr, -1);
    if constexpr (requires { combo->UserStaticDropDownHeight(true); }) {
        combo->UserStaticDropDownHeight(true);
    }
    return WithTexts(combo, info);
}

struct KindCreator {
    ElementKind kind;
    Creator create;
};

constexpr KindCreator creators[] = {
    {ElementKind::Button, CreateButton},
    {ElementKind::Slider, CreateSlider},
    {ElementKind::Label, CreateLabel},
    {ElementKind::Edit, CreateEdit},
    {ElementKind::CheckCombo, CreateCombo<CMFCRibbonCheckComb>},
    {ElementKind::MultiCombo, CreateCombo<CMFCRibbonMultiCombo>},
    {ElementKind::LightCombo, CreateCombo<CMFCRibbonVesMultiCombo>},
};

} // namespace

CMFCRibbonBaseElement* CreateRibbonElement(unsigned int id, const RibbonInfo& info, F1Hint hint) {
    const ElementKind kind = KindOfElement(info.type);
    for (const KindCreator& creator : creators) {
        if (creator.kind == kind) {
            return creator.create(id, info, hint);
        }
    }
    return nullptr;
}
