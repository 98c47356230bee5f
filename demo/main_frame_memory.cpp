// What the frame finds again at its start, and what it keeps at its end.
#include "main_frame.h"

#include "geo_json.h"
#include "open_dialogs.h"
#include "system_language.h"
#include "viewer_skins.h"
#include "viewer_text.h"
#include "window_place.h"

#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr int kFirstWidth = 1280;
constexpr int kFirstHeight = 800;
/// Below the application's key: where the panes of the frame are.
constexpr wchar_t kDockingSection[] = L"Workspace";
constexpr wchar_t kDockingPlaces[] = L"DockingManager";

WindowBox ToBox(const RECT& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

/// Of all monitors, the first one in front.
std::vector<WindowBox> WorkAreas() {
    std::vector<WindowBox> areas;
    const auto add = [](HMONITOR monitor, HDC, LPRECT, LPARAM target) -> BOOL {
        MONITORINFO info = {};
        info.cbSize = sizeof info;
        if (::GetMonitorInfoW(monitor, &info)) {
            auto& list = *reinterpret_cast<std::vector<WindowBox>*>(target);
            const bool isFirst = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
            list.insert(isFirst ? list.begin() : list.end(), ToBox(info.rcWork));
        }
        return TRUE;
    };
    ::EnumDisplayMonitors(nullptr, nullptr, add, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

/// Where a window lies when it is neither maximised nor minimised, on the screen.
WindowBox NormalPlace(HWND window) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    ::GetWindowPlacement(window, &placement);
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &info);
    // The system tells it from the corner of what the task bar leaves.
    ::OffsetRect(&placement.rcNormalPosition, info.rcWork.left - info.rcMonitor.left,
                 info.rcWork.top - info.rcMonitor.top);
    return ToBox(placement.rcNormalPosition);
}

/// Other settings have other places of the toolbars.
std::wstring DockingSection(const std::wstring& folder) {
    return folder.empty() ? kDockingSection : kDockingSection + std::to_wstring(std::hash<std::wstring>()(folder));
}

/// They may be back with the next files: nothing is lost, so nobody is asked about it.
void TellUnknownKeywords(const CUserSettings& settings) {
    for (const std::wstring& keyword : settings.UnknownKeywords()) {
        std::fprintf(stderr,
                     "demo: the kept settings name \"%s\", which the files no longer have; it is kept for later\n",
                     wstring2String(keyword).c_str());
    }
}

} // namespace

void CMainFrame::StartInLanguage() {
    const std::vector<std::wstring> installed = CMultiLanguageMgr::Languages();
    const std::wstring& kept = m_memory.Viewer().language;
    const std::wstring wanted = !m_options.language.empty() ? m_options.language
                                : !kept.empty()             ? kept
                                                            : SystemLanguage();
    m_languageNames.Read();
    if (!CMultiLanguageMgr::SetLanguage(ChooseLanguage(wanted, installed))) {
        CMultiLanguageMgr::SetLanguage(L"en");
    }
    TakeResourceLanguage();
    setMessageBoxTitle(ViewerText("ViewerTitle"));
}

bool CMainFrame::IsToBeMirrored() const {
    return m_options.isRightToLeft.value_or(IsWrittenFromRight(CMultiLanguageMgr::GetLanguage()));
}

void CMainFrame::Mirror() {
    const bool isWanted = IsToBeMirrored();
    if (isWanted == ((GetExStyle() & WS_EX_LAYOUTRTL) != 0)) {
        return;
    }
    m_search.Close();
    // What is inside of the pane the pane knows: not all of it is mirrored.
    const auto mirror = [](HWND window, LPARAM pane) -> BOOL {
        const auto paneWindow = reinterpret_cast<HWND>(pane);
        if (!::IsChild(paneWindow, window)) {
            ::SetWindowLongPtrW(window, GWL_EXSTYLE, ::GetWindowLongPtrW(window, GWL_EXSTYLE) ^ WS_EX_LAYOUTRTL);
        }
        return TRUE;
    };
    ::EnumChildWindows(GetSafeHwnd(), mirror, reinterpret_cast<LPARAM>(m_pane.GetSafeHwnd()));
    m_pane.Mirror(isWanted);
    ModifyStyleEx(isWanted ? 0 : WS_EX_LAYOUTRTL, isWanted ? WS_EX_LAYOUTRTL : 0, SWP_FRAMECHANGED);
    RecalcLayout();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

CRect CMainFrame::StartPlace() const {
    const auto& kept = m_memory.Viewer().window;
    if (m_options.width > 0) {
        return {CPoint(0, 0), CSize(m_options.width, m_options.height)};
    }
    if (!kept) {
        return {CPoint(0, 0), CSize(kFirstWidth, kFirstHeight)};
    }
    const WindowBox place = PlaceOnMonitors(kept->place, WorkAreas());
    return {place.left, place.top, place.right, place.bottom};
}

void CMainFrame::Show() {
    const auto& kept = m_memory.Viewer().window;
    const bool isMaximized = kept && kept->isMaximized && m_options.width == 0;
    ShowWindow(isMaximized ? SW_SHOWMAXIMIZED : SW_SHOW);
    UpdateWindow();
}

void CMainFrame::ReopenFiles() {
    if (!m_options.mapFile.empty()) {
        return; // that one alone was asked for
    }
    for (const std::wstring& path : m_memory.Viewer().openedFiles) {
        if (const GeoJsonResult read = ReadGeoJsonFile(path); read.features) {
            m_state.Reopen(read.features);
            m_openedFiles.push_back(path);
        } else {
            m_memory.AddTrouble("MapFileUnreadable", path);
        }
    }
}

// Behind the bars, which are as configured until now.
void CMainFrame::RestoreState() {
    const KeptViewer& kept = m_memory.Viewer();
    if (kept.iconStyle && IsIconStyleOfSkin(*kept.iconStyle)) {
        SwitchIconStyle(*kept.iconStyle);
    }
    ReopenFiles();
    if (CUserSettings* const bars = m_memory.Bars()) {
        bars->ApplyTo(m_ribbon);
        m_bars.ApplyUserKeys(*bars);
        TellUnknownKeywords(*bars);
        auto* const application = static_cast<CWinAppEx*>(AfxGetApp());
        application->SetRegistryBase(DockingSection(m_options.settings).c_str());
        if (application->IsStateExists(kDockingPlaces)) {
            const CNamedToolBars named(m_bars.Toolbars());
            if (!application->LoadState(this)) {
                m_memory.AddTrouble("ToolbarPlacesLost", L"");
            }
        }
        m_bars.HideToolbars(kept.hiddenToolbars);
    }
    m_bars.DockNewToolbars();
    if (m_options.showsClassicBars.value_or(kept.showsClassicBars)) {
        ShowClassicBars(true);
    } else {
        m_bars.Show(false); // whatever was kept of the panes
    }
}

void CMainFrame::KeepState() {
    CUserSettings* const bars = m_memory.Bars();
    if (bars == nullptr) {
        return;
    }
    KeptViewer& kept = m_memory.Viewer();
    kept.language = CMultiLanguageMgr::GetLanguage();
    kept.skin = m_skin;
    kept.iconStyle.reset();
    if (m_iconStyle != FindViewerSkin(m_skin)->iconStyle) {
        kept.iconStyle = m_iconStyle;
    }
    const bool wasMaximized = kept.window && kept.window->isMaximized;
    kept.window = KeptWindow{NormalPlace(GetSafeHwnd()), IsIconic() ? wasMaximized : IsZoomed() != FALSE};
    kept.showsClassicBars = m_bars.IsShown();
    kept.hiddenToolbars = m_bars.HiddenToolbars();
    m_openedFiles.resize(m_state.Opened().size());
    kept.openedFiles = m_openedFiles;
    m_modes.KeepQuickAccess();
    bars->TakeFrom(m_ribbon);
    m_bars.KeepUserKeys(*bars);
    m_memory.Save(m_state);
    const CNamedToolBars named(m_bars.Toolbars());
    static_cast<CWinAppEx*>(AfxGetApp())->SaveState(this, DockingSection(m_options.settings).c_str());
}

// Another program, or the end of what runs this one, closes the frame whatever stands over it. Whoever shows a dialog
// goes on with the frame when it has been answered: that has to come first.
void CMainFrame::OnClose() {
    if (!IsWindowEnabled()) {
        m_isToClose = true;
        CloseDialogs();
        return;
    }
    if (m_options.stays) {
        return;
    }
    m_recordedAt = 0;
    WriteRecord(); // the last one
    KeepState();
    TellTroubles();
    CFrameWndEx::OnClose();
}

void CMainFrame::CloseDialogs() {
    for (const HWND window : DialogsOver(GetSafeHwnd())) {
        ::PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

void CMainFrame::OnEnable(BOOL isEnabled) {
    CFrameWndEx::OnEnable(isEnabled);
    if (isEnabled == FALSE) {
        return;
    }
    if (std::exchange(m_isToClose, false)) {
        PostMessage(WM_CLOSE);
    }
    m_map.ResumeRequests();
}

void CMainFrame::OnDestroy() {
    m_applicationMenu.Detach();
    CFrameWndEx::OnDestroy();
}

void CMainFrame::OnEndSession(BOOL isEnding) {
    if (isEnding) {
        KeepState();
    }
    if (isEnding && !IsWindowEnabled()) {
        OnClose(); // as there; all is kept by now, whether or not the system leaves time for it
        return;
    }
    CFrameWndEx::OnEndSession(isEnding);
}

void CMainFrame::TellTroubles() {
    std::wstring message;
    for (const ViewerMemory::Trouble& trouble : m_memory.TakeTroubles()) {
        message += (message.empty() ? L"" : L"\n\n") + WithName(ViewerText(trouble.key), trouble.name);
    }
    if (!message.empty()) {
        QKMessageBox(message, QK_MESSAGE_WARNING, GetSafeHwnd());
    }
}
