#pragma once

#include "fx/cmdtarget.h"

namespace fx {

/// Offers a window message (or a reflected one, with the Reflect mark in the number) to a map and its bases in turn.
/// TRUE: a handler took it; call.result is the answer. The target may be gone by then.
BOOL InvokeMessage(const AFX_MSGMAP* map, CCmdTarget* target, UINT message, Call& call);

/// The same for messages whose entries carry a code: WM_COMMAND and WM_NOTIFY with or without the Reflect mark. With
/// info, the first matching handler is stored there instead of called.
BOOL InvokeCommand(const AFX_MSGMAP* map, CCmdTarget* target, UINT message, UINT id, int code, void* extra,
                   AFX_CMDHANDLERINFO* info);

} // namespace fx
