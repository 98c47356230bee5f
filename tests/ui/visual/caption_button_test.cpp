// Buttons in the captions of panes and mini frames.
#include <afxcaptionbutton.h>
#include <afxglobals.h>
#include <afxvisualmanageroffice2007.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "tests/support/canvas.h"

namespace {

class CaptionButton : public testing::Test {
protected:
    ~CaptionButton() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        afxGlobalData.SetRibbonImageScale(0);
    }

    static std::vector<std::uint32_t> Draw(CMFCCaptionButton& button, BOOL isActive = TRUE, BOOL isAcross = TRUE,
                                           BOOL isMaximized = TRUE, BOOL isDisabled = FALSE) {
        Canvas canvas;
        button.OnDraw(canvas.Dc(), isActive, isAcross, isMaximized, isDisabled);
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                pixels.push_back(canvas.At(x, y));
            }
        }
        return pixels;
    }
    static int Changed(const std::vector<std::uint32_t>& pixels) {
        return static_cast<int>(pixels.size() - std::count(pixels.begin(), pixels.end(), Canvas::background));
    }
};

TEST_F(CaptionButton, LiesWhereItWasMovedAndNowhereWhileItIsHidden) {
    CMFCCaptionButton button(AFX_HTCLOSE, TRUE);
    button.Move(CPoint(5, 7));
    EXPECT_EQ(button.GetRect(), CRect(CPoint(5, 7), CMFCCaptionButton::GetSize()));
    EXPECT_EQ(button.GetHit(), AFX_HTCLOSE);
    EXPECT_TRUE(button.IsLeftAlign());
    EXPECT_GT(Changed(Draw(button)), 0);
    button.Move(CPoint(5, 7), TRUE);
    EXPECT_TRUE(button.GetRect().IsRectEmpty());
    EXPECT_EQ(Changed(Draw(button)), 0);
}

TEST_F(CaptionButton, GrowsWithTheScale) {
    const CSize plain = CMFCCaptionButton::GetSize();
    afxGlobalData.SetRibbonImageScale(2.0);
    EXPECT_GE(CMFCCaptionButton::GetSize().cx, 2 * plain.cx - 2);
}

TEST_F(CaptionButton, EveryHitHasItsOwnPictureInsideTheButton) {
    std::set<std::vector<std::uint32_t>> pictures;
    for (const UINT hit :
         {static_cast<UINT>(HTCLOSE), static_cast<UINT>(HTMINBUTTON), static_cast<UINT>(HTMAXBUTTON), AFX_HTMENU}) {
        CMFCCaptionButton button(hit);
        button.Move(CPoint(10, 10));
        const auto pixels = Draw(button);
        EXPECT_GT(Changed(pixels), 3) << hit;
        const CRect rect = button.GetRect();
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                ASSERT_TRUE(rect.PtInRect(CPoint(x, y)) || pixels[y * 64 + x] == Canvas::background) << x << ' ' << y;
            }
        }
        pictures.insert(pixels);
    }
    CMFCCaptionButton row(AFX_HTMAXBUTTON);
    for (const BOOL isAcross : {TRUE, FALSE}) {
        for (const BOOL isMaximized : {TRUE, FALSE}) {
            row.Move(CPoint(10, 10));
            pictures.insert(Draw(row, TRUE, isAcross, isMaximized));
        }
    }
    // The menu's arrow and that of a row that gets smaller are the same.
    EXPECT_EQ(pictures.size(), 7u);
}

TEST_F(CaptionButton, ItsStateAndTheCaptionsAreSeenInEveryStyle) {
    using Manager = CMFCVisualManagerOffice2007;
    for (const Manager::Style style : {Manager::Office2007_LunaBlue, Manager::Office2007_ObsidianBlack,
                                       Manager::Office2007_Aqua, Manager::Office2007_Silver}) {
        Manager::SetStyle(style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        CMFCCaptionButton button(HTCLOSE);
        button.Move(CPoint(10, 10));
        std::set<std::vector<std::uint32_t>> looks{Draw(button), Draw(button, TRUE, TRUE, TRUE, TRUE)};
        button.m_bFocused = TRUE;
        looks.insert(Draw(button));
        button.m_bPushed = TRUE;
        looks.insert(Draw(button));
        EXPECT_EQ(looks.size(), 4u) << style;
    }
}

} // namespace
