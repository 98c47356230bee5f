#include "varnhold/message_box.h"

#include <iterator>
#include <utility>

namespace {

struct State {
    std::wstring title;
    MessageBoxHandler handler;
};

State& GetState() {
    static State state;
    return state;
}

struct BoxStyle {
    int status;
    UINT style;
};
constexpr BoxStyle kStyles[] = {
    {QK_MESSAGE_INFORMATION, MB_OK | MB_ICONINFORMATION},
    {QK_MESSAGE_QUESTION, MB_YESNO | MB_ICONQUESTION},
    {QK_MESSAGE_WARNING, MB_OK | MB_ICONWARNING},
    {QK_MESSAGE_ERROR, MB_OK | MB_ICONERROR},
};

UINT GetBoxStyle(int status) {
    for (const BoxStyle& entry : kStyles) {
        if (entry.status == status) {
            return entry.style;
        }
    }
    return kStyles[0].style;
}

std::wstring GetProgramName() {
    wchar_t path[32768];
    const DWORD length = GetModuleFileNameW(nullptr, path, static_cast<DWORD>(std::size(path)));
    std::wstring name(path, length);
    name.erase(0, name.find_last_of(L"\\/") + 1);
    return name.substr(0, name.rfind(L'.'));
}

} // namespace

int QKMessageBox(const std::wstring& message, int status, HWND owner) {
    // A copy: the handler may install another one while it runs.
    if (const MessageBoxHandler handler = GetState().handler) {
        return handler(message, status, owner);
    }
    // Without an owner the box still keeps the thread's other windows from being used meanwhile.
    const UINT modality = owner ? MB_APPLMODAL : MB_TASKMODAL;
    return MessageBoxW(owner, message.c_str(), getMessageBoxTitle().c_str(), GetBoxStyle(status) | modality);
}

int QKMessageBox(const wchar_t* message, int status, HWND owner) {
    return QKMessageBox(std::wstring(message ? message : L""), status, owner);
}

std::wstring getMessageBoxTitle() { return GetState().title.empty() ? GetProgramName() : GetState().title; }

void setMessageBoxTitle(const std::wstring& title) { GetState().title = title; }

ScopedMessageBoxHandler::ScopedMessageBoxHandler(const MessageBoxHandler& handler)
    : m_earlier(std::exchange(GetState().handler, handler)) {}

ScopedMessageBoxHandler::~ScopedMessageBoxHandler() { GetState().handler = m_earlier; }
