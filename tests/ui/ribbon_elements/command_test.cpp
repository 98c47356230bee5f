#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonLabel.h>
#include <afxribbonslider.h>

#include <memory>

#include "element_fixture.h"
#include "tests/support/message_pump.h"

namespace {

constexpr UINT kId = 4242;

void Click(CMFCRibbonBaseElement& element, CPoint point) {
    element.OnLButtonDown(point);
    element.OnLButtonUp(point);
}

class Commands : public ::testing::Test {
protected:
    template <typename T>
    T& Shown(T& element, CPoint at = {0, 0}) {
        element.SetParentWnd(&window);
        Place(element, at);
        return element;
    }
    CommandWindow window;
};

TEST_F(Commands, ReleaseOfAPressedButtonSendsItsCommand) {
    CMFCRibbonButton button(kId, L"Open");
    Shown(button);
    button.OnLButtonDown({3, 3});
    EXPECT_TRUE(button.IsPressed());
    EXPECT_TRUE(window.commands.empty());
    button.OnLButtonUp({3, 3});
    EXPECT_FALSE(button.IsPressed());
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
}

TEST_F(Commands, AReleaseOutsideOrWithoutAPressSendsNothing) {
    CMFCRibbonButton button(kId, L"Open");
    Shown(button);
    button.OnLButtonUp({3, 3});
    button.OnLButtonDown({3, 3});
    button.OnLButtonUp({300, 300});
    EXPECT_TRUE(window.commands.empty());
    EXPECT_FALSE(button.IsPressed());
}

TEST_F(Commands, OneThatNoMessageCanCarryIsNotSentAsAnother) {
    CMFCRibbonButton button(0x10000 + kId, L"Beyond");
    Shown(button);
    for (const BOOL delay : {FALSE, TRUE}) {
        EXPECT_FALSE(button.NotifyCommand(delay));
    }
    PumpPending();
    EXPECT_TRUE(window.commands.empty());
    CMFCRibbonButton last(0xFFFE, L"Last");
    Shown(last);
    EXPECT_TRUE(last.NotifyCommand(FALSE));
    EXPECT_EQ(window.commands, std::vector<UINT>{0xFFFE});
}

TEST_F(Commands, DisabledElementsSendNothing) {
    CMFCRibbonButton button(kId, L"Open");
    CMFCRibbonSlider slider(kId);
    CMFCRibbonCheckBox check(kId, L"Grid");
    for (CMFCRibbonBaseElement* element :
         {static_cast<CMFCRibbonBaseElement*>(&button), static_cast<CMFCRibbonBaseElement*>(&slider),
          static_cast<CMFCRibbonBaseElement*>(&check)}) {
        Shown(*element);
        element->SetDisabled(TRUE);
        Click(*element, element->GetRect().CenterPoint());
        EXPECT_FALSE(element->NotifyCommand());
        EXPECT_FALSE(element->NotifyCommand(TRUE));
    }
    PumpPending();
    EXPECT_TRUE(window.commands.empty());
    EXPECT_EQ(slider.GetPos(), 0);
}

TEST_F(Commands, DisablingWhilePressedSendsNothing) {
    CMFCRibbonButton button(kId, L"Open");
    Shown(button);
    button.OnLButtonDown({3, 3});
    button.SetDisabled(TRUE);
    button.SetDisabled(FALSE);
    button.OnLButtonUp({3, 3});
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Commands, WithDelayTheCommandIsQueued) {
    CMFCRibbonButton button(kId, L"Open");
    Shown(button);
    EXPECT_TRUE(button.NotifyCommand(TRUE));
    EXPECT_TRUE(window.commands.empty());
    PumpPending();
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
    EXPECT_TRUE(button.NotifyCommand(FALSE));
    EXPECT_EQ(window.commands.size(), 2u);
}

TEST_F(Commands, WithoutAnIdOrAWindowNothingIsSent) {
    CMFCRibbonButton none(0, L"None");
    EXPECT_FALSE(Shown(none).NotifyCommand());
    CMFCRibbonButton minusOne(static_cast<UINT>(-1), L"None");
    EXPECT_FALSE(Shown(minusOne).NotifyCommand());
    CMFCRibbonButton homeless(kId, L"Open");
    EXPECT_FALSE(homeless.NotifyCommand());
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Commands, AHandlerMayDeleteTheClickedElement) {
    auto button = std::make_unique<CMFCRibbonButton>(kId, L"Open");
    Shown(*button);
    window.onCommand = [&button] { button.reset(); };
    Click(*button, {3, 3});
    EXPECT_EQ(button, nullptr);
    EXPECT_EQ(window.commands.size(), 1u);

    auto slider = std::make_unique<CMFCRibbonSlider>(kId, 100);
    Shown(*slider);
    window.onCommand = [&slider] { slider.reset(); };
    Click(*slider, {90, 10});
    EXPECT_EQ(slider, nullptr);
    EXPECT_EQ(window.commands.size(), 2u);
}

TEST_F(Commands, ALabelSendsNoneEvenWithAnId) {
    CMFCRibbonLabel label(L"Zoom");
    label.SetID(kId);
    Shown(label);
    Click(label, {3, 3});
    EXPECT_TRUE(window.commands.empty());
}

class PopupButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    void OnShowPopupMenu() override { ++popups; }
    int popups = 0;
};

TEST_F(Commands, ASplitButtonSendsFromItsCommandAreaAndOpensFromItsMenuArea) {
    PopupButton button(kId, L"Paste");
    button.AddSubItem(new CMFCRibbonButton(1, L"Special"));
    button.SetDefaultCommand();
    Shown(button);
    Click(button, button.GetMenuRect().CenterPoint());
    EXPECT_EQ(button.popups, 1);
    EXPECT_TRUE(window.commands.empty());
    Click(button, button.GetCommandRect().CenterPoint());
    EXPECT_EQ(button.popups, 1);
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
}

TEST_F(Commands, AMenuButtonOpensOnThePressAndSendsNothing) {
    PopupButton button(kId, L"Shapes");
    button.AddSubItem(new CMFCRibbonButton(1, L"Line"));
    Shown(button);
    // As the bar does: it marks the element pressed before the element hears of it.
    button.SetPressed(TRUE);
    Click(button, button.GetRect().CenterPoint());
    EXPECT_EQ(button.popups, 1);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Commands, SubItemsAreShownAsAMenuAndTheChosenOneSendsItsCommand) {
    CMFCRibbonButton button(kId, L"Shapes");
    button.AddSubItem(new CMFCRibbonButton(11, L"Line"));
    button.AddSubItem(new CMFCRibbonSeparator);
    auto* inner = new CMFCRibbonButton(12, L"More");
    inner->AddSubItem(new CMFCRibbonButton(13, L"Star"));
    button.AddSubItem(inner);
    auto* hidden = new CMFCRibbonButton(14, L"Hidden");
    hidden->SetVisible(FALSE);
    button.AddSubItem(hidden);
    button.AddSubItem(new CMFCRibbonButton(15, L"Circle"));
    Shown(button);
    Click(button, button.GetRect().CenterPoint());
    ASSERT_TRUE(button.IsDroppedDown());
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> rows;
    CMFCRibbonPanelMenu::GetDeepest()->GetRibbonMenuBar().GetElements(rows);
    ASSERT_EQ(rows.GetSize(), 4);
    EXPECT_EQ(rows[3]->GetID(), 15u);
    rows[3]->OnKey(TRUE);
    EXPECT_EQ(window.commands, std::vector<UINT>{15});
    EXPECT_FALSE(button.IsDroppedDown());
}

TEST_F(Commands, AMenuLeftWithoutAChoiceSendsNothing) {
    CMFCRibbonButton button(kId, L"Shapes");
    button.AddSubItem(new CMFCRibbonButton(11, L"Line"));
    Shown(button);
    Click(button, button.GetRect().CenterPoint());
    EXPECT_TRUE(button.IsDroppedDown());
    button.ClosePopupMenu();
    EXPECT_TRUE(window.commands.empty());
    EXPECT_FALSE(button.IsDroppedDown());
    button.SetDisabled(TRUE);
    button.OnShowPopupMenu();
    EXPECT_FALSE(button.IsDroppedDown());
}

TEST_F(Commands, HighlightFollowsThePointerBetweenTheAreas) {
    CMFCRibbonButton button(kId, L"Paste");
    button.AddSubItem(new CMFCRibbonButton(1, L"Special"));
    button.SetDefaultCommand();
    Shown(button);
    button.SetHighlighted(TRUE);
    button.OnMouseMove(button.GetCommandRect().CenterPoint());
    EXPECT_TRUE(button.IsCommandAreaHighlighted());
    EXPECT_FALSE(button.IsMenuAreaHighlighted());
    button.OnMouseMove(button.GetMenuRect().CenterPoint());
    EXPECT_FALSE(button.IsCommandAreaHighlighted());
    EXPECT_TRUE(button.IsMenuAreaHighlighted());
    button.SetHighlighted(FALSE);
    EXPECT_FALSE(button.IsMenuAreaHighlighted());
}

// ---- slider

class ProbeSlider : public CMFCRibbonSlider {
public:
    explicit ProbeSlider(int width = 111) : CMFCRibbonSlider(kId, width) {}
    using CMFCRibbonSlider::GetPosFromPoint;
    using CMFCRibbonSlider::GetThumbRect;
    using CMFCRibbonSlider::m_HotPart;
};

TEST_F(Commands, ADragSendsTheCommandAtEachNewPosition) {
    ProbeSlider slider; // 111 pixels of channel less 11 of thumb: one pixel is one step
    Shown(slider);
    const CPoint thumb = slider.GetThumbRect().CenterPoint();
    slider.OnLButtonDown(thumb);
    std::vector<int> positions;
    window.onCommand = [&] { positions.push_back(slider.GetPos()); };
    for (int x = 1; x <= 4; ++x) {
        slider.OnMouseMove({thumb.x + x, thumb.y});
    }
    slider.OnMouseMove({thumb.x + 4, thumb.y});
    slider.OnLButtonUp({thumb.x + 4, thumb.y});
    EXPECT_EQ(positions, (std::vector<int>{1, 2, 3, 4}));
    slider.OnMouseMove({thumb.x + 20, thumb.y});
    EXPECT_EQ(slider.GetPos(), 4);
}

TEST_F(Commands, ADragEndsWhenThePressIsTakenAway) {
    ProbeSlider slider;
    Shown(slider);
    const CPoint thumb = slider.GetThumbRect().CenterPoint();
    slider.OnLButtonDown(thumb);
    slider.SetPressed(FALSE); // what a parent does that loses the capture
    slider.OnMouseMove({thumb.x + 20, thumb.y});
    EXPECT_EQ(slider.GetPos(), 0);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Commands, AClickOnTheChannelMovesTheThumbThere) {
    ProbeSlider slider;
    Shown(slider);
    const CPoint point(slider.GetThumbRect().CenterPoint().x + 40, 11);
    Click(slider, point);
    EXPECT_EQ(slider.GetPos(), 40);
    EXPECT_EQ(slider.GetThumbRect().CenterPoint().x, point.x);
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
}

TEST_F(Commands, AClickOnTheThumbDoesNotMoveIt) {
    ProbeSlider slider;
    Shown(slider);
    const CRect thumb = slider.GetThumbRect();
    Click(slider, CPoint(thumb.right - 1, thumb.CenterPoint().y));
    EXPECT_EQ(slider.GetPos(), 0);
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Commands, ZoomButtonsStepAndRepeat) {
    ProbeSlider slider;
    slider.SetZoomButtons();
    slider.SetZoomIncrement(7);
    Shown(slider);
    const CPoint plus(slider.GetRect().right - 8, 11);
    Click(slider, plus);
    EXPECT_EQ(slider.GetPos(), 7);

    int delay = 0;
    EXPECT_FALSE(slider.IsAutoRepeatMode(delay));
    slider.OnLButtonDown(plus);
    EXPECT_TRUE(slider.IsAutoRepeatMode(delay));
    EXPECT_GT(delay, 0);
    EXPECT_TRUE(slider.OnAutoRepeat());
    EXPECT_TRUE(slider.OnAutoRepeat());
    EXPECT_EQ(slider.GetPos(), 21);
    slider.OnLButtonUp(plus);
    EXPECT_EQ(slider.GetPos(), 21) << "the release after repeated steps is no further step";
    EXPECT_FALSE(slider.OnAutoRepeat());

    Click(slider, {8, 11});
    EXPECT_EQ(slider.GetPos(), 14);
}

TEST_F(Commands, RepeatRestsWhileThePointerIsOffTheButton) {
    ProbeSlider slider;
    slider.SetZoomButtons();
    Shown(slider);
    slider.OnLButtonDown(CPoint(slider.GetRect().right - 8, 11));
    slider.OnMouseMove({60, 11});
    EXPECT_TRUE(slider.OnAutoRepeat());
    EXPECT_EQ(slider.GetPos(), 0);
}

TEST_F(Commands, KeysMoveTheSlider) {
    ProbeSlider slider;
    slider.SetRange(-20, 30);
    slider.SetPos(0);
    Shown(slider);
    EXPECT_TRUE(slider.ProcessKey(VK_RIGHT));
    EXPECT_EQ(slider.GetPos(), 10);
    EXPECT_TRUE(slider.ProcessKey(VK_LEFT));
    EXPECT_TRUE(slider.ProcessKey(VK_HOME));
    EXPECT_EQ(slider.GetPos(), -20);
    EXPECT_TRUE(slider.ProcessKey(VK_END));
    EXPECT_EQ(slider.GetPos(), 30);
    const size_t before = window.commands.size();
    EXPECT_TRUE(slider.ProcessKey(VK_UP));
    EXPECT_EQ(window.commands.size(), before) << "no command without a change";
    EXPECT_FALSE(slider.ProcessKey(L'A'));
}

TEST(SliderRange, KeepsThePositionInside) {
    CMFCRibbonSlider slider(kId);
    slider.SetRange(50, 10);
    EXPECT_EQ(slider.GetRangeMin(), 10);
    EXPECT_EQ(slider.GetRangeMax(), 50);
    EXPECT_EQ(slider.GetPos(), 10);
    slider.SetPos(1000);
    EXPECT_EQ(slider.GetPos(), 50);
}

// ---- command updates

TEST(CommandUpdate, SetsStateOfTheElement) {
    CMFCRibbonButton button(kId, L"Grid");
    CMFCRibbonCmdUI update;
    update.m_pUpdated = &button;
    CCmdUI& base = update;
    base.Enable(FALSE);
    EXPECT_TRUE(button.IsDisabled());
    base.Enable();
    EXPECT_FALSE(button.IsDisabled());
    base.SetCheck(1);
    EXPECT_TRUE(button.IsChecked());
    EXPECT_FALSE(button.IsRadio());
    base.SetRadio();
    EXPECT_TRUE(button.IsChecked());
    EXPECT_TRUE(button.IsRadio());
    base.SetCheck(0);
    EXPECT_FALSE(button.IsChecked());
    base.SetText(L"Raster\nR");
    EXPECT_STREQ(button.GetText(), L"Raster");
    EXPECT_STREQ(button.GetKeys(), L"R");
}

TEST(CommandUpdate, WithoutAnElementChangesNothing) {
    CMFCRibbonCmdUI update;
    update.Enable(FALSE);
    update.SetCheck();
    update.SetText(L"Text");
    EXPECT_EQ(update.m_pUpdated, nullptr);
}

class CommandTarget : public CFrameWnd {
public:
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
        if (nCode == CN_UPDATE_COMMAND_UI && nID == kId) {
            static_cast<CCmdUI*>(pExtra)->Enable(isEnabled);
            static_cast<CCmdUI*>(pExtra)->SetCheck(1);
            return TRUE;
        }
        return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pInfo);
    }
    BOOL isEnabled = TRUE;
};

TEST(CommandUpdate, AsksTheTargetForButtonAndSubItems) {
    CommandTarget target;
    CMFCRibbonButton button(kId, L"Grid");
    auto* item = new CMFCRibbonButton(kId, L"Copy of the command");
    auto* unknown = new CMFCRibbonButton(kId + 1, L"Nobody handles this");
    button.AddSubItem(item);
    button.AddSubItem(unknown);
    CMFCRibbonCmdUI update;
    button.OnUpdateCmdUI(&update, &target, TRUE);
    EXPECT_TRUE(button.IsChecked());
    EXPECT_TRUE(item->IsChecked());
    EXPECT_TRUE(unknown->IsDisabled());

    target.isEnabled = FALSE;
    button.OnUpdateCmdUI(&update, &target, TRUE);
    EXPECT_TRUE(button.IsDisabled());
}

TEST(CommandUpdate, AButtonThatOnlyOpensAMenuNeedsNoHandler) {
    CommandTarget target;
    CMFCRibbonButton button(kId + 1, L"Shapes");
    CMFCRibbonCmdUI update;
    button.OnUpdateCmdUI(&update, &target, TRUE);
    EXPECT_TRUE(button.IsDisabled());
    button.SetDisabled(FALSE);
    button.AddSubItem(new CMFCRibbonButton(kId, L"Line"));
    button.OnUpdateCmdUI(&update, &target, TRUE);
    EXPECT_FALSE(button.IsDisabled());
}

} // namespace
