// The part of CMFCVisualManager that rooms below the managers call without a virtual function.
#include "visual/manager_instance.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"

#include <algorithm>

namespace {

visual::ManagerMaker g_maker = nullptr;
CMFCVisualManager* g_manager = nullptr;

/// Opens the table, which managers keep for themselves and their kin.
struct SkinReader : CMFCVisualManager {
    static const visual::Skin& SkinOf(const CMFCVisualManager& manager) { return (manager.*&SkinReader::GetSkin)(); }
};

} // namespace

namespace visual {

void SetManagerMaker(ManagerMaker maker) { g_maker = maker; }
CMFCVisualManager* StandingManager() { return g_manager; }
Look CurrentLook() {
    return {SkinReader::SkinOf(*CMFCVisualManager::GetInstance()), afxGlobalData.GetRibbonImageScale()};
}
void SetStandingManager(CMFCVisualManager* manager) { g_manager = manager; }

} // namespace visual

CMFCVisualManager* CMFCVisualManager::GetInstance() {
    CMFCVisualManager* const made = g_manager == nullptr && g_maker != nullptr ? g_maker() : nullptr;
    if (made != nullptr) {
        made->m_bAutoDestroy = TRUE;
        g_manager = made;
        made->OnUpdateSystemColors();
    }
    return g_manager;
}

BOOL CMFCVisualManager::IsAutoDestroy() const { return m_bAutoDestroy; }
void CMFCVisualManager::SetMenuFlatLook(BOOL bMenuFlatLook) { m_bMenuFlatLook = bMenuFlatLook; }
BOOL CMFCVisualManager::IsMenuFlatLook() const { return m_bMenuFlatLook; }
void CMFCVisualManager::SetMenuShadowDepth(int nDepth) { m_nMenuShadowDepth = std::max(nDepth, 0); }
int CMFCVisualManager::GetMenuShadowDepth() const { return m_nMenuShadowDepth; }
void CMFCVisualManager::SetShadowHighlightedImage(BOOL bShadow) { m_bShadowHighlightedImage = bShadow; }
BOOL CMFCVisualManager::IsShadowHighlightedImage() const { return m_bShadowHighlightedImage; }
void CMFCVisualManager::SetEmbossDisabledImage(BOOL bEmboss) { m_bEmbossDisabledImage = bEmboss; }
BOOL CMFCVisualManager::IsEmbossDisabledImage() const { return m_bEmbossDisabledImage; }
void CMFCVisualManager::SetFadeInactiveImage(BOOL bFade) { m_bFadeInactiveImage = bFade; }
BOOL CMFCVisualManager::IsFadeInactiveImage() const { return m_bFadeInactiveImage; }
void CMFCVisualManager::EnableToolbarButtonFill(BOOL bEnable) { m_bEnableToolbarButtonFill = bEnable; }
BOOL CMFCVisualManager::IsToolbarButtonFillEnabled() const { return m_bEnableToolbarButtonFill; }
BOOL CMFCVisualManager::IsFrameMenuCheckedItems() const { return m_bFrameMenuCheckedItems; }
