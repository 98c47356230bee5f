#pragma once

#include <afxcontrolbars.h>

#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "host_menu.h"
#include "map_state.h"
#include "menubar_ex.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class CUserSettings;
struct ConfigurationChange;

/// The viewer's menu bar and toolbars, which stand in for its ribbon when the user wants them: cfg\menu.xml and
/// cfg\toolbar.xml. Their combos of layers show the same as the ribbon's. The frame owns the toolbars' windows and
/// outlives this.
class ClassicBars {
public:
    explicit ClassicBars(const MapState& state) : m_state(state) {}

    /// Whether cfg\keys.xml is among the files.
    static bool HasKeys(const ConfigurationChange& change);
    /// Before the ribbon is built: enters the commands of cfg\keys.xml with their shortcuts, in place of those that
    /// were taken before; shortcuts of others stay. A menu file gives shortcuts only to commands that no file before it
    /// has.
    void TakeShortcuts();
    /// Behind Build, when all commands are there: the user's own keys over those of the files.
    void ApplyUserKeys(CUserSettings& settings);
    /// What the user has changed of the keys since they were applied; nothing before.
    void KeepUserKeys(CUserSettings& settings) const;
    /// Keeps them and leaves the frame those of the files, for files that are read anew. False: none were applied.
    bool LeaveUserKeys(CUserSettings& settings);
    /// The menu bar, hidden; the first pane of the frame. False: there is none.
    bool Create(CFrameWndEx& frame);
    /// Behind the ribbon: the menu, with its icons, and the toolbars, in the language in force.
    void Build();
    /// The next Build takes the toolbars from their file again. Those that are still in it, by group and name, come to
    /// be where they are now; where the file cannot be used all stay.
    void ForgetToolbars() { m_areToolbarsStale = true; }
    /// Behind Build, when those that were kept have their places: the others come behind them, side by side.
    void DockNewToolbars();
    /// Behind Build and after a change of the skin: gives menus and toolbars the icons that can be seen on it. `set`:
    /// the folder of those icons beside the configured one; the ribbon's buttons know the files.
    void TakeIcons(CMFCRibbonBar& ribbon, const wchar_t* set);
    void Show(bool isShown);
    /// The toolbars that the user does not want to see among the bars, by the titles in their file; and the other way.
    std::vector<std::wstring> HiddenToolbars() const;
    void HideToolbars(const std::vector<std::wstring>& titles);
    bool IsShown() const { return m_isShown; }
    /// Brings the combos to the state's values. `chosen`: the layer that is chosen in the ribbon.
    void ShowState(std::optional<MapLayer> chosen);
    /// The layer that is chosen in the combo of colours.
    std::optional<MapLayer> ChosenLayer() const;

    CMFCMenuBar& MenuBar() { return m_menuBar; }
    CDynMenuCreater& Menu() { return m_menu; }
    const CDynToolBarCreater& Toolbars() const { return m_toolbars; }
    /// Every toolbar with the name of its group.
    std::vector<std::pair<std::wstring, const CMFCToolBar*>> GroupedToolbars() const;
    /// Where the buttons of the bar are on the screen; empty while it is hidden.
    static std::vector<CRect> PlacesOf(const CMFCToolBar& bar);

private:
    void BuildToolbars();
    bool LoadToolbars();
    void NumberToolbars();
    void NameButtons();
    void FillCombos();

    struct TableEnd {
        void operator()(HACCEL table) const { ::DestroyAcceleratorTable(table); }
    };

    const MapState& m_state;
    CFrameWndEx* m_frame = nullptr;
    std::unique_ptr<std::remove_pointer_t<HACCEL>, TableEnd> m_configuredKeys; ///< null: no user's keys are applied
    CMfcMenubarEx m_menuBar;
    CDynMenuCreater m_menu;
    HostMenu m_help{HostMenu::Kind::Help};
    CDynToolBarCreater m_toolbars;
    bool m_areToolbarsStale = false;
    std::uint32_t m_firstToolbar = 0;               ///< The number of the first one's window.
    CMFCToolBarImages* m_configuredIcons = nullptr; ///< The library's list, which m_icons stands in for.
    std::vector<ACCEL> m_shortcuts;                 ///< Of cfg\keys.xml.
    std::map<CMFCToolBar*, CString> m_titles;       ///< As the file has them.
    std::map<UINT, CString> m_names;                ///< Of the buttons by their commands, as they were given last.
    CMFCToolBarImages m_icons; ///< Of the toolbars, in place of the library's list; outlives the bars' windows.
    std::vector<std::wstring> m_hidden; ///< What is hidden even when the bars are shown.
    bool m_isShown = false;
};
