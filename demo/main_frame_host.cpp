// What the commands ask of the frame.
#include "main_frame.h"

#include "about_box.h"
#include "command_index.h"
#include "configuration_files.h"
#include "menu_id_mgr.h"
#include "message_window.h"
#include "options_dialog.h"
#include "page_print.h"
#include "picture_export.h"
#include "place_text.h"
#include "print_pages.h"
#include "print_preview.h"
#include "ribbon_category_ex.h"
#include "ribbon_icon_button.h"
#include "screenshot.h"
#include "search_field.h"
#include "system_language.h"
#include "viewer_skins.h"
#include "viewer_text.h"

#include "varnhold/file_op.h"
#include "varnhold/language.h"
#include "varnhold/message_box.h"
#include "varnhold/strings.h"

#include <fx/window_freeze.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace {

// Pixels of a page's picture for each that the page has in the window.
constexpr int kOnScreen = 1;
constexpr int kOnPaper = 2; // paper is finer

/// The window is the frame's open one as long as this lives, for the record.
class OpenDialog {
public:
    OpenDialog(const CDialogWindow*& place, const CDialogWindow& dialog)
        : m_place(place), m_before(std::exchange(place, &dialog)) {}
    ~OpenDialog() { m_place = m_before; }
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;

private:
    const CDialogWindow*& m_place;
    const CDialogWindow* m_before; ///< A message may stand over another window.
};

} // namespace

int CMainFrame::ScaleSliderPosition() const { return m_controls.ScalePosition(); }

std::wstring CMainFrame::PlaceText() const {
    return m_place ? std::wstring(m_place->GetEditText().GetString()) : std::wstring();
}

bool CMainFrame::IsPlaceConfirmed() const { return !m_tellsPlace && ::GetKeyState(VK_RETURN) < 0; }

// The field sends its command once more, as it loses the focus to the box.
void CMainFrame::TellPlaceUnknown(const std::wstring& text) {
    m_tellsPlace = true;
    QKMessageBox(WithName(ViewerText("PlaceUnknown"), text), QK_MESSAGE_WARNING, GetSafeHwnd());
    m_tellsPlace = false;
}

void CMainFrame::TellAbout() {
    CAboutBox box(LookOfDialogs());
    const OpenDialog open(m_dialog, box);
    box.Show(*this, ViewerText("ViewerTitle"));
}

int CMainFrame::AskMessage(const std::wstring& text, UINT style, HWND owner) {
    HWND over = owner != nullptr ? ::GetAncestor(owner, GA_ROOT) : ::GetLastActivePopup(GetSafeHwnd());
    over = over != nullptr ? over : GetSafeHwnd();
    if (over != nullptr && CMessageWindow::HasButtonsOf(style)) {
        CMessageWindow window(LookOfDialogs());
        const OpenDialog open(m_dialog, window);
        // No record before the first one: it says that the viewer can be used.
        const auto record = [this] {
            if (m_status && !m_recorded.empty()) {
                WriteRecord();
            }
        };
        if (const auto answer = window.Ask(*CWnd::FromHandle(over), getMessageBoxTitle(), text, style, record)) {
            return *answer;
        }
    }
    return ::MessageBoxW(owner, text.c_str(), getMessageBoxTitle().c_str(),
                         style | (owner != nullptr ? MB_APPLMODAL : MB_TASKMODAL));
}

void CMainFrame::TellKeyboard() { QKMessageBox(ViewerText("KeyboardText"), QK_MESSAGE_INFORMATION, GetSafeHwnd()); }

namespace {

std::wstring Lines(const std::vector<std::wstring>& lines) {
    std::wstring text;
    for (const std::wstring& line : lines) {
        text += L"\n" + line;
    }
    return text;
}

} // namespace

bool CMainFrame::TellBrokenFiles(const std::wstring& language) {
    const std::vector<std::wstring> broken = FindBrokenFiles(language);
    for (const std::wstring& line : broken) {
        std::fprintf(stderr, "%s\n", wstring2String(line).c_str());
    }
    if (!broken.empty()) {
        Warn(WithName(ViewerText("FilesBroken"), Lines(broken)));
    }
    return !broken.empty();
}

void CMainFrame::Warn(const std::wstring& message) { Warn(message, *this); }

void CMainFrame::Warn(const std::wstring& message, CWnd& owner) {
    QKMessageBox(message, QK_MESSAGE_WARNING, owner.GetSafeHwnd());
    m_warnings.push_back(message);
}

void CMainFrame::ReloadFiles() { SwitchLanguage(CMultiLanguageMgr::GetLanguage()); }

void CMainFrame::Leave() { PostMessage(WM_CLOSE); }

void CMainFrame::ShowCommandSearch() {
    CRect anchor(0, 0, 0, 0);
    if (m_searchField != nullptr && !m_bars.IsShown()) {
        anchor = m_searchField->GetRect();
        m_ribbon.ClientToScreen(&anchor);
    }
    CommandPlaces places;
    places.ribbon = &m_ribbon;
    places.menu = m_bars.Menu().GetMenu()->GetSafeHmenu();
    places.prefersMenu = m_bars.IsShown();
    places.frame = this;
    places.iconSet = FindViewerSkin(m_skin)->iconSet;
    places.names = &m_languageNames;
    m_search.Open(this, anchor, m_pane.Colors(),
                  {ViewerText("SearchPrompt"), ViewerText("SearchNothing"), ViewerText("SearchUnavailable")},
                  CollectCommands(places));
}

// The search is a part of the frame: that stays the active window to the eye.
BOOL CMainFrame::OnNcActivate(BOOL isActive) { return CFrameWndEx::OnNcActivate(isActive || m_search.IsOpen()); }

void CMainFrame::SwitchLanguage(const std::wstring& code) {
    if (TellBrokenFiles(code)) {
        return;
    }
    std::vector<std::wstring> problems;
    CMultiLanguageMgr::ProblemSink earlier;
    earlier = CMultiLanguageMgr::SetProblemSink([&](const std::wstring& problem) {
        problems.push_back(problem);
        earlier(problem);
    });
    const bool isRead = CMultiLanguageMgr::SetLanguage(code);
    CMultiLanguageMgr::SetProblemSink(earlier);
    if (!isRead) {
        Warn(WithName(ViewerText("LanguageBroken"), Lines(problems.empty() ? std::vector{code} : problems)));
        return;
    }
    TakeResourceLanguage();
    Mirror();
    setMessageBoxTitle(ViewerText("ViewerTitle"));
    ApplyTexts();
    // The clicked button is still at work: the ribbon is built anew after it has finished.
    PostMessage(kRebuildMessage);
}

// The file's categories for the modes are commands: a click on their tab has come as one. By the keyboard or the wheel
// their page has come to the front instead.
LRESULT CMainFrame::OnCategoryChanged(WPARAM, LPARAM) {
    const auto* const category = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, m_ribbon.GetActiveCategory());
    if (category != nullptr) {
        PostMessage(WM_COMMAND, category->GetID());
    }
    return 0;
}

void CMainFrame::ShowMode(MapMode mode) {
    m_modes.Show(mode);
    m_status->ShowMode(mode);
    m_ribbon.SetQuickAccessMenuTip(ViewerText("QuickAccessMenu").c_str());
}

LRESULT CMainFrame::OnRebuildRibbon(WPARAM, LPARAM) {
    const fx::WindowFreeze freeze;
    BuildRibbon();
    WriteRecord();
    return 0;
}

bool CMainFrame::IsLanguage(const std::wstring& code) const { return CMultiLanguageMgr::GetLanguage() == code; }

void CMainFrame::SwitchSkin(const std::wstring& name) {
    const fx::WindowFreeze freeze;
    const auto isOther = [this](const ViewerSkin& skin) { return m_skin != skin.name; };
    m_skin = name == L"switch" ? std::find_if(kViewerSkins.begin(), kViewerSkins.end(), isOther)->name : name;
    ApplySkin();
    TakeBarIcons();
    ShowState(); // the palette may have come with the skin
}

void CMainFrame::TakeBarIcons() { m_bars.TakeIcons(m_ribbon, FindViewerSkin(m_skin)->iconSet); }

bool CMainFrame::IsSkin(const std::wstring& name) const { return m_skin == name; }

void CMainFrame::SwitchIconStyle(const std::wstring& style) {
    m_iconStyle = style;
    CMFCRibbonUNIcoButton::SetSkinStyle(style.c_str());
    m_ribbon.Invalidate();
}

bool CMainFrame::IsIconStyle(const std::wstring& style) const { return m_iconStyle == style; }

void CMainFrame::ToggleRibbonMinimized() { m_ribbon.ToggleMimimizeState(); }

bool CMainFrame::IsRibbonMinimized() const { return (m_ribbon.GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS) != 0; }

void CMainFrame::ToggleQuickAccessBelow() {
    m_ribbon.SetQuickAccessToolbarOnTop(!m_ribbon.IsQuickAccessToolbarOnTop());
    RecalcLayout();
}

bool CMainFrame::IsQuickAccessBelow() const { return !m_ribbon.IsQuickAccessToolbarOnTop(); }

void CMainFrame::ToggleClassicBars() { ShowClassicBars(!m_bars.IsShown()); }

void CMainFrame::CustomizeBars() {
    if (!m_bars.IsShown()) {
        ShowClassicBars(true);
    }
    // It deletes itself; a second one does not open. There are no large icons to show.
    (new CMFCToolBarsCustomizeDialog(this, TRUE, AFX_CUSTOMIZE_NOHELP | AFX_CUSTOMIZE_NO_LARGE_ICONS))->Create();
}

void CMainFrame::ShowClassicBars(bool isShown) {
    if (isShown) {
        m_bars.ShowState(m_controls.ChosenLayer());
    }
    m_bars.Show(isShown);
    ShowPane(&m_ribbon, !isShown, TRUE, FALSE);
    RecalcLayout();
}

std::optional<MapLayer> CMainFrame::ChosenLayer() const {
    return m_bars.IsShown() ? m_bars.ChosenLayer() : m_controls.ChosenLayer();
}

// Toolbars have their texts from their file, which speaks one language.
BOOL CMainFrame::GetToolbarButtonToolTipText(CMFCToolBarButton* button, CString& text) {
    std::wstring keyword;
    if (!CMenuIdMgr::Ins()->GetMenuMark(static_cast<int>(button->m_nID), keyword)) {
        return FALSE;
    }
    text = CMultiLanguageMgr::translation(keyword, "RibbonBarCfg").c_str();
    return !text.IsEmpty();
}

void CMainFrame::CopyPicture() {
    m_map.RequestPicture([this](CBitmap* picture) { CopyPicture(picture); });
}

void CMainFrame::CopyPicture(CBitmap* picture) {
    if (picture != nullptr) {
        PutPictureOnClipboard(GetSafeHwnd(), *picture);
    }
}

void CMainFrame::SavePicture(CBitmap* picture) {
    const std::wstring path = AskForPictureFile(GetSafeHwnd(), ViewerText("PictureFilter"));
    if (!path.empty() && !(picture != nullptr && WritePng(*picture, path))) {
        QKMessageBox(WithName(ViewerText("PictureFailed"), path), QK_MESSAGE_WARNING, GetSafeHwnd());
    }
}

void CMainFrame::SavePicture() {
    m_map.RequestPicture([this](CBitmap* picture) { SavePicture(picture); });
}

void CMainFrame::CopyPage() {
    m_map.RequestPage(kOnScreen, [this](CBitmap* page) { CopyPicture(page); });
}

void CMainFrame::SavePage() {
    m_map.RequestPage(kOnScreen, [this](CBitmap* page) { SavePicture(page); });
}

PrintPages CMainFrame::PagesWith(CBitmap& page) const {
    std::vector<std::wstring> marks;
    for (const GeoPoint& mark : m_state.Marks()) {
        marks.push_back(::PlaceText(mark, false));
    }
    return {page,
            m_state.Page(),
            std::move(marks),
            {BarText(L"PanelMarks"), ViewerText("PreviewPages"), IsWrittenFromRight(CMultiLanguageMgr::GetLanguage())}};
}

void CMainFrame::PrintOn(CWnd& owner, CBitmap* page) {
    const PrintOutcome outcome = page != nullptr
                                     ? ::Print(owner.GetSafeHwnd(), PagesWith(*page), ViewerText("ViewerTitle"))
                                     : PrintOutcome::Failed;
    if (outcome == PrintOutcome::NoPrinter) {
        Warn(ViewerText("NoPrinter"), owner);
    } else if (outcome == PrintOutcome::Failed) {
        Warn(ViewerText("PrintFailed"), owner);
    }
}

void CMainFrame::PrintPage() {
    m_map.RequestPage(kOnPaper, [this](CBitmap* page) { PrintOn(*this, page); });
}

DialogLook CMainFrame::LookOfDialogs() const {
    std::wstring folder;
    FileOp::GetAppPath(folder);
    return {m_pane.Colors(), folder + FindViewerSkin(m_skin)->icons};
}

void CMainFrame::PreviewPage() {
    if (std::exchange(m_isPreviewOrdered, true)) {
        return; // one is on its way
    }
    m_map.RequestPage(kOnPaper, [this](CBitmap* page) {
        m_isPreviewOrdered = false; // the frame takes no input from here on
        if (page == nullptr) {
            Warn(ViewerText("PrintFailed"), *this);
            return;
        }
        const PrintPages pages = PagesWith(*page);
        CPrintPreview preview(LookOfDialogs(), pages, [this, page](CWnd& owner) { PrintOn(owner, page); });
        const OpenDialog open(m_dialog, preview);
        preview.Show(*this, BarText(L"PrintPreview"));
    });
}

ViewerOptions CMainFrame::PresentOptions() const {
    const KeptViewer& kept = m_memory.Viewer();
    return {CMultiLanguageMgr::GetLanguage(),
            m_skin,
            kept.scalePercent,
            kept.startMode.empty() ? WorkingModes::NameOf(MapMode::Browse) : kept.startMode,
            m_bars.IsShown()      ? ViewerOptions::Bars::MenusAndToolbars
            : IsRibbonMinimized() ? ViewerOptions::Bars::TabsAlone
                                  : ViewerOptions::Bars::Ribbon,
            IsQuickAccessBelow()};
}

void CMainFrame::AskOptions() {
    const ViewerOptions before = PresentOptions();
    std::optional<ViewerOptions> chosen;
    {
        COptionsDialog dialog(LookOfDialogs(), before);
        const OpenDialog open(m_dialog, dialog);
        chosen = dialog.Ask(*this);
    }
    if (!chosen || *chosen == before) {
        return;
    }
    m_memory.Viewer().scalePercent = chosen->scalePercent;
    m_memory.Viewer().startMode = chosen->startMode;
    if (chosen->skin != before.skin) {
        SwitchSkin(chosen->skin);
    }
    if (chosen->isQuickAccessBelow != before.isQuickAccessBelow) {
        ToggleQuickAccessBelow();
    }
    if (chosen->bars != before.bars) {
        TakeBars(chosen->bars);
    }
    if (chosen->language != before.language) { // last: the bars are built anew
        SwitchLanguage(chosen->language);
    }
    TakeChange();
}

void CMainFrame::TakeBars(ViewerOptions::Bars bars) {
    const bool isClassic = bars == ViewerOptions::Bars::MenusAndToolbars;
    if (isClassic != m_bars.IsShown()) {
        ToggleClassicBars();
    }
    if (!isClassic && IsRibbonMinimized() != (bars == ViewerOptions::Bars::TabsAlone)) {
        ToggleRibbonMinimized();
    }
}

void CMainFrame::CopyText(const std::wstring& text) { PutTextOnClipboard(GetSafeHwnd(), text); }
