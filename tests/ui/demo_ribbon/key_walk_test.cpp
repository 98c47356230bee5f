#include "tests/ui/demo_ribbon/demo_ribbon.h"
#include "tests/ui/ribbon_keys/keyboard_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <deque>

#include "afxpopupmenu.h"
#include "afxribboncombobox.h"
#include "afxRibbonEdit.h"

namespace {

typedef std::vector<std::wstring> KeyPath;

class DemoKeyWalkTest : public KeyboardTest, public ::testing::WithParamInterface<int> {
protected:
    DemoKeyWalkTest() {
        LoadDemoRibbon(Bar());
        SetClientWidth(GetParam());
        m_frame->commands.clear();
    }

    bool IsAnythingOpen() { return AreTipsShown() || CMFCPopupMenu::GetActiveMenu() != nullptr; }

    void LeaveAll() {
        for (int step = 0; step < 10 && (IsAnythingOpen() || Bar().GetFocused() != nullptr); ++step) {
            Press(VK_ESCAPE);
        }
        ASSERT_FALSE(IsAnythingOpen());
    }

    /// Types what the screen shows, level by level. What takes the focus or opens a list instead of sending a command
    /// is used as one would: a row is chosen by Enter, a text is sent by it, a slider moves by an arrow.
    void Follow(const KeyPath& path) {
        Press(VK_MENU);
        for (const std::wstring& keys : path) {
            Type(keys.c_str());
        }
        if (AreTipsShown()) {
            return;
        }
        if (DYNAMIC_DOWNCAST(CMFCDropDownListBox, CMFCPopupMenu::GetActiveMenu()) != nullptr) {
            Press({VK_DOWN, VK_RETURN});
            return;
        }
        CMFCRibbonBaseElement* const focused = Bar().GetFocused();
        if (DYNAMIC_DOWNCAST(CMFCRibbonEdit, focused) != nullptr) {
            Press({'7', VK_RETURN});
        } else if (m_frame->commands.empty()) {
            Press(VK_RIGHT); // a slider, in the bar or in the pop-up of a collapsed panel
        }
    }
};

TEST_P(DemoKeyWalkTest, EveryCommandIsReachedByTheLettersOnTheScreenAlone) {
    const std::set<UINT> wanted = CommandsOf(DumpCategories(Bar()));
    ASSERT_GE(wanted.size(), 75u);
    std::set<UINT> reached;
    std::deque<KeyPath> open{{}};
    int walks = 0;
    while (!open.empty()) {
        const KeyPath path = open.front();
        open.pop_front();
        ASSERT_LT(++walks, 1000) << "the levels do not end";
        Follow(path);
        if (IsAnythingOpen() && path.size() < 5) {
            for (const std::wstring& keys : ShownTips()) {
                open.push_back(path);
                open.back().push_back(keys);
            }
        }
        ASSERT_NO_FATAL_FAILURE(LeaveAll());
        reached.insert(m_frame->commands.begin(), m_frame->commands.end());
        m_frame->commands.clear();
    }
    std::set<UINT> missing;
    std::set_difference(wanted.begin(), wanted.end(), reached.begin(), reached.end(),
                        std::inserter(missing, missing.end()));
    EXPECT_THAT(missing, ::testing::IsEmpty());
}

// Everything on show, and panels that are collapsed to their buttons.
INSTANTIATE_TEST_SUITE_P(Widths, DemoKeyWalkTest, ::testing::Values(1400, 420));

} // namespace
