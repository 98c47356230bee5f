#include "about_box.h"

#include "barwright_version.h"
#include "resource.h"
#include "viewer_text.h"

#include "varnhold/message_box.h"

#include <commctrl.h>
#include <shellapi.h>

namespace {

constexpr wchar_t kVersion[] = L"" BARWRIGHT_VERSION;
constexpr wchar_t kLinks[] = L"<a href=\"https://www.naturalearthdata.com\">Natural Earth</a>\n"
                             L"<a href=\"https://www.soest.hawaii.edu/pwessel/gshhg\">GSHHG</a>";

HRESULT CALLBACK OpenLink(HWND window, UINT event, WPARAM, LPARAM link, LONG_PTR) {
    if (event == TDN_HYPERLINK_CLICKED) {
        ::ShellExecuteW(window, L"open", reinterpret_cast<const wchar_t*>(link), nullptr, nullptr, SW_SHOWNORMAL);
    }
    return S_OK;
}

using TaskDialogFunction = HRESULT(WINAPI*)(const TASKDIALOGCONFIG*, int*, int*, BOOL*);

/// Only the newer of the system's two libraries of controls has it.
TaskDialogFunction FindTaskDialog() {
    const HMODULE controls = ::GetModuleHandleW(L"comctl32.dll");
    return controls != nullptr ? reinterpret_cast<TaskDialogFunction>(
                                     reinterpret_cast<void*>(::GetProcAddress(controls, "TaskDialogIndirect")))
                               : nullptr;
}

} // namespace

void ShowAboutBox(HWND owner, const std::wstring& title) {
    const std::wstring name = title + L" " + kVersion;
    const std::wstring text = ViewerText("AboutText") + L"\n\n" + WithName(ViewerText("AboutLicence"), L"MIT");
    if (const TaskDialogFunction taskDialog = FindTaskDialog()) {
        const std::wstring content = text + L"\n\n" + kLinks;
        TASKDIALOGCONFIG config = {};
        config.cbSize = sizeof config;
        config.hwndParent = owner;
        config.hInstance = ::GetModuleHandleW(nullptr);
        config.dwFlags = TDF_ENABLE_HYPERLINKS | TDF_ALLOW_DIALOG_CANCELLATION | TDF_POSITION_RELATIVE_TO_WINDOW;
        config.dwCommonButtons = TDCBF_OK_BUTTON;
        config.pszWindowTitle = title.c_str();
        config.pszMainIcon = MAKEINTRESOURCEW(IDR_MAINFRAME);
        config.pszMainInstruction = name.c_str();
        config.pszContent = content.c_str();
        config.pfCallback = OpenLink;
        if (SUCCEEDED(taskDialog(&config, nullptr, nullptr, nullptr))) {
            return;
        }
    }
    QKMessageBox(name + L"\n\n" + text, QK_MESSAGE_INFORMATION, owner);
}
