// What is shown, as a record that tests and scripts read.
#include "main_frame.h"

#include "frame_dump.h"
#include "ribbon_icon_button.h"
#include "search_field.h"

#include "varnhold/language.h"
#include "varnhold/strings.h"

void CMainFrame::WriteRecord(Moment moment) {
    if (m_options.record.empty()) {
        return;
    }
    const MapView& view = m_state.View();
    nlohmann::ordered_json layers = nlohmann::ordered_json::array();
    for (int i = 0; i < static_cast<int>(MapLayer::Count); ++i) {
        layers.push_back(m_state.IsShown(static_cast<MapLayer>(i)));
    }
    nlohmann::ordered_json styles = nlohmann::ordered_json::array();
    for (int i = 0; i < static_cast<int>(MapLayer::Count); ++i) {
        const auto layer = static_cast<MapLayer>(i);
        styles.push_back({{"color", ShownColor(m_state, layer)},
                          {"lit", m_state.IsLit(layer)},
                          {"locked", m_state.IsLocked(layer)}});
    }
    nlohmann::ordered_json labels = nlohmann::ordered_json::array();
    for (int i = 0; i < static_cast<int>(MapLabel::Count); ++i) {
        labels.push_back(m_state.IsLit(static_cast<MapLabel>(i)));
    }
    nlohmann::ordered_json marks = nlohmann::ordered_json::array();
    for (const GeoPoint& mark : m_state.Marks()) {
        marks.push_back({mark.longitude, mark.latitude});
    }
    nlohmann::ordered_json record = {{"map",
                                      {{"longitude", view.center.longitude},
                                       {"latitude", view.center.latitude},
                                       {"pixelsPerDegree", view.pixelsPerDegree},
                                       {"layers", std::move(layers)},
                                       {"layerStyles", std::move(styles)},
                                       {"labelsLit", std::move(labels)},
                                       {"marks", std::move(marks)},
                                       {"opened", m_state.Opened().size()},
                                       {"page", m_state.Page() == PageShape::Portrait ? "portrait" : "landscape"},
                                       {"palette", static_cast<int>(m_state.Palette())},
                                       {"finished", m_map.IsFinished()}}},
                                     {"language", wstring2String(CMultiLanguageMgr::GetLanguage())},
                                     {"mode", wstring2String(WorkingModes::NameOf(m_state.Mode()))},
                                     {"skin", wstring2String(m_skin)},
                                     {"iconStyle", wstring2String(m_iconStyle)},
                                     {"classicBars", m_bars.IsShown()},
                                     {"frame", DumpFrame({.ribbon = &m_ribbon,
                                                          .statusBar = m_status.get(),
                                                          .commands = {m_commandTexts},
                                                          .menus = {m_bars.Menu().GetMenu()},
                                                          .accelerators = m_hAccelTable,
                                                          .application = m_status->Application(),
                                                          .toolBars = m_bars.GroupedToolbars()})}};
    CRect ribbon;
    m_ribbon.GetWindowRect(ribbon);
    const auto onScreen = [&ribbon](CRect rect) {
        rect.OffsetRect(ribbon.TopLeft());
        return nlohmann::ordered_json{rect.left, rect.top, rect.right, rect.bottom};
    };
    const auto places = [](const CMFCToolBar& bar) {
        nlohmann::ordered_json rects = nlohmann::ordered_json::array();
        for (const CRect& place : ClassicBars::PlacesOf(bar)) {
            rects.push_back({place.left, place.top, place.right, place.bottom});
        }
        return rects;
    };
    record["menuBarOnScreen"] = places(m_bars.MenuBar());
    record["toolbarsOnScreen"] = nlohmann::ordered_json::array();
    for (const auto& [group, bar] : m_bars.GroupedToolbars()) {
        record["toolbarsOnScreen"].push_back(places(*bar));
    }
    record["ribbonOnScreen"] = {ribbon.left, ribbon.top, ribbon.right, ribbon.bottom};
    CRect whole;
    GetWindowRect(whole);
    record["frameOnScreen"] = {whole.left, whole.top, whole.right, whole.bottom};
    CRect status;
    m_status->GetWindowRect(status);
    record["statusOnScreen"] = {status.left, status.top, status.right, status.bottom};
    record["quickAccessOnScreen"] = onScreen(m_ribbon.GetQuickAccessToolbarLocation());
    if (const CMFCRibbonApplicationButton* const button = m_ribbon.GetApplicationButton()) {
        record["applicationButtonOnScreen"] = onScreen(button->GetRect());
    }
    record["tabsOnScreen"] = nlohmann::ordered_json::array();
    for (int i = 0; i < m_ribbon.GetCategoryCount(); ++i) {
        record["tabsOnScreen"].push_back(onScreen(m_ribbon.GetCategory(i)->GetTabRect()));
    }
    CRect skinButton(0, 0, 0, 0);
    if (m_skinButton != nullptr) {
        skinButton = m_skinButton->GetRect();
    }
    record["skinButtonOnScreen"] = onScreen(skinButton);
    CRect searchField(0, 0, 0, 0);
    if (m_searchField != nullptr) {
        searchField = m_searchField->GetRect();
    }
    record["searchFieldOnScreen"] = onScreen(searchField);
    record["search"] = {{"open", m_search.IsOpen()}, {"marked", m_search.Marked()}};
    nlohmann::ordered_json found = nlohmann::ordered_json::array();
    for (const SearchCommand* const command : m_search.Shown()) {
        const CRect place = m_search.PlaceOf(static_cast<int>(found.size()));
        found.push_back({{"keyword", wstring2String(command->keyword)},
                         {"name", wstring2String(command->name)},
                         {"place", wstring2String(command->place)},
                         {"keys", wstring2String(command->keys)},
                         {"enabled", command->isEnabled},
                         {"onScreen", {place.left, place.top, place.right, place.bottom}}});
    }
    record["search"]["found"] = std::move(found);
    const auto part = [this](CMapPane::Part which) {
        const CRect rect = m_pane.PlaceOf(which);
        return nlohmann::ordered_json{rect.left, rect.top, rect.right, rect.bottom};
    };
    record["paneOnScreen"] = {{"list", part(CMapPane::Part::List)},
                              {"map", part(CMapPane::Part::Map)},
                              {"down", part(CMapPane::Part::Down)},
                              {"across", part(CMapPane::Part::Across)}};
    if (m_dialog != nullptr) {
        const CDialogWindow::Description shown = m_dialog->Describe();
        nlohmann::ordered_json parts = nlohmann::ordered_json::object();
        for (const CDialogWindow::Part& one : shown.parts) {
            const CRect& place = one.onScreen;
            parts[one.name] = {{"text", wstring2String(one.text)},
                               {"enabled", one.isEnabled},
                               {"onScreen", {place.left, place.top, place.right, place.bottom}}};
        }
        nlohmann::ordered_json values = nlohmann::ordered_json::object();
        for (const auto& [name, value] : shown.values) {
            values[name] = value;
        }
        const CRect caption = m_dialog->CaptionOnScreen();
        record["dialog"] = {{"name", shown.name},
                            {"captionOnScreen", {caption.left, caption.top, caption.right, caption.bottom}},
                            {"parts", std::move(parts)},
                            {"values", std::move(values)}};
    }
    record["popupOpen"] = CMFCPopupMenu::GetActiveMenu() != nullptr;
    record["warnings"] = nlohmann::ordered_json::array();
    for (const std::wstring& warning : m_warnings) {
        record["warnings"].push_back(wstring2String(warning));
    }
    record["idle"] = moment == Moment::Idle;
    record["ribbonMinimized"] = IsRibbonMinimized();
    record["quickAccessBelow"] = IsQuickAccessBelow();
    std::string text = record.dump();
    if (text == m_recorded) {
        return;
    }
    m_recorded = std::move(text);
    WriteJson(record, m_options.record);
}
