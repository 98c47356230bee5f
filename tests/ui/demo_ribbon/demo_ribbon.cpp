#include "tests/ui/demo_ribbon/demo_ribbon.h"

#include <stdexcept>

#include "add_ribbon_bar.h"
#include "frame_dump.h"
#include "menu_id_mgr.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "varnhold/language.h"

namespace {

void Collect(const nlohmann::ordered_json& element, std::set<UINT>& ids) {
    static const std::set<std::string> commandClasses = {"CMFCRibbonUNIcoButton", "CMFCRibbonSmallButton",
                                                         "CMFCRibbonEdit", "CMFCRibbonSlider"};
    const bool hasMenu = element.contains("children");
    if (!hasMenu && commandClasses.count(element["class"].get<std::string>()) != 0)
        ids.insert(element["id"].get<UINT>());
    if (hasMenu)
        for (const nlohmann::ordered_json& child : element["children"])
            Collect(child, ids);
}

} // namespace

void LoadDemoRibbon(CMFCRibbonBar& bar) {
    CMenuIdMgr::s_AddBeginID = commands::firstHandled + 2000;
    if (!CMultiLanguageMgr::SetLanguage(L"en"))
        throw std::runtime_error("the viewer's English texts are not there");
    bar.RemoveAllCategories();
    CAddRibbonBar builder;
    if (!builder.Load(L"cfg\\ribbon.xml", &bar, TRUE))
        throw std::runtime_error("the viewer's ribbon file is not there");
    bar.SetActiveCategory(bar.GetCategory(0));
    bar.ForceRecalcLayout();
    PumpPending();
}

nlohmann::ordered_json DumpCategories(CMFCRibbonBar& bar) { return DumpFrame({&bar, {}, L""})["ribbon"]["categories"]; }

std::set<UINT> CommandsOf(const nlohmann::ordered_json& categories) {
    std::set<UINT> ids;
    for (const auto& category : categories)
        for (const auto& panel : category["panels"])
            for (const auto& element : panel["elements"])
                Collect(element, ids);
    return ids;
}
