// What is shown, as a record that tests and scripts read.
#include "main_frame.h"

#include "frame_dump.h"
#include "ribbon_icon_button.h"
#include "search_field.h"

#include "varnhold/language.h"
#include "varnhold/strings.h"

namespace {

using Json = nlohmann::ordered_json;

constexpr UINT_PTR kRecordTimer = 0x5243;

/// Left, top, right, bottom; pixels.
Json RectRecord(const CRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// On the screen.
Json WindowRecord(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(rect);
    return RectRecord(rect);
}

Json MapRecord(const MapState& state, bool isFinished) {
    Json layers = Json::array(), styles = Json::array(), labels = Json::array(), marks = Json::array();
    for (int i = 0; i < static_cast<int>(MapLayer::Count); ++i) {
        const auto layer = static_cast<MapLayer>(i);
        layers.push_back(state.IsShown(layer));
        styles.push_back(
            {{"color", ShownColor(state, layer)}, {"lit", state.IsLit(layer)}, {"locked", state.IsLocked(layer)}});
    }
    for (int i = 0; i < static_cast<int>(MapLabel::Count); ++i) {
        labels.push_back(state.IsLit(static_cast<MapLabel>(i)));
    }
    for (const GeoPoint& mark : state.Marks()) {
        marks.push_back({mark.longitude, mark.latitude});
    }
    const MapView& view = state.View();
    return {{"longitude", view.center.longitude},
            {"latitude", view.center.latitude},
            {"pixelsPerDegree", view.pixelsPerDegree},
            {"layers", std::move(layers)},
            {"layerStyles", std::move(styles)},
            {"labelsLit", std::move(labels)},
            {"marks", std::move(marks)},
            {"opened", state.Opened().size()},
            {"page", state.Page() == PageShape::Portrait ? "portrait" : "landscape"},
            {"palette", static_cast<int>(state.Palette())},
            {"finished", isFinished}};
}

/// The buttons of a toolbar.
Json ButtonPlaces(const CMFCToolBar& bar) {
    Json places = Json::array();
    for (const CRect& place : ClassicBars::PlacesOf(bar)) {
        places.push_back(RectRecord(place));
    }
    return places;
}

Json ToolbarPlaces(const ClassicBars& bars) {
    Json places = Json::array();
    for (const auto& [group, bar] : bars.GroupedToolbars()) {
        places.push_back(ButtonPlaces(*bar));
    }
    return places;
}

/// Adds where the parts of the ribbon are on the screen. `skinButton` and `searchField` may be null.
void AddRibbonPlaces(Json& record, const CMFCRibbonBar& ribbon, const CMFCRibbonBaseElement* skinButton,
                     const CMFCRibbonBaseElement* searchField) {
    CRect bar;
    ribbon.GetWindowRect(bar);
    const auto onScreen = [&bar](CRect rect) {
        rect.OffsetRect(bar.TopLeft());
        return RectRecord(rect);
    };
    const auto placeOf = [&onScreen](const CMFCRibbonBaseElement* element) {
        return onScreen(element != nullptr ? element->GetRect() : CRect(0, 0, 0, 0));
    };
    record["ribbonOnScreen"] = RectRecord(bar);
    record["quickAccessOnScreen"] = onScreen(ribbon.GetQuickAccessToolbarLocation());
    if (const CMFCRibbonApplicationButton* const button = ribbon.GetApplicationButton()) {
        record["applicationButtonOnScreen"] = onScreen(button->GetRect());
    }
    record["tabsOnScreen"] = Json::array();
    for (int i = 0; i < ribbon.GetCategoryCount(); ++i) {
        record["tabsOnScreen"].push_back(onScreen(ribbon.GetCategory(i)->GetTabRect()));
    }
    record["skinButtonOnScreen"] = placeOf(skinButton);
    record["searchFieldOnScreen"] = placeOf(searchField);
}

Json SearchRecord(const CSearchWindow& search) {
    Json found = Json::array();
    for (const SearchCommand* const command : search.Shown()) {
        const CRect place = search.PlaceOf(static_cast<int>(found.size()));
        found.push_back({{"keyword", wstring2String(command->keyword)},
                         {"name", wstring2String(command->name)},
                         {"place", wstring2String(command->place)},
                         {"keys", wstring2String(command->keys)},
                         {"enabled", command->isEnabled},
                         {"onScreen", RectRecord(place)}});
    }
    return {{"open", search.IsOpen()}, {"marked", search.Marked()}, {"found", std::move(found)}};
}

Json PanePlaces(const CMapPane& pane) {
    const auto part = [&pane](CMapPane::Part which) { return RectRecord(pane.PlaceOf(which)); };
    return {{"list", part(CMapPane::Part::List)},
            {"map", part(CMapPane::Part::Map)},
            {"down", part(CMapPane::Part::Down)},
            {"across", part(CMapPane::Part::Across)}};
}

Json DialogRecord(const CDialogWindow& dialog) {
    const CDialogWindow::Description shown = dialog.Describe();
    Json parts = Json::object(), values = Json::object();
    for (const CDialogWindow::Part& one : shown.parts) {
        parts[one.name] = {
            {"text", wstring2String(one.text)}, {"enabled", one.isEnabled}, {"onScreen", RectRecord(one.onScreen)}};
    }
    for (const auto& [name, value] : shown.values) {
        values[name] = value;
    }
    return {{"name", shown.name},
            {"captionOnScreen", RectRecord(dialog.CaptionOnScreen())},
            {"parts", std::move(parts)},
            {"values", std::move(values)}};
}

} // namespace

bool CMainFrame::IsRecordTooEarly() {
    const auto pause = static_cast<ULONGLONG>(m_options.recordPause);
    const ULONGLONG since = ::GetTickCount64() - m_recordedAt;
    if (since >= pause || m_recorded.empty() || GetSafeHwnd() == nullptr) {
        return false;
    }
    SetTimer(kRecordTimer, static_cast<UINT>(pause - since), nullptr);
    return true;
}

// A timer's message sets off no rest, which writes the record otherwise.
void CMainFrame::OnTimer(UINT_PTR timer) {
    if (timer != kRecordTimer) {
        CFrameWndEx::OnTimer(timer);
        return;
    }
    KillTimer(kRecordTimer);
    WriteRecord(Moment::Idle);
}

void CMainFrame::WriteRecord(Moment moment) {
    if (m_options.record.empty() || IsRecordTooEarly()) {
        return;
    }
    Json record = {{"map", MapRecord(m_state, m_map.IsFinished())},
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
                                        .toolBars = m_bars.GroupedToolbars()})},
                   {"menuBarOnScreen", ButtonPlaces(m_bars.MenuBar())},
                   {"toolbarsOnScreen", ToolbarPlaces(m_bars)},
                   {"frameOnScreen", WindowRecord(*this)},
                   {"statusOnScreen", WindowRecord(*m_status)},
                   {"search", SearchRecord(m_search)},
                   {"paneOnScreen", PanePlaces(m_pane)},
                   {"popupOpen", CMFCPopupMenu::GetActiveMenu() != nullptr},
                   {"idle", moment == Moment::Idle},
                   {"ribbonMinimized", IsRibbonMinimized()},
                   {"quickAccessBelow", IsQuickAccessBelow()}};
    AddRibbonPlaces(record, m_ribbon, m_skinButton, m_searchField);
    if (m_dialog != nullptr) {
        record["dialog"] = DialogRecord(*m_dialog);
    }
    record["warnings"] = Json::array();
    for (const std::wstring& warning : m_warnings) {
        record["warnings"].push_back(wstring2String(warning));
    }
    m_recordedAt = ::GetTickCount64();
    std::string text = record.dump();
    if (text == m_recorded) {
        return;
    }
    m_recorded = std::move(text);
    WriteJson(record, m_options.record);
}
