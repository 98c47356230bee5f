#pragma once

#include "barwright_api.h"

#include <memory>

class CDynToolBarCreater;
class CFrameWnd;
class CMFCRibbonBarEx;

/// For a host that builds its ribbon a second time from files that have changed: what users have done to it stays. As
/// long as one of these lives the ribbon may be taken down and loaded anew; when it goes, the ribbon gets back what it
/// had, by the ids of the commands, so this goes together with CKeptCommandIds, which keeps them:
///
///     const CKeptCommandIds ids(keywordsOfTheRibbon);
///     const CKeptRibbonStates states(m_ribbon);
///     m_ribbon.RemoveAllCategories();
///     CAddRibbonBar builder;
///     builder.Load(L"cfg\\ribbon.xml", &m_ribbon, TRUE);
///     m_ribbon.setPath(...); // at their new positions
///
/// It gives back
///
/// - the path that is shown, and in each path the category that was active in it. Until then the ribbon knows no path,
///   so that setPath takes the new positions; one that is not declared anew has those that it had;
/// - the active category: by its command, a plain one by its name; where it has gone, the one in its place;
/// - of sliders the range and the position, of edits the text;
/// - of combos with marks the items with their data and marks, and the selection, unless the combo has items already,
///   which the host has given it meanwhile. No notice is given of any of these.
///
/// Where several elements have one command, each gets the state of the one that was in its place among them. The ribbon
/// outlives it. One at a time for a ribbon, on the user-interface thread.
class BARWRIGHT_API CKeptRibbonStates {
public:
    explicit CKeptRibbonStates(CMFCRibbonBarEx& ribbon);
    ~CKeptRibbonStates();
    CKeptRibbonStates(const CKeptRibbonStates&) = delete;
    CKeptRibbonStates& operator=(const CKeptRibbonStates&) = delete;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// The toolbars of `later` come in the place of those of `earlier`, whose windows are destroyed: both are in the frame,
/// loaded from two versions of a file.
///
/// Each that is also among the earlier ones, by group and by the name in the file, comes to be docked where that one
/// is, or floats there; it is hidden when that one is, has its window's id, and its combos with marks have the items,
/// marks and selections of those with the same command, unless they have items already. The others are docked at their
/// usual side and get ids from CDynToolBarCreater::s_ToolbarIndex on. The frame's EnableDocking and the toolbars'
/// EnableDocking come before. Call RecalcLayout of the frame behind it. User-interface thread.
BARWRIGHT_API void ReplaceToolBars(CFrameWnd& frame, const CDynToolBarCreater& earlier,
                                   const CDynToolBarCreater& later);
