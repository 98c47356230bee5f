#include "config/menu_icon.h"

#include "elements/icon_file.h"
#include "library_context.h"

#include <afxcommandmanager.h>
#include <afxtoolbar.h>

namespace {

constexpr int kIconSide = 16; // pixels at 96 DPI, the folder's name

} // namespace

void GiveCommandIcon(unsigned int id, const std::wstring& picPath) {
    if (picPath.empty() || GetCmdMgr()->GetCmdImage(id, FALSE) != -1) {
        return;
    }
    const FileIcon icon(GetIconPathStr(picPath, kIconSide), kIconSide, kIconSide);
    const int image = icon.Get() ? CMFCToolBar::GetImages()->AddIcon(icon.Get(), FALSE) : -1;
    GetCmdMgr()->SetCmdImage(id, image, FALSE);
}
