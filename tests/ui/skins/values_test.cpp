#include "tests/ui/skins/skin_fixture.h"

#include <array>
#include <type_traits>

IMPLEMENT_DYNCREATE(OpenBlackSkin, CQKVisualManagerOffice2007Black)
IMPLEMENT_DYNCREATE(OpenSilverSkin, CQKVisualManagerOffice2007Silver)

namespace {

struct Value {
    const char* getter;
    COLORREF black, silver;
};

// Written down a second time, so that neither list can change alone.
constexpr std::array<Value, 38> kValues = {{
    {"GetDropDownBtnColor", RGB(167, 170, 180), RGB(242, 242, 246)},
    {"GetDropDownBtnHilightClr", RGB(51, 64, 73), RGB(97, 110, 116)},
    {"GetEraseTabAreaBorderClr", RGB(105, 110, 125), RGB(166, 175, 190)},
    {"GetEraseTabAreaColor", RGB(97, 101, 116), RGB(166, 175, 190)},
    {"GetEraseTabButtonColor", RGB(73, 78, 89), RGB(215, 222, 233)},
    {"GetEraseTabFrameColor", RGB(74, 79, 90), RGB(241, 248, 255)},
    {"GetMainBtnHilightClr", RGB(66, 75, 80), RGB(128, 128, 128)},
    {"GetMainBtnInnerBorderClr", RGB(89, 92, 103), RGB(224, 231, 242)},
    {"GetMainBtnOuterBorderClr", RGB(47, 52, 55), RGB(178, 185, 196)},
    {"GetMainButtonColor", RGB(0, 0, 0), RGB(224, 231, 242)},
    {"GetPaneCaptionGridColor", RGB(105, 110, 127), RGB(251, 252, 255)},
    {"GetPaneCaptionLeftGridColor", RGB(105, 110, 127), RGB(219, 220, 230)},
    {"GetPaneDividerBgColor", RGB(75, 80, 90), RGB(235, 240, 244)},
    {"GetPanelBtnClrHilighted", RGB(100, 100, 100), RGB(100, 100, 100)},
    {"GetPanelBtnClrNormal", RGB(150, 150, 150), RGB(150, 150, 150)},
    {"GetPanelBtnClrPressed", RGB(70, 70, 70), RGB(70, 70, 70)},
    {"GetPanelBtnTextColor", RGB(226, 233, 240), RGB(17, 17, 17)},
    {"GetPanelInnerBorderColor", RGB(112, 114, 128), RGB(241, 243, 249)},
    {"GetPanelOuterBorderColor", RGB(65, 66, 75), RGB(166, 175, 190)},
    {"GetPanelTextColor", RGB(255, 255, 255), RGB(34, 41, 69)},
    {"GetRibbonBtnClrChecked", RGB(97, 110, 116), RGB(97, 110, 116)},
    {"GetRibbonBtnClrHilighted", RGB(192, 192, 192), RGB(226, 226, 230)},
    {"GetRibbonBtnClrPressed", RGB(80, 80, 25), RGB(80, 80, 25)},
    {"GetRibbonBtnTextColor", RGB(255, 255, 255), RGB(0, 0, 0)},
    {"GetRibbonEditBgColor", RGB(167, 170, 180), RGB(242, 242, 246)},
    {"GetRibbonTabBgColor", RGB(50, 52, 62), RGB(81, 87, 94)},
    {"GetRibbonTabTextHilightClr", RGB(255, 255, 255), RGB(0, 0, 0)},
    {"GetRibbonTabTextNormalClr", RGB(246, 247, 255), RGB(255, 255, 255)},
    {"GetRightLeftBgColor", RGB(67, 71, 82), RGB(233, 238, 238)},
    {"GetRightLeftLineColor", RGB(51, 54, 61), RGB(197, 197, 197)},
    {"GetRightPopUpBgColor", RGB(75, 80, 92), RGB(250, 250, 250)},
    {"GetStatusBarIntervalColor", RGB(50, 55, 62), RGB(185, 187, 203)},
    {"GetStatusBarTextColor", RGB(234, 238, 245), RGB(17, 17, 17)},
    {"GetTabCheckColor", RGB(60, 64, 73), RGB(255, 255, 255)},
    {"GetTabHilightedColor", RGB(60, 64, 73), RGB(255, 255, 255)},
    {"GetTabTextHilightColor", RGB(255, 255, 255), RGB(77, 77, 77)},
    {"GetTabTextNormalColor", RGB(224, 250, 255), RGB(77, 77, 77)},
    {"GetTitleBgColor", RGB(74, 77, 89), RGB(255, 255, 255)},
}};

constexpr std::array<const wchar_t*, 16> kNames = {
    L"main",    L"tab",       L"btnhilight",       L"btnchecked",   L"narrowbtnhilight", L"narrowbtnchecked",
    nullptr,    nullptr,      L"childbtn",         L"righthilight", L"rightcheck",       L"captionbg",
    L"tabarea", L"statusbar", L"statusbarchecked", L"statusbarbg"};

void ExpectColors(CMFCVisualManagerOffice20072& skin, COLORREF Value::*column) {
    const std::vector<tovasque::SkinColor> colors = skin.GetSkinColors();
    ASSERT_EQ(colors.size(), kValues.size());
    for (std::size_t i = 0; i < kValues.size(); ++i) {
        EXPECT_STREQ(colors[i].getter, kValues[i].getter);
        EXPECT_EQ(colors[i].value, kValues[i].*column) << kValues[i].getter;
    }
}

void ExpectImages(const CMFCVisualManagerOffice20072& skin, const std::wstring& name, const wchar_t* seventh,
                  const wchar_t* eighth) {
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        const wchar_t* const file = kNames[i] != nullptr ? kNames[i] : i == 6 ? seventh : eighth;
        EXPECT_EQ(skin.GetSkinImages()[i], (L"pic\\skin\\" + name + L"\\" + file + L".png").c_str());
    }
}

class SkinValues : public SkinTest {};

TEST_F(SkinValues, EveryGetterOfTheBlackSkinHasItsValue) { ExpectColors(Use<OpenBlackSkin>(), &Value::black); }

TEST_F(SkinValues, EveryGetterOfTheSilverSkinHasItsValue) { ExpectColors(Use<OpenSilverSkin>(), &Value::silver); }

TEST_F(SkinValues, BothSkinsHaveTheirSixteenPicturesInOrder) {
    ExpectImages(Use<OpenBlackSkin>(), L"black", L"black", L"paneldown");
    ExpectImages(Use<OpenSilverSkin>(), L"silver", L"silver", L"paneldown16");
}

TEST_F(SkinValues, BothHaveTheSameIconForDropDownArrows) {
    EXPECT_EQ(Use<OpenBlackSkin>().GetDropDownIconPath(), L"pic\\skin\\icon\\16\\down.ico");
    EXPECT_EQ(Use<OpenSilverSkin>().GetDropDownIconPath(), L"pic\\skin\\icon\\16\\down.ico");
}

TEST_F(SkinValues, EachSetsThePlatformsStyleAndTheBasesNumber) {
    EXPECT_EQ(Use<OpenBlackSkin>().GetBaseStyle(), 3);
    EXPECT_EQ(CMFCVisualManagerOffice2007::GetStyle(), CMFCVisualManagerOffice2007::Office2007_ObsidianBlack);
    EXPECT_EQ(Use<OpenSilverSkin>().GetBaseStyle(), 0);
    EXPECT_EQ(CMFCVisualManagerOffice2007::GetStyle(), CMFCVisualManagerOffice2007::Office2007_Silver);
}

TEST_F(SkinValues, TheSkinsAreMadeByThePlatformsSelectionAlone) {
    static_assert(!std::is_default_constructible_v<CQKVisualManagerOffice2007Black>);
    static_assert(!std::is_default_constructible_v<CQKVisualManagerOffice2007Silver>);
    for (CRuntimeClass* const skin :
         {RUNTIME_CLASS(CQKVisualManagerOffice2007Black), RUNTIME_CLASS(CQKVisualManagerOffice2007Silver)}) {
        EXPECT_NE(skin->m_pfnCreateObject, nullptr);
        EXPECT_EQ(CRuntimeClass::FromName(skin->m_lpszClassName), skin);
        CMFCVisualManager::SetDefaultManager(skin);
        EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRuntimeClass(), skin);
    }
}

TEST_F(SkinValues, TheSilverSkinDerivesFromTheBlackOne) {
    EXPECT_TRUE(
        RUNTIME_CLASS(CQKVisualManagerOffice2007Silver)->IsDerivedFrom(RUNTIME_CLASS(CQKVisualManagerOffice2007Black)));
    EXPECT_TRUE(
        RUNTIME_CLASS(CQKVisualManagerOffice2007Black)->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManagerOffice20072)));
}

// A getter that nothing draws with could be left out. Each is given a colour of its own in turn, and the table must
// show it, or a colour that it was mixed into.
class ProbeSkin : public CMFCVisualManagerOffice20072 {
    DECLARE_DYNCREATE(ProbeSkin)

public:
    using CMFCVisualManagerOffice20072::GetSkin;
    static inline std::string s_probed;

protected:
    ProbeSkin() = default;
#define PROBE(getter, red, green, blue)                                                                                \
    COLORREF getter() override {                                                                                       \
        return s_probed == #getter ? RGB(200, 30, 140) : CMFCVisualManagerOffice20072::getter();                       \
    }
    TOVASQUE_SKIN_GETTERS(PROBE)
#undef PROBE
};
IMPLEMENT_DYNCREATE(ProbeSkin, CMFCVisualManagerOffice20072)

bool AreEqual(const visual::Skin& one, const visual::Skin& other) {
    for (std::size_t i = 0; i < visual::g_faceCount; ++i) {
        if (one[static_cast<visual::FaceSlot>(i)] != other[static_cast<visual::FaceSlot>(i)]) {
            return false;
        }
    }
    for (std::size_t i = 0; i < visual::g_colorCount; ++i) {
        if (one[static_cast<visual::ColorSlot>(i)] != other[static_cast<visual::ColorSlot>(i)]) {
            return false;
        }
    }
    return true;
}

TEST_F(SkinValues, EveryGetterIsDrawnWith) {
    ProbeSkin::s_probed.clear();
    const visual::Skin plain = Use<ProbeSkin>().GetSkin();
    for (const Value& value : kValues) {
        ProbeSkin::s_probed = value.getter;
        EXPECT_FALSE(AreEqual(plain, Use<ProbeSkin>().GetSkin())) << value.getter;
    }
    ProbeSkin::s_probed.clear();
}

} // namespace
