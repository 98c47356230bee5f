#pragma once

#include "afx.h"
#include "framework_api.h"

class CCmdTarget;
class CCmdUI;
class CWnd;

#ifndef afx_msg
#define afx_msg
#endif
#ifndef AFXAPI
#define AFXAPI __stdcall
#endif
#ifndef AFX_CDECL
#define AFX_CDECL __cdecl
#endif
#ifndef AFX_MSG_CALL
#define AFX_MSG_CALL
#endif

/// Any handler of a message map, with its signature taken off. A map entry's shape puts it back before the call.
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)(void);

/// Filled by CCmdTarget::OnCmdMsg instead of a call when the caller only asks who would handle a command.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)(void);
};

/// The nCode of CCmdTarget::OnCmdMsg for a command and for its update; every other value is a control's notification
/// code, or MAKELONG(low word of the code, WM_NOTIFY) for a WM_NOTIFY (then pExtra points to an AFX_NOTIFY).
constexpr int CN_COMMAND = 0;
constexpr int CN_UPDATE_COMMAND_UI = -1;

/// pExtra of OnCmdMsg for a WM_NOTIFY.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

namespace fx {

/// What a map entry's shape needs to call its handler: a window message or a command.
struct Call {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT result = 0;
    UINT id = 0;
    int code = 0;
    void* extra = nullptr;
};

/// Calls the handler with the arguments unpacked. FALSE: the handler wants the message to go on as if it were not
/// there.
using Invoke = BOOL (*)(CCmdTarget* target, AFX_PMSG handler, Call& call);

} // namespace fx

/// One row of a message map; the list ends with a row without a shape.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage; ///< window message, WM_COMMAND, WM_NOTIFY, or one of the fx::Reflect values
    UINT nCode;    ///< control or notification code, CN_COMMAND, CN_UPDATE_COMMAND_UI
    UINT nID;      ///< first command or control id, 0 for window messages
    UINT nLastID;
    const UINT* pnRegistered; ///< variable that holds a registered message's number
    fx::Invoke pfnInvoke;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    const AFX_MSGMAP* GetMessageMap() const override;

/// The base of everything that has a message map. Commands find their handler through OnCmdMsg.
class FRAMEWORK_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Looks the command up in the message map of this object. TRUE: handled (or, with pHandlerInfo, found and stored
    /// there without a call). Overrides add further objects to the route.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// The hour-glass, counted: the last EndWaitCursor brings the cursor back.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
    friend class CWnd;
    friend class CWinThread;
};

/// Shows the hour-glass for the life of the object.
class FRAMEWORK_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};
