#pragma once

#include "core/handler_depth.h"
#include "fx/handle_map.h"
#include "fx/menu.h"
#include "fx/wnd.h"
#include "window/message_filter.h"

#include <memory>

class CWinThread;

namespace fx {

/// The tooltip that the framework shows for windows with EnableToolTips. One per thread.
struct ToolTipState {
    HWND control = nullptr;
    HWND window = nullptr; ///< whose tool is registered
    INT_PTR hit = -1;
    TOOLINFO tool = {};
    bool isTracking = false;
};

/// What the framework knows of one thread.
struct ThreadState {
    ThreadState();

    CWinThread* thread = nullptr;
    CHandleMap<CWnd, HWND> windows;
    CHandleMap<CMenu, HMENU> menus;
    MSG handled = {}; ///< the window message being handled: what CWnd::Default repeats
    MSG pumped = {};  ///< the last message that the loop took from the queue
    WindowCreationHook* creation = nullptr;
    std::unique_ptr<MessageFilterHook> messageFilter; ///< of threads whose object handles messages
    HWND exchanging = nullptr;   ///< whose controls UpdateData fills or reads: what they notify meanwhile is no user's
    HMENU trackedMenu = nullptr; ///< the popup menu that is open by RunPopupMenu
    ToolTipState toolTip;
    bool hasOle = false; ///< AfxOleInit readied it
};

ThreadState& CurrentThread();

/// Undoes AfxOleInit, at the end of the thread's program.
void EndOle(ThreadState& thread);

/// At idle: the temporary objects of the calling thread that no running handler holds, of windows, menus and GDI.
void DeleteReleasedTemporaries();

} // namespace fx
