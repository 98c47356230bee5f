#pragma once

#include "options.h"

#include "configuration_problems.h"
#include "dyn_menu_creater.h"
#include "dyn_toolbar_creater.h"
#include "ribbon_bar_ex.h"
#include "ribbon_status_bar_ex.h"

#include <afxcontrolbars.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

class CAddRibbonBar;
struct ConfigurationChange;
struct DumpSources;

/// A line on standard error.
void Complain(const std::wstring& text);

/// The frame around the previewed bars. Every configured command is enabled, because no host is there to say otherwise.
class CPreviewFrame : public CFrameWndEx {
public:
    /// The options outlive the frame.
    explicit CPreviewFrame(const BarviewOptions& options) : m_options(options), m_ribbon(FALSE) {}

    BOOL CreateFrame();
    /// Builds the bars; false when a file could not be loaded, or when what was asked for is not there.
    bool Build();
    /// Builds the bars anew whose files have changed now, or earlier when they could not be built. Bars of which a file
    /// is broken stay as they are, and all bars keep their texts while a table is broken; the caption and standard
    /// error say what is wrong until it is mended. True when anything was built.
    bool Rebuild(const ConfigurationChange& change);
    /// Whether bars that the file is for are still to be built anew.
    bool IsWaiting(const std::wstring& file) const;
    /// Behind Build, for a frame that lives on: the caption says which files were broken at the start.
    void ShowFaults();
    /// The same as if every file had changed.
    bool RebuildAll();

    DumpSources Sources();

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnCommandOfFile(UINT) {}
    afx_msg void OnUpdateCommandOfFile(CCmdUI* commandUi) { commandUi->Enable(TRUE); }
    DECLARE_MESSAGE_MAP()

private:
    /// What is built anew together.
    struct Bars {
        bool isRibbon = false;
        bool areMenus = false;
        bool areTexts = false;           ///< The tables are to be read again, and all bars after them.
        std::set<std::wstring> toolBars; ///< The files whose toolbars.

        bool AreAny() const { return isRibbon || areMenus || areTexts || !toolBars.empty(); }
        void Add(const Bars& others);
        void Remove(const Bars& others);
        bool HaveAnyOf(const Bars& others) const;
    };
    /// What is broken, in the order in which bars are built, and whose bars it keeps as they are.
    struct Faults {
        std::vector<ConfigurationProblem> problems;
        Bars kept;
    };

    /// What a host would declare: the categories that the file added and its quick access commands.
    void DeclarePath(const std::wstring& file, const CAddRibbonBar& builder);
    /// False when there is no path of the name that was asked for.
    bool ShowPath();
    // False when a file could not be loaded.
    bool BuildRibbon();
    bool BuildMenus();
    /// Of those files, in place of those that they had. False when a file could not be loaded, or holds no toolbar.
    bool BuildToolBars(const std::set<std::wstring>& files);
    /// False when there is no category of the name that was asked for.
    bool ShowCategory();
    /// False when no ribbon file of that name has a status row.
    bool ShowApplication();

    /// What a change of the file asks for.
    Bars BarsOf(const std::wstring& file) const;
    /// All that are built, without the texts.
    Bars AllBars() const;
    /// The language that was asked for, also while it cannot be read.
    std::wstring WantedLanguage() const;
    bool RebuildWaiting();
    void RebuildBars(const Bars& asked);
    void RebuildRibbon();
    void RebuildMenus();
    void RebuildToolBars(const std::set<std::wstring>& files);
    bool HasManyUnusedImages() const;
    /// The next one gets the number behind theirs.
    void CountToolBars(bool areAll);
    Faults FindFaults() const;
    /// In the caption; the directory alone where there are none.
    void ShowInCaption(const Faults& faults);

    const BarviewOptions& m_options;
    CMFCRibbonBarEx m_ribbon;
    CMFCRibbonStatusBarEx m_status;
    std::vector<std::vector<std::wstring>> m_commands;
    std::vector<std::unique_ptr<CDynMenuCreater>> m_menus;
    std::map<std::wstring, CDynToolBarCreater> m_toolBars; ///< By their files.
    // The commands that came with each, to be forgotten when it is built anew.
    std::set<std::wstring> m_ofRibbon;
    std::set<std::wstring> m_ofMenus;
    std::map<std::wstring, std::set<std::wstring>> m_ofToolBars;
    std::uint32_t m_firstToolBar = 0;
    int m_toolBarImages = 0; ///< So many were there when all were built.
    Bars m_waiting;          ///< Whose files have changed since they were built.
};
