// Faces and rows in every state: hot, disabled, mirrored, scaled.
#include "combos/light_images.h"
#include "tests/ui/marked_combos/combo_picture.h"

#include <afxvisualmanageroffice2007.h>
#include <fx/dc_scope.h>

namespace {

constexpr COLORREF orange = RGB(0xFF, 0x80, 0x20);
/// Full blocks: a text whose middle has the text's colour and no other.
const wchar_t* const blocks = L"\x2588\x2588\x2588\x2588";

/// A row, for those who ask the skin for its colours.
class RowButton : public CMFCToolBarMenuButton {
public:
    explicit RowButton(CWnd* rows) { m_pWndParent = rows; }
};

class ComboLooks : public RibbonCombos {
protected:
    static ComboPicture Face(CMFCRibbonComboBox& combo) {
        return ComboPicture(combo.GetRect().Size(), [&](CDC& dc) { DrawFace(combo, dc); });
    }
    static CRect EditIn(const CMFCRibbonComboBox& combo) {
        CRect rect = combo.GetEditRect();
        rect.OffsetRect(-combo.GetRect().TopLeft());
        return rect;
    }
    static CSize ListSize() {
        CRect client;
        Rows()->GetClientRect(&client);
        return client.Size();
    }
    static ComboPicture List() {
        return ComboPicture(ListSize(), [](CDC& dc) { DrawRows(*Rows(), dc); });
    }
    static bool IsSame(const ComboPicture& one, const ComboPicture& other, const CRect& place) {
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                if (one.At(x, y) != other.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
};

// ---- the three kinds alike

template <class Combo>
class EveryLook : public ComboLooks {
protected:
    static constexpr bool hasBox = std::is_same_v<Combo, CMFCRibbonCheckComb>;
    static constexpr bool hasSwatch = std::is_same_v<Combo, CMFCRibbonMultiCombo>;

    EveryLook() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007)); }
    ~EveryLook() override { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); }
    Combo& AddSelected() {
        Combo& combo = Add<Combo>(comboId, 0);
        combo.AddItem(blocks);
        combo.SelectItem(0);
        if constexpr (hasSwatch) {
            combo.SetItemInfo(0, orange, true, false);
        } else if constexpr (hasBox) {
            combo.SetItemCheck(0, true);
        } else {
            combo.SetItemLight(0, true, false);
        }
        return combo;
    }
    /// A square on the face within the first mark, where nothing of the background shines through.
    static CRect FirstMark(const Combo& combo) {
        const CPoint middle(EditIn(combo).left + 9, EditIn(combo).CenterPoint().y);
        const int half = hasBox ? 6 : hasSwatch ? 5 : 2;
        return {middle.x - half, middle.y - half, middle.x + half, middle.y + half};
    }
    static CPoint InText(const Combo& combo) {
        const CRect edit = EditIn(combo);
        return {edit.left + 45, edit.CenterPoint().y};
    }
    static CRect DropButton(const Combo& combo) {
        CRect rect = combo.GetMenuRect();
        rect.OffsetRect(-combo.GetRect().TopLeft());
        return rect;
    }
};

using Kinds = testing::Types<CMFCRibbonCheckComb, CMFCRibbonMultiCombo, CMFCRibbonVesMultiCombo>;
TYPED_TEST_SUITE(EveryLook, Kinds);

TYPED_TEST(EveryLook, AHotFaceLightsItsButtonAndKeepsItsMarksAndText) {
    TypeParam& combo = this->AddSelected();
    const ComboPicture cold = this->Face(combo);
    combo.SetHighlighted(TRUE);
    const ComboPicture hot = this->Face(combo);
    EXPECT_FALSE(this->IsSame(hot, cold, this->DropButton(combo)));
    EXPECT_TRUE(this->IsSame(hot, cold, this->FirstMark(combo)));
    const CPoint text = this->InText(combo);
    EXPECT_EQ(hot.At(text.x, text.y), cold.At(text.x, text.y));
    combo.SetHighlighted(FALSE);
    EXPECT_TRUE(this->Face(combo).DifferenceTo(cold).IsRectEmpty());
}

TYPED_TEST(EveryLook, TheFaceOfAnOpenListIsHot) {
    TypeParam& combo = this->AddSelected();
    const ComboPicture cold = this->Face(combo);
    combo.DropDownList();
    ASSERT_TRUE(combo.IsDroppedDown());
    EXPECT_FALSE(this->IsSame(this->Face(combo), cold, this->DropButton(combo)));
}

TYPED_TEST(EveryLook, ADisabledFaceGreysItsTextAndKeepsItsColoursAndLights) {
    TypeParam& combo = this->AddSelected();
    const ComboPicture enabled = this->Face(combo);
    combo.SetDisabled(TRUE);
    const ComboPicture disabled = this->Face(combo);
    const CPoint text = this->InText(combo);
    EXPECT_NE(disabled.At(text.x, text.y), enabled.At(text.x, text.y));
    // A colour and a light say what they are; a box says whether it may be checked.
    EXPECT_EQ(this->IsSame(disabled, enabled, this->FirstMark(combo)), !this->hasBox);
    combo.SetHighlighted(TRUE);
    EXPECT_TRUE(this->Face(combo).DifferenceTo(disabled).IsRectEmpty()) << "nor does it become hot";
}

TYPED_TEST(EveryLook, ARowsTextHasTheRowsColour) {
    TypeParam& combo = this->AddSelected();
    combo.AddItem(blocks);
    this->Open(combo);
    this->Rows()->SetHotRow(1);
    const ComboPicture list = this->List();
    const int x = 45;
    for (const int row : {0, 1}) {
        RowButton button(this->Rows());
        const COLORREF wanted =
            CMFCVisualManager::GetInstance()->GetMenuItemTextColor(&button, row == 1 ? TRUE : FALSE, FALSE);
        EXPECT_EQ(list.At(x, this->Rows()->GetRowRect(row).CenterPoint().y), ToPixel(wanted)) << row;
    }
}

TYPED_TEST(EveryLook, ARowIsDrawnByItsCombo) {
    TypeParam& combo = this->AddSelected();
    this->Open(combo);
    RowButton button(this->Rows());
    button.SetRect(CRect(0, 0, 100, 20));
    const ComboPicture blank(CSize(100, 20));
    const ComboPicture drawn(CSize(100, 20),
                             [&](CDC& dc) { EXPECT_TRUE(combo.OnDrawDropListItem(&dc, 0, &button, FALSE)); });
    EXPECT_FALSE(drawn.DifferenceTo(blank).IsRectEmpty());
}

// ---- without a record

TEST_F(ComboLooks, AnItemWithoutARecordShowsTheOffImageOnFaceAndInRow) {
    auto& multi = Add<CMFCRibbonMultiCombo>();
    auto& light = Add<CMFCRibbonVesMultiCombo>(comboId + 1);
    const auto off = [](int middle) {
        return ComboPicture(CSize(40, 40), [middle](CDC& dc) {
            dc.FillSolidRect(0, 0, 40, 40, RGB(255, 255, 255));
            DrawLight(dc, {0, middle - 6, 13, middle + 7}, LightState::Off);
        });
    };
    struct Case {
        CMFCRibbonComboBox& combo;
        int left;
    };
    for (const Case& one : {Case{multi, 19}, Case{light, 3}}) {
        one.combo.SelectItem(1);
        const ComboPicture face = Face(one.combo);
        const CRect edit = EditIn(one.combo);
        Open(one.combo);
        Rows()->SetHotRow(-1);
        const ComboPicture list = List();
        const CRect row = Rows()->GetRowRect(1);
        for (const auto& [picture, area] : {std::pair{&face, edit}, {&list, row}}) {
            const LONG middle = (area.top + area.bottom) / 2;
            // The two kinds round in their own ways.
            const LONG top = (&one.combo == &multi) ? middle - 7 : area.top + (area.Height() - 13) / 2;
            const ComboPicture wanted = off(6);
            for (int y = 0; y < 13; ++y) {
                for (int x = 0; x < 13; ++x) {
                    ASSERT_EQ(picture->At(static_cast<int>(area.left) + one.left + x, top + y), wanted.At(x, y))
                        << one.left << ": " << x << ' ' << y;
                }
            }
        }
        CMFCPopupMenu::CloseAll();
    }
}

// ---- a scaled display

TEST_F(ComboLooks, ALightOnlyCombosLightKeepsItsSizeOnAScaledDisplay) {
    for (const double scale : {1.5, 2.0}) {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        m_host.LayOut();
        auto& combo = Add<CMFCRibbonVesMultiCombo>();
        combo.SelectItem(1);
        const ComboPicture off = Face(combo);
        combo.SetItemLight(1, true, false);
        const CRect edit = EditIn(combo);
        const int top = edit.top + (edit.Height() - 13) / 2;
        const CRect changed = Face(combo).DifferenceTo(off);
        EXPECT_FALSE(changed.IsRectEmpty());
        EXPECT_GE(changed.left, edit.left + 3);
        EXPECT_LE(changed.right, edit.left + 16);
        EXPECT_GE(changed.top, top);
        EXPECT_LE(changed.bottom, top + 13);

        Open(combo);
        Rows()->SetHotRow(-1);
        const ComboPicture listOff = List();
        combo.SetItemLight(0, true, false);
        const CRect inList = List().DifferenceTo(listOff);
        EXPECT_GE(inList.left, 3);
        EXPECT_LE(inList.right, 16);
        EXPECT_LE(inList.Height(), 13);
        ClickRow(2, 15, 16);
        EXPECT_EQ(LightsOf(combo), "111") << "the zone is as small";
        ClickRow(2, 16, 16);
        EXPECT_EQ(Rows(), nullptr);
        EXPECT_EQ(TakeTold(), (Told{"sent LIGHT-ONLY 'three' 1", "sent COMMAND 700"}));
        ClickFace(combo, 15);
        EXPECT_EQ(TakeTold(), Told{"sent LIGHT-ONLY 'three' 0"});
        m_host.Bar().GetCategory(0)->GetPanel(0)->RemoveAll();
    }
}

// ---- mirrored

class MirroredList : public ComboLooks {
protected:
    void SetUp() override {
        m_combo = &Add<CMFCRibbonMultiCombo>();
        m_combo->SetItemInfo(1, orange, true, false);
        m_host.Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        m_host.LayOut();
        m_combo->DropDownList();
        ASSERT_NE(Rows(), nullptr);
        ASSERT_TRUE(Rows()->GetExStyle() & WS_EX_LAYOUTRTL);
        Rows()->SetHotRow(1);
    }
    template <class Draw>
    static ComboPicture Mirrored(Draw draw) {
        return ComboPicture(ListSize(), [&](CDC& dc) {
            dc.SetLayout(LAYOUT_RTL);
            draw(dc);
        });
    }

    CMFCRibbonMultiCombo* m_combo = nullptr;
};

TEST_F(MirroredList, ShowsTheMarksAtTheRight) {
    const ComboPicture plain = List();
    const ComboPicture mirrored = Mirrored([](CDC& dc) { DrawRows(*Rows(), dc); });
    const CRect row = Rows()->GetRowRect(1);
    const int middle = row.CenterPoint().y;
    EXPECT_EQ(plain.At(8, middle), ToPixel(orange));
    for (int x = 0; x < 18; ++x) {
        EXPECT_EQ(mirrored.At(ListSize().cx - 1 - x, middle), plain.At(x, middle)) << x;
    }
    mirrored.Save(L"combo-list-mirrored.png");
}

TEST_F(MirroredList, LooksTheSameWhetherItIsBufferedOrNot) {
    const ComboPicture direct = Mirrored([](CDC& dc) { DrawRows(*Rows(), dc); });
    const ComboPicture buffered = Mirrored([](CDC& dc) {
        CRect client;
        Rows()->GetClientRect(&client);
        fx::MemoryDc memory(dc, client);
        DrawRows(*Rows(), memory.GetDC());
    });
    const CRect difference = buffered.DifferenceTo(direct);
    EXPECT_TRUE(difference.IsRectEmpty()) << difference.left << " to " << difference.right << " of " << ListSize().cx;
}

TEST_F(MirroredList, ItsMarksAreSwitchedWhereTheyAreSeen) {
    Answer(1);
    CRect row = Rows()->GetRowRect(2);
    Rows()->ClientToScreen(&row);
    row.NormalizeRect();
    const auto click = [&](int fromTheRight) {
        m_pointer.MoveTo(CPoint(row.right - 1 - fromTheRight, row.CenterPoint().y));
        m_pointer.Press();
        m_pointer.Release();
    };
    click(25);
    EXPECT_EQ(TakeTold(), Told{"sent LIGHT 'three' 1"});
    EXPECT_NE(Rows(), nullptr);
    click(5);
    EXPECT_EQ(Rows(), nullptr);
    EXPECT_EQ(TakeTold(), (Told{"sent COMMAND 700", "posted COLOUR #2 0"}));
}

} // namespace
