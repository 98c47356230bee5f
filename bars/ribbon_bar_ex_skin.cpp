// How the extended ribbon bar switches between the skins.
#include "ribbon_bar_ex.h"

#include "skin_visual_managers.h"

#include <afxDockingManager.h>
#include <afxtooltipctrl.h>
#include <fx/window_guard.h>

namespace {

constexpr int kBlackStyle = 0;
constexpr int kSilverStyle = 1;
constexpr COLORREF kTextOnBlack = 0xFFFFFF;
constexpr COLORREF kTextOnSilver = 0x111111;

/// Of the black skin's tooltips.
constexpr COLORREF kTipFill = 0x8D7C74;
constexpr COLORREF kTipFillGradient = 0x8C786E;
constexpr COLORREF kTipText = 0xF1F1F1;
constexpr COLORREF kTipBorder = 0xA89997;

void SetTooltipColors(CMFCToolTipInfo& info) {
    info.m_clrFill = kTipFill;
    info.m_clrFillGradient = kTipFillGradient;
    info.m_clrText = kTipText;
    info.m_clrBorder = kTipBorder;
}

/// The manager in use where it is the black skin's; silver derives from it and is another skin.
CQKVisualManagerOffice2007Black* BlackInUse() {
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    return manager->IsKindOf(RUNTIME_CLASS(CQKVisualManagerOffice2007Silver))
               ? nullptr
               : DYNAMIC_DOWNCAST(CQKVisualManagerOffice2007Black, manager);
}

} // namespace

void CMFCRibbonBarEx::ChangeSkinColor(int nStyle, bool bFlag) {
    const fx::WindowGuard guard(this);
    const bool hasWindow = GetSafeHwnd() != nullptr;
    const bool isSilver = nStyle == kSilverStyle;
    CMFCRibbonBar2::ChangeSkinColor(nStyle, bFlag);
    SetTextColor(isSilver ? kTextOnSilver : kTextOnBlack);
    CMFCVisualManager::SetDefaultManager(isSilver ? RUNTIME_CLASS(CQKVisualManagerOffice2007Silver)
                                                  : RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    CDockingManager::SetDockingMode(DT_SMART);
    // The host's frames were told of the new manager, and may have ended.
    if (!hasWindow || guard.IsAlive()) {
        SetWindows7Look(FALSE, TRUE);
    }
    auto* const skin = DYNAMIC_DOWNCAST(CMFCVisualManagerOffice20072, CMFCVisualManager::GetInstance());
    if (skin == nullptr) {
        return; // the host has chosen another one meanwhile
    }
    skin->m_bIsSkin = TRUE;
    if (!isSilver) {
        SetTooltipColors(skin->GetToolTipInfo());
    }
    skin->m_bSkinFlag = bFlag ? TRUE : FALSE;
}

void CMFCRibbonBarEx::RestoreTooltipColors() const {
    if (GetSkinStyle() != kBlackStyle) {
        return;
    }
    CQKVisualManagerOffice2007Black* const black = BlackInUse();
    if (black != nullptr && black->GetToolTipInfo().m_clrBorder != kTipBorder) {
        SetTooltipColors(black->GetToolTipInfo());
    }
}
