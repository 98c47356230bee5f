#pragma once

#include "barwright_api.h"
#include "toolbar_info.h"

#include <afxMDIFrameWndEx.h>
#include <afxtoolbar.h>

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class CXmlNodeWrapper;

/// Builds the toolbars of a frame from a toolbar configuration file, enters their commands in CMenuIdMgr and keeps the
/// bars in named groups. The host makes one for its frame, on the user-interface thread, calls Load, EnableDocking and
/// DockPane, and keeps it as long as the frame.
///
/// A bar that Load makes belongs to its window, which the frame destroys, and to the objects that remember it: it is
/// deleted when neither is left. Copies share the bars. Bars without a window any more are passed over by all but
/// GetAllToolBar and GetGroupedToolBars.
class BARWRIGHT_API CDynToolBarCreater {
public:
    using ToolBarInfo = ::ToolBarInfo;

    CDynToolBarCreater();
    CDynToolBarCreater(const CDynToolBarCreater&);
    CDynToolBarCreater& operator=(const CDynToolBarCreater&);
    ~CDynToolBarCreater();

    /// Adds the file's bars, as children of `parent`. `path` is relative to the installation directory
    /// (FileOp::GetAppPath). True when there is any group afterwards; false, without a message, for an empty path, an
    /// unknown installation directory, a null parent and a file that cannot be loaded.
    bool Load(std::wstring path, CWnd* parent);

    /// The first bar of the group whose window text is the title, letter case aside; null without one.
    CMFCToolBar* GetToolBar(const std::wstring& group, const CString& title) const;
    /// Groups in the order of their names, bars in the order of their creation.
    std::list<CMFCToolBar*> GetAllToolBar() const;
    /// The same, each with the name of its group.
    std::list<std::pair<std::wstring, CMFCToolBar*>> GetGroupedToolBars() const;
    /// What a bar is called in its file, or was called for AddCustomBar, whatever its window's text has become; empty
    /// for a bar that is not here.
    std::wstring GetName(const CMFCToolBar* bar) const;
    /// Puts a bar of the host's, which stays its own and must outlive the creater, into a group that exists; without a
    /// name it is known by its window text. False for a null bar and an unknown group. A bar is configured from then
    /// on, in either case: its buttons are not kept with the user's settings.
    bool AddCustomBar(const std::wstring& group, CMFCToolBar* bar, const std::wstring& name);
    bool empty() const { return m_groups.empty(); }

    // A null frame stands for the application's main window; nothing happens when that is none of this class.
    /// Shows (other than 0) or hides what is not yet so. The layout follows when the application is idle.
    void ShowBars(int show, CMDIFrameWndEx* frame) const;
    void ShowBars(const std::wstring& group, int show, CMDIFrameWndEx* frame) const;
    void DockPane(CMDIFrameWndEx* frame) const;
    /// `alignment`: CBRS_ALIGN_ values.
    void EnableDocking(std::uint32_t alignment, CMDIFrameWndEx* frame) const;

    /// The control id of the next toolbar's window.
    static std::uint32_t s_ToolbarIndex;

private:
    class Building;
    using Bars = std::vector<std::pair<CMFCToolBar*, std::wstring>>;

    static void ReadBarInfo(const CXmlNodeWrapper& node, ToolBarInfo& info);
    static void AddChildBar(const CXmlNodeWrapper& node, CMFCToolBar* bar);

    std::map<std::wstring, Bars> m_groups;
    std::vector<std::shared_ptr<CMFCToolBar>> m_made; // by Load; what hosts have added stays theirs
};
