#include "fx/cmdtarget.h"

#include "fx/app.h"
#include "window/message_map.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const bool isNotify = nCode != CN_UPDATE_COMMAND_UI && HIWORD(nCode) == WM_NOTIFY;
    return fx::InvokeCommand(GetMessageMap(), this, isNotify ? WM_NOTIFY : WM_COMMAND, nID, nCode, pExtra,
                             pHandlerInfo);
}

void CCmdTarget::BeginWaitCursor() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(1);
    }
}

void CCmdTarget::EndWaitCursor() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(-1);
    }
}

void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(0);
    }
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(1);
    }
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(-1);
    }
}

void CWaitCursor::Restore() {
    if (CWinApp* app = AfxGetApp()) {
        app->DoWaitCursor(0);
    }
}
