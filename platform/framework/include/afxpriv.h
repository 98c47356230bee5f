#pragma once
// Programs ask by this name whether the header was included.
#define __AFXPRIV_H__

// Messages of the framework to its own windows. Tools and derived bars handle or send them.
#include <windows.h>

/// Bars place themselves: lParam points to AFX_SIZEPARENTPARAMS.
#define WM_SIZEPARENT 0x0361
/// Status text: wParam is a string resource id, or 0 and lParam the text.
#define WM_SETMESSAGESTRING 0x0362
/// Once per idle time to every visible window: wParam TRUE when commands without a handler are to be disabled.
#define WM_IDLEUPDATECMDUI 0x0363
/// To a view and its siblings after they were all created.
#define WM_INITIALUPDATE 0x0364
/// Help key: TRUE when help was shown.
#define WM_COMMANDHELP 0x0365
#define WM_HELPHITTEST 0x0366
#define WM_EXITHELPMODE 0x0367
/// To a view's frame: lay out again.
#define WM_RECALCPARENT 0x0368
#define WM_SIZECHILD 0x0369
/// To a modal dialog in idle time: wParam is MSGF_DIALOGBOX, lParam counts; TRUE asks for more.
#define WM_KICKIDLE 0x036A
#define WM_QUERYCENTERWND 0x036B
#define WM_DISABLEMODAL 0x036C
#define WM_FLOATSTATUS 0x036D
#define WM_ACTIVATETOPLEVEL 0x036E
#define WM_POPMESSAGESTRING 0x0375
#define WM_HELPPROMPTADDR 0x0376

/// What children get with WM_SIZEPARENT: each takes its part off rect.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      ///< null: only ask, do not move
    RECT rect;      ///< what is left of the parent's client area
    SIZE sizeTotal; ///< sum of the children's sizes for CWnd::RepositionBars with reposQuery
    BOOL bStretch;
};
