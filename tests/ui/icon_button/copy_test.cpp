// What a copy of a button takes over, and how it draws through its original.
#include "tests/ui/icon_button/icon_fixture.h"

namespace {

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
        wasDisabled = IsDisabled();
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

TEST_F(IconButton, OriginalOfAnotherKindIsNotAsked) {
    CMFCRibbonButton original(1, L"");
    const auto button = MakeButton();
    button->SetOriginal(&original);
    EXPECT_EQ(ColourDrawn(*button, Large), red);
    EXPECT_EQ(button->GetImageSize(Large), CSize(32, 32));
}

} // namespace
