#pragma once

#include "fx/cmdui.h"
#include "fx/menu.h"
#include "fx/thread.h"
#include "fx/wnd.h"

#include <bit>
#include <type_traits>

class CDC;
class CListBox;
class CScrollBar;

/// How a message's two parameters become a handler's arguments. A shape is a list of these; message maps name the shape
/// of each message, so that a handler with another signature does not compile.
namespace fx {

/// Entries that a control handles for its parent carry this beside the message number; no window message reaches it.
constexpr UINT Reflect = 0x10000;
/// All the WM_CTLCOLORxxx messages are one message to a map.
constexpr UINT ControlColour = 0x0019;
/// nMessage of an entry whose number stands in a variable.
constexpr UINT Registered = 0x20000;
/// nMessage of an entry for PostThreadMessage, beside the message number.
constexpr UINT ThreadMessage = 0x40000;

FRAMEWORK_API CDC* TemporaryDC(HDC dc);

// Arguments. "W" and "L" are the two parameters.
template <class T>
struct W {
    using Type = T;
    static T Get(const CWnd*, const Call& call) {
        if constexpr (std::is_pointer_v<T>) {
            return reinterpret_cast<T>(call.wParam);
        } else {
            return static_cast<T>(call.wParam);
        }
    }
};
template <class T>
struct L {
    using Type = T;
    static T Get(const CWnd*, const Call& call) {
        if constexpr (std::is_pointer_v<T>) {
            return reinterpret_cast<T>(call.lParam);
        } else {
            return static_cast<T>(call.lParam);
        }
    }
};
template <class T = UINT>
struct LowW {
    using Type = T;
    static T Get(const CWnd*, const Call& call) { return static_cast<T>(LOWORD(call.wParam)); }
};
template <class T = UINT>
struct HighW {
    using Type = T;
    static T Get(const CWnd*, const Call& call) { return static_cast<T>(HIWORD(call.wParam)); }
};
template <class T = UINT>
struct LowL {
    using Type = T;
    static T Get(const CWnd*, const Call& call) { return static_cast<T>(LOWORD(call.lParam)); }
};
template <class T = UINT>
struct HighL {
    using Type = T;
    static T Get(const CWnd*, const Call& call) { return static_cast<T>(HIWORD(call.lParam)); }
};
/// Signed halves: co-ordinates.
struct XL {
    using Type = int;
    static int Get(const CWnd*, const Call& call) { return static_cast<short>(LOWORD(call.lParam)); }
};
struct YL {
    using Type = int;
    static int Get(const CWnd*, const Call& call) { return static_cast<short>(HIWORD(call.lParam)); }
};
struct PointL {
    using Type = CPoint;
    static CPoint Get(const CWnd*, const Call& call) {
        return CPoint(static_cast<short>(LOWORD(call.lParam)), static_cast<short>(HIWORD(call.lParam)));
    }
};
/// Windows and menus: the permanent object or a temporary one. Window is CWnd or, with the same address, a control
/// class.
template <class Window = CWnd>
struct WindowW {
    using Type = Window*;
    static Window* Get(const CWnd*, const Call& call) {
        return reinterpret_cast<Window*>(CWnd::FromHandle(reinterpret_cast<HWND>(call.wParam)));
    }
};
template <class Window = CWnd>
struct WindowL {
    using Type = Window*;
    static Window* Get(const CWnd*, const Call& call) {
        return reinterpret_cast<Window*>(CWnd::FromHandle(reinterpret_cast<HWND>(call.lParam)));
    }
};
struct MenuW {
    using Type = CMenu*;
    static CMenu* Get(const CWnd*, const Call& call) { return CMenu::FromHandle(reinterpret_cast<HMENU>(call.wParam)); }
};
struct MenuL {
    using Type = CMenu*;
    static CMenu* Get(const CWnd*, const Call& call) { return CMenu::FromHandle(reinterpret_cast<HMENU>(call.lParam)); }
};
struct DeviceContextW {
    using Type = CDC*;
    static CDC* Get(const CWnd*, const Call& call) { return TemporaryDC(reinterpret_cast<HDC>(call.wParam)); }
};
struct ControlColourKind {
    using Type = UINT;
    static UINT Get(const CWnd*, const Call& call) { return call.message - WM_CTLCOLORMSGBOX; }
};
struct AppCommandL {
    using Type = UINT;
    static UINT Get(const CWnd*, const Call& call) { return GET_APPCOMMAND_LPARAM(call.lParam); }
};
struct AppDeviceL {
    using Type = UINT;
    static UINT Get(const CWnd*, const Call& call) { return GET_DEVICE_LPARAM(call.lParam); }
};
struct IsActivated {
    using Type = BOOL;
    static BOOL Get(const CWnd* wnd, const Call& call) { return wnd->m_hWnd == reinterpret_cast<HWND>(call.lParam); }
};

/// Takes the signature off a handler for the table, and puts it back for the call.
template <class Member>
AFX_PMSG Erase(Member member) {
    return std::bit_cast<AFX_PMSG>(member);
}
template <class Handler>
Handler Restore(AFX_PMSG member) {
    return std::bit_cast<Handler>(member);
}

/// A window message's handler: result type and arguments. VoidResult is what a void handler answers to the sender.
template <LRESULT VoidResult, class Result, class... Arguments>
struct ShapeWith {
    using Handler = Result (CWnd::*)(typename Arguments::Type...);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        CWnd* wnd = static_cast<CWnd*>(target);
        const auto member = Restore<Handler>(handler);
        if constexpr (std::is_void_v<Result>) {
            (wnd->*member)(Arguments::Get(wnd, call)...);
            call.result = VoidResult;
        } else if constexpr (std::is_pointer_v<Result>) {
            call.result = reinterpret_cast<LRESULT>((wnd->*member)(Arguments::Get(wnd, call)...));
        } else {
            call.result = static_cast<LRESULT>((wnd->*member)(Arguments::Get(wnd, call)...));
        }
        return TRUE;
    }
};
template <class Result, class... Arguments>
using Shape = ShapeWith<0, Result, Arguments...>;
/// The sender is told with TRUE that the message was processed.
template <class... Arguments>
using ProcessedShape = ShapeWith<TRUE, void, Arguments...>;

using KeyShape = Shape<void, W<UINT>, LowL<>, HighL<>>;
using MouseShape = Shape<void, W<UINT>, PointL>;
using PlainShape = Shape<void>;
using MessageShape = Shape<LRESULT, W<WPARAM>, L<LPARAM>>;

/// TRUE from the handler: scrolled. FALSE: the message goes on, at last to the parent.
struct MouseWheelShape {
    using Handler = BOOL (CWnd::*)(UINT, short, CPoint);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        CWnd* wnd = static_cast<CWnd*>(target);
        const auto member = Restore<Handler>(handler);
        call.result = 0;
        return (wnd->*member)(LOWORD(call.wParam), static_cast<short>(HIWORD(call.wParam)), PointL::Get(wnd, call));
    }
};

/// A reflected colour question: a null brush lets the parent answer.
struct ReflectedColourShape {
    using Handler = HBRUSH (CWnd::*)(CDC*, UINT);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        CWnd* wnd = static_cast<CWnd*>(target);
        const auto member = Restore<Handler>(handler);
        const HBRUSH brush = (wnd->*member)(DeviceContextW::Get(wnd, call), ControlColourKind::Get(wnd, call));
        call.result = reinterpret_cast<LRESULT>(brush);
        return brush != nullptr;
    }
};

struct ThreadMessageShape {
    using Handler = void (CWinThread::*)(WPARAM, LPARAM);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        (static_cast<CWinThread*>(target)->*Restore<Handler>(handler))(call.wParam, call.lParam);
        return TRUE;
    }
};

// Commands and notifications: any command target may handle them.
struct CommandShape {
    using Handler = void (CCmdTarget::*)();
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call&) {
        (target->*Restore<Handler>(handler))();
        return TRUE;
    }
};
struct CommandExShape {
    using Handler = BOOL (CCmdTarget::*)(UINT);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        return (target->*Restore<Handler>(handler))(call.id);
    }
};
struct CommandRangeShape {
    using Handler = void (CCmdTarget::*)(UINT);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        (target->*Restore<Handler>(handler))(call.id);
        return TRUE;
    }
};
struct UpdateShape {
    using Handler = void (CCmdTarget::*)(CCmdUI*);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        auto* item = static_cast<CCmdUI*>(call.extra);
        item->m_bContinueRouting = FALSE;
        (target->*Restore<Handler>(handler))(item);
        const BOOL handled = !item->m_bContinueRouting;
        item->m_bContinueRouting = FALSE;
        return handled;
    }
};
struct NotifyShape {
    using Handler = void (CCmdTarget::*)(NMHDR*, LRESULT*);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        (target->*Restore<Handler>(handler))(notify->pNMHDR, notify->pResult);
        return TRUE;
    }
};
struct NotifyExShape {
    using Handler = BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        return (target->*Restore<Handler>(handler))(call.id, notify->pNMHDR, notify->pResult);
    }
};
struct NotifyRangeShape {
    using Handler = void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        (target->*Restore<Handler>(handler))(call.id, notify->pNMHDR, notify->pResult);
        return TRUE;
    }
};
struct NotifyReflectExShape {
    using Handler = BOOL (CCmdTarget::*)(NMHDR*, LRESULT*);
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call& call) {
        auto* notify = static_cast<AFX_NOTIFY*>(call.extra);
        return (target->*Restore<Handler>(handler))(notify->pNMHDR, notify->pResult);
    }
};
struct ControlReflectExShape {
    using Handler = BOOL (CCmdTarget::*)();
    static BOOL Invoke(CCmdTarget* target, AFX_PMSG handler, Call&) { return (target->*Restore<Handler>(handler))(); }
};

} // namespace fx
