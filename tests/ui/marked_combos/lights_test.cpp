// The pictures of the light: the library's own and the host's.
#include "combos/light_images.h"
#include "tests/support/gui_objects.h"
#include "tests/ui/marked_combos/combo_picture.h"

#include <afxribboncategory.h>

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t blue = 0x0000FF;

/// The shared list as the host gets it: empty before and after.
class LightImages : public testing::Test {
protected:
    LightImages() { List().DeleteImageList(); }
    ~LightImages() override {
        List().DeleteImageList();
        afxGlobalData.SetRibbonImageScale(0);
    }
    void SetUp() override { ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0)); }

    static CImageList& List() { return CQkMfc::Ins()->m_imageList; }
    /// What a host does: images of one colour each.
    static void FillAsHost(int side, const std::vector<std::uint32_t>& colors) {
        ASSERT_TRUE(List().Create(side, side, ILC_COLOR32, 2, 0));
        for (const std::uint32_t color : colors) {
            CBitmap bitmap;
            CDC screen;
            screen.CreateCompatibleDC(nullptr);
            bitmap.CreateBitmap(side, side, 1, 32, nullptr);
            const HGDIOBJ former = ::SelectObject(screen.GetSafeHdc(), bitmap.GetSafeHandle());
            screen.FillSolidRect(0, 0, side, side, RGB(color >> 16, color >> 8 & 0xFF, color & 0xFF));
            ::SelectObject(screen.GetSafeHdc(), former);
            EXPECT_GE(List().Add(&bitmap, static_cast<CBitmap*>(nullptr)), 0);
        }
    }
    /// 40 x 40, the light at 4, 4.
    static ComboPicture Drawn(LightState state, int side, bool isScaled = true) {
        return ComboPicture(CSize(40, 40), [=](CDC& dc) {
            const fx::Rect place{4, 4, 4 + side, 4 + side};
            if (isScaled) {
                DrawLightScaled(dc, place, state);
            } else {
                DrawLight(dc, place, state);
            }
        });
    }
    static ComboPicture Empty() { return ComboPicture(CSize(40, 40)); }
    /// Every pixel as the library's own picture of that size over the background.
    static void ExpectOwn(const ComboPicture& picture, LightState state, int side) {
        const std::vector<std::uint32_t> wanted = DrawLightPicture(side, state);
        const auto part = [](std::uint32_t pixel, int shift) { return static_cast<int>(pixel >> shift & 0xFF); };
        auto next = wanted.begin();
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const std::uint32_t pixel = *next++;
                const int alpha = part(pixel, 24);
                for (const int shift : {0, 8, 16}) {
                    const int over =
                        (part(pixel, shift) * alpha + part(ComboPicture::background, shift) * (255 - alpha)) / 255;
                    ASSERT_NEAR(part(picture.At(4 + x, 4 + y), shift), over, 2) << side << ": " << x << ' ' << y;
                }
            }
        }
    }

    fx::ScopedChange<MarkSizes> m_sizes{MarkSizes::Current(), MarkSizes()};
};

TEST_F(LightImages, TheSharedListIsEmptyUntilALightIsDrawn) {
    EXPECT_EQ(List().GetSafeHandle(), nullptr);
    const CMFCRibbonMultiCombo combo(1, FALSE);
    EXPECT_EQ(List().GetSafeHandle(), nullptr);
    Drawn(LightState::On, 13);
    ASSERT_NE(List().GetSafeHandle(), nullptr);
    EXPECT_EQ(List().GetImageCount(), 2);
}

TEST_F(LightImages, TheLibrarysOwnAreOnAndOffInThatOrder) {
    ExpectOwn(Drawn(LightState::On, 13), LightState::On, 13);
    ExpectOwn(Drawn(LightState::Off, 13), LightState::Off, 13);
    const ComboPicture first(CSize(40, 40), [](CDC& dc) { List().Draw(&dc, 0, CPoint(4, 4), ILD_TRANSPARENT); });
    ExpectOwn(first, LightState::On, 13);
    const ComboPicture second(CSize(40, 40), [](CDC& dc) { List().Draw(&dc, 1, CPoint(4, 4), ILD_TRANSPARENT); });
    ExpectOwn(second, LightState::Off, 13);
}

TEST_F(LightImages, TheLibrarysOwnAreDrawnAnewForEverySizeInsteadOfBeingStretched) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    EnlargeIconOnce();
    for (const int side : {16, 20, 24, 28, 32}) {
        ExpectOwn(Drawn(LightState::On, side), LightState::On, side);
        ExpectOwn(Drawn(LightState::Off, side), LightState::Off, side);
    }
    ExpectOwn(Drawn(LightState::On, 32, false), LightState::On, 16);
}

TEST_F(LightImages, TheLibrarysOwnFollowTheIconSize) {
    ExpectOwn(Drawn(LightState::On, 13, false), LightState::On, 13);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    EnlargeIconOnce();
    ExpectOwn(Drawn(LightState::On, 16, false), LightState::On, 16);
}

TEST_F(LightImages, TheHostsOwnAreUsedWhenItHasSetThem) {
    FillAsHost(13, {red, blue});
    const ComboPicture on = Drawn(LightState::On, 13);
    const ComboPicture off = Drawn(LightState::Off, 13);
    EXPECT_EQ(on.At(4, 4), red);
    EXPECT_EQ(on.At(16, 16), red);
    EXPECT_EQ(on.At(17, 16), ComboPicture::background);
    EXPECT_EQ(off.At(10, 10), blue);
}

TEST_F(LightImages, TheHostsOwnKeepTheirSizeUntilTheDisplayIsScaled) {
    FillAsHost(16, {red, blue});
    EXPECT_EQ(Drawn(LightState::On, 13).At(19, 19), red);
    EXPECT_EQ(Drawn(LightState::On, 13).At(20, 20), ComboPicture::background);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const ComboPicture stretched = Drawn(LightState::On, 24);
    for (const int at : {4, 15, 27}) {
        EXPECT_EQ(stretched.At(at, at), red) << at;
        EXPECT_EQ(stretched.At(at, 31 - at), red) << at;
    }
    EXPECT_EQ(stretched.At(28, 15), ComboPicture::background);
    EXPECT_EQ(stretched.At(15, 28), ComboPicture::background);
    EXPECT_EQ(Drawn(LightState::Off, 20).At(23, 23), blue);
    EXPECT_EQ(Drawn(LightState::Off, 20).At(24, 24), ComboPicture::background);
}

TEST_F(LightImages, AnImageThatTheHostLeftOutDrawsNothing) {
    FillAsHost(13, {red});
    EXPECT_EQ(Drawn(LightState::On, 13).At(8, 8), red);
    EXPECT_TRUE(Drawn(LightState::Off, 13).DifferenceTo(Empty()).IsRectEmpty());
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    EXPECT_TRUE(Drawn(LightState::Off, 26).DifferenceTo(Empty()).IsRectEmpty());
}

TEST_F(LightImages, AHostMayReplaceTheLibrarysOwn) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    Drawn(LightState::On, 26);
    for (int i = 0; i < 20; ++i) {
        List().DeleteImageList();
        FillAsHost(13, {red, blue});
        EXPECT_EQ(Drawn(LightState::On, 26).At(16, 16), red) << i;
        List().DeleteImageList();
        ExpectOwn(Drawn(LightState::On, 26), LightState::On, 26);
    }
}

TEST_F(LightImages, AnEmptySquareDrawsNothing) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    EXPECT_TRUE(Drawn(LightState::On, 0).DifferenceTo(Empty()).IsRectEmpty());
}

TEST_F(LightImages, DrawingLeavesNothingBehind) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    Drawn(LightState::On, 26);
    EXPECT_TRUE(LeavesNothingBehind([] {
        for (int i = 0; i < 10; ++i) {
            Drawn(LightState::On, 26);
        }
    }));
    List().DeleteImageList();
    FillAsHost(13, {red, blue});
    EXPECT_TRUE(LeavesNothingBehind([] {
        for (int i = 0; i < 10; ++i) {
            Drawn(LightState::Off, 26);
        }
    }));
}

// ---- sizes of the marks

TEST_F(LightImages, TheFirstMultiComboMadeWithArgumentsEnlargesTheIconOnAScaledDisplay) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const CMFCRibbonVesMultiCombo light(1, FALSE);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCRibbonMultiCombo)->CreateObject());
    EXPECT_EQ(MarkSizes::Current().icon, 13) << "neither a light-only combo nor one without arguments";
    const CMFCRibbonMultiCombo scaled(1, FALSE);
    EXPECT_EQ(MarkSizes::Current().icon, 16);
    EXPECT_EQ(ScaledIconSize(), 24);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    const CMFCRibbonMultiCombo again(1, FALSE);
    EXPECT_EQ(MarkSizes::Current().icon, 16);
    EXPECT_EQ(ScaledIconSize(), 32);
}

TEST_F(LightImages, AFirstMultiComboOnADisplayThatIsNotScaledFixesTheIconToo) {
    const CMFCRibbonMultiCombo first(1, FALSE);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const CMFCRibbonMultiCombo second(1, FALSE);
    EXPECT_EQ(MarkSizes::Current().icon, 13);
    EXPECT_EQ(ScaledIconSize(), 20);
}

TEST_F(LightImages, TheFirstCheckComboMadeByNameOnAScaledDisplayScalesTheBoxOnce) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const CMFCRibbonCheckComb withArguments(1, FALSE);
    EXPECT_EQ(MarkSizes::Current().checkBox, 15);
    const CMFCRibbonCheckComb first;
    EXPECT_EQ(MarkSizes::Current().checkBox, 23);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    const CMFCRibbonCheckComb second;
    EXPECT_EQ(MarkSizes::Current().checkBox, 23);
}

TEST_F(LightImages, ACheckComboMadeByNameOnADisplayThatIsNotScaledLeavesTheBoxToALaterOne) {
    const CMFCRibbonCheckComb first;
    EXPECT_EQ(MarkSizes::Current().checkBox, 15);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const CMFCRibbonCheckComb second;
    EXPECT_EQ(MarkSizes::Current().checkBox, 23);
}

TEST_F(LightImages, SizesStayAsTheyAreWhereImagesAreNotScaled) {
    const CMFCRibbonCheckComb unscaled;
    EXPECT_EQ(MarkSizes::Current().checkBox, 15);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    afxGlobalData.EnableRibbonImageScale(FALSE);
    const CMFCRibbonCheckComb check;
    const CMFCRibbonMultiCombo multi(1, FALSE);
    EXPECT_EQ(MarkSizes::Current().checkBox, 15);
    EXPECT_EQ(MarkSizes::Current().icon, 13);
    EXPECT_EQ(ScaledIconSize(), 13);
    afxGlobalData.EnableRibbonImageScale(TRUE);
}

} // namespace
