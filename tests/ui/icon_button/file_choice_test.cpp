// Which of its icon files a button draws, and how often it reads them.
#include "tests/ui/icon_button/icon_fixture.h"

namespace {

TEST_F(IconButton, PathsAreGivenBackAsConfigured) {
    const auto button = MakeButton();
    EXPECT_EQ(button->GetIconPath(TRUE), m_large);
    EXPECT_EQ(button->GetIconPath(2), m_large);
    EXPECT_EQ(button->GetIconPath(FALSE), m_small);
    CMFCRibbonUNIcoButton::SetSkinStyle(L"0");
    EXPECT_EQ(button->GetIconPath(TRUE), m_large);
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
    EXPECT_EQ(AlternateDrawn(twice), blue);
}

TEST_F(IconButton, AlternateOfAnAlternatePathIsFormedLikeAnyOther) {
    const CString alternate = WriteIcon("modle_0/x.ico", 32, red);
    WriteIcon("modle_0_0/x.ico", 32, blue);
    EXPECT_EQ(AlternateDrawn(alternate), blue);
}

TEST_F(IconButton, ModleInOtherLettersIsNotReplaced) {
    EXPECT_EQ(AlternateDrawn(WriteIcon("Modle/MODLE.ico", 32, red)), red);
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
    for (int i = 0; i < 100; ++i) {
        MakeButton();
    }
    EXPECT_EQ(FileIcon::GetReadCount(), before);
    m_directory.Write("pic/modle/large.ico", MakeIconFile(32, {blue, blue}) + "longer than before");
    MakeButton();
    EXPECT_EQ(FileIcon::GetReadCount(), before + 1);
    MakeButton();
    EXPECT_EQ(FileIcon::GetReadCount(), before + 1);
}

TEST_F(IconButton, FileThatChangesWhileManyButtonsAreMadeIsTriedAgainBehindThem) {
    MakeButton();
    const std::size_t before = FileIcon::GetReadCount();
    {
        const IconTrials many;
        {
            const IconTrials someOfThem;
            MakeButton();
        }
        m_directory.Write("pic/modle/large.ico", MakeIconFile(32, {blue, blue}) + "longer than before");
        MakeButton();
        EXPECT_EQ(FileIcon::GetReadCount(), before);
    }
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

} // namespace
