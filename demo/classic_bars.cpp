#include "classic_bars.h"

#include "command_index.h"
#include "configuration_files.h"
#include "configuration_problems.h"
#include "configuration_watch.h"
#include "installed_icon.h"
#include "kept_bar_states.h"
#include "layer_controls.h"
#include "library_context.h"
#include "map_painter.h"
#include "menu_id_mgr.h"
#include "ribbon_icon_button.h"
#include "ribbon_lookup.h"
#include "toolbar_combos.h"
#include "user_settings.h"
#include "viewer_text.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <type_traits>

namespace {

constexpr wchar_t kKeysFile[] = L"cfg\\keys.xml";
constexpr wchar_t kMenuFile[] = L"cfg\\menu.xml";
constexpr wchar_t kToolbarFile[] = L"cfg\\toolbar.xml";
constexpr int kIconSide = 16;
constexpr std::uint32_t kFirstCommand = 41000;

/// The combo on a toolbar that has the command of this keyword; null when there is none.
template <class Combo>
Combo* FindCombo(const wchar_t* keyword) {
    int id = 0;
    const bool isKnown = CMenuIdMgr::Ins()->GetMenuId(keyword, id);
    return isKnown ? DYNAMIC_DOWNCAST(Combo, CMFCToolBarComboBoxButton::GetByCmd(static_cast<UINT>(id))) : nullptr;
}

CMFCCheckCombo* ShownLayers() { return FindCombo<CMFCCheckCombo>(L"LayersShown"); }
CMFCMultiCombo* LayerStyles() { return FindCombo<CMFCMultiCombo>(L"LayerColors"); }
CMFCMultiCombo2* LabelLights() { return FindCombo<CMFCMultiCombo2>(L"LabelLights"); }

void Fill(CMFCToolBarComboBoxButton* combo, const std::vector<std::wstring>& texts, int selected) {
    if (combo != nullptr) {
        combo->RemoveAllItems();
        for (const std::wstring& text : texts) {
            combo->AddItem(text.c_str());
        }
        combo->SelectItem(selected, FALSE);
    }
}

COLORREF ToColorRef(std::uint32_t rgb) { return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF); }

} // namespace

namespace {

std::vector<ACCEL> ShortcutsOf(const CFrameWnd& frame) {
    std::vector<ACCEL> shortcuts(static_cast<std::size_t>(::CopyAcceleratorTableW(frame.m_hAccelTable, nullptr, 0)));
    ::CopyAcceleratorTableW(frame.m_hAccelTable, shortcuts.data(), static_cast<int>(shortcuts.size()));
    return shortcuts;
}

void GiveShortcuts(CFrameWnd& frame, std::vector<ACCEL> shortcuts) {
    ::DestroyAcceleratorTable(frame.m_hAccelTable);
    frame.m_hAccelTable =
        shortcuts.empty() ? nullptr : ::CreateAcceleratorTableW(shortcuts.data(), static_cast<int>(shortcuts.size()));
}

bool AreSame(const ACCEL& a, const ACCEL& b) { return a.cmd == b.cmd && a.key == b.key && a.fVirt == b.fVirt; }

/// Those of the first list that are not in the second one.
std::vector<ACCEL> Without(std::vector<ACCEL> shortcuts, const std::vector<ACCEL>& others) {
    std::erase_if(shortcuts, [&others](const ACCEL& one) {
        return std::ranges::any_of(others, [&one](const ACCEL& other) { return AreSame(one, other); });
    });
    return shortcuts;
}

/// False, with an empty menu, when the file cannot be used, which the user was told. A file that is no XML is told by
/// the load itself; a shortcut that names no key leaves it as an exception.
bool LoadTelling(CDynMenuCreater& menu, const wchar_t* file, const CWnd& owner) {
    try {
        return menu.Load(file);
    } catch (const std::out_of_range&) {
        std::wstring path;
        FileOp::GetAppPath(path);
        path += file;
        std::wstring lines;
        for (const ConfigurationProblem& problem : FindLoadFaults(path, ConfiguredBars::Menu)) {
            lines += L"\n" + PlaceAndText(problem);
        }
        QKMessageBox(WithName(ViewerText("FilesBroken"), lines.empty() ? L"\n" + path : lines), QK_MESSAGE_WARNING,
                     owner.GetSafeHwnd());
        return false;
    }
}

} // namespace

bool ClassicBars::HasKeys(const ConfigurationChange& change) {
    return std::ranges::find(change.files, kKeysFile) != change.files.end();
}

void ClassicBars::TakeShortcuts() {
    std::vector<ACCEL> before = ShortcutsOf(*m_frame);
    if (!m_shortcuts.empty()) {
        GiveShortcuts(*m_frame, Without(ShortcutsOf(*m_frame), m_shortcuts));
    }
    const std::vector<ACCEL> others = ShortcutsOf(*m_frame);
    CDynMenuCreater keys;
    if (!LoadTelling(keys, kKeysFile, *m_frame)) {
        GiveShortcuts(*m_frame, std::move(before)); // those that were taken before stay
        return;
    }
    keys.SetAppAccelTable();
    m_shortcuts = Without(ShortcutsOf(*m_frame), others);
}

void ClassicBars::ApplyUserKeys(CUserSettings& settings) {
    CKeyboardManager& manager = *static_cast<CWinAppEx*>(AfxGetApp())->GetKeyboardManager();
    manager.KeepOriginalKeys(m_frame); // what "Reset all" goes back to
    std::vector<ACCEL> configured = ShortcutsOf(*m_frame);
    m_configuredKeys.reset(::CreateAcceleratorTableW(configured.data(), static_cast<int>(configured.size())));
    if (const HACCEL users = settings.ApplyTo(m_frame->m_hAccelTable)) {
        manager.UpdateAccelTable(nullptr, users, m_frame);
    }
}

void ClassicBars::KeepUserKeys(CUserSettings& settings) const {
    if (m_configuredKeys) {
        settings.TakeFrom(m_configuredKeys.get(), m_frame->m_hAccelTable);
    }
}

bool ClassicBars::LeaveUserKeys(CUserSettings& settings) {
    if (!m_configuredKeys) {
        return false;
    }
    KeepUserKeys(settings);
    static_cast<CWinAppEx*>(AfxGetApp())->GetKeyboardManager()->ResetAll();
    m_configuredKeys.reset();
    return true;
}

bool ClassicBars::Create(CFrameWndEx& frame) {
    m_frame = &frame;
    if (!m_menuBar.Create(&frame, (AFX_DEFAULT_TOOLBAR_STYLE & ~(WS_VISIBLE | CBRS_GRIPPER)))) {
        return false;
    }
    // All icons of menus and toolbars have this size.
    CMFCToolBar::SetSizes(CSize(23, 22), CSize(kIconSide, kIconSide));
    return true;
}

void ClassicBars::Build() {
    LoadTelling(m_menu, kMenuFile, *m_frame);
    m_menuBar.SetRightHMenu(m_help.Build());
    m_menuBar.CreateFromMenu(m_menu.GetMenu()->GetSafeHmenu(), TRUE, TRUE);
    if (m_toolbars.empty() || m_areToolbarsStale) {
        BuildToolbars();
    }
    for (const auto& [group, bar] : m_toolbars.GetGroupedToolBars()) {
        const std::string title = wstring2String(m_titles[bar].GetString());
        bar->SetWindowText(CMultiLanguageMgr::translationW(title, -1, "RibbonBarCfg").c_str());
    }
    NameButtons();
    FillCombos();
    int customize = 0;
    if (CMenuIdMgr::Ins()->GetMenuId(L"CustomizeBars", customize)) {
        m_frame->EnablePaneMenu(TRUE, static_cast<UINT>(customize),
                                CMultiLanguageMgr::translation(L"CustomizeBars", "RibbonBarCfg").c_str(), 0, TRUE);
    }
}

// Hidden until they are wanted.
void ClassicBars::BuildToolbars() {
    m_areToolbarsStale = false;
    const CDynToolBarCreater earlier = m_toolbars;
    m_hidden = HiddenToolbars();
    if (!LoadToolbars()) {
        m_toolbars = earlier;
        return;
    }
    m_frame->EnableDocking(CBRS_ALIGN_ANY);
    m_titles.clear();
    m_names.clear();
    for (CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        m_titles[bar] = m_toolbars.GetName(bar).c_str();
        bar->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->AddPane(bar);
        m_frame->ShowPane(bar, FALSE, TRUE, FALSE);
    }
    if (!earlier.empty()) {
        ReplaceToolBars(*m_frame, earlier, m_toolbars);
    }
    NumberToolbars();
    HideToolbars(m_hidden);
}

/// Into a list of icons that holds no others. False: there are no toolbars in the file.
bool ClassicBars::LoadToolbars() {
    if (m_firstToolbar == 0) {
        m_firstToolbar = CDynToolBarCreater::s_ToolbarIndex;
    }
    if (m_configuredIcons != nullptr) {
        m_configuredIcons->Clear();
        CMFCToolBar::SetUserImages(nullptr);
    }
    m_toolbars = CDynToolBarCreater();
    const bool isLoaded = m_toolbars.Load(kToolbarFile, m_frame);
    m_configuredIcons = isLoaded ? CMFCToolBar::GetUserImages() : m_configuredIcons;
    return isLoaded;
}

// Menus show what has no room on its bar, and the file speaks one language. What users call a button stays.
void ClassicBars::NameButtons() {
    std::map<UINT, CString> names;
    for (CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        for (int i = 0; i < bar->GetCount(); ++i) {
            std::wstring keyword;
            CMFCToolBarButton& button = *bar->GetButton(i);
            if (CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(button.m_nID), keyword)) {
                const auto given = m_names.find(button.m_nID);
                if (given == m_names.end() || given->second == button.m_strText) {
                    button.m_strText = BarText(keyword).c_str();
                }
                names[button.m_nID] = BarText(keyword).c_str();
            }
        }
    }
    m_names = std::move(names);
}

void ClassicBars::DockNewToolbars() {
    for (CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        if (bar->GetParentDockSite() == nullptr && !bar->IsFloating()) {
            m_frame->DockPane(bar);
        }
    }
}

/// From the first number on, in their order, as if these had been the first ones.
void ClassicBars::NumberToolbars() {
    CDynToolBarCreater::s_ToolbarIndex = m_firstToolbar;
    for (CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        bar->SetDlgCtrlID(static_cast<int>(CDynToolBarCreater::s_ToolbarIndex++));
    }
}

namespace {

struct IconDestroyer {
    void operator()(HICON icon) const { ::DestroyIcon(icon); }
};

using OwnedIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

/// The sides of the pictures that each of the viewer's icon files has.
constexpr std::array kPictureSides = {16, 20, 24, 32, 40, 48, 64};

/// Of the picture for the display's scale: the smallest that need not be enlarged.
int DrawnSide() {
    const int drawn = afxGlobalData.ScalePixels(kIconSide);
    const auto* const found = std::ranges::find_if(kPictureSides, [drawn](int side) { return side >= drawn; });
    return found != kPictureSides.end() ? *found : kPictureSides.back();
}

/// The combos' commands are on the ribbon as well, without a picture. Where a bar has too little room they are rows of
/// a menu.
CString IconFileOf(const CMFCRibbonBar& ribbon, UINT id, const wchar_t* set) {
    struct Row {
        const wchar_t* keyword;
        const wchar_t* file;
    };
    static constexpr std::array<Row, 3> kRows = {{{L"LayersShown", L"pic\\skin\\icon\\modle\\layers.ico"},
                                                  {L"LayerColors", L"pic\\skin\\icon\\modle\\palette-natural.ico"},
                                                  {L"LabelLights", L"pic\\skin\\icon\\modle\\names.ico"}}};
    std::wstring keyword;
    CString file = CommandIconFile(ribbon, id, set);
    if (file.IsEmpty() && CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(id), keyword)) {
        const auto* const row = std::ranges::find(kRows, keyword, &Row::keyword);
        file = row != kRows.end() ? GetIconPathStr(row->file, kIconSide) : CString();
        file.Replace(L"\\modle\\", set);
    }
    return file;
}

/// Fills the list anew: `files` in the order of its indexes. An index without a file has an empty picture.
void FillIcons(CMFCToolBarImages& images, const std::vector<CString>& files) {
    images.Clear();
    images.SetImageSize(CSize(kIconSide, kIconSide));
    for (const CString& file : files) {
        const OwnedIcon icon(LoadInstalledIcon(file, kIconSide));
        const int index = images.AddIcon(icon ? icon.get() : ::LoadIconW(nullptr, IDI_APPLICATION));
        if (const int side = DrawnSide(); icon && side > kIconSide) {
            const OwnedIcon larger(LoadInstalledIcon(file, side));
            images.SetLargerIcon(index, larger.get(), CSize(side, side));
        }
    }
}

} // namespace

void ClassicBars::TakeIcons(CMFCRibbonBar& ribbon, const wchar_t* set) {
    std::vector<CString> ofButtons;
    for (const CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        for (int i = 0; i < bar->GetCount(); ++i) {
            const CMFCToolBarButton& button = *bar->GetButton(i);
            const int index = button.GetImage();
            if (index >= 0) {
                ofButtons.resize(std::max(ofButtons.size(), static_cast<std::size_t>(index) + 1));
                ofButtons[static_cast<std::size_t>(index)] = IconFileOf(ribbon, button.m_nID, set);
            }
        }
    }
    FillIcons(m_icons, ofButtons);
    CMFCToolBar::SetUserImages(&m_icons);

    std::vector<CString> ofCommands(static_cast<std::size_t>(CMFCToolBar::GetImages()->GetCount()));
    for (std::uint32_t id = kFirstCommand; id < CMenuIdMgr::s_AddBeginID; ++id) {
        const int index = GetCmdMgr()->GetCmdImage(id, FALSE);
        if (index >= 0 && static_cast<std::size_t>(index) < ofCommands.size()) {
            ofCommands[static_cast<std::size_t>(index)] = CommandIconFile(ribbon, id, set);
        }
    }
    FillIcons(*CMFCToolBar::GetImages(), ofCommands);
    for (CMFCToolBar* const bar : m_toolbars.GetAllToolBar()) {
        bar->Invalidate();
    }
}

void ClassicBars::FillCombos() {
    const std::vector<std::wstring> layers = LayerControls::LayerNames();
    Fill(ShownLayers(), layers, 0);
    Fill(LayerStyles(), layers, 1);
    Fill(LabelLights(), LayerControls::LabelNames(), 0);
}

void ClassicBars::Show(bool isShown) {
    m_hidden = HiddenToolbars();
    m_isShown = isShown;
    m_frame->ShowPane(&m_menuBar, isShown, TRUE, FALSE);
    for (const auto& [bar, title] : m_titles) {
        const bool isWanted = std::find(m_hidden.begin(), m_hidden.end(), title.GetString()) == m_hidden.end();
        m_frame->ShowPane(bar, isShown && isWanted, TRUE, FALSE);
    }
}

std::vector<std::wstring> ClassicBars::HiddenToolbars() const {
    if (!m_isShown) {
        return m_hidden;
    }
    std::vector<std::wstring> hidden;
    for (const auto& [bar, title] : m_titles) {
        if (!bar->IsVisible()) {
            hidden.emplace_back(title.GetString());
        }
    }
    return hidden;
}

void ClassicBars::HideToolbars(const std::vector<std::wstring>& titles) {
    m_hidden = titles;
    if (m_isShown) {
        m_isShown = false; // what is seen now does not count
        Show(true);
    }
}

void ClassicBars::ShowState(std::optional<MapLayer> chosen) {
    CMFCCheckCombo* const shown = ShownLayers();
    CMFCMultiCombo* const styles = LayerStyles();
    CMFCMultiCombo2* const labels = LabelLights();
    for (int i = 0; i < static_cast<int>(MapLayer::Count); ++i) {
        const auto layer = static_cast<MapLayer>(i);
        if (shown != nullptr) {
            shown->SetCheck(i, m_state.IsShown(layer) ? 1 : 0, TRUE);
        }
        if (styles != nullptr) {
            styles->SetItemColor(i, ToColorRef(ShownColor(m_state, layer)), true);
            styles->SetLightOn(i, m_state.IsLit(layer), true);
        }
    }
    for (int i = 0; labels != nullptr && i < static_cast<int>(MapLabel::Count); ++i) {
        labels->SetLightOn(i, m_state.IsLit(static_cast<MapLabel>(i)), true);
    }
    if (styles != nullptr && chosen && !m_isShown) {
        styles->SelectItem(static_cast<int>(*chosen), FALSE);
    }
}

std::optional<MapLayer> ClassicBars::ChosenLayer() const {
    const CMFCMultiCombo* const styles = LayerStyles();
    const int item = styles != nullptr ? styles->GetCurSel() : -1;
    return item < 0 ? std::nullopt : std::optional(static_cast<MapLayer>(item));
}

std::vector<std::pair<std::wstring, const CMFCToolBar*>> ClassicBars::GroupedToolbars() const {
    const auto bars = m_toolbars.GetGroupedToolBars();
    return {bars.begin(), bars.end()};
}

std::vector<CRect> ClassicBars::PlacesOf(const CMFCToolBar& bar) {
    std::vector<CRect> places;
    for (int i = 0; bar.IsWindowVisible() && i < bar.GetCount(); ++i) {
        CRect place = bar.GetButton(i)->Rect();
        bar.ClientToScreen(&place);
        places.push_back(place);
    }
    return places;
}
