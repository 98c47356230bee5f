// Single messages of the mouse in the open list: which ones count, and what is drawn anew for them.
#include "tests/ui/marked_combos/combo_fixture.h"

#include <ostream>

namespace {

constexpr LRESULT refused = 0;
constexpr LRESULT allowed = 1;

class ListClicks : public RibbonCombos {
protected:
    /// One message for the rows, without the moves that a pointer makes first.
    static void Send(UINT message, CPoint point) {
        ::SendMessageW(Rows()->GetSafeHwnd(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                       MAKELPARAM(point.x, point.y));
    }
    static CPoint InRow(int row, int x, int yInRow = 6) { return {x, Rows()->GetRowRect(row).top + yInRow}; }
    /// What of the rows is to be drawn anew after the deed.
    template <class Deed>
    static CRect Invalidated(Deed deed) {
        PumpPending();
        Rows()->ValidateRect(nullptr);
        deed();
        CRect rect(0, 0, 0, 0);
        if (Rows()) {
            ::GetUpdateRect(Rows()->GetSafeHwnd(), &rect, FALSE);
        }
        return rect;
    }
    /// Higher than its rows.
    void EnlargeList() {
        CMFCPopupMenu* const list = CMFCPopupMenu::GetActiveMenu();
        CRect rect;
        list->GetWindowRect(&rect);
        list->SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height() + 60, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        PumpPending();
    }
    CPoint BelowTheRows(int x) const {
        const CRect last = Rows()->GetRowRect(Rows()->GetRowCount() - 1);
        return {x, last.bottom + 6};
    }
};

// ---- what is drawn anew

TEST_F(ListClicks, ARowIsDrawnAnewWhenItsMarkHasChanged) {
    auto& check = Add<CMFCRibbonCheckComb>();
    Open(check);
    EXPECT_EQ(Invalidated([] { Send(WM_LBUTTONUP, InRow(1, 8)); }), Rows()->GetRowRect(1));
    CMFCPopupMenu::CloseAll();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    Open(light);
    EXPECT_EQ(Invalidated([] { Send(WM_LBUTTONUP, InRow(2, 8)); }), Rows()->GetRowRect(2));
}

TEST_F(ListClicks, ARowIsDrawnAnewWhetherTheHostAllowsTheLightOrNot) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    for (const LRESULT answer : {refused, allowed}) {
        Answer(answer);
        EXPECT_EQ(Invalidated([] { Send(WM_LBUTTONUP, InRow(1, 25)); }), Rows()->GetRowRect(1)) << answer;
    }
}

TEST_F(ListClicks, EveryRowIsDrawnAnewAfterADoubleClick) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    CRect client;
    Rows()->GetClientRect(&client);
    EXPECT_EQ(Invalidated([] { Send(WM_LBUTTONDBLCLK, InRow(1, 8)); }), client);
}

TEST_F(ListClicks, TheFaceIsDrawnAnewWhetherTheHostAllowsTheLightOrNot) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(0);
    for (const LRESULT answer : {refused, allowed}) {
        Answer(answer);
        PumpPending();
        m_host.Bar().ValidateRect(nullptr);
        EXPECT_TRUE(combo.NotifyChangeData(0, 1, false));
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(m_host.BarWindow(), &rect, FALSE);
        EXPECT_EQ(rect, combo.GetRect()) << answer;
    }
}

// ---- the press

TEST_F(ListClicks, APressInAZoneIsSwallowed) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    Rows()->SetHotRow(2);
    EXPECT_TRUE(Invalidated([] { Send(WM_LBUTTONDOWN, InRow(0, 8)); }).IsRectEmpty());
    EXPECT_EQ(Rows()->GetHotRow(), 2);
    EXPECT_EQ(::GetCapture(), nullptr);
    Send(WM_LBUTTONDOWN, InRow(0, 60));
    EXPECT_EQ(Rows()->GetHotRow(), 0) << "beside the zone it makes the row hot";
    EXPECT_EQ(TakeTold(), Told{});
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(ListClicks, WithoutANotifyChildAPressInAZoneIsLikeAnyOther) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo).SetNotifyChild(nullptr);
    Rows()->SetHotRow(2);
    Send(WM_LBUTTONDOWN, InRow(0, 8));
    EXPECT_EQ(Rows()->GetHotRow(), 0);
    Send(WM_LBUTTONUP, InRow(0, 8));
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), Told{"sent COMMAND 700"});
    EXPECT_EQ(ChecksOf(combo), "???");
}

// ---- double clicks

TEST_F(ListClicks, ADoubleClickBelowTheLastRowUnchecksAll) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    for (int i = 0; i < 3; ++i) {
        combo.SetItemCheck(i, i != 1);
    }
    combo.SelectItem(1);
    Open(combo);
    EnlargeList();
    ASSERT_EQ(Rows()->HitTest(BelowTheRows(8)), -1);
    m_pointer.DoubleClick(Rows()->GetSafeHwnd(), BelowTheRows(8));
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(ChecksOf(combo), "000");
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'one' 4", "sent CHECK 'two' 4", "sent CHECK 'three' 4"}))
        << "neither of the two releases counts";
}

TEST_F(ListClicks, ADoubleClickOnABoxOfAScrolledListSetsAllToTheOppositeOfThatOne) {
    auto& combo = Add<CMFCRibbonCheckComb>(comboId, 0);
    constexpr int count = 300;
    for (int i = 0; i < count; ++i) {
        combo.AddItem(std::to_wstring(i).c_str());
    }
    combo.SetItemCheck(210, true);
    Open(combo);
    const auto allAre = [&](bool wanted) {
        const std::string checks = ChecksOf(combo);
        return std::ranges::all_of(checks, [wanted](char one) { return one == (wanted ? '1' : '0'); });
    };
    for (const int row : {200, 210}) {
        Rows()->SetHotRow(row + 1);
        PumpPending();
        ASSERT_LE(Rows()->GetRowRect(0).bottom, 0) << "scrolled";
        TakeTold();
        DoubleClickRow(row, 8);
        ASSERT_NE(Rows(), nullptr);
        const std::string text = std::to_string(row);
        const bool isChecked = row == 200; // the second double click unchecks all
        EXPECT_TRUE(allAre(isChecked)) << row;
        const Told told = TakeTold();
        ASSERT_EQ(told.size(), 2u + count - 1);
        EXPECT_EQ(told.front(), "sent CHECK '" + text + (isChecked ? "' 1" : "' 0"));
        EXPECT_EQ(told[1], std::string("sent CHECK '0' ") + (isChecked ? "3" : "4"));
        EXPECT_EQ(told.back(), told.front());
    }
}

TEST_F(ListClicks, ADoubleClickBelowTheLastRowBesideTheZoneDoesNothing) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo);
    EnlargeList();
    m_pointer.DoubleClick(Rows()->GetSafeHwnd(), BelowTheRows(60));
    EXPECT_NE(Rows(), nullptr);
    EXPECT_EQ(ChecksOf(combo), "???");
    EXPECT_EQ(TakeTold(), Told{});
}

TEST_F(ListClicks, WithoutANotifyChildADoubleClickIsThatOfAnyList) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    Open(combo).SetNotifyChild(nullptr);
    EnlargeList();
    Rows()->SetHotRow(2);
    Send(WM_LBUTTONDBLCLK, BelowTheRows(8));
    Send(WM_LBUTTONDBLCLK, InRow(0, 8));
    EXPECT_EQ(Rows()->GetHotRow(), 0) << "the second press of any list";
    EXPECT_EQ(ChecksOf(combo), "???");
    EXPECT_EQ(TakeTold(), Told{});
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(ListClicks, ADoubleClickOnALightAsksThreeTimes) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    Answer(allowed);
    DoubleClickRow(1, 25);
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT 'two' 1", "sent LIGHT 'two' 0", "sent LIGHT 'two' 1"}));
    EXPECT_EQ(LightsOf(combo), "?1?");
    Answer(refused);
    DoubleClickRow(1, 25);
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT 'two' 0", "sent LIGHT 'two' 0", "sent LIGHT 'two' 0"}));
    EXPECT_EQ(LightsOf(combo), "?1?");
    EXPECT_NE(Rows(), nullptr);
}

TEST_F(ListClicks, ADoubleClickOnASwatchAsksOnceAsTheListIsClosedByThen) {
    auto& combo = Add<CMFCRibbonMultiCombo>();
    Open(combo);
    DoubleClickRow(2, 5);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 700", "posted COLOUR #2 0"}));
}

TEST_F(ListClicks, ADoubleClickOnALightOnlyCombosLightSwitchesThreeTimes) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    Open(combo);
    DoubleClickRow(0, 5, 8);
    EXPECT_EQ(TakeTold(), (Told{"sent LIGHT-ONLY 'one' 1", "sent LIGHT-ONLY 'one' 0", "sent LIGHT-ONLY 'one' 1"}));
    EXPECT_EQ(LightsOf(combo), "1??");
    EXPECT_NE(Rows(), nullptr);
}

// ---- the face

TEST_F(ListClicks, TheFacesCheckColumnReachesFromItsTopToItsBottom) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    combo.SelectItem(1);
    const CRect edit = combo.GetEditRect();
    for (const LONG y : {edit.top, edit.bottom - 1}) {
        m_pointer.Click(m_host.BarWindow(), CPoint(edit.left + 8, y));
    }
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'two' 1", "sent CHECK 'two' 0"}));
    EXPECT_EQ(Rows(), nullptr);
}

TEST_F(ListClicks, ALightThatTheHostAllowedOnTheFaceIsNotBroughtToTheCopies) {
    auto& twin = Add<CMFCRibbonMultiCombo>(comboId, 0);
    auto& combo = Add<CMFCRibbonMultiCombo>();
    combo.SelectItem(0);
    Answer(allowed);
    ClickFace(combo, 25);
    EXPECT_EQ(LightsOf(combo), "1??");
    EXPECT_EQ(LightsOf(twin), "???");
}

TEST_F(ListClicks, TheHostSeesTheNewLightAndTheSelectionOfALightOnlyComboAlready) {
    auto& combo = Add<CMFCRibbonVesMultiCombo>();
    std::string seen;
    m_host.Frame().onMessage = [&](const HostMessage&) {
        seen += LightsOf(combo) + " " + std::to_string(combo.GetCurSel());
        return 0;
    };
    combo.NotifyChangeData(2, 0, false);
    EXPECT_EQ(seen, "??1 2");
}

// ---- copies

TEST_F(ListClicks, AnExclusiveClickChangesEveryCopyAndIsToldOnce) {
    auto& combo = Add<CMFCRibbonCheckComb>();
    auto& quick = AddToQuickAccess<CMFCRibbonCheckComb>();
    auto& twin = Add<CMFCRibbonCheckComb>(comboId, 0);
    combo.SetItemCheck(1, true);
    for (int i = 0; i < 3; ++i) {
        twin.CMFCRibbonComboBox::AddItem(someItems[i]);
    }
    EXPECT_TRUE(quick.NotifyChangeData(1, 0, true));
    for (const CMFCRibbonCheckComb* const one : {&combo, &quick, &twin}) {
        EXPECT_EQ(ChecksOf(*one), "101");
    }
    EXPECT_EQ(TakeTold(), (Told{"sent CHECK 'one' 3", "sent CHECK 'three' 3"}));
    Open(combo);
    DoubleClickRow(0, 8);
    for (const CMFCRibbonCheckComb* const one : {&combo, &quick, &twin}) {
        EXPECT_EQ(ChecksOf(*one), "000") << "the box was checked";
    }
}

} // namespace
