// The images that toolbars share, and those of one bar.
#include "afxtoolbar.h"

#include "afxcommandmanager.h"
#include "toolbar/default_images.h"

#include <map>

CMFCToolBarImages CMFCToolBar::m_Images;
CMFCToolBarImages CMFCToolBar::m_ColdImages;
CMFCToolBarImages CMFCToolBar::m_DisabledImages;
CMFCToolBarImages CMFCToolBar::m_MenuImages;
CMFCToolBarImages CMFCToolBar::m_DisabledMenuImages;
CMFCToolBarImages CMFCToolBar::m_LargeImages;
CMFCToolBarImages CMFCToolBar::m_LargeColdImages;
CMFCToolBarImages CMFCToolBar::m_LargeDisabledImages;
CMFCToolBarImages* CMFCToolBar::m_pUserImages = nullptr;

namespace {

std::map<UINT, int>& DefaultImages() {
    static std::map<UINT, int> images;
    return images;
}

/// What a "TOOLBAR" resource holds in front of its commands.
struct ToolBarResource {
    WORD version;
    WORD width;
    WORD height;
    WORD count;
};

} // namespace

void toolbar::SetDefaultImage(UINT command, int image) { DefaultImages()[command] = image; }

int CMFCToolBar::GetDefaultImage(UINT uiID) {
    const auto found = DefaultImages().find(uiID);
    return found != DefaultImages().end() ? found->second : GetCmdMgr()->GetCmdImage(uiID, FALSE);
}

BOOL CMFCToolBar::SetUserImages(CMFCToolBarImages* pUserImages) {
    if (pUserImages && CSize(pUserImages->GetImageSize()) != m_sizeImage) {
        return FALSE;
    }
    m_pUserImages = pUserImages;
    return TRUE;
}

void CMFCToolBar::CleanUpImages() {
    for (CMFCToolBarImages* images : {&m_Images, &m_ColdImages, &m_DisabledImages, &m_MenuImages, &m_DisabledMenuImages,
                                      &m_LargeImages, &m_LargeColdImages, &m_LargeDisabledImages}) {
        images->Clear();
    }
}

void CMFCToolBar::CleanUpLockedImages() {
    for (CMFCToolBarImages* images :
         {&m_ImagesLocked, &m_ColdImagesLocked, &m_DisabledImagesLocked, &m_MenuImagesLocked}) {
        images->Clear();
    }
}

void __stdcall CMFCToolBar::ResetAllImages() {
    CleanUpImages();
    GetCmdMgr()->ClearAllCmdImages();
    DefaultImages().clear();
}

void CMFCToolBar::UpdateImagesColor() {
    for (CMFCToolBarImages* images : {&m_Images, &m_ColdImages, &m_DisabledImages, &m_MenuImages, &m_DisabledMenuImages,
                                      &m_ImagesLocked, &m_ColdImagesLocked, &m_DisabledImagesLocked}) {
        if (images->GetCount() > 0) {
            images->OnSysColorChange();
        }
    }
    if (m_hWnd) {
        Invalidate();
    }
}

void CMFCToolBar::SetLargeIcons(BOOL bLargeIcons) {
    m_bLargeIcons = bLargeIcons;
    for (POSITION position = GetAllToolbars().GetHeadPosition(); position;) {
        auto* bar = const_cast<CMFCToolBar*>(static_cast<const CMFCToolBar*>(GetAllToolbars().GetNext(position)));
        bar->AdjustLayout();
    }
}

namespace {

bool HasImage(const CMFCToolBarImages& images, int index) { return index >= 0 && index < images.GetCount(); }

} // namespace

CMFCToolBarImages* CMFCToolBar::GetButtonImages(const CMFCToolBarButton& button) const {
    if (button.m_bUserButton) {
        return m_pUserImages;
    }
    auto* self = const_cast<CMFCToolBar*>(this);
    const int image = button.GetImage();
    if (button.IsLocked()) {
        return m_bMenuMode && HasImage(m_MenuImagesLocked, image) ? &self->m_MenuImagesLocked : &self->m_ImagesLocked;
    }
    if (m_bMenuMode && HasImage(m_MenuImages, image)) {
        return &m_MenuImages;
    }
    return m_bLargeIcons && !m_bMenuMode && HasImage(m_LargeImages, image) ? &m_LargeImages : &m_Images;
}

CMFCToolBarImages* CMFCToolBar::GetImageList(const CMFCToolBarButton& button, BOOL bHot) const {
    CMFCToolBarImages* images = GetButtonImages(button);
    if (images == &m_Images) {
        const bool isDisabled = (button.m_nStyle & TBBS_DISABLED) != 0;
        if (isDisabled && HasImage(m_DisabledImages, button.GetImage())) {
            return &m_DisabledImages;
        }
        if (!bHot && HasImage(m_ColdImages, button.GetImage())) {
            return &m_ColdImages;
        }
    }
    return images;
}

BOOL CMFCToolBar::LoadBitmap(UINT uiResID, UINT uiColdResID, UINT uiMenuResID, BOOL bLocked, UINT uiDisabledResID,
                             UINT uiMenuDisabledResID) {
    m_bLocked = bLocked;
    CMFCToolBarImages& images = bLocked ? m_ImagesLocked : m_Images;
    const CSize size = bLocked && m_sizeImageLocked != CSize(0, 0) ? m_sizeImageLocked : m_sizeImage;
    if (images.GetCount() == 0) {
        images.SetImageSize(size);
    }
    const int loaded = images.GetResourceOffset(uiResID);
    m_iImagesOffset = loaded >= 0 ? loaded : images.GetCount();
    if (loaded < 0 && !images.Load(uiResID, nullptr, TRUE)) {
        return FALSE;
    }
    const struct {
        UINT resource;
        CMFCToolBarImages& images;
    } others[] = {{uiColdResID, bLocked ? m_ColdImagesLocked : m_ColdImages},
                  {uiDisabledResID, bLocked ? m_DisabledImagesLocked : m_DisabledImages},
                  {uiMenuResID, bLocked ? m_MenuImagesLocked : m_MenuImages},
                  {uiMenuDisabledResID, m_DisabledMenuImages}};
    for (const auto& other : others) {
        if (other.resource == 0 || other.images.GetResourceOffset(other.resource) >= 0) {
            continue;
        }
        if (other.images.GetCount() == 0) {
            other.images.SetImageSize(size);
        }
        if (!other.images.Load(other.resource, nullptr, TRUE)) {
            return FALSE;
        }
    }
    return TRUE;
}

BOOL CMFCToolBar::LoadToolBar(UINT uiResID, UINT uiColdResID, UINT uiMenuResID, BOOL bLocked, UINT uiDisabledResID,
                              UINT uiMenuDisabledResID, UINT) {
    const LPCTSTR name = MAKEINTRESOURCE(uiResID);
    const LPCTSTR type = MAKEINTRESOURCE(241); // RT_TOOLBAR
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    const HRSRC found = ::FindResourceW(module, name, type);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const auto* head = static_cast<const ToolBarResource*>(loaded ? ::LockResource(loaded) : nullptr);
    const DWORD size = found ? ::SizeofResource(module, found) : 0;
    if (!head || size < sizeof(*head) || head->version != 1 || size < sizeof(*head) + head->count * sizeof(WORD)) {
        return FALSE;
    }
    const CSize image(head->width, head->height);
    const CSize button(image.cx + 7, image.cy + 6);
    if (bLocked) {
        SetLockedSizes(button, image);
    } else if (m_Images.GetCount() == 0) {
        SetSizes(button, image);
    }
    if (!LoadBitmap(uiResID, uiColdResID, uiMenuResID, bLocked, uiDisabledResID, uiMenuDisabledResID)) {
        return FALSE;
    }
    const auto* commands = reinterpret_cast<const WORD*>(head + 1);
    const std::vector<UINT> ids(commands, commands + head->count);
    if (!SetButtons(ids.data(), static_cast<int>(ids.size()))) {
        return FALSE;
    }
    m_uiOriginalResID = uiResID;
    SetOrigButtons(m_Buttons);
    return TRUE;
}
