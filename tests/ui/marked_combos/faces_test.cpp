// Clicks on the faces of the three kinds: where their marks begin and end, and what is told.
#include "combos/mark_geometry.h"
#include "tests/ui/marked_combos/combo_fixture.h"

namespace {

constexpr LRESULT allowed = 1;

/// A face and the squares on it in which a click counts.
template <class Combo>
class Faces : public RibbonCombos {
protected:
    static constexpr bool isCheck = std::is_same_v<Combo, CMFCRibbonCheckComb>;
    static constexpr bool isMulti = std::is_same_v<Combo, CMFCRibbonMultiCombo>;

    /// In the coordinates of the bar.
    static std::vector<CRect> MarksOf(const CMFCRibbonComboBox& combo) {
        const CRect edit = combo.GetEditRect();
        const int middle = (edit.top + edit.bottom) / 2;
        if (isCheck) {
            const int side = MarkSizes::Current().checkBox;
            return {CRect(edit.left + 1, edit.top, edit.left + side + 2, edit.bottom)};
        }
        const int icon = isMulti ? ScaledIconSize() : MarkSizes::Current().icon;
        const int top = isMulti ? std::max<int>(edit.top, static_cast<int>(middle - icon * 0.5))
                                : edit.top + (edit.Height() - icon) / 2;
        const int bottom = isMulti ? std::min<int>(top + icon, edit.bottom) : top + icon;
        const CRect first(edit.left + 3, top, edit.left + 3 + (bottom - top), bottom);
        return isMulti ? std::vector{first, first + CPoint(first.Width() + 3, 0)} : std::vector{first};
    }
    /// What a press at the point told; the list that it may have opened is closed.
    Told ToldAt(CMFCRibbonComboBox& combo, CPoint point) {
        combo.OnLButtonDown(point);
        wasOpened = Rows() != nullptr;
        CMFCPopupMenu::CloseAll();
        return TakeTold();
    }
    bool wasOpened = false;
};

using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(Faces, Kinds);

TYPED_TEST(Faces, EveryMarkTakesClicksToItsEdgesAndTheListOpensBeyondThem) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        MarkSizes::Current() = MarkSizes();
        const CMFCRibbonCheckComb madeByName; // scales the box
        this->m_host.LayOut();
        auto& combo = this->template Add<TypeParam>();
        combo.SelectItem(1);
        this->Answer(allowed);
        for (const CRect& mark : this->MarksOf(combo)) {
            SCOPED_TRACE(mark.left - combo.GetEditRect().left);
            for (const CPoint inside : {mark.TopLeft(), CPoint(mark.right - 1, mark.top),
                                        CPoint(mark.left, mark.bottom - 1), CPoint(mark.right - 1, mark.bottom - 1)}) {
                EXPECT_EQ(this->ToldAt(combo, inside).size(), 1u);
                EXPECT_FALSE(this->wasOpened);
            }
            for (const CPoint outside : {CPoint(mark.left - 1, mark.top), CPoint(mark.right, mark.top),
                                         CPoint(mark.left, mark.top - 1), CPoint(mark.left, mark.bottom)}) {
                if (!combo.GetEditRect().PtInRect(outside)) {
                    continue; // of the check column, which is as high as the edit area
                }
                EXPECT_EQ(this->ToldAt(combo, outside), Told{});
                EXPECT_TRUE(this->wasOpened);
            }
        }
        this->m_host.Bar().GetCategory(0)->GetPanel(0)->RemoveAll();
    }
}

TYPED_TEST(Faces, MarksThatAnEditAreaHasNoRoomForTakeNoClicksFromTheArrow) {
    auto& combo = this->m_host.Add(std::make_unique<TypeParam>(comboId, FALSE, 10));
    combo.AddItem(L"one");
    combo.SelectItem(0);
    const CRect edit = combo.GetEditRect();
    ASSERT_LE(edit.Width(), 12);
    for (const CPoint point : {CPoint(edit.right, edit.CenterPoint().y), combo.GetMenuRect().CenterPoint()}) {
        EXPECT_EQ(this->ToldAt(combo, point), Told{});
        EXPECT_TRUE(this->wasOpened);
    }
}

TYPED_TEST(Faces, WithAnEditBoxNoClickIsTheMarks) {
    auto& combo = this->m_host.Add(std::make_unique<TypeParam>(comboId, TRUE, 120));
    combo.AddItem(L"one");
    combo.SelectItem(0);
    this->Answer(allowed);
    for (const CRect& mark : this->MarksOf(combo)) {
        EXPECT_EQ(this->ToldAt(combo, mark.CenterPoint()), Told{});
    }
    if constexpr (TestFixture::isCheck) {
        EXPECT_EQ(this->ChecksOf(combo), "?");
    } else {
        EXPECT_EQ(this->LightsOf(combo), "?");
    }
}

TYPED_TEST(Faces, TheTextThatIsToldIsTheOneThatTheFaceShows) {
    auto& combo = this->template Add<TypeParam>();
    combo.SelectItem(1);
    combo.SetEditText(L"shown");
    const std::vector<CRect> marks = this->MarksOf(combo);
    const Told wanted{this->isCheck   ? "sent CHECK 'shown' 1"
                      : this->isMulti ? "sent LIGHT 'shown' 1"
                                      : "sent LIGHT-ONLY 'shown' 1"};
    EXPECT_EQ(this->ToldAt(combo, marks.back().CenterPoint()), wanted);
}

TYPED_TEST(Faces, TheListIsAtLeastAsWideAsTheCombo) {
    auto& combo = this->m_host.Add(std::make_unique<TypeParam>(comboId, FALSE, 300, L"Label"));
    combo.AddItem(L"one");
    this->Open(combo);
    CRect rect;
    CMFCPopupMenu::GetActiveMenu()->GetWindowRect(&rect);
    EXPECT_GE(rect.Width(), combo.GetRect().Width());
    EXPECT_LT(rect.Width(), combo.GetRect().Width() + 10) << "one short item needs no more";
}

} // namespace
