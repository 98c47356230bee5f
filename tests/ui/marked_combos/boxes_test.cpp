// What the skin is asked to draw for a check box.
#include "tests/ui/marked_combos/combo_picture.h"

#include <afxvisualmanager.h>

#include <ostream>

namespace {

struct Box {
    CRect rect;
    int state;
    bool isHot;
    bool isPressed;
    bool isEnabled;

    friend bool operator==(const Box& one, const Box& other) {
        return one.rect == other.rect && one.state == other.state && one.isHot == other.isHot &&
               one.isPressed == other.isPressed && one.isEnabled == other.isEnabled;
    }
    friend std::ostream& operator<<(std::ostream& out, const Box& box) {
        return out << '[' << box.rect.left << ' ' << box.rect.top << ' ' << box.rect.right << ' ' << box.rect.bottom
                   << "] " << box.state << (box.isHot ? " hot" : "") << (box.isPressed ? " pressed" : "")
                   << (box.isEnabled ? "" : " disabled");
    }
};

class BoxManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(BoxManager)
public:
    void OnDrawCheckBoxEx(CDC*, CRect rect, int state, BOOL isHot, BOOL isPressed, BOOL isEnabled) override {
        drawn.push_back({rect, state, isHot != FALSE, isPressed != FALSE, isEnabled != FALSE});
    }
    static std::vector<Box> Take() { return std::exchange(drawn, {}); }
    static inline std::vector<Box> drawn;
};
IMPLEMENT_DYNCREATE(BoxManager, CMFCVisualManager)

class CheckBoxes : public RibbonCombos {
protected:
    CheckBoxes() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(BoxManager)); }
    ~CheckBoxes() override { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); }

    /// S pixels wide and high, one from the left of what the margins of one pixel leave.
    static CRect BoxIn(const CRect& area) {
        const int side = MarkSizes::Current().checkBox;
        const int top = (area.top + area.bottom) / 2 - side / 2;
        return {area.left + 2, top, area.left + 2 + side, top + side};
    }
    static std::vector<Box> OnFace(CMFCRibbonComboBox& combo) {
        const ComboPicture picture(CSize(400, 60), [&](CDC& dc) {
            BoxManager::Take();
            combo.OnDraw(&dc);
        });
        return BoxManager::Take();
    }
    static std::vector<Box> InRow(CMFCRibbonCheckComb& combo, int index, const CRect& row) {
        struct Button : CMFCToolBarMenuButton {
        } button;
        button.SetRect(row);
        const ComboPicture picture(CSize(200, 100), [&](CDC& dc) {
            BoxManager::Take();
            combo.OnDrawDropListItem(&dc, index, &button, TRUE);
        });
        return BoxManager::Take();
    }
    static std::vector<Box> InList() {
        CRect client;
        Rows()->GetClientRect(&client);
        const ComboPicture picture(client.Size(), [](CDC& dc) {
            BoxManager::Take();
            DrawRows(*Rows(), dc);
        });
        return BoxManager::Take();
    }
};

TEST_F(CheckBoxes, OnTheFaceIsOneInThePlaceAndStateOfTheSelectedItem) {
    for (const double scale : {1.0, 1.5}) {
        SCOPED_TRACE(scale);
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        const CMFCRibbonCheckComb madeByName; // scales the box
        m_host.LayOut();
        auto& combo = Add<CMFCRibbonCheckComb>();
        const CRect box = BoxIn(combo.GetEditRect());
        EXPECT_EQ(OnFace(combo), (std::vector<Box>{{box, 0, false, false, true}})) << "without a selection";
        combo.SelectItem(1);
        EXPECT_EQ(OnFace(combo), (std::vector<Box>{{box, 0, false, false, true}})) << "without an entry";
        combo.SetItemCheck(1, true);
        EXPECT_EQ(OnFace(combo), (std::vector<Box>{{box, 1, false, false, true}}));
        combo.SetHighlighted(TRUE);
        EXPECT_EQ(OnFace(combo), (std::vector<Box>{{box, 1, false, false, true}})) << "never hot";
        combo.SetHighlighted(FALSE);
        combo.SetDisabled(TRUE);
        EXPECT_EQ(OnFace(combo), (std::vector<Box>{{box, 1, false, false, false}}));
        m_host.Bar().GetCategory(0)->GetPanel(0)->RemoveAll();
    }
}

TEST_F(CheckBoxes, InTheListEachRowHasOneThatIsNeverHotNorPressed) {
    for (const double scale : {1.0, 1.5}) {
        SCOPED_TRACE(scale);
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(scale));
        const CMFCRibbonCheckComb madeByName;
        m_host.LayOut();
        auto& combo = Add<CMFCRibbonCheckComb>();
        combo.SetItemCheck(0, false);
        combo.SetItemCheck(2, true);
        Open(combo);
        Rows()->SetHotRow(2);
        const auto box = [](int row, int state) {
            return Box{BoxIn(Rows()->GetRowRect(row)), state, false, false, true};
        };
        EXPECT_EQ(InList(), (std::vector<Box>{box(0, 0), box(1, 0), box(2, 1)}));
        EXPECT_EQ(InRow(combo, 2, CRect(5, 7, 105, 47)),
                  (std::vector<Box>{{BoxIn(CRect(5, 7, 105, 47)), 1, false, false, true}}));
        combo.SetDisabled(TRUE);
        EXPECT_EQ(InRow(combo, 2, CRect(5, 7, 105, 47)),
                  (std::vector<Box>{{BoxIn(CRect(5, 7, 105, 47)), 1, false, false, false}}));
        CMFCPopupMenu::CloseAll();
        m_host.Bar().GetCategory(0)->GetPanel(0)->RemoveAll();
    }
}

} // namespace
