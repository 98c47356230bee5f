#include "afxcommandmanager.h"

int CCommandManager::GetCmdImage(UINT uiCmd, BOOL bUserImage) const {
    int image = -1;
    const auto& images = bUserImage ? m_userImages : m_images;
    return uiCmd != 0 && images.Lookup(uiCmd, image) ? image : -1;
}

void CCommandManager::SetCmdImage(UINT uiCmd, int iImage, BOOL bUserImage) {
    if (uiCmd != 0) {
        (bUserImage ? m_userImages : m_images).SetAt(uiCmd, iImage);
    }
}

void CCommandManager::ClearCmdImage(UINT uiCmd) {
    m_images.RemoveKey(uiCmd);
    m_userImages.RemoveKey(uiCmd);
}

void CCommandManager::ClearAllCmdImages() {
    m_images.RemoveAll();
    m_userImages.RemoveAll();
}

CCommandManager* GetCmdMgr() {
    static CCommandManager manager;
    return &manager;
}
