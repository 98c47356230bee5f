#include "config/menu_icon.h"

#include "library_context.h"

#include <afxcommandmanager.h>
#include <afxtoolbar.h>

namespace {

constexpr int kIconSide = 16; // pixels at 96 DPI, the folder's name

} // namespace

FileIcon LoadCommandIcon(const std::wstring& picPath) {
    return picPath.empty() ? FileIcon() : FileIcon(GetIconPathStr(picPath, kIconSide), kIconSide, kIconSide);
}

void GiveCommandIcon(unsigned int id, HICON icon) {
    if (GetCmdMgr()->GetCmdImage(id, FALSE) == -1) {
        GetCmdMgr()->SetCmdImage(id, icon ? CMFCToolBar::GetImages()->AddIcon(icon, FALSE) : -1, FALSE);
    }
}

void GiveCommandIcon(unsigned int id, const std::wstring& picPath) {
    if (!picPath.empty() && GetCmdMgr()->GetCmdImage(id, FALSE) == -1) {
        GiveCommandIcon(id, LoadCommandIcon(picPath).Get());
    }
}
