#include <afxcontrolbars.h>

#include "frame_dump.h"

#include "add_ribbon_bar.h"
#include "menu_id_mgr.h"
#include "ribbon_category_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_label_ex.h"
#include "ribbon_multi_combo.h"
#include "toolbar_combos.h"
#include "window_combos.h"

#include "tovasque/visual_manager_office2007_2.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

using nlohmann::ordered_json;

namespace {

std::string Utf8(const std::wstring& text) { return wstring2String(text); }
std::string Utf8(const CString& text) { return wstring2String(std::wstring_view(text.GetString(), text.GetLength())); }

std::string ClassName(const CObject& object) { return object.GetRuntimeClass()->m_lpszClassName; }

ordered_json DumpRegistry() {
    // The ids that a window message can carry, whoever took them, and whatever the counter reached beyond.
    constexpr int kIdsOfMessages = 0x10000;
    const int end = std::max(kIdsOfMessages, static_cast<int>(CMenuIdMgr::s_AddBeginID));
    const CMenuIdMgr* const registry = CMenuIdMgr::Ins();
    ordered_json entries = ordered_json::array();
    for (int id = 0; id < end; ++id) {
        std::wstring keyword;
        if (!registry->GetMenuMark(id, keyword)) {
            continue;
        }
        std::wstring name;
        std::wstring tooltip;
        std::wstring command;
        std::wstring parameter;
        std::wstring help;
        registry->GetMenuName(keyword, name);
        registry->GetToolTip(id, tooltip);
        registry->GetCmd(id, command);
        registry->GetCmdParam(id, parameter);
        registry->GetHelpFile(id, help);
        entries.push_back({{"id", id},
                           {"keyword", Utf8(keyword)},
                           {"name", Utf8(name)},
                           {"tooltip", Utf8(tooltip)},
                           {"cmd", Utf8(command)},
                           {"param", Utf8(parameter)},
                           {"help", Utf8(help)}});
    }
    return entries;
}

ordered_json DumpRect(const CRect& rect) { return ordered_json::array({rect.left, rect.top, rect.right, rect.bottom}); }

ordered_json DumpElement(CMFCRibbonBaseElement& element);

ordered_json DumpChildren(const CMFCRibbonBaseElement& element) {
    ordered_json children = ordered_json::array();
    if (const auto* const group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, &element)) {
        for (int i = 0; i < group->GetCount(); ++i) {
            children.push_back(DumpElement(*group->GetButton(i)));
        }
    } else if (const auto* const button = DYNAMIC_DOWNCAST(CMFCRibbonButton, &element)) {
        const auto& items = button->GetSubItems();
        for (int i = 0; i < static_cast<int>(items.GetSize()); ++i) {
            children.push_back(DumpElement(*items[i]));
        }
    }
    return children;
}

using State = std::optional<ordered_json>;

/// What a combo keeps of an item; nothing where it keeps nothing.
State StateOf(const CMFCRibbonCheckComb& combo, int index) {
    bool check = false;
    if (!combo.GetItemCheck(index, check)) {
        return std::nullopt;
    }
    return ordered_json{{"check", check}};
}

State StateOf(const CMFCRibbonMultiCombo& combo, int index) {
    CMFCRibbonMultiCombo::rowInfo info = {};
    if (!combo.GetItemInfo(index, info)) {
        return std::nullopt;
    }
    return ordered_json{{"clr", info.clr}, {"light", info.light}};
}

State StateOf(const CMFCRibbonVesMultiCombo& combo, int index) {
    bool light = false;
    if (!combo.GetItemLight(index, light)) {
        return std::nullopt;
    }
    return ordered_json{{"light", light}};
}

/// GetDropDownHeight is not const as documented.
template <class Combo>
void DumpCombo(ordered_json& result, CMFCRibbonBaseElement& element) {
    auto* const combo = DYNAMIC_DOWNCAST(Combo, &element);
    if (!combo) {
        return;
    }
    ordered_json items = ordered_json::array();
    for (int i = 0; i < static_cast<int>(combo->GetCount()); ++i) {
        ordered_json item = {{"text", Utf8(CString(combo->GetItem(i)))}};
        if (State state = StateOf(*combo, i)) {
            item["state"] = std::move(*state);
        }
        items.push_back(std::move(item));
    }
    result["items"] = std::move(items);
    result["selected"] = combo->GetCurSel();
    result["dropDownHeight"] = combo->GetDropDownHeight();
}

/// What a class of elements adds to the keys that all have.
void DumpOwnValues(ordered_json& result, CMFCRibbonBaseElement& element) {
    DumpCombo<CMFCRibbonCheckComb>(result, element);
    DumpCombo<CMFCRibbonMultiCombo>(result, element);
    DumpCombo<CMFCRibbonVesMultiCombo>(result, element);
    if (const auto* const slider = DYNAMIC_DOWNCAST(CMFCRibbonSlider, &element)) {
        result["pos"] = slider->GetPos();
        result["min"] = slider->GetRangeMin();
        result["max"] = slider->GetRangeMax();
    }
    if (auto* const label = DYNAMIC_DOWNCAST(CMFCRibbonLabelEx, &element)) {
        result["right"] = label->IsRight();
    }
}

ordered_json DumpElement(CMFCRibbonBaseElement& element) {
    ordered_json result = {{"class", ClassName(element)},
                           {"id", element.GetID()},
                           {"text", Utf8(CString(element.GetText()))},
                           {"tooltip", Utf8(element.GetToolTipText())},
                           {"description", Utf8(element.GetDescription())},
                           {"visible", element.IsVisible() != FALSE},
                           {"enabled", element.IsDisabled() == FALSE},
                           {"large", element.IsLargeMode() != FALSE},
                           {"rect", DumpRect(element.GetRect())}};
    DumpOwnValues(result, element);
    ordered_json children = DumpChildren(element);
    if (!children.empty()) {
        result["children"] = std::move(children);
    }
    return result;
}

ordered_json DumpCategory(CMFCRibbonCategory& category) {
    ordered_json result = {{"name", Utf8(CString(category.GetName()))}, {"class", ClassName(category)}};
    if (const auto* const extended = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, &category)) {
        result["id"] = extended->GetID();
    }
    result["visible"] = category.IsVisible() != FALSE;
    result["active"] = category.IsActive() != FALSE;
    ordered_json panels = ordered_json::array();
    for (int i = 0; i < category.GetPanelCount(); ++i) {
        CMFCRibbonPanel& panel = *category.GetPanel(i);
        ordered_json elements = ordered_json::array();
        for (int k = 0; k < panel.GetCount(); ++k) {
            elements.push_back(DumpElement(*panel.GetElement(k)));
        }
        panels.push_back({{"name", Utf8(CString(panel.GetName()))},
                          {"rect", DumpRect(panel.GetRect())},
                          {"elements", std::move(elements)}});
    }
    result["panels"] = std::move(panels);
    return result;
}

ordered_json DumpRibbon(const DumpSources& sources) {
    ordered_json categories = ordered_json::array();
    ordered_json quickAccess = ordered_json::array();
    if (sources.ribbon) {
        for (int i = 0; i < sources.ribbon->GetCategoryCount(); ++i) {
            categories.push_back(DumpCategory(*sources.ribbon->GetCategory(i)));
        }
        CList<UINT, UINT> ids;
        sources.ribbon->GetQuickAccessCommands(ids);
        for (POSITION at = ids.GetHeadPosition(); at;) {
            quickAccess.push_back(ids.GetNext(at));
        }
    }
    ordered_json commands = ordered_json::array();
    for (const std::vector<std::wstring>& file : sources.commands) {
        ordered_json list = ordered_json::array();
        for (const std::wstring& command : file) {
            list.push_back(Utf8(command));
        }
        commands.push_back(std::move(list));
    }
    return {{"categories", std::move(categories)},
            {"quickAccess", std::move(quickAccess)},
            {"commands", std::move(commands)}};
}

/// Popups inside popups are listed without recursion: a file may nest them deeper than the stack reaches.
ordered_json DumpMenu(HMENU menu) {
    struct Level {
        HMENU menu;
        int next;
        ordered_json items;
    };
    std::vector<Level> levels{{menu, 0, ordered_json::array()}};
    for (;;) {
        Level& level = levels.back();
        if (level.next == ::GetMenuItemCount(level.menu)) {
            ordered_json items = std::move(level.items);
            levels.pop_back();
            if (levels.empty()) {
                return items;
            }
            levels.back().items.back()["popup"] = std::move(items);
            continue;
        }
        const int item = level.next++;
        const HMENU popup = ::GetSubMenu(level.menu, item);
        CString text;
        CMenu::FromHandle(level.menu)->GetMenuString(static_cast<UINT>(item), text, MF_BYPOSITION);
        if (popup) {
            level.items.push_back({{"text", Utf8(text)}});
            levels.push_back({popup, 0, ordered_json::array()});
        } else if (::GetMenuState(level.menu, static_cast<UINT>(item), MF_BYPOSITION) & MF_SEPARATOR) {
            level.items.push_back({{"separator", true}});
        } else {
            level.items.push_back({{"id", ::GetMenuItemID(level.menu, item)}, {"text", Utf8(text)}});
        }
    }
}

ordered_json DumpMenus(const DumpSources& sources) {
    ordered_json items = ordered_json::array();
    for (const CMenu* const menu : sources.menus) {
        for (ordered_json& item : DumpMenu(menu->GetSafeHmenu())) {
            items.push_back(std::move(item));
        }
    }
    return items;
}

ordered_json StateOf(const CMFCCheckCombo& combo, int index) { return {{"check", combo.GetCheck(index)}}; }

// The combo box itself keeps the colours, and a position may have none.
ordered_json StateOf(const CMFCMultiCombo& combo, int index) {
    ordered_json state = ordered_json::object();
    COLORREF color = 0;
    const auto* const box = DYNAMIC_DOWNCAST(CMultiCombo, combo.GetComboBox());
    if (box && box->GetItemColor(index, color)) {
        state["clr"] = color;
    }
    state["light"] = combo.GetLightOn(index);
    return state;
}

ordered_json StateOf(const CMFCMultiCombo2& combo, int index) { return {{"light", combo.GetLightOn(index)}}; }

/// As of the combos of the ribbon.
template <class Combo>
void DumpToolBarCombo(ordered_json& result, const CMFCToolBarButton& button) {
    const auto* const combo = DYNAMIC_DOWNCAST(Combo, &button);
    if (!combo) {
        return;
    }
    ordered_json items = ordered_json::array();
    for (int i = 0; i < static_cast<int>(combo->GetCount()); ++i) {
        items.push_back({{"text", Utf8(CString(combo->GetItem(i)))}, {"state", StateOf(*combo, i)}});
    }
    result["items"] = std::move(items);
    result["selected"] = combo->GetCurSel();
}

ordered_json DumpToolBarButton(const CMFCToolBarButton& button) {
    if (button.m_nStyle & TBBS_SEPARATOR) {
        return {{"separator", true}};
    }
    ordered_json result = {{"class", button.GetRuntimeClass()->m_lpszClassName},
                           {"id", button.m_nID},
                           {"text", Utf8(button.m_strText)},
                           {"image", button.GetImage()}};
    DumpToolBarCombo<CMFCCheckCombo>(result, button);
    DumpToolBarCombo<CMFCMultiCombo>(result, button);
    DumpToolBarCombo<CMFCMultiCombo2>(result, button);
    return result;
}

ordered_json DumpToolBars(const DumpSources& sources) {
    ordered_json bars = ordered_json::array();
    for (const auto& [group, bar] : sources.toolBars) {
        ordered_json buttons = ordered_json::array();
        for (int i = 0; i < bar->GetCount(); ++i) {
            buttons.push_back(DumpToolBarButton(*bar->GetButton(i)));
        }
        CString title;
        bar->GetWindowText(title);
        bars.push_back({{"group", Utf8(group)},
                        {"title", Utf8(title)},
                        {"controlId", bar->GetDlgCtrlID()},
                        {"visible", (bar->GetStyle() & WS_VISIBLE) != 0},
                        {"buttons", std::move(buttons)}});
    }
    return bars;
}

ordered_json DumpAccelerators(HACCEL table) {
    ordered_json accelerators = ordered_json::array();
    std::vector<ACCEL> entries(table ? static_cast<std::size_t>(::CopyAcceleratorTableW(table, nullptr, 0)) : 0);
    const int count = table ? ::CopyAcceleratorTableW(table, entries.data(), static_cast<int>(entries.size())) : 0;
    entries.resize(static_cast<std::size_t>(count));
    for (const ACCEL& entry : entries) {
        // The system marks the last entry of a table with a flag of its own.
        constexpr int kFlags = FVIRTKEY | FNOINVERT | FSHIFT | FCONTROL | FALT;
        accelerators.push_back({{"virt", entry.fVirt & kFlags}, {"key", entry.key}, {"cmd", entry.cmd}});
    }
    return accelerators;
}

// A manager without getters and pictures of its own shows its class alone.
ordered_json DumpSkin() {
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    ordered_json colours = ordered_json::object(), images = ordered_json::array();
    if (auto* const skin = DYNAMIC_DOWNCAST(CMFCVisualManagerOffice20072, manager)) {
        for (const tovasque::SkinColor& color : skin->GetSkinColors()) {
            colours[color.getter] = {GetRValue(color.value), GetGValue(color.value), GetBValue(color.value)};
        }
        for (const CString& image : skin->GetSkinImages()) {
            images.push_back(Utf8(image));
        }
    }
    return {{"manager", manager->GetRuntimeClass()->m_lpszClassName},
            {"colours", std::move(colours)},
            {"images", std::move(images)}};
}

ordered_json DumpRecord(const CAddRibbonBar::_RibbonInfo& record) {
    ordered_json values = ordered_json::array();
    for (const std::wstring& value : record.valueGroup) {
        values.push_back(Utf8(value));
    }
    return {{"groupBefore", record.groupBefore},
            {"name", Utf8(record.name)},
            {"type", Utf8(record.type)},
            {"tooltip", Utf8(record.tooltip)},
            {"keyword", Utf8(record.keyword)},
            {"picPath", Utf8(record.picPath)},
            {"picDisPath", Utf8(record.picDisPath)},
            {"size", record.size},
            {"cmd", Utf8(record.cmd)},
            {"param", Utf8(record.param)},
            {"help", Utf8(record.help)},
            {"acceptF1", record.acceptF1},
            {"cateTab", record.cateTab},
            {"valueGroup", std::move(values)},
            {"width", record.width}};
}

ordered_json DumpStatusExtras() {
    ordered_json extras = ordered_json::array();
    for (const auto& [path, row] : CAddRibbonBar::m_smStatusExBtns) {
        ordered_json records = ordered_json::array();
        for (const CAddRibbonBar::_RibbonInfo& record : row.second) {
            records.push_back(DumpRecord(record));
        }
        extras.push_back({{"path", Utf8(path)}, {"row", Utf8(row.first)}, {"records", std::move(records)}});
    }
    return extras;
}

ordered_json DumpStatus(const DumpSources& sources) {
    ordered_json elements = ordered_json::array();
    ordered_json extended = ordered_json::array();
    if (CMFCRibbonStatusBar* const bar = sources.statusBar) {
        for (int index = 0; index < bar->GetCount(); ++index) {
            elements.push_back(DumpElement(*bar->GetElement(index)));
        }
        for (int index = 0; index < bar->GetExCount(); ++index) {
            extended.push_back(DumpElement(*bar->GetExElement(index)));
        }
    }
    return {{"app", Utf8(sources.application)}, {"elements", std::move(elements)}, {"extended", std::move(extended)}};
}

} // namespace

ordered_json DumpFrame(const DumpSources& sources) {
    return {{"nextCommandId", CMenuIdMgr::s_AddBeginID},
            {"registry", DumpRegistry()},
            {"ribbon", DumpRibbon(sources)},
            {"menu", DumpMenus(sources)},
            {"accelerators", DumpAccelerators(sources.accelerators)},
            {"toolbars", DumpToolBars(sources)},
            {"skin", DumpSkin()},
            {"statusExtras", DumpStatusExtras()},
            {"status", DumpStatus(sources)}};
}

bool WriteJson(const ordered_json& json, const std::wstring& path) {
    // Readers poll the file: it appears whole or not at all.
    const std::filesystem::path target(path);
    std::filesystem::path temporary(target);
    temporary += L".part";
    {
        std::ofstream file(temporary, std::ios::binary);
        file << json.dump(2) << '\n';
        if (!file.flush()) {
            return false;
        }
    }
    std::error_code error;
    std::filesystem::rename(temporary, target, error);
    return !error;
}
