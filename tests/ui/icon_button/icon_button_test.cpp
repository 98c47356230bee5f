#include "elements/icon_file.h"
#include "ribbon_icon_button.h"
#include "tests/support/canvas.h"
#include "tests/support/icon_writer.h"
#include "tests/support/translation_tables.h"
#include "tests/support/ui_test.h"
#include "tests/ui/icon_button/button_flags.h"

#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxtoolbarimages.h>

#include <varnhold/language.h>

#include <memory>

namespace {

constexpr std::uint32_t red = 0xFF0000;
constexpr std::uint32_t green = 0x00FF00;
constexpr std::uint32_t blue = 0x0000FF;
constexpr std::uint32_t yellow = 0xFFFF00;

class IconButton : public testing::Test {
protected:
    ~IconButton() override {
        CMFCRibbonUNIcoButton::SetSkinStyle(CString());
        afxGlobalData.SetRibbonImageScale(1.0);
        EXPECT_EQ(FileIcon::GetAliveCount(), 0u) << "an icon was not released";
    }
    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
        m_large = WriteIcon("pic/modle/large.ico", 32, red);
        m_small = WriteIcon("pic/modle/small.ico", 16, green);
        WriteIcon("pic/modle_0/large.ico", 32, blue);
        WriteIcon("pic/modle_0/small.ico", 16, yellow);
    }

    CString WriteIcon(const std::string& name, int side, std::uint32_t colour) {
        return m_directory.Write(name, MakeIconFile(side, {colour, colour})).c_str();
    }
    std::unique_ptr<CMFCRibbonUNIcoButton> MakeButton(BOOL keepLarge = FALSE) const {
        return std::make_unique<CMFCRibbonUNIcoButton>(1, L"text", m_large, FALSE, m_small, TRUE, FALSE, keepLarge);
    }

    /// The colour near the corner of the picture that the button draws at (10, 20).
    std::uint32_t ColourDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        m_canvas.Clear();
        button.DrawImage(m_canvas.Dc(), type, CRect(10, 20, 64, 64));
        return m_canvas.At(14, 24);
    }
    CSize ExtentDrawn(CMFCRibbonUNIcoButton& button, CMFCRibbonBaseElement::RibbonImageType type) {
        ColourDrawn(button, type);
        return m_canvas.Extent();
    }

    static constexpr auto Large = CMFCRibbonBaseElement::RibbonImageLarge;
    static constexpr auto Small = CMFCRibbonBaseElement::RibbonImageSmall;

    TemporaryDirectory m_directory;
    CString m_large;
    CString m_small;
    Canvas m_canvas;
};

TEST_F(IconButton, PathsAreGivenBackAsConfigured) {
    const auto button = MakeButton();
    EXPECT_EQ(button->GetIconPath(TRUE), m_large);
    EXPECT_EQ(button->GetIconPath(2), m_large);
    EXPECT_EQ(button->GetIconPath(FALSE), m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(button->GetIconPath(TRUE), m_large);
}

template <class Button>
class ButtonTexts : public testing::Test {};
using IconButtonClasses = testing::Types<CMFCRibbonUNIcoButton, CMFCRibbonSmallButton>;
TYPED_TEST_SUITE(ButtonTexts, IconButtonClasses);

template <class Button, class Text>
void ExpectTextTaken(const Text& text) {
    EXPECT_EQ(CString(Button(1, text).GetText()), L"text");
    EXPECT_EQ(Button(1, text, 4, 5).GetImageIndex(TRUE), 5);
    EXPECT_EQ(Button(1, text, 4, 5).GetImageIndex(FALSE), 4);
    EXPECT_EQ(CString(Button(1, text, ::LoadIcon(nullptr, IDI_APPLICATION)).GetText()), L"text");
    EXPECT_NE(Button(1, text, ::LoadIcon(nullptr, IDI_APPLICATION)).GetIcon(TRUE), nullptr);
    EXPECT_EQ(Button(1, text, CString(L"large"), FALSE, CString(L"small")).GetIconPath(FALSE), L"small");
    EXPECT_EQ(Button(1, text, L"large", TRUE).GetIconPath(TRUE), L"large");
    EXPECT_TRUE(Button(1, text, L"large", TRUE).IsAlwaysShowDescription());
}

TYPED_TEST(ButtonTexts, MayBeOfEveryKind) {
    ExpectTextTaken<TypeParam>(L"text");
    ExpectTextTaken<TypeParam>(static_cast<const wchar_t*>(L"text"));
    ExpectTextTaken<TypeParam>(CString(L"text"));
    ExpectTextTaken<TypeParam>(std::wstring(L"text"));
}

TEST_F(IconButton, DrawsThePrimaryFilesWithoutASkinStyle) {
    const auto button = MakeButton();
    EXPECT_EQ(ColourDrawn(*button, Large), red);
    EXPECT_EQ(ColourDrawn(*button, Small), green);
}

TEST_F(IconButton, SkinStyleZeroSelectsTheAlternateFiles) {
    const auto button = MakeButton();
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(*button, Large), blue);
    EXPECT_EQ(ColourDrawn(*button, Small), yellow);
}

TEST_F(IconButton, AnyOtherSkinStyleSelectsThePrimaryFiles) {
    const auto button = MakeButton();
    for (const wchar_t* style : {L"1", L"00", L" 0", L"black", L""}) {
        CMFCRibbonUNIcoButton::SetSkinStyle(style);
        EXPECT_EQ(ColourDrawn(*button, Large), red) << style;
    }
}

TEST_F(IconButton, KeptLargePathIsItsOwnAlternateWhileTheSmallOneIsFormed) {
    const auto button = MakeButton(TRUE);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(*button, Large), red);
    EXPECT_EQ(ColourDrawn(*button, Small), yellow);
}

TEST_F(IconButton, EveryModleInAPathIsReplaced) {
    const CString twice = WriteIcon("modle/modle/x.ico", 32, red);
    WriteIcon("modle_0/modle_0/x.ico", 32, blue);
    CMFCRibbonUNIcoButton button(1, L"", twice, FALSE, CString());
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), blue);
}

TEST_F(IconButton, AlternateOfAnAlternatePathIsFormedLikeAnyOther) {
    const CString alternate = WriteIcon("modle_0/x.ico", 32, red);
    WriteIcon("modle_0_0/x.ico", 32, blue);
    CMFCRibbonUNIcoButton button(1, L"", alternate, FALSE, CString());
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), blue);
}

TEST_F(IconButton, ModleInOtherLettersIsNotReplaced) {
    const CString path = WriteIcon("Modle/MODLE.ico", 32, red);
    CMFCRibbonUNIcoButton button(1, L"", path, FALSE, CString());
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), red);
}

TEST_F(IconButton, LargeAlternateFileThatIsMissingDrawsNothingWithoutImageIndexes) {
    const CString path = WriteIcon("modle/lonely.ico", 32, red);
    CMFCRibbonUNIcoButton button(1, L"", path, FALSE, m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ExtentDrawn(button, Large), CSize(0, 0)) << "not the primary file";
    EXPECT_EQ(ExtentDrawn(button, Small), CSize(0, 0)) << "nor the small alternate alone";
    CMFCRibbonUNIcoButton::SetSkinStyle(CString());
    EXPECT_EQ(ColourDrawn(button, Large), red) << "the paths are chosen at each draw";
}

TEST_F(IconButton, ConstructorWithPathsSetsIdTextAndFlags) {
    for (const BOOL flag : {FALSE, TRUE}) {
        const CMFCRibbonUNIcoButton shows(7, L"text", m_large, flag, m_small, !flag, flag, FALSE);
        EXPECT_EQ(shows.GetID(), 7u);
        EXPECT_EQ(CString(shows.GetText()), L"text");
        EXPECT_EQ(shows.IsAlwaysShowDescription(), flag);
        EXPECT_EQ(ButtonFlags::DestroysIcons(shows), !flag);
        EXPECT_EQ(ButtonFlags::BlendsIcons(shows), flag);
        const CMFCRibbonSmallButton small(7, L"text", m_large, flag, m_small, !flag, flag);
        EXPECT_EQ(small.IsAlwaysShowDescription(), flag);
        EXPECT_EQ(ButtonFlags::DestroysIcons(small), !flag);
        EXPECT_EQ(ButtonFlags::BlendsIcons(small), flag);
    }
}

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
    const FileIcon icon(m_large, 32);
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
        const FileIcon icon(type == Large ? m_large : m_small, side);
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
            for (int x = 0; x < 64; ++x)
                ASSERT_EQ(m_canvas.At(x, y), m_expected.At(x, y)) << x << ", " << y << " side " << side;
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
    for (const auto type : {Small, Large})
        ExpectDisabledAsInAnImageList(type, FALSE);
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

TEST_F(IconButton, FilesAreReadAtEveryDrawAndReleasedAfterwards) {
    const auto button = MakeButton();
    const std::size_t before = FileIcon::GetReadCount();
    ColourDrawn(*button, Large);
    EXPECT_EQ(FileIcon::GetReadCount(), before + 2);
    EXPECT_EQ(FileIcon::GetAliveCount(), 0u);
    WriteIcon("pic/modle/large.ico", 32, blue);
    EXPECT_EQ(ColourDrawn(*button, Large), blue);
    EXPECT_EQ(FileIcon::GetReadCount(), before + 4);
}

TEST_F(IconButton, NoHandleIsKeptAfterConstructionOrDrawing) {
    const auto button = MakeButton();
    EXPECT_EQ(button->GetIcon(TRUE), nullptr);
    EXPECT_EQ(button->GetIcon(FALSE), nullptr);
    ColourDrawn(*button, Large);
    EXPECT_EQ(button->GetIcon(TRUE), nullptr);
    EXPECT_EQ(button->GetIcon(FALSE), nullptr);
}

TEST_F(IconButton, FileThatWasTriedIsNotReadAgainUntilItChanges) {
    const auto first = MakeButton();
    const std::size_t before = FileIcon::GetReadCount();
    for (int i = 0; i < 100; ++i)
        MakeButton();
    EXPECT_EQ(FileIcon::GetReadCount(), before);
    m_directory.Write("pic/modle/large.ico", MakeIconFile(32, {blue, blue}) + "longer than before");
    MakeButton();
    EXPECT_EQ(FileIcon::GetReadCount(), before + 1);
    MakeButton();
    EXPECT_EQ(FileIcon::GetReadCount(), before + 1);
}

TEST_F(IconButton, MissingFileIsTriedAgainOnceItIsThere) {
    const CString path = m_large + L".later";
    const auto make = [&path] { CMFCRibbonUNIcoButton button(1, L"", path, FALSE, CString()); };
    make();
    const std::size_t before = FileIcon::GetReadCount();
    make();
    EXPECT_EQ(FileIcon::GetReadCount(), before);
    WriteIcon("pic/modle/large.ico.later", 32, red);
    make();
    EXPECT_EQ(FileIcon::GetReadCount(), before + 1);
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

TEST_F(IconButton, CopyTakesThePathsAndNotTheAlternates) {
    const auto source = MakeButton();
    CMFCRibbonUNIcoButton copy;
    copy.CopyFrom(*source);
    EXPECT_EQ(copy.GetIconPath(TRUE), m_large);
    EXPECT_EQ(copy.GetIconPath(FALSE), m_small);
    EXPECT_EQ(copy.GetID(), 1u);
    EXPECT_EQ(CString(copy.GetText()), L"text");
    EXPECT_EQ(ExtentDrawn(copy, Large), CSize(0, 0)) << "without an alternate path nothing is drawn";
}

TEST_F(IconButton, CopyIntoAButtonWithPathsKeepsThatButtonsAlternates) {
    const CString other = WriteIcon("other/modle/x.ico", 32, green);
    WriteIcon("other/modle_0/x.ico", 32, yellow);
    CMFCRibbonUNIcoButton target(2, L"", other, FALSE, CString(), FALSE);
    target.CopyFrom(*MakeButton());
    EXPECT_EQ(ColourDrawn(target, Large), red);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(target, Large), yellow);
}

TEST_F(IconButton, ButtonThatDestroysItsIconsKeepsItsOwnPaths) {
    CMFCRibbonUNIcoButton target(2, L"", m_small, FALSE, m_large, TRUE);
    target.CopyFrom(*MakeButton());
    EXPECT_EQ(target.GetIconPath(TRUE), m_small);
    EXPECT_EQ(target.GetIconPath(FALSE), m_large);
}

TEST_F(IconButton, ASecondCopyOntoTheSameTargetKeepsTheFirstPaths) {
    CMFCRibbonUNIcoButton target;
    target.CopyFrom(*MakeButton()); // which destroys its icons, and so does the target from now on
    const CMFCRibbonUNIcoButton other(3, L"other", m_small, FALSE, m_large, TRUE);
    target.CopyFrom(other);
    EXPECT_EQ(target.GetIconPath(TRUE), m_large);
    EXPECT_EQ(target.GetIconPath(FALSE), m_small);
    EXPECT_EQ(CString(target.GetText()), L"other");
}

TEST_F(IconButton, CopyOfAnotherKindOfButtonTakesNoPaths) {
    CMFCRibbonUNIcoButton target(2, L"", m_large, FALSE, m_small, FALSE);
    const CMFCRibbonButton other(3, L"other");
    target.CopyFrom(other);
    EXPECT_EQ(target.GetIconPath(TRUE), m_large);
    EXPECT_EQ(CString(target.GetText()), L"other");
}

TEST_F(IconButton, LinkedCopyDrawsThroughItsOriginal) {
    const auto original = MakeButton();
    CMFCRibbonUNIcoButton copy;
    copy.CopyFrom(*original);
    copy.SetOriginal(original.get());
    EXPECT_EQ(ColourDrawn(copy, Large), red);
    EXPECT_EQ(ColourDrawn(copy, Small), green);
    EXPECT_EQ(copy.GetImageSize(Large), CSize(32, 32));
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(copy, Large), blue);
}

TEST_F(IconButton, CopyOfALinkedCopyDrawsThroughBoth) {
    const auto original = MakeButton();
    CMFCRibbonUNIcoButton copy;
    copy.SetOriginal(original.get());
    CMFCRibbonUNIcoButton copyOfCopy;
    copyOfCopy.SetOriginal(&copy);
    EXPECT_EQ(copyOfCopy.GetImageSize(Large), CSize(32, 32));
    EXPECT_EQ(ColourDrawn(copyOfCopy, Large), red);
    copyOfCopy.SetDisabled(TRUE);
    EXPECT_NE(ColourDrawn(copyOfCopy, Large), red) << "drawn disabled";
    EXPECT_FALSE(copy.IsDisabled());
    EXPECT_FALSE(original->IsDisabled());
}

TEST_F(IconButton, OriginalIsLentDisabledFlagAndRectangleAndGetsItsOwnBack) {
    const auto original = MakeButton();
    original->SetRect(CRect(1, 2, 3, 4));
    CMFCRibbonUNIcoButton copy;
    copy.SetOriginal(original.get());
    copy.SetRect(CRect(5, 6, 7, 8));
    copy.SetDisabled(TRUE);
    EXPECT_NE(ColourDrawn(copy, Large), red) << "drawn disabled";
    EXPECT_FALSE(original->IsDisabled());
    EXPECT_EQ(original->GetRect(), CRect(1, 2, 3, 4));

    original->SetDisabled(TRUE);
    copy.SetDisabled(FALSE);
    EXPECT_EQ(ColourDrawn(copy, Large), red) << "drawn enabled";
    EXPECT_TRUE(original->IsDisabled());
}

/// Keeps what it holds while it is drawn.
class WatchedButton : public CMFCRibbonUNIcoButton {
public:
    void DrawImage(CDC*, RibbonImageType, CRect rect) override {
        drawnAt = rect;
        heldRect = m_rect;
        wasDisabled = m_bIsDisabled;
    }
    CRect drawnAt;
    CRect heldRect;
    BOOL wasDisabled = FALSE;
};

TEST_F(IconButton, OriginalHoldsTheCopysFlagAndRectangleWhileItDraws) {
    WatchedButton original;
    original.SetRect(CRect(1, 2, 3, 4));
    CMFCRibbonUNIcoButton copy;
    copy.SetOriginal(&original);
    copy.SetRect(CRect(5, 6, 7, 8));
    copy.SetDisabled(TRUE);
    copy.DrawImage(m_canvas.Dc(), Large, CRect(10, 20, 64, 64));
    EXPECT_EQ(original.drawnAt, CRect(10, 20, 64, 64));
    EXPECT_EQ(original.heldRect, CRect(5, 6, 7, 8));
    EXPECT_TRUE(original.wasDisabled);
    EXPECT_EQ(original.GetRect(), CRect(1, 2, 3, 4));
    EXPECT_FALSE(original.IsDisabled());
}

TEST_F(IconButton, LinkedCopyTakesItsImageSizeFromItsOriginal) {
    const auto withPaths = MakeButton();
    CMFCRibbonUNIcoButton withoutPaths;
    CMFCRibbonUNIcoButton copy;
    copy.SetOriginal(withPaths.get());
    EXPECT_EQ(copy.GetImageSize(Large), CSize(32, 32));
    const auto copyWithPaths = MakeButton();
    copyWithPaths->SetOriginal(&withoutPaths);
    EXPECT_EQ(copyWithPaths->GetImageSize(Large), CSize(0, 0));
}

TEST_F(IconButton, ChangedRectangleReachesTheFrameworksButton) {
    const auto button = MakeButton();
    TestWindow window;
    button->SetParentWnd(&window);
    button->SetIntermediateMode(TRUE);
    button->AddSubItem(new CMFCRibbonButton(2, L"sub"));
    button->SetDefaultCommand(TRUE);
    button->SetRect(CRect(0, 0, 80, 24));
    EXPECT_TRUE(button->GetMenuRect().IsRectEmpty());
    button->OnAfterChangeRect(m_canvas.Dc());
    EXPECT_FALSE(button->GetMenuRect().IsRectEmpty());
}

TEST_F(IconButton, OriginalOfAnotherKindIsNotAsked) {
    CMFCRibbonButton original(1, L"");
    const auto button = MakeButton();
    button->SetOriginal(&original);
    EXPECT_EQ(ColourDrawn(*button, Large), red);
    EXPECT_EQ(button->GetImageSize(Large), CSize(32, 32));
}

TEST_F(IconButton, IsMadeByItsRunTimeClass) {
    for (CRuntimeClass* runtimeClass : {RUNTIME_CLASS(CMFCRibbonUNIcoButton), RUNTIME_CLASS(CMFCRibbonSmallButton)}) {
        const std::unique_ptr<CObject> made(runtimeClass->CreateObject());
        ASSERT_NE(made, nullptr) << runtimeClass->m_lpszClassName;
        EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMFCRibbonUNIcoButton)));
        EXPECT_EQ(made->GetRuntimeClass(), runtimeClass);
    }
}

/// Keeps the texts that it is asked to draw, and the place of the last one.
class TextKeepingButton : public CMFCRibbonUNIcoButton {
public:
    using CMFCRibbonUNIcoButton::CMFCRibbonUNIcoButton;
    int DrawRibbonText(CDC*, const CString& text, CRect rect, UINT, COLORREF) override {
        drawn += text.GetString();
        place = rect;
        return 0;
    }
    std::wstring drawn;
    CRect place{0, 0, 0, 0};
};

TEST_F(IconButton, TextIsTranslatedAtEveryDrawAndPutBack) {
    const TranslatedInstallation installation;
    TextKeepingButton button(1, L"key", m_large, FALSE, m_small);
    TestWindow window;
    button.SetParentWnd(&window);
    button.SetIntermediateMode(TRUE);
    button.SetRect(CRect(0, 0, 64, 24));

    ASSERT_TRUE(installation.Translate("key", "Common", "one "));
    button.OnDraw(m_canvas.Dc());
    EXPECT_EQ(button.drawn, L"one <key>");
    EXPECT_EQ(CString(button.GetText()), L"key");

    button.drawn.clear();
    ASSERT_TRUE(installation.Translate("key", "Common", "two "));
    button.OnDraw(m_canvas.Dc());
    EXPECT_EQ(button.drawn, L"two <key>");
    EXPECT_EQ(CString(button.GetText()), L"key");
}

TEST_F(IconButton, TextIsTranslatedBelowALargePictureAndInARowOfAMenu) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common"));
    TextKeepingButton button(1, L"key", m_large, FALSE, m_small);
    TestWindow window;
    button.SetParentWnd(&window);
    button.SetRect(CRect(0, 0, 64, 64));
    ASSERT_TRUE(button.IsLargeMode());
    button.OnDraw(m_canvas.Dc());
    EXPECT_EQ(button.drawn, L"<key>");
    EXPECT_GE(button.place.top, 32) << "below the picture";

    button.drawn.clear();
    button.SetMenuMode(TRUE);
    button.OnDraw(m_canvas.Dc());
    EXPECT_EQ(button.drawn, L"<key>");
    EXPECT_GE(button.place.left, 16) << "beside the picture";
}

TEST_F(IconButton, SizesAreThoseOfTheTranslationInEveryMode) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common", "a long and winding "));
    CMFCRibbonUNIcoButton button(1, L"key", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton translated(1, L"a long and winding <key>", m_large, FALSE, m_small);
    CDC* const dc = m_canvas.Dc();
    EXPECT_EQ(button.GetRegularSize(dc), translated.GetRegularSize(dc));
    EXPECT_EQ(button.GetIntermediateSize(dc), translated.GetIntermediateSize(dc));
    EXPECT_EQ(button.GetCompactSize(dc), translated.GetCompactSize(dc));
    EXPECT_EQ(CString(button.GetText()), L"key");
    ASSERT_TRUE(installation.Translate("key", "Common"));
    EXPECT_LT(button.GetIntermediateSize(dc).cx, translated.GetIntermediateSize(dc).cx) << "the language has changed";
}

TEST_F(IconButton, LongTranslationsAreDrawnWhole) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common", "a long and winding "));
    TextKeepingButton button(1, L"key", m_large, FALSE, m_small);
    TestWindow window;
    button.SetParentWnd(&window);
    button.SetIntermediateMode(TRUE);
    CDC* const dc = m_canvas.Dc();
    button.OnCalcTextSize(dc);
    button.SetRect(CRect(CPoint(0, 0), button.GetSize(dc)));
    button.OnAfterChangeRect(dc);
    button.OnDraw(dc);
    CFont* const former = dc->SelectObject(&afxGlobalData.fontRegular);
    EXPECT_GE(button.place.Width(), dc->GetTextExtent(CString(L"a long and winding <key>")).cx);
    dc->SelectObject(former);
}

TEST_F(IconButton, KeyTipsStayWhenTheTextIsSwappedAtADraw) {
    const TranslatedInstallation installation;
    ASSERT_TRUE(installation.Translate("key", "Common"));
    TextKeepingButton button(1, L"key\nK", m_large, FALSE, m_small);
    TestWindow window;
    button.SetParentWnd(&window);
    button.SetRect(CRect(0, 0, 64, 24));
    const CString keys = button.GetKeys();
    EXPECT_EQ(keys, L"K");
    button.OnDraw(m_canvas.Dc());
    EXPECT_EQ(CString(button.GetKeys()), keys);
    EXPECT_EQ(CString(button.GetText()), L"key");
}

class SmallButton : public IconButton {};

TEST_F(SmallButton, HasALargeModeUntilItIsSetSmall) {
    CMFCRibbonSmallButton button(1, L"", m_large, FALSE, m_small);
    EXPECT_TRUE(button.HasLargeMode());
    button.SetSmallMode();
    EXPECT_FALSE(button.HasLargeMode());
    button.SetLargeMode();
    EXPECT_TRUE(button.HasLargeMode());
}

TEST_F(SmallButton, WithoutALargePictureHasNoLargeMode) {
    EXPECT_FALSE(CMFCRibbonSmallButton().HasLargeMode());
    EXPECT_FALSE(CMFCRibbonSmallButton(1, L"", CString(), FALSE, m_small).HasLargeMode());
}

TEST_F(SmallButton, FormsBothAlternates) {
    CMFCRibbonSmallButton button(1, L"", m_large, FALSE, m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(ColourDrawn(button, Large), blue);
    EXPECT_EQ(ColourDrawn(button, Small), yellow);
}

TEST_F(SmallButton, CopyOfAnotherKindOfButtonKeepsTheSmallMode) {
    CMFCRibbonSmallButton copy(1, L"", m_large, FALSE, m_small);
    copy.SetSmallMode();
    copy.CopyFrom(*MakeButton());
    EXPECT_FALSE(copy.HasLargeMode());
    EXPECT_EQ(copy.GetIconPath(TRUE), m_large);
}

TEST_F(SmallButton, LinkedSmallButtonHasALargeModeWhereItsOriginalHasALargePicture) {
    CMFCRibbonSmallButton copy;
    EXPECT_FALSE(copy.HasLargeMode());
    const auto original = MakeButton();
    copy.SetOriginal(original.get());
    EXPECT_TRUE(copy.HasLargeMode());
}

TEST_F(SmallButton, CopyTakesTheSmallMode) {
    CMFCRibbonSmallButton source(1, L"", m_large, FALSE, m_small);
    source.SetSmallMode();
    CMFCRibbonSmallButton copy;
    copy.CopyFrom(source);
    EXPECT_EQ(copy.GetIconPath(TRUE), m_large);
    EXPECT_FALSE(copy.HasLargeMode());
    copy.CopyFrom(CMFCRibbonSmallButton(1, L"", m_large));
    EXPECT_TRUE(copy.HasLargeMode());
}

} // namespace
