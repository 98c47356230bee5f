#pragma once

#include "skin_visual_managers.h"

#include "tests/support/canvas.h"

#include <afxglobals.h>
#include <fx/skin_table.h>
#include <gtest/gtest.h>

/// The black skin with everything that tests ask for within reach. Made by the platform, like the real one.
class OpenBlackSkin : public CQKVisualManagerOffice2007Black {
    DECLARE_DYNCREATE(OpenBlackSkin)

public:
    using CMFCVisualManagerOffice20072::GetSkin;
    using CMFCVisualManagerOffice20072::m_clrToolBarGradientDark;
    using CMFCVisualManagerOffice20072::m_clrToolBarGradientLight;

protected:
    OpenBlackSkin() = default;
};

class OpenSilverSkin : public CQKVisualManagerOffice2007Silver {
    DECLARE_DYNCREATE(OpenSilverSkin)

public:
    using CMFCVisualManagerOffice20072::GetSkin;

protected:
    OpenSilverSkin() = default;
};

/// Leaves the process without a manager, as it found it.
class SkinTest : public testing::Test {
protected:
    ~SkinTest() override {
        CQKVisualManagerOffice2007Black::SetCaptionCenter(FALSE);
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
        afxGlobalData.SetRibbonImageScale(0);
    }

    template <class Skin>
    static Skin& Use() {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(Skin));
        return static_cast<Skin&>(*CMFCVisualManager::GetInstance());
    }
    static void UseSkin(bool isBlack) {
        if (isBlack) {
            Use<OpenBlackSkin>();
        } else {
            Use<OpenSilverSkin>();
        }
    }
};

/// 0x00RRGGBB, as a canvas has it.
constexpr std::uint32_t Pixel(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 | static_cast<std::uint32_t>(GetGValue(color)) << 8 |
           GetBValue(color);
}
