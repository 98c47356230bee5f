#pragma once

#include <afxcontrolbars.h>

#include "application_menu.h"
#include "classic_bars.h"
#include "help_hint.h"
#include "host_menu.h"
#include "language_names.h"
#include "layer_controls.h"
#include "map_data.h"
#include "map_pane.h"
#include "map_state.h"
#include "map_window.h"
#include "options.h"
#include "options_dialog.h"
#include "print_pages.h"
#include "search_window.h"
#include "viewer_commands.h"
#include "viewer_memory.h"
#include "viewer_ribbon.h"
#include "viewer_status_bar.h"
#include "working_modes.h"

#include "varnhold/message_box.h"

#include <memory>
#include <type_traits>

class CAddRibbonBar;
class CMFCRibbonUNIcoButton;
class CSearchField;
struct ConfigurationChange;

/// From now on the thread's resources, the framework's own texts among them, are those of the language in force.
void TakeResourceLanguage();

/// The viewer's main window: the ribbon from cfg\ribbon.xml above the map. Turns the configured commands over to the
/// reactors and answers what they need of the frame.
class CMainFrame : public CFrameWndEx, private ViewerHost {
    DECLARE_DYNAMIC(CMainFrame)

public:
    explicit CMainFrame(const DemoOptions& options);

    BOOL CreateFrame();
    /// When a record is written: while a message is at work, so that buttons may not show yet what they can do now, or
    /// when all messages have been taken.
    enum class Moment { AtWork, Idle };
    /// Writes what is shown to the file of the option --record, if there is one and it says something else so far.
    void WriteRecord(Moment moment = Moment::AtWork);
    /// Shows what a GeoJSON file holds, or says why it cannot.
    void OpenMapFile(const std::wstring& path);
    /// Waits until the map is drawn, for pictures of the window.
    void FinishMap() { m_map.Finish(); }
    /// Shows the window as it was left.
    void Show();
    /// Says what could not be kept or found again, if there is anything to say.
    void TellTroubles();
    /// Shows a message in the viewer's skin and waits; `style` and the answer are those of the system's message box.
    /// Without an owner it stands over what was active last.
    int AskMessage(const std::wstring& text, UINT style, HWND owner);
    /// Reads all files again, as the command does; icons too, and toolbars and keys where their files are among those
    /// that have changed. False: they cannot be read, which was said.
    bool ShowFilesAnew(const ConfigurationChange& change);
    /// Why the files are not shown as they are now, in the caption; empty: they are.
    void ShowProblem(const std::wstring& problem);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnClose();
    afx_msg void OnEnable(BOOL isEnabled);
    afx_msg void OnDestroy();
    afx_msg BOOL OnNcActivate(BOOL isActive);
    afx_msg void OnEndSession(BOOL isEnding);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg void OnSetFocus(CWnd* earlier);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnConfiguredCommand(UINT id);
    afx_msg void OnRecentFile(UINT id);
    afx_msg void OnToolsEntry() { CustomizeBars(); }
    afx_msg LRESULT OnResetContextMenu(WPARAM resource, LPARAM menu);
    afx_msg void OnUpdateConfiguredCommand(CCmdUI* commandUi);
    afx_msg LRESULT OnCategoryChanged(WPARAM, LPARAM);
    afx_msg LRESULT OnRebuildRibbon(WPARAM, LPARAM);
    afx_msg LRESULT OnLightTaken(WPARAM, LPARAM);
    afx_msg LRESULT OnLayerChecked(WPARAM text, LPARAM check);
    afx_msg LRESULT OnLayerColor(WPARAM item, LPARAM);
    afx_msg LRESULT OnLayerLight(WPARAM text, LPARAM isOn);
    afx_msg LRESULT OnLabelLight(WPARAM text, LPARAM isOn);
    afx_msg LRESULT OnLabelClicked(WPARAM label, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    /// Posted to itself: the bars are to be built anew when what is at work now has finished.
    static constexpr UINT kRebuildMessage = WM_APP + 1;

    /// Whether the pause between two records has not passed; then one is written after it.
    bool IsRecordTooEarly();

    // What was kept, and keeping it.
    void StartInLanguage();
    CRect StartPlace() const;
    bool IsToBeMirrored() const;
    /// Brings the windows to the direction in which the language in force is written.
    void Mirror();
    void RestoreState();
    /// The files whose layers the user had opened; those that are gone are told and left out.
    void ReopenFiles();
    void KeepState();
    /// Answers the windows that wait over the frame as their close buttons do, the uppermost first.
    void CloseDialogs();

    void BuildRibbon();
    void BuildStatusBar();
    void ShowClassicBars(bool isShown);
    void AddSearchField();
    void AddSkinButton();
    void ShowState();
    /// After a change that came by a message.
    void TakeChange();
    void ApplySkin();
    void TakeBarIcons();
    void CopyPicture(CBitmap* picture);
    void SavePicture(CBitmap* picture);
    PrintPages PagesWith(CBitmap& page) const;
    void PrintOn(CWnd& owner, CBitmap* page);
    DialogLook LookOfDialogs() const;
    ViewerOptions PresentOptions() const;
    void TakeBars(ViewerOptions::Bars bars);
    void ApplyTexts();

    int ScaleSliderPosition() const override;
    std::wstring PlaceText() const override;
    std::optional<MapLayer> ChosenLayer() const override;
    bool IsPlaceConfirmed() const override;
    void TellPlaceUnknown(const std::wstring& text) override;
    void TellAbout() override;
    void TellKeyboard() override;
    void ShowCommandSearch() override;
    void Leave() override;
    void ReloadFiles() override;
    /// Says which of the files cannot be read now; then nothing is built from them.
    bool TellBrokenFiles(const std::wstring& language);
    std::wstring ToolValue(const std::wstring& name) const;
    void Warn(const std::wstring& message);
    void Warn(const std::wstring& message, CWnd& owner);
    void SwitchLanguage(const std::wstring& code) override;
    bool IsLanguage(const std::wstring& code) const override;
    void ShowMode(MapMode mode) override;
    void CopyPage() override;
    void SavePage() override;
    void PrintPage() override;
    void PreviewPage() override;
    void AskOptions() override;
    void SwitchSkin(const std::wstring& name) override;
    bool IsSkin(const std::wstring& name) const override;
    void SwitchIconStyle(const std::wstring& style) override;
    bool IsIconStyle(const std::wstring& style) const override;
    void ToggleRibbonMinimized() override;
    bool IsRibbonMinimized() const override;
    void ToggleQuickAccessBelow() override;
    bool IsQuickAccessBelow() const override;
    void ToggleClassicBars() override;
    void CustomizeBars() override;
    bool AreClassicBarsShown() const override { return m_bars.IsShown(); }
    BOOL GetToolbarButtonToolTipText(CMFCToolBarButton* button, CString& text) override;
    void CopyPicture() override;
    void SavePicture() override;
    void OpenMapFile() override;
    void CopyText(const std::wstring& text) override;

    void ShowIcon();

    struct IconDestroyer {
        void operator()(HICON icon) const { ::DestroyIcon(icon); }
    };
    std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer> m_icon; ///< The window's small one.
    DemoOptions m_options;
    std::vector<std::wstring> m_openedFiles; ///< full paths of what m_state has opened, or more when it has closed them
    MapData m_data;
    MapState m_state;
    CMapWindow m_map;
    CMapPane m_pane;
    CViewerRibbon m_ribbon;
    ApplicationMenu m_applicationMenu;
    WorkingModes m_modes;
    ClassicBars m_bars;
    HostMenu m_contextMenu{HostMenu::Kind::RightClick};
    HelpHint m_helpHint;
    std::unique_ptr<CViewerStatusBar> m_status; ///< Made anew with the ribbon, whose commands it shows.
    LayerControls m_controls;
    ViewerMemory m_memory;
    LanguageNames m_languageNames;
    CSearchWindow m_search{[this](UINT id) { PostMessage(WM_COMMAND, id); }};
    const ScopedMessageBoxHandler m_messages;
    const CDialogWindow* m_dialog = nullptr; ///< The open one, for the record.
    bool m_isToClose = false;                ///< As soon as no dialog waits for an answer any more.
    bool m_isPreviewOrdered = false;
    bool m_tellsPlace = false;
    CSearchField* m_searchField = nullptr;         ///< As the next.
    CMFCRibbonUNIcoButton* m_skinButton = nullptr; ///< The ribbon's, beside the tabs; null when there is none.
    CMFCRibbonEdit* m_place = nullptr;             ///< The ribbon's; null when the configuration has none.
    std::wstring m_skin;
    std::wstring m_iconStyle;
    std::vector<std::wstring> m_commandTexts; ///< As the builder met them, for the record.
    std::vector<std::wstring> m_warnings;     ///< That were shown so far, for the record.
    std::string m_recorded;                   ///< What the file of the record says.
    ULONGLONG m_recordedAt = 0;               ///< When it was last compared; milliseconds of the system's run.
};
