// The real mouse: a click on a tab, a tooltip where it rests.
#include "menu_id_mgr.h"
#include "tests/support/real_mouse.h"
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <afxtooltipmanager.h>

#include <varnhold/language.h>

namespace {

class RealMouse : public ExtendedBarTest {
protected:
    RealMouse() {
        m_frame->SetForegroundWindow();
        PumpPending();
    }
    static void Click(CPoint screen) {
        for (const DWORD change : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
            SendMouse(screen, change);
            PumpPending();
        }
    }
};

TEST_F(RealMouse, AClickOnAnExtendedTabPostsItsCommand) {
    Click(OnScreen(Bar().GetCategory(4)->GetTabRect()));
    EXPECT_TRUE(PumpUntil([this] { return !m_frame->commands.empty(); }, std::chrono::seconds(5)));
    EXPECT_EQ(m_frame->commands, (std::vector<SentCommand>{{7004, 0, nullptr, true}}));
    EXPECT_EQ(Shown(), "[0]12345");
}

TEST_F(RealMouse, AClickOnAnOrdinaryTabActivatesIt) {
    Click(OnScreen(Bar().GetCategory(3)->GetTabRect()));
    EXPECT_TRUE(PumpUntil([this] { return Shown() == "012[3]45"; }, std::chrono::seconds(5)));
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(RealMouse, TheTipShowsTheCommandTextWhereThePointerRests) {
    CMenuIdMgr::Destroy();
    CMenuIdMgr::Ins()->Add(L"Key", static_cast<int>(ButtonId(0, 1)), L"Name", L"ZOOM", L"Tip", L"", L"");
    CMultiLanguageMgr::SetLanguage(L"");
    CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, RUNTIME_CLASS(CMFCToolTipCtrl));
    Bar().EnableToolTips(TRUE, TRUE);
    Button(0, 1).SetToolTipText(L"Shows more");
    Bar().GetToolTipCtrl()->SetDelayTime(TTDT_INITIAL, 1);
    const CPoint at = OnScreen(Button(0, 1).GetRect());
    PutCursor(at - CSize(1, 0));
    PumpPending();
    PutCursor(at);
    ASSERT_TRUE(PumpUntil([this] { return Bar().GetToolTipCtrl()->IsWindowVisible() != FALSE; }));
    CString shown;
    Bar().GetToolTipCtrl()->GetText(shown, &Bar(), 1);
    EXPECT_STREQ(shown, L"Shows moreColonZOOM");
    CTooltipManager().SetTooltipParams(AFX_TOOLTIP_TYPE_RIBBON, nullptr);
    CMenuIdMgr::Destroy();
}

} // namespace
