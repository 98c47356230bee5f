// What is not on a panel, in its states, in both skins with the pictures beside the program: tabs, drop-down buttons,
// rows of menus, elements of the status bar. Each row of the table has a named place and what the skin has for it.
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "tests/ui/skins/skin_fixture.h"

#include <afxribboncategory.h>
#include <afxribbonstatusbar.h>

#include <cstdlib>
#include <string>

namespace {

using visual::Argb;
using visual::ColorSlot;
using visual::FaceSlot;
using visual::PlatePlace;
using visual::Skin;

const CRect kPlace(8, 6, 68, 30);
const CPoint kMiddle = kPlace.CenterPoint();
// Beside the sign, and above it.
const CPoint kBeside(kPlace.left + 8, kMiddle.y), kAbove(kMiddle.x, kPlace.top + 3);

/// One thing in one state: what is drawn, where it is looked at, and what of the skin is seen there, the lowest first.
struct Row {
    std::string name;
    Argb ground;
    std::function<void(CMFCVisualManager& manager, CDC* dc)> draw;
    CPoint at;
    std::vector<FaceSlot> faces;
    PlatePlace place = PlatePlace::Alone;
    bool isPicture = true; ///< else the face's colours alone
};

template <class SkinClass>
class SkinPlaces : public RibbonBarTest {
protected:
    SkinPlaces() {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(SkinClass));
        m_status.AddElement(m_element, L"Element");
    }
    ~SkinPlaces() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }

    const Skin& Table() const { return static_cast<SkinClass&>(*CMFCVisualManager::GetInstance()).GetSkin(); }

    void AddTabs(std::vector<Row>& rows) {
        auto* const tab =
            DYNAMIC_DOWNCAST(CMFCRibbonTab, Bar().HitTest(Bar().GetCategory(1)->GetTabRect().CenterPoint()));
        ASSERT_NE(tab, nullptr);
        const auto draw = [tab](BOOL isHot, BOOL isActive) {
            return [tab, isHot, isActive](CMFCVisualManager& manager, CDC* dc) {
                const CRect before = tab->GetRect();
                tab->SetRect(kPlace);
                tab->SetHighlighted(isHot);
                manager.OnDrawRibbonCategoryTab(dc, tab, isActive);
                tab->SetHighlighted(FALSE);
                tab->SetRect(before);
            };
        };
        const Argb row = Table()[ColorSlot::RibbonTop];
        rows.push_back({"tab at rest", row, draw(FALSE, FALSE), kMiddle, {}});
        rows.push_back({"tab, hot", row, draw(TRUE, FALSE), kMiddle, {FaceSlot::TabHot}});
        rows.push_back({"tab, active", row, draw(FALSE, TRUE), kMiddle, {FaceSlot::TabActive}});
        // In a skin whose active tab lies on the row's ground a line below it tells.
        rows.push_back({"active tab's lower edge", row, draw(FALSE, TRUE), kMiddle, {FaceSlot::TabActive}});
        rows.back().at.y = kPlace.bottom - 1;
        rows.push_back({"tab, active and hot", row, draw(TRUE, TRUE), kMiddle, {FaceSlot::TabActiveHot}});
    }
    void AddDropButtons(std::vector<Row>& rows) const {
        const auto draw = [](BOOL isDisabled, BOOL isDropped, BOOL isHot) {
            return [=](CMFCVisualManager& manager, CDC* dc) {
                manager.OnDrawComboDropButton(dc, kPlace, isDisabled, isDropped, isHot, nullptr);
            };
        };
        const Argb field = Table()[FaceSlot::Edit].top1;
        const auto add = [&](const char* name, const auto& drawn, FaceSlot face) {
            rows.push_back({name, field, drawn, kBeside, {face}, PlatePlace::Alone, false});
        };
        add("drop-down button at rest", draw(FALSE, FALSE, FALSE), FaceSlot::DropButton);
        add("drop-down button, hot", draw(FALSE, FALSE, TRUE), FaceSlot::DropButtonHot);
        add("drop-down button, dropped", draw(FALSE, TRUE, TRUE), FaceSlot::DropButtonPressed);
        add("drop-down button, disabled", draw(TRUE, FALSE, FALSE), FaceSlot::DropButton);
        add("drop-down button, disabled and hot", draw(TRUE, FALSE, TRUE), FaceSlot::DropButton);
    }
    void AddMenuRows(std::vector<Row>& rows) const {
        const auto draw = [](bool isHot, bool isChecked) {
            return [=](CMFCVisualManager& manager, CDC* dc) {
                COLORREF text = 0;
                if (isHot) {
                    manager.OnHighlightMenuItem(dc, nullptr, kPlace, text);
                }
                if (isChecked) {
                    manager.OnDrawMenuCheck(dc, nullptr, kPlace, isHot ? TRUE : FALSE, FALSE);
                }
            };
        };
        const Argb menu = Table()[ColorSlot::MenuFill], column = Table()[ColorSlot::MenuGutter];
        rows.push_back({"menu's row, hot", menu, draw(true, false), kMiddle, {FaceSlot::MenuItemHot}});
        rows.push_back({"menu's row, checked", column, draw(false, true), kAbove, {FaceSlot::MenuCheck}});
        rows.push_back({"menu's row, checked and hot",
                        column,
                        draw(true, true),
                        kAbove,
                        {FaceSlot::MenuItemHot, FaceSlot::MenuCheckHot}});
    }
    void AddStatusElements(std::vector<Row>& rows) const {
        const auto draw = [this](BOOL isHot, BOOL isPressed, BOOL isChecked, BOOL isDisabled) {
            return [=, this](CMFCVisualManager& manager, CDC* dc) {
                m_element->SetRect(kPlace);
                m_element->SetHighlighted(isHot);
                m_element->SetPressed(isPressed);
                m_element->SetChecked(isChecked);
                m_element->SetDisabled(isDisabled);
                manager.OnFillRibbonButton(dc, m_element);
            };
        };
        const Argb bar = Table()[FaceSlot::StatusBar].top1;
        const auto add = [&](const char* name, const auto& drawn, const std::vector<FaceSlot>& faces) {
            rows.push_back({name, bar, drawn, kMiddle, faces, PlatePlace::StatusBar});
        };
        add("status bar's element at rest", draw(FALSE, FALSE, FALSE, FALSE), {});
        add("status bar's element, hot", draw(TRUE, FALSE, FALSE, FALSE), {FaceSlot::ButtonHot});
        add("status bar's element, pressed", draw(TRUE, TRUE, FALSE, FALSE), {FaceSlot::ButtonPressed});
        add("status bar's element, checked", draw(FALSE, FALSE, TRUE, FALSE), {FaceSlot::ButtonChecked});
        add("status bar's element, checked and hot", draw(TRUE, FALSE, TRUE, FALSE), {FaceSlot::ButtonCheckedHot});
        add("status bar's element, disabled", draw(FALSE, FALSE, FALSE, TRUE), {});
    }

    /// Inside of its edges a picture has one colour; its lower edge is as high as it is drawn.
    Argb Seen(const Row& row) const {
        Argb seen = row.ground;
        for (const FaceSlot slot : row.faces) {
            const visual::Face& face = Table()[slot];
            if (!row.isPicture) {
                seen = visual::Over(face.top1, seen);
                continue;
            }
            const visual::Plate* const plate = Table().plates->FindPlate(face.plate, row.place, kPlace.Height(), 1.0);
            if (plate == nullptr) {
                ADD_FAILURE() << "no pictures beside the program";
                return 0;
            }
            // Multiplied by alpha, as the picture is.
            const int fromBelow = kPlace.bottom - row.at.y;
            const int y = fromBelow <= plate->bottom ? plate->height - fromBelow : plate->height / 2;
            const std::uint32_t pixel = plate->pixels[y * plate->width + plate->width / 2];
            const unsigned rest = 255 - visual::AlphaOf(pixel);
            const auto channel = [rest](unsigned own, unsigned below) { return own + (below * rest + 127) / 255; };
            seen = visual::MakeArgb(255, channel(visual::RedOf(pixel), visual::RedOf(seen)),
                                    channel(visual::GreenOf(pixel), visual::GreenOf(seen)),
                                    channel(visual::BlueOf(pixel), visual::BlueOf(seen)));
        }
        return seen;
    }

    void ExpectPlaces() {
        std::vector<Row> rows;
        AddTabs(rows);
        AddDropButtons(rows);
        AddMenuRows(rows);
        AddStatusElements(rows);
        for (const Row& row : rows) {
            Canvas canvas(CSize(76, 36), row.ground & 0xFFFFFF);
            row.draw(*CMFCVisualManager::GetInstance(), canvas.Dc());
            const Argb got = canvas.At(row.at.x, row.at.y), want = Seen(row);
            const auto isNear = [](unsigned one, unsigned other) {
                return std::abs(static_cast<int>(one) - static_cast<int>(other)) <= 1; // rounding, with each layer
            };
            EXPECT_TRUE(isNear(visual::RedOf(got), visual::RedOf(want)) &&
                        isNear(visual::GreenOf(got), visual::GreenOf(want)) &&
                        isNear(visual::BlueOf(got), visual::BlueOf(want)))
                << row.name << std::hex << ": " << got << " and not " << want;
        }
    }

    CMFCRibbonButton* m_element = new CMFCRibbonButton(1, L"Hamburg"); ///< The status bar's.
    CMFCRibbonStatusBar m_status;
};

using BlackSkinPlaces = SkinPlaces<OpenBlackSkin>;
using SilverSkinPlaces = SkinPlaces<OpenSilverSkin>;

TEST_F(BlackSkinPlaces, EachStateShowsWhatTheSkinHasForIt) { ExpectPlaces(); }
TEST_F(SilverSkinPlaces, EachStateShowsWhatTheSkinHasForIt) { ExpectPlaces(); }

} // namespace
