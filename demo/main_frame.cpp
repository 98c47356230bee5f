#include "main_frame.h"

#include "add_ribbon_bar.h"
#include "geo_json.h"
#include "host_messages.h"
#include "library_context.h"
#include "map_menu.h"
#include "menu_event.h"
#include "menu_id_mgr.h"
#include "picture_export.h"
#include "resource.h"
#include "ribbon_category_ex.h"
#include "ribbon_check_combo.h"
#include "ribbon_icon_button.h"
#include "ribbon_lookup.h"
#include "scaled.h"
#include "screenshot.h"
#include "script_font.h"
#include "search_field.h"
#include "system_language.h"
#include "system_skin.h"
#include "tool_arguments.h"
#include "tooltip_ctrl_ex.h"
#include "viewer_skins.h"
#include "viewer_text.h"
#include "viewer_tool.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <afxadv.h>
#include <shellapi.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace {

constexpr int kLeastWidth = 320; // pixels at 96 DPI, as the next
constexpr int kLeastHeight = 260;
constexpr UINT kFirstCommand = 41000;
constexpr UINT kLastCommand = 49999;
constexpr UINT kLightTakenMessage = WM_APP + 2;
/// Buttons with sub-items that also do something of their own.
constexpr std::array<const wchar_t*, 5> kSplitButtons = {L"ZoomOriginal", L"PlaceCities", L"BookmarkGo", L"LineWidth",
                                                         L"NameSize"};
/// The framework's text at which an extended bar says that the button changes the skin.
constexpr UINT kSkinButtonText = 17096;
constexpr wchar_t kSkinIcon[] = L"pic\\skin\\icon\\modle\\skin.ico";
constexpr wchar_t kRibbonFile[] = L"cfg\\ribbon.xml";

/// On the row of tabs, which is dark in both skins: its icon is the light one in both.
class SkinButton : public CMFCRibbonUNIcoButton {
public:
    /// `style` is that of all other buttons, and outlives this one.
    SkinButton(UINT id, const std::wstring& style)
        : CMFCRibbonUNIcoButton(id, L"", GetIconPathStr(kSkinIcon, 32), FALSE, GetIconPathStr(kSkinIcon, 16), TRUE),
          m_style(style) {}

    void DrawImage(CDC* dc, RibbonImageType type, CRect rect) override {
        SetSkinStyle(L"0");
        CMFCRibbonUNIcoButton::DrawImage(dc, type, rect);
        SetSkinStyle(m_style.c_str());
    }
    BOOL IsDrawTooltipImage() const override { return FALSE; } // the tooltip is light in one of them

private:
    const std::wstring& m_style;
};

/// What the list beside the map is called, and what is in it.
LayerRowTexts ListTexts() {
    const auto text = [](const char* key) { return CMultiLanguageMgr::translationW(key, -1, "RibbonBarCfg"); };
    return {text("CatLayers"), text("PlaceCities"), LayerControls::LayerNames(),
            CMultiLanguageMgr::GetLanguage() == L"zh-CN"};
}

/// As the system's message box has it for a QKMessageStatus.
UINT MessageStyle(int status) {
    struct Row {
        int status;
        UINT style;
    };
    static constexpr std::array<Row, 4> kRows = {{{QK_MESSAGE_INFORMATION, MB_OK | MB_ICONINFORMATION},
                                                  {QK_MESSAGE_QUESTION, MB_YESNO | MB_ICONQUESTION},
                                                  {QK_MESSAGE_WARNING, MB_OK | MB_ICONWARNING},
                                                  {QK_MESSAGE_ERROR, MB_OK | MB_ICONERROR}}};
    const auto* const found = std::ranges::find(kRows, status, &Row::status);
    return found != kRows.end() ? found->style : kRows.front().style;
}

std::wstring InstallationDirectory() {
    std::wstring path;
    FileOp::GetAppPath(path);
    return path;
}

} // namespace

void TakeResourceLanguage() {
    struct Row {
        const wchar_t* code;
        LANGID language;
    };
    static constexpr std::array<Row, 2> kRows = {{{L"zh-CN", MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED)},
                                                  {L"he", MAKELANGID(LANG_HEBREW, SUBLANG_DEFAULT)}}};
    LANGID language = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
    for (const Row& row : kRows) {
        if (CMultiLanguageMgr::GetLanguage() == row.code) {
            language = row.language;
        }
    }
    if (IsWrittenFromRight(CMultiLanguageMgr::GetLanguage())) {
        TakeScriptFonts(ViewerText("ViewerTitle"));
    } else {
        afxGlobalData.UpdateFonts();
    }
    ::SetThreadUILanguage(language);
    ::SetThreadLocale(MAKELCID(language, SORT_DEFAULT)); // what Wine goes by
}

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWndEx)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWndEx)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_WM_ENABLE()
ON_WM_DESTROY()
ON_WM_NCACTIVATE()
ON_WM_ENDSESSION()
ON_WM_TIMER()
ON_WM_GETMINMAXINFO()
ON_WM_SETFOCUS()
ON_WM_DROPFILES()
ON_WM_HELPINFO()
ON_COMMAND_RANGE(kFirstCommand, kLastCommand, OnConfiguredCommand)
ON_COMMAND(ID_TOOLS_ENTRY, OnToolsEntry)
ON_COMMAND_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE1 + _AFX_MRU_COUNT - 1, OnRecentFile)
ON_UPDATE_COMMAND_UI_RANGE(kFirstCommand, kLastCommand, OnUpdateConfiguredCommand)
ON_REGISTERED_MESSAGE(AFX_WM_ON_CHANGE_RIBBON_CATEGORY, OnCategoryChanged)
ON_REGISTERED_MESSAGE(AFX_WM_RESETCONTEXTMENU, OnResetContextMenu)
ON_MESSAGE(kRebuildMessage, OnRebuildRibbon)
ON_MESSAGE(kLightTakenMessage, OnLightTaken)
ON_MESSAGE(WM_COMBO_CHECK_CHANGED, OnLayerChecked)
ON_MESSAGE(WM_COMBO_COLOR_PICK, OnLayerColor)
ON_MESSAGE(WM_COMBO_LIGHT_CHANGED, OnLayerLight)
ON_MESSAGE(WM_VESCOMBO_LIGHT_CHANGED, OnLabelLight)
ON_MESSAGE(WM_RIBBON_LABEL_CLICKED, OnLabelClicked)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(const DemoOptions& options)
    : m_options(options),
      m_data(MapData::Load(std::filesystem::path(InstallationDirectory()) / L"data")),
      m_map(m_state, m_data),
      m_pane(m_state, m_data, m_map),
      m_ribbon(TRUE),
      m_modes(m_ribbon),
      m_bars(m_state),
      m_controls(m_state),
      m_memory(options.isFresh            ? L""
               : options.settings.empty() ? ViewerMemory::OwnFolder()
                                          : options.settings),
      m_messages([this](const std::wstring& text, int status, HWND owner) {
          return AskMessage(text, MessageStyle(status), owner);
      }) {
    m_memory.Load(m_state);
    const KeptViewer& kept = m_memory.Viewer();
    if (options.scalePercent == 0 && kept.scalePercent > 0) {
        constexpr double percent = 100;
        afxGlobalData.SetRibbonImageScale(kept.scalePercent / percent);
    }
    m_skin = !options.skin.empty() ? options.skin : FindViewerSkin(kept.skin) != nullptr ? kept.skin : PreferredSkin();
    CMenuEvtHandleMgr* const dispatcher = CMenuEvtHandleMgr::Ins();
    dispatcher->addReactor(MakeNavigationReactor(m_state, m_data, *this));
    dispatcher->addReactor(MakeLayerReactor(m_state, *this));
    dispatcher->addReactor(MakePictureReactor(m_state, *this));
    dispatcher->addReactor(MakeFileReactor(m_state, *this));
    dispatcher->addReactor(MakeModeReactor(m_state, *this));
    dispatcher->addReactor(MakeSettingsReactor(*this));
    // A keyword that is known when the files are read keeps its number: the application stands for this one
    // (EnableUserTools).
    CMenuIdMgr::Ins()->Add(L"UserTools", ID_TOOLS_ENTRY, L"", L"", L"", L"", L"");
    CViewerTool::SetValues([this](const std::wstring& name) { return ToolValue(name); });
    m_state.SetMode(WorkingModes::ModeOf(options.mode.empty() ? kept.startMode : options.mode));
}

BOOL CMainFrame::CreateFrame() {
    StartInLanguage();
    const CRect rect = StartPlace();
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), nullptr,
                                                    AfxGetApp()->LoadIcon(IDR_MAINFRAME));
    return Create(windowClass, ViewerText("ViewerTitle").c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, rect, nullptr,
                  nullptr, IsToBeMirrored() ? WS_EX_LAYOUTRTL : 0);
}

int CMainFrame::OnCreate(LPCREATESTRUCT createStruct) {
    if (CFrameWndEx::OnCreate(createStruct) == -1) {
        return -1;
    }
    ShowIcon();
    ApplySkin();
    CMFCToolTipInfo tooltips;
    tooltips.m_bVislManagerTheme = TRUE;
    CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CToolTipCtrlEx), &tooltips);
    if (!m_ribbon.Create(this) || !m_bars.Create(*this) || !m_pane.Create(this, AFX_IDW_PANE_FIRST)) {
        return -1;
    }
    m_ribbon.EnableToolTips(TRUE, TRUE);
    m_applicationMenu.Attach(m_ribbon);
    m_bars.TakeShortcuts();
    BuildRibbon();
    ApplyTexts();
    RestoreState();
    RecalcLayout();
    m_pane.Start();
    ShowState(); // the map was made to fit
    m_pane.SetChangeListener([this] { TakeChange(); });
    // The map may be moved and drawn while the bars are made anew.
    m_map.SetPointerListener([this](GeoPoint place) {
        m_controls.ShowPointer(place);
        if (m_status) {
            m_status->ShowPointer(m_controls.PointerText());
        }
    });
    m_map.SetWorkListener([this](bool isAtWork) {
        if (m_status) {
            m_status->ShowWork(isAtWork);
        }
    });
    m_map.SetMenuListener(
        [this](CPoint point) { afxContextMenuManager->ShowPopupMenu(IDR_MAP_MENU, point.x, point.y, &m_map); });
    DragAcceptFiles();
    return 0;
}

// Below that the ribbon is not shown, and what is left is of no use.
void CMainFrame::OnGetMinMaxInfo(MINMAXINFO* info) {
    CFrameWndEx::OnGetMinMaxInfo(info);
    info->ptMinTrackSize.x = std::max<LONG>(info->ptMinTrackSize.x, Scaled(kLeastWidth));
    info->ptMinTrackSize.y = std::max<LONG>(info->ptMinTrackSize.y, Scaled(kLeastHeight));
}

// The window class has the icon for the display's own scale only.
void CMainFrame::ShowIcon() {
    constexpr int usualSide = 16;
    const int side = static_cast<int>(usualSide * afxGlobalData.GetRibbonImageScale() + 0.5);
    m_icon.reset(static_cast<HICON>(::LoadImageW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDR_MAINFRAME), IMAGE_ICON,
                                                 side, side, LR_DEFAULTCOLOR)));
    SetIcon(m_icon.get(), FALSE);
}

// F1: the video of the command under the pointer, where there is one. With Ctrl it minimises the ribbon.
BOOL CMainFrame::OnHelpInfo(HELPINFO*) {
    if (::GetKeyState(VK_CONTROL) < 0) {
        return FALSE;
    }
    const CMFCRibbonBaseElement* const element = m_ribbon.GetCursonOn(FALSE);
    const std::wstring video = element != nullptr ? HelpHint::FileOf(element->GetID()) : std::wstring();
    if (video.empty()) {
        TellKeyboard();
    } else {
        ::ShellExecuteW(GetSafeHwnd(), nullptr, video.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    }
    return TRUE;
}

void CMainFrame::OnSetFocus(CWnd*) { m_map.SetFocus(); }

void CMainFrame::OnDropFiles(HDROP drop) {
    const UINT count = ::DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    std::vector<std::wstring> paths;
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(::DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0'); // with the NUL that is written
        path.resize(::DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size())));
        paths.push_back(std::move(path));
    }
    ::DragFinish(drop);
    for (const std::wstring& path : paths) {
        OpenMapFile(path);
    }
    TakeChange();
}

void CMainFrame::OpenMapFile() {
    const std::wstring path = AskForMapFile(GetSafeHwnd(), ViewerText("MapFileFilter"));
    if (!path.empty()) {
        OpenMapFile(path);
    }
}

void CMainFrame::OpenMapFile(const std::wstring& path) {
    // In the order of GeoJsonError.
    static constexpr std::array<const char*, 5> kReasons = {"", "MapFileUnreadable", "MapFileSyntax", "MapFileFormat",
                                                            "MapFileEmpty"};
    const GeoJsonResult read = ReadGeoJsonFile(path);
    if (read.features) {
        m_openedFiles.resize(m_state.Opened().size()); // none when all were closed
        m_openedFiles.push_back(std::filesystem::absolute(path).wstring());
        m_state.Open(read.features, read.features->box);
        AfxGetApp()->AddToRecentFileList(path.c_str());
        ShowState();
        return;
    }
    std::wstring message = WithName(ViewerText(kReasons[static_cast<std::size_t>(read.error)]), path);
    if (const std::size_t mark = message.find(L"%d"); mark != std::wstring::npos) {
        message.replace(mark, 2, std::to_wstring(read.offset));
    }
    QKMessageBox(message, QK_MESSAGE_WARNING, GetSafeHwnd());
}

void CMainFrame::BuildRibbon() {
    m_place = nullptr;
    CMFCRibbonCategory* const active = m_ribbon.GetActiveCategory();
    const int shown = active ? m_ribbon.GetCategoryIndex(active) : m_options.category;
    m_modes.KeepQuickAccess();
    m_status.reset();
    m_ribbon.RemoveAllCategories();
    m_searchField = nullptr;
    m_skinButton = nullptr;
    m_ribbon.RemoveAllFromTabs();

    // The first one that is made so fits the check boxes of all to the scale.
    const CMFCRibbonCheckComb scalesTheBoxes;

    CAddRibbonBar builder;
    builder.SetCreateF1Tip(HelpHint::HasVideos());
    CAddRibbonBar::m_strHelpF1 = ViewerText("HelpF1").c_str();
    builder.Load(kRibbonFile, &m_ribbon, TRUE);
    m_commandTexts = builder.m_cmdList;
    m_place = FindElement<CMFCRibbonEdit>(m_ribbon, L"PlaceEdit");
    for (const wchar_t* keyword : kSplitButtons) {
        if (auto* const button = FindElement<CMFCRibbonButton>(m_ribbon, keyword)) {
            button->SetDefaultCommand();
        }
    }
    m_applicationMenu.Build();
    AddSearchField();
    AddSkinButton();
    m_modes.Attach(builder, m_state.Mode(), shown);
    m_ribbon.setHMenu(m_contextMenu.Build());
    m_bars.Build();
    TakeBarIcons();
    map_menu::Add();
    m_controls.Attach(m_ribbon);
    ShowState(); // first: the layout paints at once
    m_ribbon.ForceRecalcLayout();
    m_ribbon.SetQuickAccessMenuTip(ViewerText("QuickAccessMenu").c_str());
    BuildStatusBar();
}

void CMainFrame::BuildStatusBar() {
    CViewerStatusBar::LoadRows(m_ribbon);
    m_status = std::make_unique<CViewerStatusBar>();
    if (!m_status->Create(this, m_controls.ScaleSlider())) {
        return;
    }
    m_status->ShowMode(m_state.Mode());
    m_status->ShowState(m_state);
    m_status->ShowPointer(m_controls.PointerText());
    m_status->ShowWork(m_map.GetSafeHwnd() != nullptr && !m_map.IsFinished());
    RecalcLayout();
}

/// Right of the tabs, on every page, as the next.
void CMainFrame::AddSearchField() {
    int id = 0;
    if (CMenuIdMgr::Ins()->GetMenuId(L"CommandSearch", id)) {
        m_searchField = new CSearchField(static_cast<UINT>(id), BarText(L"CommandSearch"), m_iconStyle);
        m_searchField->SetToolTipText(BarText(L"CommandSearch").c_str());
        m_ribbon.AddToTabs(m_searchField);
    }
}

/// Right of the tabs, on every page. The bar knows it by its tooltip, which is the framework's for another button.
void CMainFrame::AddSkinButton() {
    int id = 0;
    if (!CMenuIdMgr::Ins()->GetMenuId(L"SkinSwitch", id)) {
        return;
    }
    CString tip;
    tip.LoadString(kSkinButtonText);
    m_skinButton = new SkinButton(static_cast<UINT>(id), m_iconStyle);
    m_skinButton->SetToolTipText(tip);
    m_ribbon.AddToTabs(m_skinButton);
}

void CMainFrame::OnConfiguredCommand(UINT id) {
    if (m_ribbon.IsInContextMenu()) {
        return;
    }
    CMenuEvtHandleMgr::Ins()->MenuClick(id);
    TakeChange();
}

// The application keeps the list and shows it where the menu has its place.
void CMainFrame::OnRecentFile(UINT id) {
    CRecentFileList* const files = AfxGetApp()->GetRecentFileList();
    const int index = static_cast<int>(id - ID_FILE_MRU_FILE1);
    if (files != nullptr && index < files->GetSize()) {
        OpenMapFile((*files)[index].GetString());
        TakeChange();
    }
}

// The user has put it back as it was.
LRESULT CMainFrame::OnResetContextMenu(WPARAM, LPARAM menu) {
    map_menu::Fill(reinterpret_cast<HMENU>(menu));
    return 0;
}

std::wstring CMainFrame::ToolValue(const std::wstring& name) const {
    CRecentFileList* const files = AfxGetApp()->GetRecentFileList();
    if (name == L"MapFile" && files != nullptr && files->GetSize() > 0) {
        return (*files)[0].GetString();
    }
    return name == L"Place" ? PlaceArgument(m_state.View().center) : std::wstring();
}

void CMainFrame::OnUpdateConfiguredCommand(CCmdUI* commandUi) {
    if (!CMenuEvtHandleMgr::Ins()->Update(commandUi)) {
        commandUi->ContinueRouting();
    }
}

void CMainFrame::ShowState() {
    m_controls.ShowState();
    m_bars.ShowState(m_controls.ChosenLayer());
    if (m_status) { // it comes behind the ribbon
        m_status->ShowState(m_state);
    }
    m_pane.ShowState();
}

void CMainFrame::TakeChange() {
    ShowState();
    WriteRecord();
}

LRESULT CMainFrame::OnLightTaken(WPARAM, LPARAM) {
    m_controls.ShareLayerLights();
    TakeChange();
    return 0;
}

// Odd: checked, alone (1) or together with the others (3).
LRESULT CMainFrame::OnLayerChecked(WPARAM text, LPARAM check) {
    m_controls.TakeCheck(*reinterpret_cast<const CString*>(text), (check & 1) != 0);
    TakeChange();
    return 0;
}

LRESULT CMainFrame::OnLayerColor(WPARAM item, LPARAM) {
    if (m_controls.AskColor(static_cast<int>(item), this)) {
        TakeChange();
    }
    return 0;
}

// The answer decides; the combo shows the light itself afterwards, and then its copies are to show it.
LRESULT CMainFrame::OnLayerLight(WPARAM text, LPARAM isOn) {
    if (!m_controls.TakeLight(*reinterpret_cast<const CString*>(text), isOn != 0)) {
        return 0;
    }
    PostMessage(kLightTakenMessage);
    return 1;
}

LRESULT CMainFrame::OnLabelLight(WPARAM text, LPARAM isOn) {
    m_controls.TakeLabelLight(*reinterpret_cast<const CString*>(text), isOn != 0);
    TakeChange();
    return 0;
}

LRESULT CMainFrame::OnLabelClicked(WPARAM label, LPARAM) {
    const auto* const clicked = reinterpret_cast<const void*>(label);
    if (m_controls.IsPointerLabel(clicked) || m_status->IsPointerLabel(clicked)) {
        m_controls.SwitchPointerFormat();
        m_status->ShowPointer(m_controls.PointerText());
    }
    return 0;
}

void CMainFrame::ApplySkin() {
    if (const ViewerSkin* const skin = FindViewerSkin(m_skin)) {
        m_iconStyle = skin->iconStyle;
        CMFCRibbonUNIcoButton::SetSkinStyle(skin->iconStyle);
        m_helpHint.TakeIcons(skin->icons);
        m_state.SetSkinPalette(skin->palette);
        m_pane.SetSkin(static_cast<UINT>(skin->style));
        m_ribbon.ChangeSkinColor(skin->style, true); // which paints all that the frame shows
    }
}

void CMainFrame::ApplyTexts() {
    SetWindowText(ViewerText("ViewerTitle").c_str());
    MapPaintStyle style;
    style.scale = afxGlobalData.GetRibbonImageScale();
    style.chineseNames = CMultiLanguageMgr::GetLanguage() == L"zh-CN";
    style.kilometres = ViewerText("Kilometres");
    m_map.SetStyle(style);
    m_pane.SetTexts(ListTexts());
}
