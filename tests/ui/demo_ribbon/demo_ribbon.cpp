#include "tests/ui/demo_ribbon/demo_ribbon.h"

#include <stdexcept>

#include "add_ribbon_bar.h"
#include "afxribboncombobox.h"
#include "frame_dump.h"
#include "menu_id_mgr.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "varnhold/language.h"

namespace {

void Collect(const nlohmann::ordered_json& element, std::set<UINT>& ids) {
    static const std::set<std::string> commandClasses = {
        "CMFCRibbonUNIcoButton", "CMFCRibbonSmallButton", "CMFCRibbonEdit",         "CMFCRibbonSlider",
        "CMFCRibbonCheckComb",   "CMFCRibbonMultiCombo",  "CMFCRibbonVesMultiCombo"};
    if (commandClasses.count(element["class"].get<std::string>()) != 0) {
        ids.insert(element["id"].get<UINT>());
    }
    if (element.contains("children")) {
        for (const nlohmann::ordered_json& child : element["children"]) {
            Collect(child, ids);
        }
    }
}

/// What the viewer does with the elements of its file: buttons with sub-items have a command of their own, too, and
/// the combos have items.
void FitOut(CMFCRibbonBaseElement& element) {
    auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element);
    if (button != nullptr && button->GetSubItems().GetSize() > 0) {
        button->SetDefaultCommand();
    }
    if (auto* const combo = DYNAMIC_DOWNCAST(CMFCRibbonComboBox, &element)) {
        for (const wchar_t* item : {L"Relief", L"Coast", L"Lakes"}) {
            combo->AddItem(item);
        }
        combo->SelectItem(1);
    }
}

} // namespace

void LoadDemoRibbon(CMFCRibbonBar& bar) {
    CMenuIdMgr::s_AddBeginID = commands::firstHandled + 2000;
    if (!CMultiLanguageMgr::SetLanguage(L"en")) {
        throw std::runtime_error("the viewer's English texts are not there");
    }
    bar.RemoveAllCategories();
    CAddRibbonBar builder;
    if (!builder.Load(L"cfg\\ribbon.xml", &bar, TRUE)) {
        throw std::runtime_error("the viewer's ribbon file is not there");
    }
    for (int index = 0; index < bar.GetCategoryCount(); ++index) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        bar.GetCategory(index)->GetElements(elements);
        for (INT_PTR place = 0; place < elements.GetSize(); ++place) {
            FitOut(*elements[place]);
        }
    }
    bar.SetActiveCategory(bar.GetCategory(0));
    bar.ForceRecalcLayout();
    PumpPending();
}

nlohmann::ordered_json DumpCategories(CMFCRibbonBar& bar) {
    return DumpFrame({.ribbon = &bar})["ribbon"]["categories"];
}

std::set<UINT> CommandsOf(const nlohmann::ordered_json& categories) {
    std::set<UINT> ids;
    for (const auto& category : categories) {
        for (const auto& panel : category["panels"]) {
            for (const auto& element : panel["elements"]) {
                Collect(element, ids);
            }
        }
    }
    return ids;
}
