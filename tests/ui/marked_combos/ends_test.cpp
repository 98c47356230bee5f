// The end of a combo, of its items or of its list while the list is open, whoever brings it about.
#include "tests/support/buried.h"
#include "tests/support/counted_faults.h"
#include "tests/ui/marked_combos/combo_fixture.h"

#include <afxRibbonPanel.h>
#include <fx/registered_messages.h>

namespace {

template <class Combo>
class Ends : public RibbonCombos {
protected:
    using Kind = Buried<Combo>;

    Kind& AddKind(UINT id = comboId, int itemCount = 3) { return Add<Kind>(id, itemCount); }
    void Remove(CMFCRibbonComboBox& combo) {
        CMFCRibbonPanel* const panel = combo.GetParentPanel();
        panel->Remove(panel->GetIndex(&combo));
    }
    /// When the host hears that the list closes, which is once.
    void WhenItCloses(const std::function<void()>& deed) {
        m_host.Frame().onPopupClosed = [this, deed](CMFCPopupMenu&) {
            m_host.Frame().onPopupClosed = nullptr;
            ++m_deeds;
            deed();
        };
    }
    /// Nothing is open, nothing was told and nothing faulted.
    void ExpectQuietEnd() {
        PumpPending();
        EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
        EXPECT_EQ(TakeTold(), Told{});
        EXPECT_EQ(m_faults.Get(), 0);
    }

    int m_deeds = 0;
    const CountedFaults m_faults;
};

using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(Ends, Kinds);

// ---- the items

TYPED_TEST(Ends, TheListClosesWhenItsItemsAreRemoved) {
    auto& combo = this->AddKind();
    combo.SelectItem(1);
    this->Open(combo);
    combo.RemoveAll();
    EXPECT_FALSE(combo.IsDroppedDown());
    EXPECT_EQ(combo.GetDropDownList(), nullptr);
    this->ExpectQuietEnd();
    combo.AddItem(L"new");
    this->Open(combo);
    EXPECT_EQ(this->Rows()->GetRowCount(), 1);
}

TYPED_TEST(Ends, TheListClosesWhenTheItemsOfACopyAreRemoved) {
    auto& combo = this->AddKind();
    auto& twin = this->AddKind(comboId, 0);
    this->Open(combo);
    twin.RemoveAll();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_FALSE(combo.IsDroppedDown());
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheListClosesWhenTheComboBecomesACopyOfAnother) {
    auto& combo = this->AddKind();
    auto& other = this->AddKind(comboId + 1, 0);
    other.AddItem(L"other");
    this->Open(combo);
    combo.CopyFrom(other);
    EXPECT_EQ(combo.GetCount(), 1);
    EXPECT_FALSE(combo.IsDroppedDown());
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheListStaysOpenWhenItsComboIsCopied) {
    auto& combo = this->AddKind();
    auto& other = this->AddKind(comboId + 1, 0);
    this->Open(combo);
    other.CopyFrom(combo);
    EXPECT_TRUE(combo.IsDroppedDown());
    EXPECT_FALSE(other.IsDroppedDown());
    EXPECT_NE(this->Rows(), nullptr);
}

// ---- the combo

TYPED_TEST(Ends, TheListClosesWithItsCombo) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->Remove(combo);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheListClosesWithItsCategory) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->m_host.Bar().RemoveAllCategories();
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheListOfTheQuickAccessToolbarsCopyClosesWithThatCopy) {
    this->AddKind();
    this->Open(this->template AddToQuickAccess<TypeParam>());
    this->m_host.Bar().SetQuickAccessCommands(CList<UINT, UINT>(), TRUE);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, MouseMessagesThatAreUnderWayFindNoListAnyMore) {
    auto& combo = this->AddKind();
    const HWND rows = this->Open(combo).GetSafeHwnd();
    const LPARAM onMark = MAKELPARAM(8, 8);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK}) {
        ::PostMessageW(rows, message, 0, onMark);
    }
    this->Remove(combo);
    this->ExpectQuietEnd();
}

// ---- a host that hears of the closing

TYPED_TEST(Ends, TheHostMayRemoveTheComboWhoseItemsCloseTheList) {
    auto& twin = this->AddKind(comboId, 0);
    auto& combo = this->AddKind();
    ASSERT_EQ(twin.GetCount(), 3);
    this->Open(combo);
    this->WhenItCloses([&] { this->Remove(combo); });
    combo.RemoveAll();
    EXPECT_EQ(this->m_deeds, 1);
    EXPECT_EQ(twin.GetCount(), 3) << "whoever is gone tells no copies";
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheHostMayRemoveTheCopyWhoseItemsCloseItsList) {
    auto& combo = this->AddKind();
    auto& twin = this->AddKind(comboId, 0);
    auto& third = this->AddKind(comboId, 0);
    this->Open(twin);
    this->WhenItCloses([&] {
        this->Remove(twin);
        this->Remove(third);
    });
    combo.RemoveAll();
    EXPECT_EQ(this->m_deeds, 1);
    EXPECT_EQ(combo.GetCount(), 0);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheHostMayRemoveTheComboThatBecomesACopy) {
    auto& combo = this->AddKind();
    auto& other = this->AddKind(comboId + 1);
    this->Open(combo);
    this->WhenItCloses([&] { this->Remove(combo); });
    combo.CopyFrom(other);
    EXPECT_EQ(this->m_deeds, 1);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheHostMayRemoveTheComboWhenItsListCloses) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->WhenItCloses([&] { this->Remove(combo); });
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(this->m_deeds, 1);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheHostMayDestroyTheFrameWhenTheListCloses) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->WhenItCloses([&] { this->m_host.Destroy(); });
    combo.RemoveAll();
    EXPECT_EQ(this->m_deeds, 1);
    EXPECT_FALSE(this->m_host.IsAlive());
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(this->m_faults.Get(), 0);
}

TYPED_TEST(Ends, AClickThatReachesTheRowsAfterTheComboHasGoneDoesNothing) {
    auto& combo = this->AddKind();
    const HWND rows = this->Open(combo).GetSafeHwnd();
    this->WhenItCloses([&] {
        this->Remove(combo);
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK}) {
            ::SendMessageW(rows, message, 0, MAKELPARAM(8, 8));
        }
    });
    CMFCPopupMenu::CloseAll();
    EXPECT_EQ(this->m_deeds, 1);
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, TheHostMayRemoveTheComboWhenNoRowIsHotAnyMore) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->Key(VK_DOWN);
    this->m_host.Frame().listensTo = [](UINT message) { return message == AFX_WM_HIGHLIGHT_RIBBON_LIST_ITEM; };
    this->m_host.Frame().onMessage = [&](const HostMessage& one) {
        if (static_cast<int>(one.wParam) == -1 && this->m_deeds++ == 0) {
            this->Remove(combo);
        }
        return 0;
    };
    combo.RemoveAll();
    EXPECT_EQ(this->m_deeds, 1);
    this->m_host.Frame().received.clear();
    this->ExpectQuietEnd();
}

TYPED_TEST(Ends, AListThatTheHostOpensAnewWhenItClosesIsTheCombosList) {
    auto& combo = this->AddKind();
    this->Open(combo);
    this->WhenItCloses([&] { combo.DropDownList(); });
    CMFCPopupMenu::CloseAll();
    PumpPending();
    EXPECT_EQ(this->m_deeds, 1);
    EXPECT_EQ(combo.IsDroppedDown() != FALSE, this->Rows() != nullptr) << "either way both agree";
    CMFCPopupMenu::CloseAll();
    this->Remove(combo);
    this->ExpectQuietEnd();
}

} // namespace
