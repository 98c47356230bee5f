#pragma once

// Windows, messages, threads, the application, menus, frames, dialogs and the classic controls.
#include "afx.h"
#include "atltypes.h"

#if __has_include("fx/gdi_objects.h")
#include "fx/gdi_objects.h"
#endif
#if __has_include("fx/dc.h")
#include "fx/dc.h"
#endif
#include "fx/cmdtarget.h"
#include "fx/cmdui.h"
#include "fx/wnd.h"
#include "fx/menu.h"
#include "fx/thread.h"
#include "fx/app.h"
#include "fx/data_exchange.h"
#include "afxmsg_.h"
#if __has_include("fx/controls.h")
#include "fx/controls.h"
#endif
#if __has_include("fx/dialog.h")
#include "fx/dialog.h"
#endif
#if __has_include("fx/frame.h")
#include "fx/frame.h"
#endif
#if __has_include("fx/mdi.h")
#include "fx/mdi.h"
#endif
