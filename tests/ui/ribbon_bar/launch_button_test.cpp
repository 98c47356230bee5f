// The button at the end of a panel's caption, in the bar.
#include <gmock/gmock.h>

#include <set>

#include "afxvisualmanager.h"
#include "afxvisualmanageroffice2007.h"
#include "tests/support/canvas.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr UINT kLaunch = commands::firstHandled + 300;

class LaunchButton : public RibbonBarTest {
protected:
    LaunchButton() {
        Panel().EnableLaunchButton(kLaunch);
        Layout();
    }
    ~LaunchButton() override {
        afxGlobalData.SetRibbonImageScale(0);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
    }

    CMFCRibbonPanel& Panel() { return *Bar().GetCategory(0)->GetPanel(0); }
    CMFCRibbonButton& Button() { return Panel().GetLaunchButton(); }
    CPoint Middle() { return Button().GetRect().CenterPoint(); }
    void Layout() {
        Bar().ForceRecalcLayout();
        PumpPending();
    }
    /// The pixels of the button, drawn by the bar.
    std::vector<DWORD> Pixels() {
        CRect client;
        Bar().GetClientRect(client);
        Canvas canvas(client.Width());
        Bar().DoPaint(canvas.Dc());
        std::vector<DWORD> pixels;
        const CRect rect = Button().GetRect();
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                pixels.push_back(canvas.At(x, y));
            }
        }
        return pixels;
    }
};

TEST_F(LaunchButton, ItsClickSendsTheCommand) {
    m_pointer.Click(Bar(), Middle());
    EXPECT_THAT(m_frame->commands, ElementsAre(kLaunch));
}

TEST_F(LaunchButton, AReleaseBesideItSendsNothing) {
    m_pointer.MoveTo(Bar(), Middle());
    m_pointer.Press();
    EXPECT_TRUE(Button().IsPressed());
    m_pointer.MoveTo(Bar(), Panel().GetCaptionRect().TopLeft() + CPoint(3, 3));
    m_pointer.Release();
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_FALSE(Button().IsPressed());
}

TEST_F(LaunchButton, TheRestOfTheCaptionIsStillTheCaption) {
    EXPECT_EQ(Bar().HitTest(Middle(), TRUE), &Button());
    EXPECT_EQ(Bar().HitTest(Middle(), TRUE, TRUE), &Button());
    const CPoint beside(Button().GetRect().left - 4, Middle().y);
    EXPECT_EQ(Bar().HitTest(beside, TRUE), nullptr);
    EXPECT_EQ(Bar().HitTest(beside, TRUE, TRUE), &Panel().GetDefaultButton());
}

TEST_F(LaunchButton, OnlyThePanelThatWasGivenOneHasOneAndIdZeroTakesItAway) {
    EXPECT_TRUE(Panel().HasLaunchButton());
    EXPECT_FALSE(Bar().GetCategory(0)->GetPanel(1)->HasLaunchButton());
    EXPECT_TRUE(Bar().GetCategory(0)->GetPanel(1)->GetLaunchButton().GetRect().IsRectEmpty());
    const CPoint former = Middle();
    Panel().EnableLaunchButton(0);
    Layout();
    EXPECT_FALSE(Panel().HasLaunchButton());
    EXPECT_EQ(Bar().HitTest(former, TRUE), nullptr);
}

TEST_F(LaunchButton, ItIsFoundByItsIdAmongThePanelsElements) {
    EXPECT_EQ(Bar().FindByID(kLaunch), &Button());
    EXPECT_TRUE(Panel().HasElement(&Button()));
    EXPECT_EQ(Panel().GetCount(), 4) << "it is none of those that were added";
    CList<UINT, UINT> ids;
    Panel().GetItemIDsList(ids);
    EXPECT_NE(ids.Find(kLaunch), nullptr);
}

TEST_F(LaunchButton, WithoutAHandlerItIsGreyAndSilent) {
    Panel().EnableLaunchButton(commands::noHandler);
    RunIdle();
    EXPECT_TRUE(Button().IsDisabled());
    m_pointer.Click(Bar(), Middle());
    EXPECT_THAT(m_frame->commands, IsEmpty());
    Panel().EnableLaunchButton(kLaunch);
    RunIdle();
    EXPECT_FALSE(Button().IsDisabled());
}

TEST_F(LaunchButton, ItsTipIsItsOwnTextElseThePanelsName) {
    EXPECT_EQ(Button().GetToolTipText(), L"Clipboard");
    Button().SetToolTipText(L"All clips");
    EXPECT_EQ(Button().GetToolTipText(), L"All clips");
    m_pointer.MoveTo(Bar(), Middle());
    NMTTDISPINFO info{};
    info.hdr.hwndFrom = Bar().GetToolTipCtrl()->GetSafeHwnd();
    info.hdr.code = TTN_NEEDTEXT;
    Bar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_STREQ(info.lpszText, L"All clips");
}

TEST_F(LaunchButton, AWiderCaptionWidensThePanel) {
    Panel().EnableLaunchButton(0);
    CMFCRibbonPanel* panel = Bar().GetCategory(1)->AddPanel(L"A long name above one small button");
    panel->Add(new CMFCRibbonButton(commands::firstHandled + 301, L"X"));
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Layout();
    const int plain = panel->GetRect().Width();
    panel->EnableLaunchButton(kLaunch);
    Layout();
    EXPECT_GT(panel->GetRect().Width(), plain);
}

TEST_F(LaunchButton, ACopyInTheQuickAccessToolbarIsAnOrdinaryButton) {
    Bar().SetQuickAccessCommands(CommandList{kLaunch});
    Layout();
    CMFCRibbonBaseElement* copy = nullptr;
    for (int x = 0; x < 200 && copy == nullptr; ++x) {
        for (int y = 0; y < 30; y += 3) {
            CMFCRibbonBaseElement* hit = Bar().HitTest(CPoint(x, y));
            copy = hit != nullptr && hit->GetID() == kLaunch ? hit : copy;
        }
    }
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->GetOriginal(), &Button());
    EXPECT_GT(copy->GetRect().Width(), Button().GetRect().Width());
    EXPECT_GE(copy->GetImageSize(CMFCRibbonBaseElement::RibbonImageSmall).cx, 16) << "it needs something to show";
    m_pointer.Click(Bar(), copy->GetRect().CenterPoint());
    EXPECT_THAT(m_frame->commands, ElementsAre(kLaunch));
}

class LaunchButtonLooks : public LaunchButton,
                          public ::testing::WithParamInterface<CMFCVisualManagerOffice2007::Style> {};

TEST_P(LaunchButtonLooks, HotPressedAndDisabledDifferAtEveryScale) {
    CMFCVisualManagerOffice2007::SetStyle(GetParam());
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    for (const int percent : {100, 125, 150, 200}) {
        SCOPED_TRACE(percent);
        afxGlobalData.SetRibbonImageScale(percent / 100.0);
        Layout();
        const CRect rect = Button().GetRect();
        ASSERT_FALSE(rect.IsRectEmpty());
        EXPECT_EQ(rect & Panel().GetCaptionRect(), rect) << "inside the caption";
        std::set<std::vector<DWORD>> looks{Pixels()};
        Button().SetDisabled(TRUE);
        looks.insert(Pixels());
        Button().SetDisabled(FALSE);
        m_pointer.MoveTo(Bar(), Middle());
        looks.insert(Pixels());
        m_pointer.Press();
        looks.insert(Pixels());
        m_pointer.MoveTo(Bar(), CPoint(1, 1));
        m_pointer.Release();
        EXPECT_EQ(looks.size(), 4u);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, LaunchButtonLooks,
                         ::testing::Values(CMFCVisualManagerOffice2007::Office2007_LunaBlue,
                                           CMFCVisualManagerOffice2007::Office2007_ObsidianBlack,
                                           CMFCVisualManagerOffice2007::Office2007_Aqua,
                                           CMFCVisualManagerOffice2007::Office2007_Silver));

} // namespace
