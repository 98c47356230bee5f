// Icon files that hold several sizes, on displays of every scale.
#include "tests/ui/icon_button/icon_fixture.h"

#include <ostream>

namespace {

struct Scale {
    double factor;
    std::uint32_t small; // the colour of the picture that is drawn, of 16, 24 or 32 pixels
    std::uint32_t large; // of 32, 48 or 64 pixels
};

std::ostream& operator<<(std::ostream& out, const Scale& scale) { return out << scale.factor; }

class IconSizes : public IconButton, public testing::WithParamInterface<Scale> {
protected:
    void SetUp() override {
        IconButton::SetUp();
        m_directory.Write("pic/modle/large.ico",
                          MakeIconFile({{64, {blue, blue}}, {32, {red, red}}, {48, {green, green}}}));
        m_directory.Write("pic/modle/small.ico",
                          MakeIconFile({{16, {red, red}}, {24, {green, green}}, {32, {blue, blue}}}));
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(GetParam().factor));
    }
    /// The colour inside of the picture that is drawn at the corner; afterwards the canvas shows it.
    std::uint32_t Drawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        m_wide.Clear();
        button.DrawImage(m_wide.Dc(), type, CRect(0, 0, 100, 100));
        return m_wide.At(8, 8);
    }
    void ExpectDrawn(int side) {
        const int scaled = static_cast<int>(side * GetParam().factor);
        EXPECT_EQ(m_wide.Extent(), CSize(scaled, scaled));
    }

    Canvas m_wide{100};
};

TEST_P(IconSizes, ThePictureThatFitsTheDisplayIsDrawnAsItIs) {
    const auto button = MakeButton();
    EXPECT_EQ(Drawn(*button, Small), GetParam().small);
    ExpectDrawn(16);
    EXPECT_EQ(Drawn(*button, Large), GetParam().large);
    ExpectDrawn(32);
}

TEST_P(IconSizes, ADisabledPictureIsTheSameOneInGrey) {
    const auto button = MakeButton();
    button->SetDisabled(TRUE);
    // Each side by side with a file that holds the picture alone.
    const auto greyOf = [this](std::uint32_t colour) {
        CMFCRibbonUNIcoButton single(1, L"", WriteIcon("single.ico", 32, colour));
        single.SetDisabled(TRUE);
        return Drawn(single, Large);
    };
    EXPECT_EQ(Drawn(*button, Large), greyOf(GetParam().large));
    ExpectDrawn(32);
    EXPECT_EQ(Drawn(*button, Small), greyOf(GetParam().small));
    ExpectDrawn(16);
}

TEST_P(IconSizes, AFileWithOneSizeIsDrawnInEveryOtherAsBefore) {
    WriteIcon("pic/modle/large.ico", 32, yellow);
    const auto button = MakeButton();
    EXPECT_EQ(Drawn(*button, Large), yellow);
    ExpectDrawn(32);
}

INSTANTIATE_TEST_SUITE_P(Scales, IconSizes,
                         testing::Values(Scale{1.0, red, red}, Scale{1.5, green, green}, Scale{2.0, blue, blue}),
                         [](const auto& info) {
                             return "Percent" + std::to_string(static_cast<int>(info.param.factor * 100));
                         });

/// The rows of a disabled picture are those of the file: nothing is enlarged from fewer pixels.
TEST_F(IconButton, ADisabledPictureOfADenseDisplayIsSharp) {
    m_directory.Write("pic/modle/large.ico", MakeIconFile({{32, {red, red}}, {64, {red, blue}}}));
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    const auto button = MakeButton();
    button->SetDisabled(TRUE);
    ColourDrawn(*button, Large);
    const auto column = [this](int x) { return m_canvas.At(10 + x, 24); };
    EXPECT_NE(column(31), column(32)) << "the halves meet between two pixels";
    EXPECT_EQ(column(28), column(31));
    EXPECT_EQ(column(32), column(35));
}

TEST_F(IconButton, ALargeFileThatIsDrawnSmallTakesThePictureThatFits) {
    m_directory.Write("pic/modle/large.ico",
                      MakeIconFile({{16, {red, red}}, {24, {green, green}}, {32, {blue, blue}}}));
    CMFCRibbonUNIcoButton button(1, L"", m_large);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.5));
    EXPECT_EQ(ColourDrawn(button, Small), green);
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
    EXPECT_EQ(ColourDrawn(button, Small), blue) << "in the large size, made smaller, on an ordinary display";
}

} // namespace
