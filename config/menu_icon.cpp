#include "config/menu_icon.h"

#include "library_context.h"

#include <afxcommandmanager.h>
#include <afxglobals.h>
#include <afxtoolbar.h>
#include <fx/geometry.h>

#include <utility>

namespace {

constexpr int kIconSide = 16; // pixels at 96 DPI, the folder's name

} // namespace

CommandIcon LoadCommandIcon(const std::wstring& picPath) {
    CommandIcon icon;
    if (picPath.empty()) {
        return icon;
    }
    const auto path = GetIconPathStr(picPath, kIconSide);
    icon.small = FileIcon(path, kIconSide, kIconSide);
    const int drawn = fx::Scaled(kIconSide, afxGlobalData.GetRibbonImageScale());
    if (icon.small.Get() && drawn > kIconSide) {
        FileIcon fitting(path, kIconSide, drawn);
        if (fitting.GetSide() > kIconSide) {
            icon.larger = std::move(fitting);
        }
    }
    return icon;
}

int AddCommandIcon(CMFCToolBarImages& images, const CommandIcon& icon) {
    const int image = icon.small.Get() ? images.AddIcon(icon.small.Get(), FALSE) : -1;
    if (image >= 0 && icon.larger.Get()) {
        const int side = icon.larger.GetSide();
        images.SetLargerIcon(image, icon.larger.Get(), CSize(side, side));
    }
    return image;
}

void GiveCommandIcon(unsigned int id, const CommandIcon& icon) {
    if (GetCmdMgr()->GetCmdImage(id, FALSE) == -1) {
        GetCmdMgr()->SetCmdImage(id, AddCommandIcon(*CMFCToolBar::GetImages(), icon), FALSE);
    }
}

void GiveCommandIcon(unsigned int id, const std::wstring& picPath) {
    if (!picPath.empty() && GetCmdMgr()->GetCmdImage(id, FALSE) == -1) {
        GiveCommandIcon(id, LoadCommandIcon(picPath));
    }
}
