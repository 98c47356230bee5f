#include "window/frame_keys.h"

#include "fx/app.h"
#include "fx/frame.h"

namespace {

bool IsTextFor(const MSG& message) {
    return message.message == WM_CHAR &&
           (::SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, 0) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) != 0;
}

/// A frame that a modal dialog has disabled takes none.
bool TakesKeys(CWnd* window) {
    return window && window->m_hWnd && window->IsKindOf(RUNTIME_CLASS(CFrameWnd)) &&
           ::IsWindowEnabled(::GetAncestor(window->m_hWnd, GA_ROOT));
}

} // namespace

BOOL fx::TranslateFrameKey(HWND dialog, MSG& message) {
    if (IsTextFor(message)) {
        return FALSE;
    }
    CWnd* const main = AfxGetMainWnd();
    bool hasAskedMain = false;
    for (HWND window = ::GetParent(dialog); window; window = ::GetParent(window)) {
        CWnd* const above = CWnd::FromHandlePermanent(window);
        hasAskedMain |= above == main;
        if (TakesKeys(above) && above->PreTranslateMessage(&message)) {
            return TRUE;
        }
    }
    return !hasAskedMain && TakesKeys(main) && main->PreTranslateMessage(&message);
}

BOOL fx::TranslateDialogInput(HWND dialog, MSG& message, BOOL(WINAPI* takeInput)(HWND dialog, MSG* message)) {
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    const bool isMouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    if (isKey && TranslateFrameKey(dialog, message)) {
        return TRUE;
    }
    return (isKey || isMouse) && takeInput(dialog, &message);
}
