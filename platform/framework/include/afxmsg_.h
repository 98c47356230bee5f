#pragma once
// Programs ask by this name whether the header was included.
#define __AFXMSG_H__

// Message map macros: what a handler's entry looks like and which signature each message's handler has. A handler with
// another signature does not compile.
#include "fx/message_shapes.h"

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                           \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const {                                                     \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap() {                                                \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                                        \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, nullptr, nullptr, nullptr }                                                                          \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                                         \
    return &map;                                                                                                       \
    }

// One entry: the static_cast is what checks the signature.
#define FX_MAP_ENTRY(message, code, first, last, variable, shape, memberFxn)                                           \
    {message,                                                                                                          \
     static_cast<UINT>(code),                                                                                          \
     static_cast<UINT>(first),                                                                                         \
     static_cast<UINT>(last),                                                                                          \
     variable,                                                                                                         \
     &shape::Invoke,                                                                                                   \
     fx::Erase(static_cast<shape::Handler>(memberFxn))},
// Like it for the shapes that are written with commas.
#define FX_MAP_WINDOW_MESSAGE(message, memberFxn, ...)                                                                 \
    {message,                                                                                                          \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     nullptr,                                                                                                          \
     &__VA_ARGS__::Invoke,                                                                                             \
     fx::Erase(static_cast<__VA_ARGS__::Handler>(&ThisClass::memberFxn))},

// Commands.
#define ON_COMMAND(id, memberFxn) FX_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, id, nullptr, fx::CommandShape, memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    FX_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, nullptr, fx::CommandRangeShape, memberFxn)
#define ON_COMMAND_EX(id, memberFxn)                                                                                   \
    FX_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, id, nullptr, fx::CommandExShape, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    FX_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, nullptr, fx::CommandExShape, memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    FX_MAP_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, nullptr, fx::UpdateShape, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    FX_MAP_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, nullptr, fx::UpdateShape, memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    FX_MAP_ENTRY(fx::Reflect + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0xFFFF, nullptr, fx::UpdateShape, memberFxn)

// Notifications of controls.
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    FX_MAP_ENTRY(WM_COMMAND, wNotifyCode, id, id, nullptr, fx::CommandShape, memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    FX_MAP_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, nullptr, fx::CommandRangeShape, memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    FX_MAP_ENTRY(fx::Reflect + WM_COMMAND, wNotifyCode, 0, 0xFFFF, nullptr, fx::CommandShape, memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    FX_MAP_ENTRY(fx::Reflect + WM_COMMAND, wNotifyCode, 0, 0xFFFF, nullptr, fx::ControlReflectExShape, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    FX_MAP_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr, fx::NotifyShape, memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    FX_MAP_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, nullptr, fx::NotifyRangeShape, memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                                       \
    FX_MAP_ENTRY(WM_NOTIFY, wNotifyCode, id, id, nullptr, fx::NotifyExShape, memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    FX_MAP_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, nullptr, fx::NotifyExShape, memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    FX_MAP_ENTRY(fx::Reflect + WM_NOTIFY, wNotifyCode, 0, 0xFFFF, nullptr, fx::NotifyShape, memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    FX_MAP_ENTRY(fx::Reflect + WM_NOTIFY, wNotifyCode, 0, 0xFFFF, nullptr, fx::NotifyReflectExShape, memberFxn)

// Messages by number.
#define ON_MESSAGE(message, memberFxn) FX_MAP_ENTRY(message, 0, 0, 0, nullptr, fx::MessageShape, memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    FX_MAP_ENTRY(fx::Registered, 0, 0, 0, &nMessageVariable, fx::MessageShape, memberFxn)
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    FX_MAP_ENTRY(fx::ThreadMessage + (message), 0, 0, 0, nullptr, fx::ThreadMessageShape, memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    FX_MAP_ENTRY(fx::ThreadMessage + fx::Registered, 0, 0, 0, &nMessageVariable, fx::ThreadMessageShape, memberFxn)

// Notifications by name.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DISABLE(id, memberFxn) ON_CONTROL(BN_DISABLE, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_HILITE(id, memberFxn) ON_CONTROL(BN_HILITE, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_BN_PAINT(id, memberFxn) ON_CONTROL(BN_PAINT, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_UNHILITE(id, memberFxn) ON_CONTROL(BN_UNHILITE, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
#define ON_STN_DISABLE(id, memberFxn) ON_CONTROL(STN_DISABLE, id, memberFxn)
#define ON_STN_ENABLE(id, memberFxn) ON_CONTROL(STN_ENABLE, id, memberFxn)

// Window messages by name; the handler has the documented name.
#define ON_WM_ACTIVATE()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_ACTIVATE, OnActivate, fx::Shape<void, fx::LowW<>, fx::WindowL<>, fx::HighW<BOOL>>)
#define ON_WM_ACTIVATEAPP()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_ACTIVATEAPP, OnActivateApp, fx::Shape<void, fx::W<BOOL>, fx::L<DWORD>>)
#define ON_WM_APPCOMMAND()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_APPCOMMAND, OnAppCommand,                                                                 \
                          fx::ProcessedShape<fx::WindowW<>, fx::AppCommandL, fx::AppDeviceL, fx::LowL<>>)
#define ON_WM_ASKCBFORMATNAME()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(WM_ASKCBFORMATNAME, OnAskCbFormatName, fx::Shape<void, fx::W<UINT>, fx::L<LPTSTR>>)
#define ON_WM_CANCELMODE() FX_MAP_WINDOW_MESSAGE(WM_CANCELMODE, OnCancelMode, fx::PlainShape)
#define ON_WM_CAPTURECHANGED()                                                                                         \
    FX_MAP_WINDOW_MESSAGE(WM_CAPTURECHANGED, OnCaptureChanged, fx::Shape<void, fx::WindowL<>>)
#define ON_WM_CHANGECBCHAIN()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_CHANGECBCHAIN, OnChangeCbChain, fx::Shape<void, fx::W<HWND>, fx::L<HWND>>)
#define ON_WM_CHANGEUISTATE()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_CHANGEUISTATE, OnChangeUIState, fx::Shape<void, fx::LowW<>, fx::HighW<>>)
#define ON_WM_CHAR() FX_MAP_WINDOW_MESSAGE(WM_CHAR, OnChar, fx::KeyShape)
#define ON_WM_CHARTOITEM()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_CHARTOITEM, OnCharToItem, fx::Shape<int, fx::LowW<>, fx::WindowL<CListBox>, fx::HighW<>>)
#define ON_WM_CHILDACTIVATE() FX_MAP_WINDOW_MESSAGE(WM_CHILDACTIVATE, OnChildActivate, fx::PlainShape)
#define ON_WM_CLIPBOARDUPDATE() FX_MAP_WINDOW_MESSAGE(WM_CLIPBOARDUPDATE, OnClipboardUpdate, fx::PlainShape)
#define ON_WM_CLOSE() FX_MAP_WINDOW_MESSAGE(WM_CLOSE, OnClose, fx::PlainShape)
#define ON_WM_COMPACTING() FX_MAP_WINDOW_MESSAGE(WM_COMPACTING, OnCompacting, fx::Shape<void, fx::W<UINT>>)
#define ON_WM_COMPAREITEM()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_COMPAREITEM, OnCompareItem, fx::Shape<int, fx::W<int>, fx::L<LPCOMPAREITEMSTRUCT>>)
#define ON_WM_CONTEXTMENU()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_CONTEXTMENU, OnContextMenu, fx::Shape<void, fx::WindowW<>, fx::PointL>)
#define ON_WM_COPYDATA()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_COPYDATA, OnCopyData, fx::Shape<BOOL, fx::WindowW<>, fx::L<COPYDATASTRUCT*>>)
#define ON_WM_CREATE() FX_MAP_WINDOW_MESSAGE(WM_CREATE, OnCreate, fx::Shape<int, fx::L<LPCREATESTRUCT>>)
#define ON_WM_DEADCHAR() FX_MAP_WINDOW_MESSAGE(WM_DEADCHAR, OnDeadChar, fx::KeyShape)
#define ON_WM_DELETEITEM()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_DELETEITEM, OnDeleteItem, fx::ProcessedShape<fx::W<int>, fx::L<LPDELETEITEMSTRUCT>>)
#define ON_WM_DESTROY() FX_MAP_WINDOW_MESSAGE(WM_DESTROY, OnDestroy, fx::PlainShape)
#define ON_WM_DESTROYCLIPBOARD() FX_MAP_WINDOW_MESSAGE(WM_DESTROYCLIPBOARD, OnDestroyClipboard, fx::PlainShape)
#define ON_WM_DEVICECHANGE()                                                                                           \
    FX_MAP_WINDOW_MESSAGE(WM_DEVICECHANGE, OnDeviceChange, fx::Shape<BOOL, fx::W<UINT>, fx::L<DWORD_PTR>>)
#define ON_WM_DEVMODECHANGE() FX_MAP_WINDOW_MESSAGE(WM_DEVMODECHANGE, OnDevModeChange, fx::Shape<void, fx::L<LPTSTR>>)
#define ON_WM_DRAWCLIPBOARD() FX_MAP_WINDOW_MESSAGE(WM_DRAWCLIPBOARD, OnDrawClipboard, fx::PlainShape)
#define ON_WM_DRAWITEM()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_DRAWITEM, OnDrawItem, fx::ProcessedShape<fx::W<int>, fx::L<LPDRAWITEMSTRUCT>>)
#define ON_WM_DROPFILES() FX_MAP_WINDOW_MESSAGE(WM_DROPFILES, OnDropFiles, fx::Shape<void, fx::W<HDROP>>)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_DWMCOLORIZATIONCOLORCHANGED, OnColorizationColorChanged,                                  \
                          fx::Shape<void, fx::W<DWORD>, fx::L<BOOL>>)
#define ON_WM_DWMCOMPOSITIONCHANGED()                                                                                  \
    FX_MAP_WINDOW_MESSAGE(WM_DWMCOMPOSITIONCHANGED, OnCompositionChanged, fx::PlainShape)
#define ON_WM_DWMNCRENDERINGCHANGED()                                                                                  \
    FX_MAP_WINDOW_MESSAGE(WM_DWMNCRENDERINGCHANGED, OnNcRenderingChanged, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE()                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_DWMWINDOWMAXIMIZEDCHANGE, OnWindowMaximizedChanged, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_ENABLE() FX_MAP_WINDOW_MESSAGE(WM_ENABLE, OnEnable, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_ENDSESSION() FX_MAP_WINDOW_MESSAGE(WM_ENDSESSION, OnEndSession, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_ENTERIDLE() FX_MAP_WINDOW_MESSAGE(WM_ENTERIDLE, OnEnterIdle, fx::Shape<void, fx::W<UINT>, fx::WindowL<>>)
#define ON_WM_ENTERMENULOOP() FX_MAP_WINDOW_MESSAGE(WM_ENTERMENULOOP, OnEnterMenuLoop, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_ENTERSIZEMOVE() FX_MAP_WINDOW_MESSAGE(WM_ENTERSIZEMOVE, OnEnterSizeMove, fx::PlainShape)
#define ON_WM_ERASEBKGND() FX_MAP_WINDOW_MESSAGE(WM_ERASEBKGND, OnEraseBkgnd, fx::Shape<BOOL, fx::DeviceContextW>)
#define ON_WM_EXITMENULOOP() FX_MAP_WINDOW_MESSAGE(WM_EXITMENULOOP, OnExitMenuLoop, fx::Shape<void, fx::W<BOOL>>)
#define ON_WM_EXITSIZEMOVE() FX_MAP_WINDOW_MESSAGE(WM_EXITSIZEMOVE, OnExitSizeMove, fx::PlainShape)
#define ON_WM_FONTCHANGE() FX_MAP_WINDOW_MESSAGE(WM_FONTCHANGE, OnFontChange, fx::PlainShape)
#define ON_WM_GETDLGCODE() FX_MAP_WINDOW_MESSAGE(WM_GETDLGCODE, OnGetDlgCode, fx::Shape<UINT>)
#define ON_WM_GETMINMAXINFO()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_GETMINMAXINFO, OnGetMinMaxInfo, fx::Shape<void, fx::L<MINMAXINFO*>>)
#define ON_WM_HOTKEY() FX_MAP_WINDOW_MESSAGE(WM_HOTKEY, OnHotKey, fx::Shape<void, fx::W<UINT>, fx::LowL<>, fx::HighL<>>)
#define ON_WM_HSCROLL()                                                                                                \
    FX_MAP_WINDOW_MESSAGE(WM_HSCROLL, OnHScroll, fx::Shape<void, fx::LowW<>, fx::HighW<>, fx::WindowL<CScrollBar>>)
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    FX_MAP_WINDOW_MESSAGE(WM_HSCROLLCLIPBOARD, OnHScrollClipboard,                                                     \
                          fx::Shape<void, fx::WindowW<>, fx::LowL<>, fx::HighL<>>)
#define ON_WM_ICONERASEBKGND()                                                                                         \
    FX_MAP_WINDOW_MESSAGE(WM_ICONERASEBKGND, OnIconEraseBkgnd, fx::Shape<void, fx::DeviceContextW>)
#define ON_WM_INITMENU() FX_MAP_WINDOW_MESSAGE(WM_INITMENU, OnInitMenu, fx::Shape<void, fx::MenuW>)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_INITMENUPOPUP, OnInitMenuPopup, fx::Shape<void, fx::MenuW, fx::LowL<>, fx::HighL<BOOL>>)
#define ON_WM_INPUT() FX_MAP_WINDOW_MESSAGE(WM_INPUT, OnRawInput, fx::Shape<void, fx::W<UINT>, fx::L<HRAWINPUT>>)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                                    \
    FX_MAP_WINDOW_MESSAGE(WM_INPUT_DEVICE_CHANGE, OnInputDeviceChange, fx::Shape<void, fx::W<unsigned short>>)
#define ON_WM_INPUTLANGCHANGE()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(WM_INPUTLANGCHANGE, OnInputLangChange, fx::Shape<void, fx::W<UINT>, fx::L<UINT>>)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    FX_MAP_WINDOW_MESSAGE(WM_INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest,                                         \
                          fx::Shape<void, fx::W<UINT>, fx::L<UINT>>)
#define ON_WM_KEYDOWN() FX_MAP_WINDOW_MESSAGE(WM_KEYDOWN, OnKeyDown, fx::KeyShape)
#define ON_WM_KEYUP() FX_MAP_WINDOW_MESSAGE(WM_KEYUP, OnKeyUp, fx::KeyShape)
#define ON_WM_KILLFOCUS() FX_MAP_WINDOW_MESSAGE(WM_KILLFOCUS, OnKillFocus, fx::Shape<void, fx::WindowW<>>)
#define ON_WM_LBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_LBUTTONDBLCLK, OnLButtonDblClk, fx::MouseShape)
#define ON_WM_LBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_LBUTTONDOWN, OnLButtonDown, fx::MouseShape)
#define ON_WM_LBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_LBUTTONUP, OnLButtonUp, fx::MouseShape)
#define ON_WM_MBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_MBUTTONDBLCLK, OnMButtonDblClk, fx::MouseShape)
#define ON_WM_MBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_MBUTTONDOWN, OnMButtonDown, fx::MouseShape)
#define ON_WM_MBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_MBUTTONUP, OnMButtonUp, fx::MouseShape)
#define ON_WM_MDIACTIVATE()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_MDIACTIVATE, OnMDIActivate, fx::Shape<void, fx::IsActivated, fx::WindowL<>, fx::WindowW<>>)
#define ON_WM_MEASUREITEM()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_MEASUREITEM, OnMeasureItem, fx::ProcessedShape<fx::W<int>, fx::L<LPMEASUREITEMSTRUCT>>)
#define ON_WM_MENUCHAR()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_MENUCHAR, OnMenuChar, fx::Shape<LRESULT, fx::LowW<>, fx::HighW<>, fx::MenuL>)
#define ON_WM_MENUDRAG() FX_MAP_WINDOW_MESSAGE(WM_MENUDRAG, OnMenuDrag, fx::Shape<UINT, fx::W<UINT>, fx::MenuL>)
#define ON_WM_MENUGETOBJECT()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_MENUGETOBJECT, OnMenuGetObject, fx::Shape<UINT, fx::L<MENUGETOBJECTINFO*>>)
#define ON_WM_MENURBUTTONUP()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_MENURBUTTONUP, OnMenuRButtonUp, fx::Shape<void, fx::W<UINT>, fx::MenuL>)
#define ON_WM_MENUSELECT()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_MENUSELECT, OnMenuSelect, fx::Shape<void, fx::LowW<>, fx::HighW<>, fx::L<HMENU>>)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_MOUSEACTIVATE, OnMouseActivate, fx::Shape<int, fx::WindowW<>, fx::LowL<>, fx::HighL<>>)
#define ON_WM_MOUSEHOVER() FX_MAP_WINDOW_MESSAGE(WM_MOUSEHOVER, OnMouseHover, fx::MouseShape)
#define ON_WM_MOUSEHWHEEL()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_MOUSEHWHEEL, OnMouseHWheel, fx::Shape<void, fx::LowW<>, fx::HighW<short>, fx::PointL>)
#define ON_WM_MOUSELEAVE() FX_MAP_WINDOW_MESSAGE(WM_MOUSELEAVE, OnMouseLeave, fx::PlainShape)
#define ON_WM_MOUSEMOVE() FX_MAP_WINDOW_MESSAGE(WM_MOUSEMOVE, OnMouseMove, fx::MouseShape)
#define ON_WM_MOUSEWHEEL() FX_MAP_WINDOW_MESSAGE(WM_MOUSEWHEEL, OnMouseWheel, fx::MouseWheelShape)
#define ON_WM_MOVE() FX_MAP_WINDOW_MESSAGE(WM_MOVE, OnMove, fx::Shape<void, fx::XL, fx::YL>)
#define ON_WM_MOVING() FX_MAP_WINDOW_MESSAGE(WM_MOVING, OnMoving, fx::ProcessedShape<fx::W<UINT>, fx::L<LPRECT>>)
#define ON_WM_NCACTIVATE() FX_MAP_WINDOW_MESSAGE(WM_NCACTIVATE, OnNcActivate, fx::Shape<BOOL, fx::W<BOOL>>)
#define ON_WM_NCCALCSIZE()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_NCCALCSIZE, OnNcCalcSize, fx::Shape<void, fx::W<BOOL>, fx::L<NCCALCSIZE_PARAMS*>>)
#define ON_WM_NCCREATE() FX_MAP_WINDOW_MESSAGE(WM_NCCREATE, OnNcCreate, fx::Shape<BOOL, fx::L<LPCREATESTRUCT>>)
#define ON_WM_NCDESTROY() FX_MAP_WINDOW_MESSAGE(WM_NCDESTROY, OnNcDestroy, fx::PlainShape)
#define ON_WM_NCHITTEST() FX_MAP_WINDOW_MESSAGE(WM_NCHITTEST, OnNcHitTest, fx::Shape<LRESULT, fx::PointL>)
#define ON_WM_NCLBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, fx::MouseShape)
#define ON_WM_NCLBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_NCLBUTTONDOWN, OnNcLButtonDown, fx::MouseShape)
#define ON_WM_NCLBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_NCLBUTTONUP, OnNcLButtonUp, fx::MouseShape)
#define ON_WM_NCMBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk, fx::MouseShape)
#define ON_WM_NCMBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_NCMBUTTONDOWN, OnNcMButtonDown, fx::MouseShape)
#define ON_WM_NCMBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_NCMBUTTONUP, OnNcMButtonUp, fx::MouseShape)
#define ON_WM_NCMOUSEHOVER() FX_MAP_WINDOW_MESSAGE(WM_NCMOUSEHOVER, OnNcMouseHover, fx::MouseShape)
#define ON_WM_NCMOUSELEAVE() FX_MAP_WINDOW_MESSAGE(WM_NCMOUSELEAVE, OnNcMouseLeave, fx::PlainShape)
#define ON_WM_NCMOUSEMOVE() FX_MAP_WINDOW_MESSAGE(WM_NCMOUSEMOVE, OnNcMouseMove, fx::MouseShape)
#define ON_WM_NCPAINT() FX_MAP_WINDOW_MESSAGE(WM_NCPAINT, OnNcPaint, fx::PlainShape)
#define ON_WM_NCRBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk, fx::MouseShape)
#define ON_WM_NCRBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_NCRBUTTONDOWN, OnNcRButtonDown, fx::MouseShape)
#define ON_WM_NCRBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_NCRBUTTONUP, OnNcRButtonUp, fx::MouseShape)
#define ON_WM_NCXBUTTONDBLCLK()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(WM_NCXBUTTONDBLCLK, OnNcXButtonDblClk,                                                       \
                          fx::ProcessedShape<fx::LowW<short>, fx::HighW<>, fx::PointL>)
#define ON_WM_NCXBUTTONDOWN()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_NCXBUTTONDOWN, OnNcXButtonDown,                                                           \
                          fx::ProcessedShape<fx::LowW<short>, fx::HighW<>, fx::PointL>)
#define ON_WM_NCXBUTTONUP()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_NCXBUTTONUP, OnNcXButtonUp, fx::ProcessedShape<fx::LowW<short>, fx::HighW<>, fx::PointL>)
#define ON_WM_NEXTMENU()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(WM_NEXTMENU, OnNextMenu, fx::Shape<void, fx::W<UINT>, fx::L<LPMDINEXTMENU>>)
#define ON_WM_NOTIFYFORMAT()                                                                                           \
    FX_MAP_WINDOW_MESSAGE(WM_NOTIFYFORMAT, OnNotifyFormat, fx::Shape<UINT, fx::WindowW<>, fx::L<UINT>>)
#define ON_WM_PAINT() FX_MAP_WINDOW_MESSAGE(WM_PAINT, OnPaint, fx::PlainShape)
#define ON_WM_PAINTCLIPBOARD()                                                                                         \
    FX_MAP_WINDOW_MESSAGE(WM_PAINTCLIPBOARD, OnPaintClipboard, fx::Shape<void, fx::WindowW<>, fx::L<HGLOBAL>>)
#define ON_WM_PALETTECHANGED()                                                                                         \
    FX_MAP_WINDOW_MESSAGE(WM_PALETTECHANGED, OnPaletteChanged, fx::Shape<void, fx::WindowW<>>)
#define ON_WM_PALETTEISCHANGING()                                                                                      \
    FX_MAP_WINDOW_MESSAGE(WM_PALETTEISCHANGING, OnPaletteIsChanging, fx::Shape<void, fx::WindowW<>>)
#define ON_WM_PARENTNOTIFY()                                                                                           \
    FX_MAP_WINDOW_MESSAGE(WM_PARENTNOTIFY, OnParentNotify, fx::Shape<void, fx::LowW<>, fx::L<LPARAM>>)
#define ON_WM_POWERBROADCAST()                                                                                         \
    FX_MAP_WINDOW_MESSAGE(WM_POWERBROADCAST, OnPowerBroadcast, fx::Shape<UINT, fx::W<UINT>, fx::L<UINT>>)
#define ON_WM_QUERYDRAGICON() FX_MAP_WINDOW_MESSAGE(WM_QUERYDRAGICON, OnQueryDragIcon, fx::Shape<HCURSOR>)
#define ON_WM_QUERYENDSESSION() FX_MAP_WINDOW_MESSAGE(WM_QUERYENDSESSION, OnQueryEndSession, fx::Shape<BOOL>)
#define ON_WM_QUERYNEWPALETTE() FX_MAP_WINDOW_MESSAGE(WM_QUERYNEWPALETTE, OnQueryNewPalette, fx::Shape<BOOL>)
#define ON_WM_QUERYOPEN() FX_MAP_WINDOW_MESSAGE(WM_QUERYOPEN, OnQueryOpen, fx::Shape<BOOL>)
#define ON_WM_QUERYUISTATE() FX_MAP_WINDOW_MESSAGE(WM_QUERYUISTATE, OnQueryUIState, fx::Shape<UINT>)
#define ON_WM_RBUTTONDBLCLK() FX_MAP_WINDOW_MESSAGE(WM_RBUTTONDBLCLK, OnRButtonDblClk, fx::MouseShape)
#define ON_WM_RBUTTONDOWN() FX_MAP_WINDOW_MESSAGE(WM_RBUTTONDOWN, OnRButtonDown, fx::MouseShape)
#define ON_WM_RBUTTONUP() FX_MAP_WINDOW_MESSAGE(WM_RBUTTONUP, OnRButtonUp, fx::MouseShape)
#define ON_WM_RENDERALLFORMATS() FX_MAP_WINDOW_MESSAGE(WM_RENDERALLFORMATS, OnRenderAllFormats, fx::PlainShape)
#define ON_WM_RENDERFORMAT() FX_MAP_WINDOW_MESSAGE(WM_RENDERFORMAT, OnRenderFormat, fx::Shape<void, fx::W<UINT>>)
#define ON_WM_SETCURSOR()                                                                                              \
    FX_MAP_WINDOW_MESSAGE(WM_SETCURSOR, OnSetCursor, fx::Shape<BOOL, fx::WindowW<>, fx::LowL<>, fx::HighL<>>)
#define ON_WM_SETFOCUS() FX_MAP_WINDOW_MESSAGE(WM_SETFOCUS, OnSetFocus, fx::Shape<void, fx::WindowW<>>)
#define ON_WM_SETTINGCHANGE()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_SETTINGCHANGE, OnSettingChange, fx::Shape<void, fx::W<UINT>, fx::L<LPCTSTR>>)
#define ON_WM_SHOWWINDOW() FX_MAP_WINDOW_MESSAGE(WM_SHOWWINDOW, OnShowWindow, fx::Shape<void, fx::W<BOOL>, fx::L<UINT>>)
#define ON_WM_SIZE() FX_MAP_WINDOW_MESSAGE(WM_SIZE, OnSize, fx::Shape<void, fx::W<UINT>, fx::LowL<int>, fx::HighL<int>>)
#define ON_WM_SIZECLIPBOARD()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_SIZECLIPBOARD, OnSizeClipboard, fx::Shape<void, fx::WindowW<>, fx::L<HGLOBAL>>)
#define ON_WM_SIZING() FX_MAP_WINDOW_MESSAGE(WM_SIZING, OnSizing, fx::ProcessedShape<fx::W<UINT>, fx::L<LPRECT>>)
#define ON_WM_SPOOLERSTATUS()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_SPOOLERSTATUS, OnSpoolerStatus, fx::Shape<void, fx::W<UINT>, fx::LowL<>>)
#define ON_WM_STYLECHANGED()                                                                                           \
    FX_MAP_WINDOW_MESSAGE(WM_STYLECHANGED, OnStyleChanged, fx::Shape<void, fx::W<int>, fx::L<LPSTYLESTRUCT>>)
#define ON_WM_STYLECHANGING()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_STYLECHANGING, OnStyleChanging, fx::Shape<void, fx::W<int>, fx::L<LPSTYLESTRUCT>>)
#define ON_WM_SYSCHAR() FX_MAP_WINDOW_MESSAGE(WM_SYSCHAR, OnSysChar, fx::KeyShape)
#define ON_WM_SYSCOLORCHANGE() FX_MAP_WINDOW_MESSAGE(WM_SYSCOLORCHANGE, OnSysColorChange, fx::PlainShape)
#define ON_WM_SYSCOMMAND()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_SYSCOMMAND, OnSysCommand, fx::Shape<void, fx::W<UINT>, fx::L<LPARAM>>)
#define ON_WM_SYSDEADCHAR() FX_MAP_WINDOW_MESSAGE(WM_SYSDEADCHAR, OnSysDeadChar, fx::KeyShape)
#define ON_WM_SYSKEYDOWN() FX_MAP_WINDOW_MESSAGE(WM_SYSKEYDOWN, OnSysKeyDown, fx::KeyShape)
#define ON_WM_SYSKEYUP() FX_MAP_WINDOW_MESSAGE(WM_SYSKEYUP, OnSysKeyUp, fx::KeyShape)
#define ON_WM_TCARD() FX_MAP_WINDOW_MESSAGE(WM_TCARD, OnTCard, fx::Shape<void, fx::W<UINT>, fx::L<DWORD>>)
#define ON_WM_TIMECHANGE() FX_MAP_WINDOW_MESSAGE(WM_TIMECHANGE, OnTimeChange, fx::PlainShape)
#define ON_WM_TIMER() FX_MAP_WINDOW_MESSAGE(WM_TIMER, OnTimer, fx::Shape<void, fx::W<UINT_PTR>>)
#define ON_WM_UNICHAR() FX_MAP_WINDOW_MESSAGE(WM_UNICHAR, OnUniChar, fx::KeyShape)
#define ON_WM_UNINITMENUPOPUP()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(WM_UNINITMENUPOPUP, OnUnInitMenuPopup, fx::Shape<void, fx::MenuW, fx::HighL<>>)
#define ON_WM_UPDATEUISTATE()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_UPDATEUISTATE, OnUpdateUIState, fx::Shape<void, fx::LowW<>, fx::HighW<>>)
#define ON_WM_USERCHANGED() FX_MAP_WINDOW_MESSAGE(WM_USERCHANGED, OnUserChanged, fx::PlainShape)
#define ON_WM_VKEYTOITEM()                                                                                             \
    FX_MAP_WINDOW_MESSAGE(WM_VKEYTOITEM, OnVKeyToItem, fx::Shape<int, fx::LowW<>, fx::WindowL<CListBox>, fx::HighW<>>)
#define ON_WM_VSCROLL()                                                                                                \
    FX_MAP_WINDOW_MESSAGE(WM_VSCROLL, OnVScroll, fx::Shape<void, fx::LowW<>, fx::HighW<>, fx::WindowL<CScrollBar>>)
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    FX_MAP_WINDOW_MESSAGE(WM_VSCROLLCLIPBOARD, OnVScrollClipboard,                                                     \
                          fx::Shape<void, fx::WindowW<>, fx::LowL<>, fx::HighL<>>)
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    FX_MAP_WINDOW_MESSAGE(WM_WINDOWPOSCHANGED, OnWindowPosChanged, fx::Shape<void, fx::L<WINDOWPOS*>>)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    FX_MAP_WINDOW_MESSAGE(WM_WINDOWPOSCHANGING, OnWindowPosChanging, fx::Shape<void, fx::L<WINDOWPOS*>>)
#define ON_WM_WTSSESSION_CHANGE()                                                                                      \
    FX_MAP_WINDOW_MESSAGE(WM_WTSSESSION_CHANGE, OnSessionChange, fx::Shape<void, fx::W<UINT>, fx::L<UINT>>)
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    FX_MAP_WINDOW_MESSAGE(WM_XBUTTONDBLCLK, OnXButtonDblClk, fx::ProcessedShape<fx::LowW<>, fx::HighW<>, fx::PointL>)
#define ON_WM_XBUTTONDOWN()                                                                                            \
    FX_MAP_WINDOW_MESSAGE(WM_XBUTTONDOWN, OnXButtonDown, fx::ProcessedShape<fx::LowW<>, fx::HighW<>, fx::PointL>)
#define ON_WM_XBUTTONUP()                                                                                              \
    FX_MAP_WINDOW_MESSAGE(WM_XBUTTONUP, OnXButtonUp, fx::ProcessedShape<fx::LowW<>, fx::HighW<>, fx::PointL>)
#define ON_WM_CTLCOLOR()                                                                                               \
    FX_MAP_WINDOW_MESSAGE(fx::ControlColour, OnCtlColor,                                                               \
                          fx::Shape<HBRUSH, fx::DeviceContextW, fx::WindowL<>, fx::ControlColourKind>)
#define ON_WM_HELPINFO() FX_MAP_WINDOW_MESSAGE(WM_HELP, OnHelpInfo, fx::Shape<BOOL, fx::L<HELPINFO*>>)
#define ON_WM_WININICHANGE() FX_MAP_WINDOW_MESSAGE(WM_WININICHANGE, OnWinIniChange, fx::Shape<void, fx::L<LPCTSTR>>)

// Messages to the parent that the control handles itself.
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_DELETEITEM, DeleteItem, fx::ProcessedShape<fx::L<LPDELETEITEMSTRUCT>>)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_DRAWITEM, DrawItem, fx::ProcessedShape<fx::L<LPDRAWITEMSTRUCT>>)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_MEASUREITEM, MeasureItem, fx::ProcessedShape<fx::L<LPMEASUREITEMSTRUCT>>)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_COMPAREITEM, CompareItem, fx::Shape<int, fx::L<LPCOMPAREITEMSTRUCT>>)
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_CHARTOITEM, CharToItem, fx::Shape<int, fx::LowW<>, fx::HighW<>>)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_VKEYTOITEM, VKeyToItem, fx::Shape<int, fx::LowW<>, fx::HighW<>>)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_HSCROLL, HScroll, fx::Shape<void, fx::LowW<>, fx::HighW<>>)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_VSCROLL, VScroll, fx::Shape<void, fx::LowW<>, fx::HighW<>>)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + WM_PARENTNOTIFY, ParentNotify, fx::Shape<void, fx::LowW<>, fx::L<LPARAM>>)
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    FX_MAP_WINDOW_MESSAGE(fx::Reflect + fx::ControlColour, CtlColor, fx::ReflectedColourShape)
