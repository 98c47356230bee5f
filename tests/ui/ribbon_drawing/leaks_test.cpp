// Painting holds on to nothing: after thousands of paints there are as many objects of the system as after a few.
#include "tests/support/gui_objects.h"
#include "tests/support/icon_writer.h"
#include "tests/support/temporary_directory.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

#include "ribbon_icon_button.h"

namespace {

class RibbonDrawingLeaks : public RibbonBarTest {
protected:
    static constexpr int kFirstRound = 200;

    template <class Action>
    static void ExpectNoGrowth(int count, Action action) {
        EXPECT_TRUE(RepeatedLeavesNothingBehind(kFirstRound, count, action));
    }
    void Repaint() { Bar().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    void SwitchTab(int i) {
        Bar().SetActiveCategory(Bar().GetCategory(i % 2));
        Bar().UpdateWindow();
    }
    void MoveTo(const CPoint& point) {
        Bar().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        Bar().UpdateWindow();
    }
    /// A category with a disabled and an enabled icon-file button, shown.
    void AddIconFileButtons() {
        const auto file = [this](int side) {
            const std::string name = "icon" + std::to_string(side) + ".ico";
            return CString(m_directory.Write(name, MakeIconFile(side, {0xFF0000, 0x00FF00})).c_str());
        };
        const CString large = file(32), small = file(16);
        CMFCRibbonCategory* category = Bar().AddCategory(L"Icons", 0, 0);
        CMFCRibbonPanel* panel = category->AddPanel(L"Panel");
        for (UINT i = 0; i < 2; ++i) {
            panel->Add(new CMFCRibbonUNIcoButton(i == 0 ? commands::noHandler : commands::firstHandled + 2000 + i,
                                                 L"Button", large, FALSE, small, TRUE, FALSE, FALSE));
        }
        Bar().SetActiveCategory(category);
        Bar().RecalcLayout();
        Bar().SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        ASSERT_TRUE(panel->GetElement(0)->IsDisabled());
    }

    TemporaryDirectory m_directory;
};

TEST_F(RibbonDrawingLeaks, FullRepaints) {
    ExpectNoGrowth(20000, [this](int) { Repaint(); });
}

TEST_F(RibbonDrawingLeaks, FullRepaintsOfIconFileButtons) {
    AddIconFileButtons();
    ExpectNoGrowth(10000, [this](int) { Repaint(); });
}

TEST_F(RibbonDrawingLeaks, FullRepaintsOfAMirroredBar) {
    AddIconFileButtons();
    Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    ExpectNoGrowth(1500, [this](int) { Repaint(); });
}

TEST_F(RibbonDrawingLeaks, TabSwitches) {
    ExpectNoGrowth(2000, [this](int i) { SwitchTab(i); });
}

TEST_F(RibbonDrawingLeaks, ThePointerOverTheBar) {
    const CRect area = Bar().GetCategory(0)->GetRect();
    ExpectNoGrowth(10 * kFirstRound, [this, &area](int i) {
        const int place = i % kFirstRound; // each place once in a round
        MoveTo(CPoint(area.left + place * 37 % area.Width(), area.top + place * 13 % area.Height()));
    });
}

TEST_F(RibbonDrawingLeaks, Resizes) {
    ExpectNoGrowth(300, [this](int i) { SetClientWidth(i % 2 == 0 ? 500 : 900); });
}

} // namespace
