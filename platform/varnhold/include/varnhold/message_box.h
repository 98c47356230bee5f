#pragma once

#include "varnhold/varnhold_api.h"

#include <boost/function.hpp>

#include <windows.h>

#include <string>

/// What a message box tells; callers may pass the plain number.
enum QKMessageStatus {
    QK_MESSAGE_INFORMATION = 0,
    QK_MESSAGE_QUESTION = 1, ///< with the buttons Yes and No
    QK_MESSAGE_WARNING = 2,
    QK_MESSAGE_ERROR = 3,
};

/// Shows `message` under getMessageBoxTitle() and waits for the answer. `status` is a QKMessageStatus; any other number
/// counts as information. `owner` may be null. Returns the button's id (IDOK, IDYES, IDNO; IDCANCEL when the box was
/// closed; 0 when it could not be shown). While a handler is installed it answers in the box's place.
VARNHOLD_API int QKMessageBox(const wchar_t* message, int status = QK_MESSAGE_INFORMATION, HWND owner = nullptr);
VARNHOLD_API int QKMessageBox(const std::wstring& message, int status = QK_MESSAGE_INFORMATION, HWND owner = nullptr);

/// The caption of the host's message boxes: what setMessageBoxTitle was given, else the program's file name without
/// its extension.
VARNHOLD_API std::wstring getMessageBoxTitle();
VARNHOLD_API void setMessageBoxTitle(const std::wstring& title);

/// Answers message boxes in the place of a person.
typedef boost::function<int(const std::wstring& message, int status, HWND owner)> MessageBoxHandler;

/// Installs a handler for as long as the object lives; objects nest, the innermost answers. For tests and tools; to be
/// made and destroyed in the user-interface thread.
class VARNHOLD_API ScopedMessageBoxHandler {
public:
    explicit ScopedMessageBoxHandler(const MessageBoxHandler& handler);
    ~ScopedMessageBoxHandler();
    ScopedMessageBoxHandler(const ScopedMessageBoxHandler&) = delete;
    ScopedMessageBoxHandler& operator=(const ScopedMessageBoxHandler&) = delete;

private:
    MessageBoxHandler m_earlier;
};
