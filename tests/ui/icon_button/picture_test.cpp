// Where a button draws its picture, in which size and in which state.
#include "tests/ui/icon_button/icon_fixture.h"

#include <afxribbonbar.h>
#include <afxtoolbarimages.h>

namespace {

TEST_F(IconButton, SmallPictureComesFromTheLargeFileWhereThereIsNoSmallOne) {
    CMFCRibbonUNIcoButton button(1, L"", m_large);
    EXPECT_EQ(ColourDrawn(button, Small), red);
    EXPECT_EQ(ExtentDrawn(button, Small), CSize(26, 36));
}

TEST_F(IconButton, SmallFileThatIsMissingIsSkipped) {
    CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small + L".missing");
    EXPECT_EQ(ColourDrawn(button, Small), red);
}

TEST_F(IconButton, PictureStandsAtTheCornerOfItsRectangleInItsOwnSize) {
    const auto button = MakeButton();
    EXPECT_EQ(ExtentDrawn(*button, Large), CSize(42, 52));
    EXPECT_EQ(m_canvas.At(9, 20), Canvas::background);
    EXPECT_EQ(m_canvas.At(10, 19), Canvas::background);
    EXPECT_EQ(m_canvas.At(10, 20), red);
    EXPECT_EQ(ExtentDrawn(*button, Small), CSize(26, 36));
}

TEST_F(IconButton, PictureIsScaledWithTheRibbon) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const auto button = MakeButton();
    EXPECT_EQ(ExtentDrawn(*button, Small), CSize(34, 44));
}

TEST_F(IconButton, LargeFileThatIsMissingDrawsNothingWithoutImageIndexes) {
    CMFCRibbonUNIcoButton button(1, L"", m_large + L".missing", FALSE, m_small);
    EXPECT_EQ(ExtentDrawn(button, Large), CSize(0, 0));
    EXPECT_EQ(ExtentDrawn(button, Small), CSize(0, 0));
}

TEST_F(IconButton, WithoutPathsNothingIsDrawnEvenWithIcons) {
    const FileIcon icon(m_large, 32, 32);
    ASSERT_NE(icon.Get(), nullptr);
    CMFCRibbonUNIcoButton withIcon(1, L"", icon.Get());
    EXPECT_EQ(ExtentDrawn(withIcon, Large), CSize(0, 0));
    CMFCRibbonUNIcoButton withIndexes(1, L"", 0, 0);
    EXPECT_EQ(ExtentDrawn(withIndexes, Large), CSize(0, 0));
    CMFCRibbonUNIcoButton empty;
    EXPECT_EQ(ExtentDrawn(empty, Large), CSize(0, 0));
    EXPECT_TRUE(empty.GetIconPath(TRUE).IsEmpty());
}

TEST_F(IconButton, DirectoryInPlaceOfAnIconDrawsNothing) {
    CMFCRibbonUNIcoButton button(1, L"", CString(m_directory.Path().wstring().c_str()), FALSE, CString());
    EXPECT_EQ(ExtentDrawn(button, Large), CSize(0, 0));
}

TEST_F(IconButton, FileThatIsNoIconDrawsNothing) {
    const std::string icon = MakeIconFile(32, {red, red});
    for (const std::string& bytes :
         {std::string(), std::string("not an icon"), icon.substr(0, 6), icon.substr(0, 30)}) {
        CMFCRibbonUNIcoButton button(1, L"", CString(m_directory.Write("bad.ico", bytes).c_str()), FALSE, CString());
        EXPECT_EQ(ExtentDrawn(button, Large), CSize(0, 0)) << bytes.size() << " bytes";
    }
}

TEST_F(IconButton, DisabledButtonIsDrawnGreyAndNotInTheIconsColours) {
    const auto button = MakeButton();
    button->SetDisabled(TRUE);
    for (const auto type : {Large, Small}) {
        const std::uint32_t colour = ColourDrawn(*button, type);
        EXPECT_NE(colour, red);
        EXPECT_NE(colour, green);
        EXPECT_NE(colour, Canvas::background);
    }
    EXPECT_EQ(ExtentDrawn(*button, Large), CSize(42, 52));
    EXPECT_EQ(ExtentDrawn(*button, Small), CSize(26, 36));
}

class DisabledPicture : public IconButton {
protected:
    DisabledPicture() {
        // Two colours each, so that a picture the wrong way round is another one.
        m_large = m_directory.Write("four/large.ico", MakeIconFile(32, {red, blue})).c_str();
        m_small = m_directory.Write("four/small.ico", MakeIconFile(16, {green, yellow})).c_str();
    }
    void ExpectDisabledAsInAnImageList(CMFCRibbonBaseElement::RibbonImageType type, BOOL blends) {
        CMFCRibbonUNIcoButton button(1, L"", m_large, FALSE, m_small, FALSE, blends);
        button.SetDisabled(TRUE);
        const int side = type == Large ? 32 : 16;
        const FileIcon icon(type == Large ? m_large : m_small, side, side);
        CMFCToolBarImages images;
        images.SetImageSize(CSize(side, side));
        ASSERT_EQ(images.AddIcon(icon.Get(), blends), 0);
        m_expected.Clear();
        CAfxDrawState state;
        ASSERT_TRUE(images.PrepareDrawImage(state, button.GetImageSize(type)));
        images.Draw(m_expected.Dc(), 10, 20, 0, FALSE, TRUE, FALSE, FALSE, FALSE, 255);
        images.EndDrawImage(state);
        ColourDrawn(button, type);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                ASSERT_EQ(m_canvas.At(x, y), m_expected.At(x, y)) << x << ", " << y << " side " << side;
            }
        }
    }
    Canvas m_expected;
};

TEST_F(DisabledPicture, IsThatOfAnImageListInItsDisabledStyle) {
    for (const BOOL blends : {FALSE, TRUE}) {
        for (const double scale : {1.0, 1.5}) {
            ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
            ExpectDisabledAsInAnImageList(Small, blends);
            ExpectDisabledAsInAnImageList(Large, blends);
        }
    }
}

TEST_F(DisabledPicture, IsThatOfAnImageListInAMirroredContextToo) {
    m_canvas.Dc()->SetLayout(LAYOUT_RTL);
    m_expected.Dc()->SetLayout(LAYOUT_RTL);
    for (const auto type : {Small, Large}) {
        ExpectDisabledAsInAnImageList(type, FALSE);
    }
    EXPECT_EQ(m_canvas.At(20, 30), Canvas::background) << "the large picture begins 10 pixels from the right edge";
    EXPECT_NE(m_canvas.At(53, 30), Canvas::background);
}

TEST_F(IconButton, DisabledPictureIsScaledWithTheRibbon) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    const auto button = MakeButton();
    button->SetDisabled(TRUE);
    EXPECT_EQ(ExtentDrawn(*button, Small), CSize(34, 44));
    EXPECT_EQ(ExtentDrawn(*button, Large), CSize(58, 64)) << "48 pixels, cut off at the canvas's edge";
}

TEST_F(IconButton, DisabledSmallPictureFromTheLargeFileHasTheSmallSize) {
    CMFCRibbonUNIcoButton button(1, L"", m_large);
    button.SetDisabled(TRUE);
    EXPECT_EQ(ExtentDrawn(button, Small), CSize(26, 36));
}

TEST_F(IconButton, ImageSizeIs16And32AndScales) {
    const auto button = MakeButton();
    EXPECT_EQ(button->GetImageSize(Small), CSize(16, 16));
    EXPECT_EQ(button->GetImageSize(Large), CSize(32, 32));
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    EXPECT_EQ(button->GetImageSize(Small), CSize(24, 24));
    EXPECT_EQ(button->GetImageSize(Large), CSize(48, 48));
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.28));
    EXPECT_EQ(button->GetImageSize(Small), CSize(20, 20));
    EXPECT_EQ(button->GetImageSize(Large), CSize(41, 41));
}

TEST_F(IconButton, ImageSizeIsNotScaledWhileScalingIsOff) {
    const auto button = MakeButton();
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    afxGlobalData.EnableRibbonImageScale(FALSE);
    EXPECT_EQ(button->GetImageSize(Large), CSize(32, 32));
    afxGlobalData.EnableRibbonImageScale(TRUE);
}

TEST_F(IconButton, ImageSizeDoesNotDependOnWhetherTheFileIsThere) {
    CMFCRibbonUNIcoButton button(1, L"", m_large + L".missing", FALSE, CString());
    EXPECT_EQ(button.GetImageSize(Large), CSize(32, 32));
}

TEST_F(IconButton, WithoutALargePathTheFrameworksRuleGivesTheImageSize) {
    CMFCRibbonUNIcoButton button(1, L"", CString(), FALSE, m_small);
    EXPECT_EQ(button.GetImageSize(Large), CSize(0, 0));
    EXPECT_EQ(button.GetImageSize(Small), CSize(0, 0));
}

TEST_F(IconButton, WithoutALargePathAnImageIndexGivesTheSizeOfTheCategorysImages) {
    CMFCRibbonBar bar(FALSE);
    CMFCRibbonCategory* const category = bar.AddCategory(L"", 0, 0, CSize(20, 18), CSize(40, 36));
    auto* const button = new CMFCRibbonUNIcoButton(1, L"", 3, 4);
    category->AddPanel(L"")->Add(button);
    EXPECT_EQ(button->GetImageSize(Large), CSize(40, 36));
    EXPECT_EQ(button->GetImageSize(Small), CSize(20, 18));
    button->SetImageIndex(-1, TRUE);
    EXPECT_EQ(button->GetImageSize(Large), CSize(0, 0));
}

} // namespace
