#pragma once
// Programs ask by this name whether the header was included.
#define __AFXWIN_H__

// Windows, messages, threads, the application, menus, frames, dialogs and the classic controls.
#include "afx.h"
#include "atltypes.h"

#include "afxdd_.h"
#include "afxmsg_.h"
#include "fx/app.h"
#include "fx/cmdtarget.h"
#include "fx/cmdui.h"
#include "fx/controls.h"
#include "fx/data_exchange.h"
#include "fx/dc.h"
#include "fx/dialog.h"
#include "fx/doc_template.h"
#include "fx/document.h"
#include "fx/frame.h"
#include "fx/gdi_objects.h"
#include "fx/mdi.h"
#include "fx/menu.h"
#include "fx/mini_frame.h"
#include "fx/scroll_view.h"
#include "fx/thread.h"
#include "fx/view.h"
#include "fx/window_dc.h"
#include "fx/wnd.h"

/// The signed co-ordinates of a mouse message's lParam.
#define AFX_GET_X_LPARAM(lp) (static_cast<int>(static_cast<short>(LOWORD(lp))))
#define AFX_GET_Y_LPARAM(lp) (static_cast<int>(static_cast<short>(HIWORD(lp))))
