#include "config/missing_file_message.h"

#include <afxwin.h>
#include <varnhold/message_box.h>

void ShowMissingFileMessage(const std::wstring& fullPath) {
    const std::wstring message = L"请确认文件:" + fullPath + L"是否存在";
    const CWnd* const owner = AfxGetMainWnd();
    QKMessageBox(message, QK_MESSAGE_WARNING, owner ? owner->GetSafeHwnd() : nullptr);
}
