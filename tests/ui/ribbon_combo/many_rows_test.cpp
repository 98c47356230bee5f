#include "tests/ui/ribbon_combo/combo_fixture.h"

#include <richedit.h>

#include "tests/support/growth.h"
#include "tests/support/gui_objects.h"

namespace {

class ManyRows : public RibbonComboTest {
protected:
    static constexpr UINT kMany = 1203;
    static constexpr int kCount = 10000;

    ManyRows() {
        Add(kMany, FALSE, kCount);
        LayOut();
    }
    SpyCombo& Many() { return static_cast<SpyCombo&>(Element(kMany)); }
    double OpenSeconds(CMFCRibbonComboBox& combo) {
        double best = 1e9;
        for (int attempt = 0; attempt < 5; ++attempt) {
            best = std::min(best, MeasureSeconds([&combo] { combo.DropDownList(); }));
            EXPECT_TRUE(IsOpen());
            CMFCPopupMenu::CloseAll();
        }
        return best;
    }
};

TEST_F(ManyRows, OpenAlmostAsFastAsTen) {
    const double ten = OpenSeconds(Plain());
    const double all = OpenSeconds(Many());
    RecordProperty("ten_ms", static_cast<int>(ten * 1000));
    RecordProperty("all_ms", static_cast<int>(all * 1000));
    EXPECT_LT(all, ten + 0.1);
}

TEST_F(ManyRows, OnlyWhatIsSeenIsDrawn) {
    Many().SetDropDownHeight(20 * afxGlobalData.GetTextHeight() + 10);
    for (const int selected : {-1, 0, 5000, kCount - 1}) {
        Many().SelectItem(selected);
        ClickButton(Many());
        Many().drawn.clear();
        ListBar().Invalidate();
        ListBar().UpdateWindow();
        EXPECT_LE(Many().drawn.size(), 21u);
        EXPECT_GE(Many().drawn.size(), 19u);
        CMFCPopupMenu::CloseAll();
    }
}

TEST_F(ManyRows, AreReachedToTheLastOneAndChosen) {
    ClickButton(Many());
    EXPECT_TRUE(List().IsScrollable());
    Press(VK_END);
    EXPECT_EQ(ListBar().GetHotRow(), kCount - 1);
    CRect client;
    ListBar().GetClientRect(client);
    EXPECT_LE(ListBar().GetRowRect(kCount - 1).bottom, client.bottom);
    ClickRow(kCount - 2);
    EXPECT_EQ(Many().GetCurSel(), kCount - 2);
}

TEST_F(ManyRows, AScrollBarReachesEveryRow) {
    ClickButton(Many());
    CWnd* scrollBar = nullptr;
    for (CWnd* child = List().GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT)) {
        scrollBar = child->m_hWnd != ListBar().m_hWnd ? child : scrollBar;
    }
    ASSERT_NE(scrollBar, nullptr);
    EXPECT_TRUE(scrollBar->IsWindowVisible());
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ASSERT_TRUE(::GetScrollInfo(scrollBar->m_hWnd, SB_CTL, &info));
    const auto scroll = [&scrollBar](int code) {
        List().SendMessage(WM_VSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(scrollBar->m_hWnd));
        return ListBar().HitTest(CPoint(5, 0));
    };
    CRect client;
    ListBar().GetClientRect(client);
    const int page = client.Height() / ListBar().GetRowHeight();
    EXPECT_EQ(info.nMax, kCount * ListBar().GetRowHeight() - 1);
    EXPECT_EQ(static_cast<int>(info.nPage), page * ListBar().GetRowHeight());
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 1 + page);
    EXPECT_EQ(scroll(SB_BOTTOM), kCount - page);
    EXPECT_EQ(scroll(SB_PAGEUP), kCount - 2 * page);
    EXPECT_EQ(scroll(SB_TOP), 0);
}

TEST_F(RibbonComboTest, ThousandsOfItemsAreAddedToAnOpenListInNoTime) {
    ClickButton(Plain());
    CString text;
    const double seconds = MeasureSeconds([&] {
        for (int i = 0; i < 2000; ++i) {
            text.Format(L"Another item %d", i % 7);
            Plain().AddItem(text);
        }
        PumpPending();
    });
    RecordProperty("ms", static_cast<int>(seconds * 1000));
    EXPECT_LT(seconds, 0.7);
    EXPECT_EQ(ListBar().GetRowCount(), 2010);
    CWnd* scrollBar = List().GetWindow(GW_CHILD);
    while (scrollBar != nullptr && scrollBar->m_hWnd == ListBar().m_hWnd) {
        scrollBar = scrollBar->GetWindow(GW_HWNDNEXT);
    }
    ASSERT_NE(scrollBar, nullptr);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ASSERT_TRUE(::GetScrollInfo(scrollBar->m_hWnd, SB_CTL, &info));
    EXPECT_EQ(info.nMax, 2010 * ListBar().GetRowHeight() - 1);
    Press(VK_END);
    ClickRow(2009);
    EXPECT_EQ(Plain().GetCurSel(), 2009);
}

TEST_F(RibbonComboTest, AnItemAddedToAListThatScrollsMakesItAsWideAsItNeeds) {
    for (int i = 0; i < 100; ++i) {
        Plain().AddItem(L"short");
    }
    ClickButton(Plain());
    ASSERT_TRUE(List().IsScrollable());
    const int narrow = ScreenRect(List()).Width();
    Plain().AddItem(L"short");
    PumpPending();
    EXPECT_EQ(ScreenRect(List()).Width(), narrow);
    Plain().AddItem(L"A text that is much longer than the combo box is wide");
    Plain().AddItem(L"short");
    PumpPending();
    const int added = ScreenRect(List()).Width();
    EXPECT_GT(added, narrow);
    CMFCPopupMenu::CloseAll();
    ClickButton(Plain());
    EXPECT_EQ(ScreenRect(List()).Width(), added) << "as wide as it opens";
}

TEST_F(ManyRows, AreFilledAndSearchedInNoTime) {
    CMFCRibbonComboBox combo(1, FALSE);
    const double seconds = MeasureSeconds([&combo] {
        for (int i = 0; i < kCount; ++i) {
            combo.AddItem(L"A row among many others");
        }
        combo.AddItem(L"Z");
        EXPECT_EQ(combo.FindItem(L"Z"), kCount);
    });
    EXPECT_LT(seconds, 1.0);
}

TEST_F(RibbonComboTest, FiveHundredListsLeaveNothingBehind) {
    ClickButton(Plain());
    CMFCPopupMenu::CloseAll();
    EXPECT_TRUE(LeavesNothingBehind([this] {
        for (int i = 0; i < 500; ++i) {
            Plain().DropDownList();
            ListBar().UpdateWindow();
            CMFCPopupMenu::CloseAll();
        }
        PumpPending();
    }));
}

TEST_F(RibbonComboTest, TheSmallestScaleAndTheLargestHaveAllParts) {
    SetClientWidth(1500); // room for all at every scale
    LONG fontHeight = 0;
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        afxGlobalData.SetRibbonImageScale(scale);
        LayOut();
        EXPECT_EQ(Plain().GetCommandRect().Width(), static_cast<int>(90 * scale + 0.5));
        ClickButton(Plain());
        EXPECT_EQ(ListBar().GetRowHeight(), afxGlobalData.GetTextHeight());
        EXPECT_GE(ScreenRect(List()).Width(), BoxOnScreen(Plain()).Width());
        ClickRow(7);
        EXPECT_EQ(Plain().GetCurSel(), 7) << scale;
        CHARFORMATW format{};
        format.cbSize = sizeof(format);
        format.dwMask = CFM_SIZE;
        Edit().GetEditWnd()->SendMessage(EM_GETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
        EXPECT_GT(format.yHeight, fontHeight) << "the edit window's font follows";
        fontHeight = format.yHeight;
    }
    afxGlobalData.SetRibbonImageScale(0);
}

} // namespace
