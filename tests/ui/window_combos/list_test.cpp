// The drop-down list of the check combo.
#include "tests/ui/window_combos/combo_host.h"

namespace {

class OpenList : public testing::Test {
protected:
    void SetUp() override {
        host.Place(combo);
        AddColours(combo);
        combo.SetCurSel(1);
        combo.SetFocus();
        Open();
    }
    void Open() {
        combo.ShowDropDown(TRUE);
        list = ListOf(combo);
        ::UpdateWindow(list);
        // The list asks for its colours when it is painted; a driver without a screen may paint nothing by itself.
        ::RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        ASSERT_TRUE(combo.GetDroppedState());
        host.heard.clear();
    }
    std::vector<int> Checks() const {
        std::vector<int> checks;
        for (int i = 0; i < combo.GetCount(); ++i) {
            checks.push_back(combo.GetCheck(i));
        }
        return checks;
    }
    ComboHost host;
    CCheckComboBox combo;
    HWND list = nullptr;
    Pointer mouse;
};

TEST_F(OpenList, AClickOnABoxTogglesKeepsTheListOpenAndTells) {
    mouse.Click(list, InRow(list, 2, 5));
    EXPECT_EQ(combo.GetCheck(2), 1);
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(host.heard, (Heard{Command(CBN_SELCHANGE), L"check blue 1", Command(0), Command(CBN_SELCHANGE)}));
}

TEST_F(OpenList, SeveralBoxesAreTickedInOneOpening) {
    mouse.Click(list, InRow(list, 0, 5));
    mouse.Click(list, InRow(list, 3, 5));
    mouse.Click(list, InRow(list, 4, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{1, 0, 0, 1, 1}));
    EXPECT_TRUE(combo.GetDroppedState());
}

TEST_F(OpenList, AClickOnATextChoosesAndCloses) {
    mouse.Click(list, InRow(list, 3, 80));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_EQ(Checks(), (std::vector<int>{0, 0, 0, 0, 0}));
    ASSERT_FALSE(host.heard.empty());
    EXPECT_EQ(host.heard.front(), Command(CBN_SELCHANGE));
}

TEST_F(OpenList, SpaceTogglesTheCurrentItem) {
    combo.SendMessage(WM_CHAR, L' ', MAKELPARAM(1, 0));
    EXPECT_EQ(combo.GetCheck(1), 1);
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(host.heard, (Heard{L"check green 1", Command(0)}));
}

TEST_F(OpenList, ARepeatedSpaceDoesNothing) {
    combo.SendMessage(WM_CHAR, L' ', MAKELPARAM(1, KF_REPEAT));
    EXPECT_EQ(combo.GetCheck(1), 0);
    EXPECT_EQ(host.heard, Heard());
}

TEST_F(OpenList, ADoubleClickOnAnUncheckedBoxChecksAll) {
    mouse.DoubleClick(list, InRow(list, 2, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{1, 1, 1, 1, 1}));
    EXPECT_EQ(combo.GetCurSel(), 2) << "the clicked item";
    EXPECT_TRUE(combo.GetDroppedState());
    const Heard all(host.heard.end() - 6, host.heard.end());
    EXPECT_EQ(all, (Heard{Command(0), L"check red 1", L"check green 1", L"check blue 1", L"check white 1",
                          L"check black 1"}));
}

TEST_F(OpenList, ADoubleClickOnACheckedBoxUnchecksAll) {
    combo.CheckAll(1);
    mouse.DoubleClick(list, InRow(list, 2, 5));
    EXPECT_EQ(Checks(), (std::vector<int>{0, 0, 0, 0, 0}));
}

TEST_F(OpenList, ADoubleClickOnATextChoosesItOnceAndChecksNothing) {
    mouse.DoubleClick(list, InRow(list, 3, 80));
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_EQ(Checks(), (std::vector<int>{0, 0, 0, 0, 0}));
}

TEST_F(OpenList, AReleaseThatNoPressOnATextCameBeforeIsSwallowed) {
    const POINT text = InRow(list, 3, 80);
    ::SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(text.x, text.y));
    EXPECT_TRUE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(host.heard, Heard());
}

TEST_F(OpenList, TheBoxesColumnEndsSixPixelsBehindTheHeightOfTheFont) {
    TEXTMETRIC metrics{};
    {
        CClientDC dc(&combo);
        dc.GetTextMetrics(&metrics); // of the combo's font, the system's
    }
    const auto end = static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading) + 6;
    mouse.Click(list, InRow(list, 2, end - 1));
    EXPECT_EQ(combo.GetCheck(2), 1);
    EXPECT_TRUE(combo.GetDroppedState());
    mouse.Click(list, InRow(list, 3, end));
    EXPECT_EQ(combo.GetCheck(3), 0);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(combo.GetCurSel(), 3);
}

TEST_F(OpenList, ThePressedRowIsPaintedAnew) {
    ::RedrawWindow(list, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE);
    RECT work{};
    host.onMessage = [&] { // in the first message, before anything has changed
        if (host.heard.size() == 1) {
            ::GetUpdateRect(list, &work, FALSE);
        }
    };
    const POINT box = InRow(list, 2, 5);
    ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(box.x, box.y));
    RECT row{};
    ::SendMessageW(list, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
    EXPECT_TRUE(::EqualRect(&work, &row)) << work.top << ' ' << work.bottom;
}

TEST_F(OpenList, ItsWindowIsTakenOnceHoweverOftenItOpens) {
    combo.ShowDropDown(FALSE);
    Open();
    combo.ShowDropDown(FALSE);
    Open();
    mouse.Click(list, InRow(list, 2, 5));
    EXPECT_EQ(combo.GetCheck(2), 1);
    EXPECT_EQ(host.heard, (Heard{Command(CBN_SELCHANGE), L"check blue 1", Command(0), Command(CBN_SELCHANGE)}));
}

TEST_F(OpenList, TheComboIsNotTakenForItsOwnList) {
    CCheckComboBox other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(220, 10, 380, 200), &host, 701));
    AddColours(other);
    {
        CClientDC dc(&other);
        const auto itself = reinterpret_cast<LPARAM>(other.m_hWnd);
        EXPECT_NE(other.SendMessage(WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), itself), 0)
            << "a brush";
    }
    other.ShowDropDown(TRUE);
    const HWND second = ListOf(other);
    ::RedrawWindow(second, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    mouse.Click(second, InRow(second, 4, 5));
    EXPECT_EQ(other.GetCheck(4), 1);
}

TEST_F(OpenList, AParentMayColourIt) {
    class ColouringHost : public ComboHost {
    public:
        int asked = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_CTLCOLORLISTBOX) {
                return ComboHost::WindowProc(message, wParam, lParam);
            }
            ++asked;
            return reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH));
        }
    };
    ColouringHost colouring;
    CCheckComboBox other;
    colouring.Place(other);
    CClientDC dc(&other);
    const LRESULT brush = other.SendMessage(WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                            reinterpret_cast<LPARAM>(ListOf(other)));
    EXPECT_EQ(colouring.asked, 1);
    EXPECT_EQ(brush, reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
}

TEST(LightLists, LieOnTheWindowsGround) {
    ComboHost host;
    CMultiCombo multi;
    host.Place(multi);
    CVesMultiCombo light;
    host.Place(light);
    for (const CComboBox* const combo : {static_cast<CComboBox*>(&multi), static_cast<CComboBox*>(&light)}) {
        CClientDC dc(const_cast<CComboBox*>(combo));
        EXPECT_EQ(::SendMessageW(combo->m_hWnd, WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                 reinterpret_cast<LPARAM>(ListOf(*combo))),
                  reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW)));
    }
}

TEST_F(OpenList, TheItemUnderThePointCountsFromTheTopOfAScrolledList) {
    combo.ShowDropDown(FALSE);
    for (int i = 0; i < 60; ++i) {
        combo.AddString(L"more");
    }
    Open();
    ::SendMessageW(list, LB_SETTOPINDEX, 40, 0);
    const auto top = static_cast<int>(::SendMessageW(list, LB_GETTOPINDEX, 0, 0));
    ASSERT_GT(top, 0);
    mouse.Click(list, InRow(list, top + 1, 5));
    EXPECT_EQ(combo.GetCheck(top + 1), 1);
}

TEST_F(OpenList, AHostsChangePaintsTheListAnew) {
    ::RedrawWindow(list, nullptr, nullptr, RDW_VALIDATE | RDW_NOERASE);
    ASSERT_FALSE(::GetUpdateRect(list, nullptr, FALSE));
    combo.SetCheck(3, 1, 1);
    EXPECT_TRUE(::GetUpdateRect(list, nullptr, FALSE));
}

TEST_F(OpenList, TheListOfASecondComboWorksAfterTheFirstOne) {
    mouse.Click(list, InRow(list, 2, 5));
    combo.ShowDropDown(FALSE);
    CCheckComboBox other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(220, 10, 380, 200), &host, 701));
    AddColours(other);
    other.ShowDropDown(TRUE);
    const HWND second = ListOf(other);
    ::RedrawWindow(second, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    mouse.Click(second, InRow(second, 4, 5));
    EXPECT_EQ(other.GetCheck(4), 1);
    EXPECT_EQ(combo.GetCheck(4), 0);
    EXPECT_EQ(combo.GetCheck(2), 1);
}

TEST_F(OpenList, AnotherKindOfComboIsLeftAlone) {
    CMultiCombo plain;
    ASSERT_TRUE(plain.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(220, 10, 380, 200), &host, 701));
    AddColours(plain);
    plain.ShowDropDown(TRUE);
    const HWND second = ListOf(plain);
    mouse.Click(second, InRow(second, 4, 5));
    EXPECT_FALSE(plain.GetDroppedState());
    EXPECT_EQ(plain.GetCurSel(), 4);
    EXPECT_EQ(combo.GetCheck(4), 0);
}

TEST(LightLists, AreAtLeastAsWideAsTheirWidestItem) {
    ComboHost host;
    CMultiCombo combo;
    host.Place(combo);
    combo.AddString(L"an item whose text is by far longer than the closed combo is wide, with all its marks");
    combo.ShowDropDown(TRUE);
    EXPECT_GT(combo.GetDroppedWidth(), 300);
}

} // namespace
