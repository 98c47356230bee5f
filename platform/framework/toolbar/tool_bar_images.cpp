// The images that toolbars share, and those of one bar.
#include "afxtoolbar.h"

#include "afxcommandmanager.h"
#include "toolbar/default_images.h"
#include "toolbar/tool_bar_resource.h"

#include <map>
#include <optional>

CMFCToolBarImages CMFCToolBar::m_Images;
CMFCToolBarImages CMFCToolBar::m_ColdImages;
CMFCToolBarImages CMFCToolBar::m_DisabledImages;
CMFCToolBarImages CMFCToolBar::m_MenuImages;
CMFCToolBarImages CMFCToolBar::m_DisabledMenuImages;
CMFCToolBarImages CMFCToolBar::m_LargeImages;
CMFCToolBarImages CMFCToolBar::m_LargeColdImages;
CMFCToolBarImages CMFCToolBar::m_LargeDisabledImages;
CMFCToolBarImages CMFCToolBar::m_HotImages;
CMFCToolBarImages* CMFCToolBar::m_pUserImages = nullptr;

namespace {

std::map<UINT, int>& DefaultImages() {
    static std::map<UINT, int> images;
    return images;
}

/// The "TOOLBAR" resource; no value where it is missing or damaged.
std::optional<toolbar::ToolBarResource> FindToolBarResource(UINT id) {
    const LPCTSTR name = MAKEINTRESOURCE(id);
    const LPCTSTR type = MAKEINTRESOURCE(241); // RT_TOOLBAR
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    const HRSRC found = ::FindResourceW(module, name, type);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const auto* bytes = static_cast<const std::uint8_t*>(loaded ? ::LockResource(loaded) : nullptr);
    return bytes ? toolbar::ReadToolBarResource({bytes, ::SizeofResource(module, found)}) : std::nullopt;
}

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
                                      &m_LargeImages, &m_LargeColdImages, &m_LargeDisabledImages, &m_HotImages}) {
        images->Clear();
    }
}

void CMFCToolBar::CleanUpLockedImages() {
    for (CMFCToolBarImages* images :
         {&m_ImagesLocked, &m_ColdImagesLocked, &m_DisabledImagesLocked, &m_MenuImagesLocked, &m_HotImagesLocked}) {
        images->Clear();
    }
}

void __stdcall CMFCToolBar::ResetAllImages() {
    CleanUpImages();
    GetCmdMgr()->ClearAllCmdImages();
    DefaultImages().clear();
}

void CMFCToolBar::UpdateImagesColor() {
    for (CMFCToolBarImages* images :
         {&m_Images, &m_ColdImages, &m_DisabledImages, &m_MenuImages, &m_DisabledMenuImages, &m_ImagesLocked,
          &m_ColdImagesLocked, &m_DisabledImagesLocked, &m_HotImages, &m_HotImagesLocked}) {
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
    auto* self = const_cast<CMFCToolBar*>(this);
    const bool isLocked = images == &m_ImagesLocked;
    if (images != &m_Images && !isLocked) {
        return images;
    }
    CMFCToolBarImages& disabled = isLocked ? self->m_DisabledImagesLocked : m_DisabledImages;
    CMFCToolBarImages& hot = isLocked ? self->m_HotImagesLocked : m_HotImages;
    CMFCToolBarImages& cold = isLocked ? self->m_ColdImagesLocked : m_ColdImages;
    if ((button.m_nStyle & TBBS_DISABLED) != 0 && HasImage(disabled, button.GetImage())) {
        return &disabled;
    }
    CMFCToolBarImages& byPointer = bHot ? hot : cold;
    return HasImage(byPointer, button.GetImage()) ? &byPointer : images;
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
        if (other.resource != 0 && !LoadBeside(other.images, other.resource)) {
            return FALSE;
        }
    }
    return TRUE;
}

BOOL CMFCToolBar::LoadBeside(CMFCToolBarImages& others, UINT uiResID) {
    if (others.GetResourceOffset(uiResID) >= 0) {
        return TRUE;
    }
    const CMFCToolBarImages& images = m_bLocked ? m_ImagesLocked : m_Images;
    if (others.GetCount() == 0) {
        others.SetImageSize(images.GetImageSize());
    }
    while (others.GetCount() < m_iImagesOffset) {
        if (others.AddImage(images, others.GetCount()) < 0) {
            return FALSE;
        }
    }
    return others.Load(uiResID, nullptr, TRUE);
}

BOOL CMFCToolBar::LoadToolBar(UINT uiResID, UINT uiColdResID, UINT uiMenuResID, BOOL bLocked, UINT uiDisabledResID,
                              UINT uiMenuDisabledResID, UINT uiHotResID) {
    const std::optional<toolbar::ToolBarResource> resource = FindToolBarResource(uiResID);
    if (!resource) {
        return FALSE;
    }
    const CSize image(resource->imageWidth, resource->imageHeight);
    const CSize button(image.cx + 7, image.cy + 6);
    if (bLocked) {
        SetLockedSizes(button, image);
    } else if (m_Images.GetCount() == 0) {
        SetSizes(button, image);
    }
    if (!LoadBitmap(uiResID, uiColdResID, uiMenuResID, bLocked, uiDisabledResID, uiMenuDisabledResID)) {
        return FALSE;
    }
    if (uiHotResID != 0 && !LoadBeside(bLocked ? m_HotImagesLocked : m_HotImages, uiHotResID)) {
        return FALSE;
    }
    m_uiOriginalResID = uiResID; // the handler of AFX_WM_RESETTOOLBAR is told it
    return SetButtons(resource->commands.data(), static_cast<int>(resource->commands.size()));
}
