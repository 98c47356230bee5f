#pragma once

/// Styles and small enumerations that panes, bars and frames share.

#include "afxpriv.h"
#include "afxres.h"

/// What a pane can do for its user (its second style word).
#define AFX_CBRS_FLOAT 0x0001L
#define AFX_CBRS_CLOSE 0x0002L
#define AFX_CBRS_RESIZE 0x0004L
#define AFX_CBRS_AUTOHIDE 0x0008L
#define AFX_CBRS_REGULAR_TABS 0x0100L
#define AFX_CBRS_OUTLOOK_TABS 0x0200L
#define AFX_CBRS_AUTO_ROLLUP 0x0400L

#define AFX_DEFAULT_PANE_STYLE (AFX_CBRS_FLOAT | AFX_CBRS_CLOSE)
#define AFX_DEFAULT_DOCKING_PANE_STYLE                                                                                 \
    (AFX_CBRS_FLOAT | AFX_CBRS_CLOSE | AFX_CBRS_RESIZE | AFX_CBRS_AUTOHIDE | AFX_CBRS_REGULAR_TABS)
/// Window style of a toolbar, with its place and a gripper.
#define AFX_DEFAULT_TOOLBAR_STYLE (WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_HIDE_INPLACE)

/// What CalcLayout and its kin are asked for.
#define LM_STRETCH 0x01
#define LM_HORZ 0x02

enum AFX_DOCK_TYPE { DT_UNDEFINED = 0, DT_IMMEDIATE = 1, DT_STANDARD = 2, DT_SMART = 0x80 };
enum AFX_SMARTDOCK_THEME { AFX_SDT_DEFAULT = 0, AFX_SDT_VS2005, AFX_SDT_VS2008 };
enum AFX_CS_STATUS { CS_NOTHING, CS_DELAY_DOCK, CS_DOCK_IMMEDIATELY, CS_DELAY_DOCK_TO_TAB };
enum AFX_DOCK_METHOD { DM_UNKNOWN, DM_MOUSE, DM_DBL_CLICK, DM_SHOW, DM_RECT, DM_STANDARD };

/// Where DockToFrameWindow puts a pane among those of the same side.
#define DT_DOCK_FIRST 0
#define DT_DOCK_LAST 1
