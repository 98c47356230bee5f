// Hosts that destroy the combo, or empty it, in whatever message they get from it.
#include "tests/ui/window_combos/combo_host.h"

namespace {

using Act = void (*)(ComboHost& host, std::unique_ptr<CComboBox>& combo);

void Destroy(ComboHost& /*host*/, std::unique_ptr<CComboBox>& combo) { combo.reset(); }
void DestroyWindowOnly(ComboHost& /*host*/, std::unique_ptr<CComboBox>& combo) {
    if (combo) {
        combo->DestroyWindow();
    }
}
void Empty(ComboHost& /*host*/, std::unique_ptr<CComboBox>& combo) {
    if (combo && combo->GetSafeHwnd()) {
        combo->ResetContent();
    }
}
void DestroyHost(ComboHost& host, std::unique_ptr<CComboBox>& /*combo*/) { host.DestroyWindow(); }

struct Case {
    CRuntimeClass* kind;
    const char* what;
    void (*drive)(CComboBox& combo);
};

void PressFace(CComboBox& combo, int x) { combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 10)); }
void OpenAndPress(CComboBox& combo, UINT message) {
    combo.ShowDropDown(TRUE);
    const HWND list = ListOf(combo);
    ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const POINT point = InRow(list, 2, 5);
    ::SendMessageW(list, message, MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

class HostileComboHosts : public testing::TestWithParam<Act> {
protected:
    /// Acts in the message with that number, for each number until there are no more messages. How many there were.
    int RunEach(const Case& one) {
        int messages = 0;
        for (int at = -1; at < messages; ++at) { // the first time it only counts

            SCOPED_TRACE(std::string(one.what) + ", message " + std::to_string(at));
            ComboHost host;
            std::unique_ptr<CComboBox> combo(static_cast<CComboBox*>(one.kind->CreateObject()));
            if (!combo->Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 10, 210, 200), &host,
                               ComboHost::comboId)) {
                ADD_FAILURE() << "no combo";
                return 0;
            }
            AddColours(*combo);
            combo->SetCurSel(1);
            host.heard.clear();
            int count = 0;
            host.onMessage = [&] {
                if (count++ == at) {
                    GetParam()(host, combo);
                }
            };
            one.drive(*combo);
            host.onMessage = nullptr;
            messages = std::max(messages, count);
            if (messages > 40) {
                ADD_FAILURE() << "too many messages";
                return messages;
            }
        }
        return messages;
    }
};

TEST_P(HostileComboHosts, MayActInAnyMessageOfAClosedFace) {
    EXPECT_GE(RunEach({RUNTIME_CLASS(CCheckComboBox), "check", [](CComboBox& combo) { PressFace(combo, 5); }}), 2);
    EXPECT_GE(RunEach({RUNTIME_CLASS(CMultiCombo), "swatch", [](CComboBox& combo) { PressFace(combo, 8); }}), 1);
    EXPECT_GE(RunEach({RUNTIME_CLASS(CMultiCombo), "light", [](CComboBox& combo) { PressFace(combo, 30); }}), 1);
    EXPECT_GE(RunEach({RUNTIME_CLASS(CVesMultiCombo), "light", [](CComboBox& combo) { PressFace(combo, 10); }}), 1);
}

TEST_P(HostileComboHosts, MayActInAnyMessageOfAnOpenList) {
    EXPECT_GE(RunEach({RUNTIME_CLASS(CCheckComboBox), "press",
                       [](CComboBox& combo) { OpenAndPress(combo, WM_LBUTTONDOWN); }}),
              4);
    EXPECT_GE(RunEach({RUNTIME_CLASS(CCheckComboBox), "double click",
                       [](CComboBox& combo) { OpenAndPress(combo, WM_LBUTTONDBLCLK); }}),
              6);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, HostileComboHosts,
                         testing::Values(&Destroy, &DestroyWindowOnly, &Empty, &DestroyHost));

TEST(EndOfACheckCombo, ClosesItsOpenListAndLetsTheNextOneWork) {
    ComboHost host;
    {
        CCheckComboBox combo;
        host.Place(combo);
        AddColours(combo);
        combo.ShowDropDown(TRUE);
    }
    CCheckComboBox next;
    host.Place(next);
    AddColours(next);
    EXPECT_EQ(next.SetCheck(4, 1, 1), 0);
    EXPECT_EQ(next.GetCheck(4), 1);
}

} // namespace
