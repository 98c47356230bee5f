#pragma once

#include <windows.h>

namespace fx {

/// While it lives, the calling thread's CWinThread is asked for what the system's own loops take from the queue: menus,
/// message boxes, dialogs.
class MessageFilterHook {
public:
    MessageFilterHook();
    ~MessageFilterHook();
    MessageFilterHook(const MessageFilterHook&) = delete;
    MessageFilterHook& operator=(const MessageFilterHook&) = delete;

private:
    HHOOK m_hook;
};

/// F1 in a menu or dialog is ID_HELP for the window that it belongs to, provided somebody handles that. TRUE:
/// processed. code: MSGF_x, as the hook gets it.
BOOL HandleHelpKey(int code, const MSG& message);

} // namespace fx
