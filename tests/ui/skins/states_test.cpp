// Elements of every kind in every state, in both skins with the pictures beside the program: what is behind them at a
// named place, what colours they show, and that their texts and signs stand still.
#include "tests/ui/skins/skin_fixture.h"

#include <afxribbonbutton.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribboncheckbox.h>
#include <afxRibbonEdit.h>
#include <afxribbonslider.h>
#include <afxtoolbarbutton.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using visual::Argb;
using visual::ColorSlot;
using visual::FaceSlot;
using visual::PlatePlace;
using visual::Skin;

using Element = std::unique_ptr<CMFCRibbonBaseElement>;

const CSize kCanvas(240, 110);
const CPoint kAt(10, 10);
/// The named place of a button: below the line at the edge of its plate and above everything that it shows, half way
/// across.
constexpr int kBelowTheEdge = 2;

enum class State { Rest, Hot, Pressed, Checked, CheckedHot, Disabled };
constexpr std::array kStates = {State::Rest,    State::Hot,        State::Pressed,
                                State::Checked, State::CheckedHot, State::Disabled};
constexpr std::array kStateNames = {"at rest", "hot", "pressed", "checked", "checked and hot", "disabled"};

const char* NameOf(State state) { return kStateNames[static_cast<std::size_t>(state)]; }

std::optional<FaceSlot> PlateOf(State state) {
    switch (state) {
    case State::Hot:
        return FaceSlot::ButtonHot;
    case State::Pressed:
        return FaceSlot::ButtonPressed;
    case State::Checked:
        return FaceSlot::ButtonChecked;
    case State::CheckedHot:
        return FaceSlot::ButtonCheckedHot;
    case State::Rest:
    case State::Disabled:
        break;
    }
    return std::nullopt;
}

/// An icon of one colour all over.
class PlainIcon {
public:
    PlainIcon(int side, Argb color) {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(side) * static_cast<std::size_t>(side), color);
        const std::vector<BYTE> holes(static_cast<std::size_t>((side + 15) / 16 * 2 * side), 0);
        ICONINFO parts{};
        parts.fIcon = TRUE;
        parts.hbmColor = ::CreateBitmap(side, side, 1, 32, pixels.data());
        parts.hbmMask = ::CreateBitmap(side, side, 1, 1, holes.data());
        m_icon = ::CreateIconIndirect(&parts);
        ::DeleteObject(parts.hbmColor);
        ::DeleteObject(parts.hbmMask);
    }
    ~PlainIcon() { ::DestroyIcon(m_icon); }
    PlainIcon(const PlainIcon&) = delete;
    PlainIcon& operator=(const PlainIcon&) = delete;
    HICON Get() const { return m_icon; }

private:
    HICON m_icon = nullptr;
};

struct ButtonKind {
    const char* name;
    PlatePlace place;
    std::function<Element(const PlainIcon& icon)> make;
};

Element MakeButton(const PlainIcon& icon, bool isSmall, bool isCompact) {
    auto button = std::make_unique<CMFCRibbonButton>(1, L"Hamburg", icon.Get());
    if (isSmall) {
        button->SetIntermediateMode();
    }
    if (isCompact) {
        button->SetCompactMode();
    }
    return button;
}

const std::array<ButtonKind, 4> kButtons = {{
    {"large button", PlatePlace::Alone, [](const PlainIcon& icon) { return MakeButton(icon, false, false); }},
    {"small button", PlatePlace::Alone, [](const PlainIcon& icon) { return MakeButton(icon, true, false); }},
    {"button without its text", PlatePlace::Alone, [](const PlainIcon& icon) { return MakeButton(icon, true, true); }},
    {"button of a group", PlatePlace::Joined,
     [](const PlainIcon& icon) {
         auto group = std::make_unique<CMFCRibbonButtonsGroup>();
         for (UINT id = 1; id <= 3; ++id) {
             group->AddButton(new CMFCRibbonButton(id, L"", icon.Get()));
         }
         return Element(std::move(group));
     }},
}};

/// The button that has the state: of a group the one in its middle.
CMFCRibbonBaseElement& ButtonIn(CMFCRibbonBaseElement& element) {
    auto* const group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, &element);
    return group != nullptr ? *group->GetButton(1) : element;
}

void Enter(CMFCRibbonBaseElement& element, State state) {
    const bool isHot = state == State::Hot || state == State::Pressed || state == State::CheckedHot;
    element.SetHighlighted(isHot ? TRUE : FALSE);
    element.SetPressed(state == State::Pressed ? TRUE : FALSE);
    element.SetChecked(state == State::Checked || state == State::CheckedHot ? TRUE : FALSE);
    element.SetDisabled(state == State::Disabled ? TRUE : FALSE);
    if (isHot) {
        element.OnMouseMove(element.GetRect().TopLeft() + CSize(4, 8));
    }
}

int Distance(Argb one, Argb other) {
    const auto part = [](unsigned a, unsigned b) { return std::abs(static_cast<int>(a) - static_cast<int>(b)); };
    return part(visual::RedOf(one), visual::RedOf(other)) + part(visual::GreenOf(one), visual::GreenOf(other)) +
           part(visual::BlueOf(one), visual::BlueOf(other));
}

template <class SkinClass>
class SkinStates : public SkinTest {
protected:
    SkinStates() : m_manager(Use<SkinClass>()), m_skin(m_manager.GetSkin()) {}

    Argb Ground() const { return m_skin[FaceSlot::RibbonCategory].top1; }

    /// On the ground of a category, in the state.
    std::unique_ptr<Canvas> Draw(CMFCRibbonBaseElement& element, State state) const {
        auto canvas = std::make_unique<Canvas>(kCanvas, Ground() & 0xFFFFFF);
        CDC& dc = *canvas->Dc();
        CFont* const font = dc.SelectObject(&afxGlobalData.fontRegular);
        dc.SetTextColor(RGB(visual::RedOf(m_skin[ColorSlot::RibbonText]),
                            visual::GreenOf(m_skin[ColorSlot::RibbonText]),
                            visual::BlueOf(m_skin[ColorSlot::RibbonText])));
        dc.SetBkMode(TRANSPARENT);
        element.OnCalcTextSize(&dc);
        element.SetRect(CRect(kAt, element.GetSize(&dc)));
        element.OnAfterChangeRect(&dc);
        Enter(ButtonIn(element), state);
        if (state == State::Disabled) {
            element.SetDisabled(TRUE);
        }
        element.OnDraw(&dc);
        dc.SelectObject(font);
        return canvas;
    }

    /// What a button of that height has behind it.
    Argb PlateColor(State state, PlatePlace place, int height) const {
        const std::optional<FaceSlot> slot = PlateOf(state);
        if (!slot) {
            return Ground();
        }
        const visual::Plate* const plate = m_skin.plates->FindPlate(m_skin[*slot].plate, place, height, 1.0);
        if (plate == nullptr) {
            ADD_FAILURE() << "no pictures beside the program";
            return 0;
        }
        // Multiplied by alpha, as the picture is.
        const std::uint32_t pixel = plate->pixels[plate->height / 2 * plate->width + plate->width / 2];
        const unsigned rest = 255 - visual::AlphaOf(pixel);
        const auto channel = [rest](unsigned own, unsigned below) { return own + (below * rest + 127) / 255; };
        return visual::MakeArgb(255, channel(visual::RedOf(pixel), visual::RedOf(Ground())),
                                channel(visual::GreenOf(pixel), visual::GreenOf(Ground())),
                                channel(visual::BlueOf(pixel), visual::BlueOf(Ground())));
    }

    /// Where text and icon are, inside of the plate's edge.
    CRect SignsIn(const Canvas& canvas, const CRect& button, Argb plate, Argb sign) const {
        CRect inside = button;
        inside.DeflateRect(2, 2);
        CRect signs(0, 0, 0, 0);
        for (int y = inside.top; y < inside.bottom; ++y) {
            for (int x = inside.left; x < inside.right; ++x) {
                if (2 * Distance(canvas.At(x, y), plate) > Distance(sign, plate)) {
                    signs.UnionRect(signs, CRect(x, y, x + 1, y + 1));
                }
            }
        }
        return signs;
    }

    void ExpectPlates() {
        const PlainIcon icon(32, m_skin[ColorSlot::RibbonText]);
        for (const ButtonKind& kind : kButtons) {
            for (const State state : kStates) {
                const Element element = kind.make(icon);
                const auto canvas = Draw(*element, state);
                const CRect button = ButtonIn(*element).GetRect();
                const Argb got = canvas->At(button.CenterPoint().x, button.top + kBelowTheEdge);
                const Argb want = PlateColor(state, kind.place, button.Height());
                constexpr int rounding = 3; // one in each channel
                EXPECT_LE(Distance(got, want), rounding)
                    << kind.name << ", " << NameOf(state) << std::hex << ": " << got << " and not " << want;
            }
        }
    }

    void ExpectStill() {
        const Argb text = m_skin[ColorSlot::RibbonText], pale = m_skin[ColorSlot::RibbonTextDisabled];
        const PlainIcon icon(32, text);
        for (const ButtonKind& kind : kButtons) {
            CRect atRest(0, 0, 0, 0);
            for (const State state : kStates) {
                const Element element = kind.make(icon);
                const auto canvas = Draw(*element, state);
                const CRect button = ButtonIn(*element).GetRect();
                const CRect signs = SignsIn(*canvas, button, PlateColor(state, kind.place, button.Height()),
                                            state == State::Disabled ? pale : text);
                atRest = state == State::Rest ? signs : atRest;
                EXPECT_EQ(signs, atRest) << kind.name << ", " << NameOf(state);
                EXPECT_FALSE(signs.IsRectEmpty()) << kind.name << ", " << NameOf(state);
            }
        }
    }

    /// The element shows all these colours.
    void ExpectSeen(CMFCRibbonBaseElement& element, State state, const char* name,
                    std::initializer_list<Argb> colors) const {
        const std::set<std::uint32_t> seen = Draw(element, state)->Colours(element.GetRect());
        for (const Argb color : colors) {
            EXPECT_EQ(seen.count(visual::Over(color, Ground()) & 0xFFFFFF), 1U)
                << name << ", " << NameOf(state) << ": " << std::hex << color;
        }
    }

    void ExpectFields() {
        const auto face = [this](FaceSlot slot) { return m_skin[slot]; };
        CMFCRibbonCheckBox box(1, L"Hamburg");
        ExpectSeen(box, State::Rest, "box", {face(FaceSlot::CheckBox).outer, face(FaceSlot::CheckBox).top1});
        ExpectSeen(box, State::Hot, "box", {face(FaceSlot::CheckBoxHot).outer, face(FaceSlot::CheckBoxHot).top1});
        ExpectSeen(box, State::Pressed, "box", {face(FaceSlot::CheckBoxPressed).top1});
        ExpectSeen(box, State::Checked, "box", {m_skin[ColorSlot::CheckMark]});
        ExpectSeen(box, State::Disabled, "box",
                   {face(FaceSlot::CheckBoxDisabled).outer, face(FaceSlot::CheckBoxDisabled).top1});
        CMFCRibbonEdit edit(2, 70, L"Hamburg");
        edit.SetEditText(L"Hm");
        ExpectSeen(edit, State::Rest, "field", {face(FaceSlot::Edit).outer, face(FaceSlot::Edit).top1});
        ExpectSeen(edit, State::Hot, "field", {face(FaceSlot::EditHot).outer, face(FaceSlot::EditHot).top1});
        ExpectSeen(edit, State::Disabled, "field", {face(FaceSlot::EditDisabled).top1});
        CMFCRibbonSlider slider(3, 100);
        slider.SetPos(40);
        ExpectSeen(slider, State::Rest, "slider",
                   {face(FaceSlot::Knob).top1, m_skin[ColorSlot::SliderTrackDark], m_skin[ColorSlot::Accent]});
    }

    SkinClass& m_manager;
    const Skin& m_skin;
};

using BlackSkinStates = SkinStates<OpenBlackSkin>;
using SilverSkinStates = SkinStates<OpenSilverSkin>;

TEST_F(BlackSkinStates, ButtonsHaveThePlateOfTheirStateBehindThem) { ExpectPlates(); }
TEST_F(SilverSkinStates, ButtonsHaveThePlateOfTheirStateBehindThem) { ExpectPlates(); }

TEST_F(BlackSkinStates, TextsAndSignsStandStill) { ExpectStill(); }
TEST_F(SilverSkinStates, TextsAndSignsStandStill) { ExpectStill(); }

TEST_F(BlackSkinStates, BoxesFieldsAndSlidersShowTheColoursOfTheirState) { ExpectFields(); }
TEST_F(SilverSkinStates, BoxesFieldsAndSlidersShowTheColoursOfTheirState) { ExpectFields(); }

// ---- toolbars

template <class SkinClass>
void ExpectToolBarPlates(SkinClass& manager) {
    const Skin& skin = manager.GetSkin();
    const CRect place(4, 4, 60, 28);
    const auto shown = [&](CMFCVisualManager::AFX_BUTTON_STATE state, UINT style) {
        CMFCToolBarButton button(1, -1);
        button.m_nStyle |= style;
        Canvas canvas(CSize(64, 32), skin[FaceSlot::ToolBar].top1 & 0xFFFFFF);
        manager.OnFillButtonInterior(canvas.Dc(), &button, place, state);
        return canvas.At(place.CenterPoint().x, place.top + kBelowTheEdge);
    };
    const std::uint32_t bar = skin[FaceSlot::ToolBar].top1 & 0xFFFFFF;
    const std::uint32_t rest = shown(CMFCVisualManager::ButtonsIsRegular, 0);
    const std::uint32_t hot = shown(CMFCVisualManager::ButtonsIsHighlighted, 0);
    const std::uint32_t pressed = shown(CMFCVisualManager::ButtonsIsPressed, TBBS_PRESSED);
    const std::uint32_t checked = shown(CMFCVisualManager::ButtonsIsRegular, TBBS_CHECKED);
    EXPECT_EQ(rest, bar);
    const std::set<std::uint32_t> told{rest, hot, pressed, checked};
    EXPECT_EQ(told.size(), 4U) << std::hex << rest << ' ' << hot << ' ' << pressed << ' ' << checked;
    // No plate is taken for another: the checked one has the accent in it, the others the text's colour alone.
    const auto colour = [](std::uint32_t pixel) {
        return static_cast<int>(visual::BlueOf(pixel)) - static_cast<int>(visual::RedOf(pixel));
    };
    EXPECT_GT(colour(checked), colour(hot) + 20);
    EXPECT_GT(colour(checked), colour(pressed) + 20);
}

TEST_F(BlackSkinStates, ButtonsOfToolbarsAreToldApartByTheirPlate) { ExpectToolBarPlates(m_manager); }
TEST_F(SilverSkinStates, ButtonsOfToolbarsAreToldApartByTheirPlate) { ExpectToolBarPlates(m_manager); }

} // namespace
