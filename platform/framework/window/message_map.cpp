#include "window/message_map.h"

#include "fx/message_shapes.h"

namespace fx {
namespace {

constexpr UINT FirstRegisteredMessage = 0xC000;
constexpr UINT MarkMask = Reflect | ThreadMessage;

bool MatchesMessage(const AFX_MSGMAP_ENTRY& entry, UINT message) {
    if ((message & 0xFFFF) < FirstRegisteredMessage) {
        return entry.nMessage == message;
    }
    return entry.pnRegistered != nullptr && entry.nMessage == ((message & MarkMask) | Registered) &&
           *entry.pnRegistered == (message & 0xFFFF);
}

bool MatchesCommand(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT id, int code) {
    if (entry.nMessage != message || id < entry.nID || id > entry.nLastID) {
        return false;
    }
    // WM_NOTIFY codes reach this as 16 bits.
    return (message & 0xFFFF) == WM_NOTIFY ? LOWORD(entry.nCode) == LOWORD(code)
                                           : entry.nCode == static_cast<UINT>(code);
}

/// Calls found for every entry that matches, from the class itself down to its bases, until found answers TRUE.
template <class Matches, class Found>
BOOL Walk(const AFX_MSGMAP* map, Matches matches, Found found) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnInvoke != nullptr; ++entry) {
            if (matches(*entry) && found(*entry)) {
                return TRUE;
            }
        }
    }
    return FALSE;
}

} // namespace

BOOL InvokeMessage(const AFX_MSGMAP* map, CCmdTarget* target, UINT message, Call& call) {
    return Walk(
        map, [message](const AFX_MSGMAP_ENTRY& entry) { return MatchesMessage(entry, message); },
        [&](const AFX_MSGMAP_ENTRY& entry) { return entry.pfnInvoke(target, entry.pfn, call); });
}

BOOL InvokeCommand(const AFX_MSGMAP* map, CCmdTarget* target, UINT message, UINT id, int code, void* extra,
                   AFX_CMDHANDLERINFO* info) {
    return Walk(
        map, [=](const AFX_MSGMAP_ENTRY& entry) { return MatchesCommand(entry, message, id, code); },
        [&](const AFX_MSGMAP_ENTRY& entry) -> BOOL {
            if (info != nullptr) {
                info->pTarget = target;
                info->pmf = entry.pfn;
                return TRUE;
            }
            Call call;
            call.id = id;
            call.code = code;
            call.extra = extra;
            return entry.pfnInvoke(target, entry.pfn, call);
        });
}

} // namespace fx
