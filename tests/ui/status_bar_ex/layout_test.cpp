// The bar gives the pure layout what it measures and hands the places out.
#include "extended_status.h"

#include "skin_visual_managers.h"
#include "tests/support/canvas.h"

#include <afxglobals.h>

namespace {

class StatusBarExLayout : public ExtendedStatus {
protected:
    CRect Client() const {
        CRect client;
        bar.GetClientRect(client);
        return client;
    }
};

/// Counts what it is told.
class ToldButton : public CMFCRibbonButton {
public:
    explicit ToldButton(LPCTSTR text) : CMFCRibbonButton(910, text) {}
    int told = 0;
    void OnAfterChangeRect(CDC* dc) override {
        ++told;
        CMFCRibbonButton::OnAfterChangeRect(dc);
    }
};

class ToldSeparator : public CMFCRibbonSeparator {
public:
    int told = 0;
    void OnAfterChangeRect(CDC* dc) override {
        ++told;
        CMFCRibbonSeparator::OnAfterChangeRect(dc);
    }
};

TEST_F(StatusBarExLayout, AnElementHasItsFixedWidthWhateverItsText) {
    CMFCRibbonButton* button = nullptr;
    for (const wchar_t* const text : {L"a", L"b", L"c", L"d"}) {
        button = &AddMain(text);
    }
    bar.SetEleWidth(3, 80);
    bar.EnsureLayout();
    EXPECT_EQ(button->GetRect().Width(), 80);
    button->SetText(L"a text that is much longer than eighty pixels");
    bar.EnsureLayout();
    EXPECT_EQ(button->GetRect().Width(), 80);
}

TEST_F(StatusBarExLayout, AWidthOfZeroRestoresItsOwn) {
    CMFCRibbonButton* button = nullptr;
    for (const wchar_t* const text : {L"a", L"b", L"c", L"d"}) {
        button = &AddMain(text);
    }
    bar.EnsureLayout();
    const int own = button->GetRect().Width();
    bar.SetEleWidth(3, 80);
    bar.RecalcLayout();
    ASSERT_NE(button->GetRect().Width(), own);
    bar.SetEleWidth(3, 0);
    bar.RecalcLayout();
    EXPECT_EQ(button->GetRect().Width(), own);
}

TEST_F(StatusBarExLayout, AWidthForAnIndexThatHasNoElementHarmsNobody) {
    CMFCRibbonButton& button = AddMain(L"a");
    bar.EnsureLayout();
    const CRect before = button.GetRect();
    for (const int index : {-1, 7, 1000000}) {
        bar.SetEleWidth(index, 80);
    }
    bar.RecalcLayout();
    EXPECT_EQ(button.GetRect(), before);
}

TEST_F(StatusBarExLayout, WithTheSecondElementHiddenTheFirstIsAsWideAsBoth) {
    CMFCRibbonButton& first = AddMain(L"first");
    CMFCRibbonButton& second = AddMain(L"the second");
    bar.EnsureLayout();
    const int both = first.GetRect().Width() + second.GetRect().Width();
    second.SetVisible(FALSE);
    bar.EnsureLayout();
    EXPECT_EQ(first.GetRect().Width(), both);
    EXPECT_TRUE(second.GetRect().IsRectEmpty());
}

TEST_F(StatusBarExLayout, TheSecondElementIs23High) {
    AddMain(L"first");
    const CMFCRibbonButton& second = AddMain(L"second");
    bar.EnsureLayout();
    EXPECT_EQ(second.GetRect().Height(), 23);
}

TEST_F(StatusBarExLayout, AHiddenElementFromTheThirdOnKeepsItsPlace) {
    AddMain(L"a");
    AddMain(L"b");
    CMFCRibbonButton& third = AddMain(L"third");
    const CMFCRibbonButton& fourth = AddMain(L"fourth");
    bar.EnsureLayout();
    const CRect before = fourth.GetRect();
    third.SetVisible(FALSE);
    bar.EnsureLayout();
    EXPECT_TRUE(third.GetRect().IsRectEmpty());
    EXPECT_EQ(fourth.GetRect(), before);
}

TEST_F(StatusBarExLayout, RightLabelsShareTheRightEndOfTheMainArea) {
    AddMain(L"a");
    AddMain(L"b");
    auto* const one = new CMFCRibbonLabelEx(L"one");
    auto* const other = new CMFCRibbonLabelEx(L"another one");
    for (CMFCRibbonLabelEx* const label : {one, other}) {
        label->SetRight(true);
        bar.AddElement(label, L"");
    }
    bar.EnsureLayout();
    EXPECT_FALSE(one->GetRect().IsRectEmpty());
    EXPECT_EQ(one->GetRect().right, other->GetRect().right);
    EXPECT_EQ(one->GetRect().right, Client().right - bar.GetSizeGripWidth() - 10);
    EXPECT_EQ(bar.HitTest(one->GetRect().CenterPoint(), FALSE, FALSE), other) << "the last one lies on top";
}

TEST_F(StatusBarExLayout, SeparatorsFirstTwiceAndLastHaveEmptyRectangles) {
    AddMain(L"a");
    AddMain(L"b");
    CMFCRibbonSeparator* separators[4] = {};
    for (int index = 0; index < 4; ++index) {
        separators[index] = new CMFCRibbonSeparator;
    }
    bar.AddElement(separators[0], L"");
    AddMain(L"c");
    bar.AddElement(separators[1], L"");
    bar.AddElement(separators[2], L"");
    AddMain(L"d");
    bar.AddElement(separators[3], L"");
    bar.EnsureLayout();
    EXPECT_TRUE(separators[0]->GetRect().IsRectEmpty());
    EXPECT_FALSE(separators[1]->GetRect().IsRectEmpty());
    EXPECT_TRUE(separators[2]->GetRect().IsRectEmpty());
    EXPECT_TRUE(separators[3]->GetRect().IsRectEmpty());
}

TEST_F(StatusBarExLayout, ElementsAreToldOfTheirPlacesButSkippedSeparatorsAreNot) {
    auto* const button = new ToldButton(L"told");
    auto* const skipped = new ToldSeparator;
    auto* const extended = new ToldButton(L"extended");
    bar.AddElement(button, L"");
    bar.AddElement(skipped, L"");
    bar.AddExtendedElement(extended, L"");
    bar.RecalcLayout();
    EXPECT_GT(button->told, 0);
    EXPECT_GT(extended->told, 0);
    EXPECT_EQ(skipped->told, 0);
}

TEST_F(StatusBarExLayout, InformationHidesTheMainElementsOnly) {
    const CMFCRibbonButton& main = AddMain(L"main");
    TwoApplications();
    bar.SetExEleApp(L"one");
    bar.SetInformation(L"Loading");
    EXPECT_TRUE(main.GetRect().IsRectEmpty());
    EXPECT_FALSE(bar.GetExElement(0)->GetRect().IsRectEmpty());
    EXPECT_EQ(bar.m_informationPlace.right, bar.GetExElement(0)->GetRect().left - 10);
    bar.SetInformation(nullptr);
    EXPECT_FALSE(main.GetRect().IsRectEmpty());
    EXPECT_TRUE(bar.m_informationPlace.IsRectEmpty());
}

TEST_F(StatusBarExLayout, ABarInAMaximisedFrameHasNoSizeGrip) {
    EXPECT_FALSE(bar.m_rectSizeGrip.IsRectEmpty());
    frame.ShowWindow(SW_MAXIMIZE);
    PumpPending();
    bar.EnsureLayout();
    EXPECT_TRUE(bar.m_rectSizeGrip.IsRectEmpty());
    frame.ShowWindow(SW_RESTORE);
    PumpPending();
    bar.EnsureLayout();
    EXPECT_FALSE(bar.m_rectSizeGrip.IsRectEmpty());
}

TEST_F(StatusBarExLayout, WithoutASizeGripThereIsNone) {
    bar.ModifyStyle(SBARS_SIZEGRIP, 0);
    bar.RecalcLayout();
    EXPECT_TRUE(bar.m_rectSizeGrip.IsRectEmpty());
}

TEST_F(StatusBarExLayout, GetSpaceIsWhatIsFreeBehindTheLastElement) {
    AddMain(L"a");
    AddMain(L"b");
    const CMFCRibbonButton& third = AddMain(L"third");
    bar.EnsureLayout();
    EXPECT_EQ(bar.GetSpace(), Client().right - bar.GetSizeGripWidth() - 10 - third.GetRect().right);
}

TEST_F(StatusBarExLayout, ARightClickOpensNoMenu) {
    auto* const button = new CMFCRibbonButton(900, L"named");
    bar.AddElement(button, L"Named");
    bar.EnsureLayout();
    bar.OnPaneContextMenu(&frame, CPoint(10, 10));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    // By the mouse, over the element, and by the key.
    CPoint middle = button->GetRect().CenterPoint();
    bar.ClientToScreen(&middle);
    for (const CPoint at : {middle, CPoint(-1, -1)}) {
        bar.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(bar.GetSafeHwnd()), MAKELPARAM(at.x, at.y));
        PumpPending();
        EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr) << at.x;
    }
}

TEST_F(StatusBarExLayout, AFixedWidthTakesEffectAtTheNextLayoutNotBefore) {
    CMFCRibbonButton& button = AddMain(L"a");
    bar.EnsureLayout();
    const CRect before = button.GetRect();
    const int layouts = bar.layouts;
    bar.SetEleWidth(0, before.Width() + 30);
    EXPECT_EQ(button.GetRect(), before);
    EXPECT_EQ(bar.layouts, layouts);
    bar.RecalcLayout();
    EXPECT_EQ(button.GetRect().Width(), before.Width() + 30);
}

TEST_F(StatusBarExLayout, AFixedWidthIsLaidOutBeforeTheNextPaintingAndOnce) {
    const CMFCRibbonButton& button = AddMain(L"a");
    bar.EnsureLayout();
    bar.UpdateWindow();
    const int width = button.GetRect().Width() + 30;
    const int layouts = bar.layouts;
    bar.SetEleWidth(0, width);
    bar.SetEleWidth(1, width);
    bar.UpdateWindow();
    EXPECT_EQ(button.GetRect().Width(), width);
    EXPECT_EQ(bar.layouts, layouts + 1);
    bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(bar.layouts, layouts + 1);
}

TEST_F(StatusBarExLayout, AWidthThatIsStoredAgainTakesThePlaceOfTheFirst) {
    const CMFCRibbonButton& button = AddMain(L"a");
    for (const int width : {70, 90, 33}) {
        bar.SetEleWidth(0, width);
        bar.RecalcLayout();
        EXPECT_EQ(button.GetRect().Width(), width);
    }
}

TEST_F(StatusBarExLayout, AFixedWidthBelongsToTheIndexNotToTheElement) {
    AddMain(L"a");
    CMFCRibbonButton& second = AddMain(L"b");
    second.SetID(901);
    AddMain(L"c");
    AddMain(L"d").SetID(902);
    bar.SetEleWidth(2, 90);
    ASSERT_TRUE(bar.RemoveElement(901));
    bar.RecalcLayout();
    EXPECT_EQ(bar.GetElement(2)->GetID(), 902u);
    EXPECT_EQ(bar.GetElement(2)->GetRect().Width(), 90);
    EXPECT_NE(bar.GetElement(1)->GetRect().Width(), 90);
}

TEST_F(StatusBarExLayout, AFixedWidthOfAnExtendedElementsIndexIsTheMainOnesAlone) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    const int own = bar.GetExElement(0)->GetRect().Width();
    bar.SetEleWidth(0, own + 50);
    bar.RecalcLayout();
    EXPECT_EQ(bar.GetExElement(0)->GetRect().Width(), own);
}

TEST_F(StatusBarExLayout, OnlyAnExtendedLabelKnowsOfTheRight) {
    AddMain(L"a");
    AddMain(L"b");
    auto* const plain = new CMFCRibbonLabel(L"plain");
    auto* const extended = new CMFCRibbonLabelEx(L"extended");
    extended->SetRight(true);
    bar.AddElement(plain, L"");
    bar.AddElement(extended, L"");
    bar.EnsureLayout();
    EXPECT_LT(plain->GetRect().right, extended->GetRect().left);
    extended->SetRight(false);
    bar.RecalcLayout();
    EXPECT_EQ(extended->GetRect().left, plain->GetRect().right);
}

TEST_F(StatusBarExLayout, AnExtendedSeparatorFillsTheRowAndLeavesFivePixelsAtItsRight) {
    TwoApplications();
    bar.SetExEleApp(L"one");
    const CRect label = bar.GetExElement(0)->GetRect(), line = bar.GetExElement(1)->GetRect(),
                slider = bar.GetExElement(2)->GetRect();
    EXPECT_EQ(slider.right, Client().right - bar.GetSizeGripWidth());
    EXPECT_EQ(line.right, slider.left - 5);
    EXPECT_EQ(line.top, 2);
    EXPECT_EQ(line.bottom, Client().bottom - 2);
    EXPECT_EQ(label.right, line.left);
}

TEST_F(StatusBarExLayout, ItsOwnLengthsDoNotGrowWithTheScale) {
    afxGlobalData.SetRibbonImageScale(2);
    TwoApplications();
    AddMain(L"first");
    const CMFCRibbonButton& second = AddMain(L"second");
    const CMFCRibbonButton& third = AddMain(L"third");
    bar.SetEleWidth(2, 80);
    bar.SetExEleApp(L"one");
    EXPECT_EQ(second.GetRect().Height(), 23);
    EXPECT_EQ(third.GetRect().Width(), 80);
    EXPECT_EQ(bar.GetExElement(1)->GetRect().right, bar.GetExElement(2)->GetRect().left - 5);
    bar.SetInformation(L"text");
    EXPECT_EQ(bar.m_informationPlace, CRect(0, 2, bar.GetExElement(0)->GetRect().left - 10, Client().bottom - 2));
    bar.SetInformation(nullptr);
    afxGlobalData.SetRibbonImageScale(0);
}

TEST_F(StatusBarExLayout, InInformationModeElementsAreNotToldAndTheExtendedOnesAre) {
    auto* const main = new ToldButton(L"main");
    auto* const extended = new ToldButton(L"extended");
    bar.AddElement(main, L"");
    bar.AddExtendedElement(extended, L"");
    bar.RecalcLayout();
    const int toldMain = main->told, toldExtended = extended->told;
    bar.SetInformation(L"text");
    EXPECT_EQ(main->told, toldMain);
    EXPECT_GT(extended->told, toldExtended);
}

TEST_F(StatusBarExLayout, ARightLabelOfTheBarsExtendedSideIsPackedLikeAnyOther) {
    Register(L"Place", 501);
    Register(L"Light", 503);
    Application(L"one", {Row(L"Place", L"label"), Row(L"Light", L"button")});
    bar.SetExEleApp(L"one");
    const CRect before = bar.GetExElement(0)->GetRect();
    ExElement<CMFCRibbonLabelEx>(0)->SetRight(true);
    bar.RecalcLayout();
    EXPECT_EQ(bar.GetExElement(0)->GetRect(), before);
}

TEST_F(StatusBarExLayout, AnIndexOutsideOfTheElementsRaisesInTheirArray) {
    class Reaching : public CMFCRibbonStatusBarEx {
    public:
        CMFCRibbonBaseElement* At(INT_PTR index) { return m_arExtendedElements.GetAt(index); }
    } reaching;
    try {
        reaching.At(0);
        FAIL() << "nothing was raised";
    } catch (CException* raised) {
        EXPECT_TRUE(raised->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
        raised->Delete();
    }
}

TEST_F(StatusBarExLayout, OfAnyWidthAndScaleTheWholeBarIsPainted) {
    for (const auto* const skin : {RUNTIME_CLASS(CQKVisualManagerOffice2007Black),
                                   RUNTIME_CLASS(CQKVisualManagerOffice2007Silver), RUNTIME_CLASS(CMFCVisualManager)}) {
        CMFCVisualManager::SetDefaultManager(const_cast<CRuntimeClass*>(skin));
        TwoApplications();
        AddMain(L"Drag the map; turn the wheel to zoom");
        AddMain(L"37.6941° S  80.0471° E");
        bar.SetExEleApp(L"one");
        for (const int percent : {100, 150, 175, 200, 300}) {
            afxGlobalData.SetRibbonImageScale(percent / 100.0);
            for (int width = 1; width < 900; width += 13) {
                SCOPED_TRACE(testing::Message() << skin->m_lpszClassName << ' ' << percent << " % " << width);
                bar.SetWindowPos(nullptr, 0, 0, width, bar.CalcFixedLayout(FALSE, TRUE).cy, SWP_NOZORDER | SWP_NOMOVE);
                bar.RecalcLayout();
                const int before = bar.paints;
                bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
                ASSERT_EQ(bar.paints, before + 1);
                Canvas picture(Client().Size(), 0x00FF00FF);
                bar.DoPaint(picture.Dc());
                picture.Close();
                for (const CPoint corner : {CPoint(0, 0), CPoint(Client().right - 1, Client().bottom - 1)}) {
                    ASSERT_NE(picture.At(corner.x, corner.y), 0xFF00FFu);
                }
            }
        }
        bar.RemoveAll();
        bar.RemoveAllEx();
    }
    CMFCVisualManager::SetDefaultManager(nullptr);
    afxGlobalData.SetRibbonImageScale(0);
}

} // namespace
