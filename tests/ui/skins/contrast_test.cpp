// What is read and seen in both skins, in every state, with the pictures that lie beside the program and with the flat
// colours that stand in for them: texts 4.5:1; signs, borders that mean something and what is disabled 3:1.
#include "tests/ui/skins/skin_fixture.h"

#include "check_drop_down.h"
#include "ribbon_bar_ex.h"
#include "scroll_bar_base.h"

#include <afxtoolbarmenubutton.h>
#include <afxtooltipctrl.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace {

using visual::Argb;
using visual::ColorSlot;
using visual::Face;
using visual::FaceSlot;
using visual::Over;
using visual::PlatePlace;
using visual::Skin;

constexpr double kText = 4.5, kSign = 3.0;
constexpr int kTall = 66, kNarrow = 24; // of buttons, pixels at 100 %

Argb Opaque(COLORREF color) { return 0xFF000000 | Pixel(color); }

/// One thing that is seen on another.
struct Pair {
    std::string name;
    Argb front, ground;
    double least;
};

Argb Unmultiplied(std::uint32_t pixel) {
    const unsigned alpha = visual::AlphaOf(pixel);
    if (alpha == 0) {
        return 0;
    }
    const auto channel = [alpha](unsigned value) { return std::min(value * 255 / alpha, 255u); };
    return visual::MakeArgb(alpha, channel(visual::RedOf(pixel)), channel(visual::GreenOf(pixel)),
                            channel(visual::BlueOf(pixel)));
}

/// Collects the pairs of one skin.
class Collector {
public:
    Collector(CMFCVisualManagerOffice20072& manager, const Skin& skin) : m_manager(manager), m_skin(skin) {
        Ribbon();
        TabsAndTitle();
        Popups();
        Fields();
        Bars();
    }
    const std::vector<Pair>& Pairs() const { return m_pairs; }

private:
    enum class Part { Middle, Edge };

    /// What a face shows over a ground: its picture or its colours.
    Argb Shown(FaceSlot slot, Argb ground, PlatePlace place, int height, Part part = Part::Middle) const {
        const Face& face = m_skin[slot];
        const visual::Plate* const plate =
            m_skin.plates != nullptr ? m_skin.plates->FindPlate(face.plate, place, height, 1.0) : nullptr;
        if (plate == nullptr) {
            return Over(part == Part::Edge && visual::AlphaOf(face.outer) != 0 ? face.outer : face.top1, ground);
        }
        const Argb below = plate->isOverFace ? Over(face.top1, ground) : ground;
        // A plate may keep a little off the edge of what it lies on.
        int row = part == Part::Middle ? plate->height / 2 : 0;
        while (visual::AlphaOf(plate->pixels[row * plate->width + plate->width / 2]) == 0 && row < plate->height / 2) {
            ++row;
        }
        return Over(Unmultiplied(plate->pixels[row * plate->width + plate->width / 2]), below);
    }
    void Add(const std::string& name, Argb front, Argb ground, double least) {
        m_pairs.push_back({name, front, ground, least});
    }
    void Text(const std::string& name, ColorSlot slot, Argb ground) { Add(name, m_skin[slot], ground, kText); }
    void Sign(const std::string& name, ColorSlot slot, Argb ground) { Add(name, m_skin[slot], ground, kSign); }

    void Ribbon() {
        const Argb ground = m_skin[FaceSlot::RibbonCategory].top1, popup = m_skin[ColorSlot::PopupFill];
        const std::pair<const char*, FaceSlot> states[] = {{"hot", FaceSlot::ButtonHot},
                                                           {"pressed", FaceSlot::ButtonPressed},
                                                           {"checked", FaceSlot::ButtonChecked},
                                                           {"checked and hot", FaceSlot::ButtonCheckedHot}};
        for (const auto& [on, below] : {std::pair{"the ribbon", ground}, {"a pop-up", popup}}) {
            Text(std::string("button's text on ") + on, ColorSlot::RibbonText, below);
            Text(std::string("label's text on ") + on, ColorSlot::PanelElementText, below);
            Text(std::string("panel's caption on ") + on, ColorSlot::PanelCaptionText, below);
            Text(std::string("link on ") + on, ColorSlot::Hyperlink, below);
            Sign(std::string("arrow on ") + on, ColorSlot::Glyph, below);
            Sign(std::string("picture of a collapsed panel on ") + on, ColorSlot::Glyph,
                 Over(m_skin[FaceSlot::CategoryScroll].top1, below));
            Sign(std::string("disabled text on ") + on, ColorSlot::RibbonTextDisabled, below);
            Sign(std::string("disabled sign on ") + on, ColorSlot::GlyphDisabled, below);
            Sign(std::string("slider's track on ") + on, ColorSlot::SliderTrackDark, below);
            for (const FaceSlot knob : {FaceSlot::Knob, FaceSlot::KnobHot, FaceSlot::KnobPressed}) {
                Add(std::string("slider's thumb on ") + on, m_skin[knob].top1, below, kSign);
            }
            for (const auto& [state, slot] : states) {
                for (const auto& [size, height, place] : {std::tuple{"large", kTall, PlatePlace::Alone},
                                                          {"small", kNarrow, PlatePlace::Alone},
                                                          {"joined", kNarrow, PlatePlace::Joined}}) {
                    const std::string name = std::string(size) + " button, " + state + ", on " + on;
                    Text("text of a " + name, ColorSlot::RibbonTextHot, Shown(slot, below, place, height));
                    if (slot == FaceSlot::ButtonChecked || slot == FaceSlot::ButtonCheckedHot) {
                        Add("edge of a " + name, Shown(slot, below, place, height, Part::Edge), below, kSign);
                    }
                }
            }
        }
    }

    void TabsAndTitle() {
        const Argb row = m_skin[ColorSlot::RibbonTop];
        const auto tab = [&](FaceSlot slot) { return Shown(slot, row, PlatePlace::Alone, kNarrow); };
        Text("tab", ColorSlot::TabText, row);
        Text("hot tab", ColorSlot::TabTextHot, tab(FaceSlot::TabHot));
        Text("active tab", ColorSlot::TabTextActive, tab(FaceSlot::TabActive));
        Text("active and hot tab", ColorSlot::TabTextActive, tab(FaceSlot::TabActiveHot));
        const Argb title = Shown(FaceSlot::CaptionActive, row, PlatePlace::Alone, kNarrow);
        Text("title", ColorSlot::CaptionText, title);
        Text("title of an inactive window", ColorSlot::CaptionTextInactive,
             Shown(FaceSlot::CaptionInactive, row, PlatePlace::Alone, kNarrow));
        Text("quick access", ColorSlot::QatText, title);
        Sign("disabled quick access", ColorSlot::QatTextDisabled, title);
        Sign("caption button", ColorSlot::CaptionGlyph, title);
        Sign("hot caption button", ColorSlot::CaptionGlyph, Over(m_skin[FaceSlot::CaptionButtonHot].top1, title));
        Sign("pressed caption button", ColorSlot::CaptionGlyph,
             Over(m_skin[FaceSlot::CaptionButtonPressed].top1, title));
    }

    void Popups() {
        const Argb popup = m_skin[ColorSlot::MenuFill], column = m_skin[ColorSlot::MenuGutter];
        const Argb hot = Shown(FaceSlot::MenuItemHot, popup, PlatePlace::Alone, kNarrow);
        CMFCToolBarMenuButton item;
        Add("menu's text", Opaque(m_manager.GetMenuItemTextColor(&item, FALSE, FALSE)), popup, kText);
        Add("menu's text under the pointer", Opaque(m_manager.GetMenuItemTextColor(&item, TRUE, FALSE)), hot, kText);
        Add("menu's disabled text", Opaque(m_manager.GetMenuItemTextColor(&item, FALSE, TRUE)), popup, kSign);
        Text("ribbon menu's text", ColorSlot::MenuText, popup);
        Text("ribbon menu's text under the pointer", ColorSlot::MenuTextHot, hot);
        Sign("ribbon menu's disabled text", ColorSlot::MenuTextDisabled, popup);
        Text("heading in a menu", ColorSlot::MenuLabelText, m_skin[ColorSlot::MenuLabelFill]);
        for (const FaceSlot plate : {FaceSlot::MenuCheck, FaceSlot::MenuCheckHot}) {
            Sign("check mark in a menu", ColorSlot::CheckMark, Shown(plate, column, PlatePlace::Alone, kNarrow));
        }
        Text("key tip", ColorSlot::KeyTipText, m_skin[FaceSlot::KeyTip].top1);
        Add("key tip's outline", m_skin[FaceSlot::KeyTip].outer, m_skin[FaceSlot::KeyTip].top1, kSign);
        Text("tooltip of a host without the bar", ColorSlot::TooltipText, m_skin[FaceSlot::Tooltip].top1);
        Add("outline of a tooltip of a host without the bar", m_skin[FaceSlot::Tooltip].outer,
            m_skin[FaceSlot::Tooltip].top1, kSign);
    }

    void Fields() {
        const Argb ground = m_skin[FaceSlot::RibbonCategory].top1, field = m_skin[FaceSlot::Edit].top1;
        Text("text field", ColorSlot::EditText, field);
        Text("selected text", ColorSlot::EditSelectionText, m_skin[ColorSlot::EditSelection]);
        Sign("disabled text field", ColorSlot::EditTextDisabled, m_skin[FaceSlot::EditDisabled].top1);
        Add("text field's outline", m_skin[FaceSlot::Edit].outer, ground, kSign);
        Add("hot text field's outline", m_skin[FaceSlot::EditHot].outer, ground, kSign);
        Sign("drop-down arrow", ColorSlot::DropArrow, m_skin[FaceSlot::DropButton].top1);
        Sign("hot drop-down arrow", ColorSlot::DropArrowHot, m_skin[FaceSlot::DropButtonHot].top1);
        Sign("pressed drop-down arrow", ColorSlot::DropArrowHot, m_skin[FaceSlot::DropButtonPressed].top1);
        Sign("disabled drop-down arrow", ColorSlot::DropArrowDisabled, m_skin[FaceSlot::DropButton].top1);
        for (const auto& [name, slot] : {std::pair{"box", FaceSlot::CheckBox},
                                         {"hot box", FaceSlot::CheckBoxHot},
                                         {"pressed box", FaceSlot::CheckBoxPressed}}) {
            Sign(std::string("mark in a ") + name, ColorSlot::CheckMark, m_skin[slot].top1);
            for (const Argb below : {ground, m_skin[ColorSlot::MenuFill]}) {
                Add(std::string("outline of a ") + name, m_skin[slot].outer, below, kSign);
            }
        }
        Sign("mark in a disabled box", ColorSlot::GlyphDisabled, m_skin[FaceSlot::CheckBoxDisabled].top1);
    }

    void Bars() {
        const Argb bar = m_skin[FaceSlot::ToolBar].top1;
        Text("toolbar's text", ColorSlot::ToolbarText, bar);
        Sign("toolbar's disabled text", ColorSlot::ToolbarTextDisabled, bar);
        Sign("grip", ColorSlot::GripperDark, bar);
        for (const FaceSlot slot : {FaceSlot::ButtonHot, FaceSlot::ButtonPressed, FaceSlot::ButtonChecked}) {
            Text("text of a lit toolbar button", ColorSlot::ToolbarTextHot,
                 Shown(slot, bar, PlatePlace::Alone, kNarrow));
        }
        const Argb status = Shown(FaceSlot::StatusBar, bar, PlatePlace::Alone, kNarrow);
        Text("status bar", ColorSlot::StatusText, status);
        Sign("status bar's disabled text", ColorSlot::StatusTextDisabled, status);
        for (const FaceSlot slot :
             {FaceSlot::ButtonHot, FaceSlot::ButtonPressed, FaceSlot::ButtonChecked, FaceSlot::ButtonCheckedHot}) {
            Text("lit element of the status bar", ColorSlot::StatusText,
                 Shown(slot, status, PlatePlace::StatusBar, kNarrow));
        }
        Sign("size grip", ColorSlot::GripperDark, status);
        Sign("slider's track on the status bar", ColorSlot::SliderTrackDark, status);
        for (const FaceSlot knob : {FaceSlot::Knob, FaceSlot::KnobHot, FaceSlot::KnobPressed}) {
            Add("slider's thumb on the status bar", m_skin[knob].top1, status, kSign);
        }
        Add("progress on the status bar", m_skin[FaceSlot::ProgressChunk].top1, status, kSign);
        Text("pane's caption", ColorSlot::PaneCaptionText, m_skin[FaceSlot::PaneCaption].top1);
        Text("active pane's caption", ColorSlot::PaneCaptionTextActive, m_skin[FaceSlot::PaneCaptionActive].top1);
        const Argb caption = m_skin[FaceSlot::PaneCaption].top1;
        Sign("pane's button", ColorSlot::PaneGlyph, caption);
        Sign("pane's hot button", ColorSlot::PaneGlyphHot,
             Shown(FaceSlot::ButtonHot, caption, PlatePlace::Alone, kNarrow));
        Sign("pane's pressed button", ColorSlot::PaneGlyphPressed,
             Shown(FaceSlot::ButtonPressed, caption, PlatePlace::Alone, kNarrow));
        Text("document tab", ColorSlot::DocumentTabText, m_skin[FaceSlot::DocumentTab].top1);
        Text("active document tab", ColorSlot::DocumentTabTextActive, m_skin[FaceSlot::DocumentTabActive].top1);
    }

    CMFCVisualManagerOffice20072& m_manager;
    const Skin& m_skin;
    std::vector<Pair> m_pairs;
};

/// What fixed colours keep below the bar, by the name of the pair, with the reason. A pair that reaches it after all
/// must not stand here.
typedef std::map<std::string, std::string> Exceptions;

void ExpectContrast(const std::vector<Pair>& pairs, const Exceptions& exceptions) {
    std::map<std::string, int> met;
    for (const Pair& pair : pairs) {
        const double contrast = visual::Contrast(Over(pair.front, pair.ground), pair.ground);
        const auto exception = exceptions.find(pair.name);
        if (exception != exceptions.end()) {
            met[pair.name] += contrast < pair.least ? 1 : 0;
            continue;
        }
        EXPECT_GE(contrast, pair.least) << pair.name << ": " << std::hex << pair.front << " on " << pair.ground;
    }
    for (const auto& [name, reason] : exceptions) {
        EXPECT_GT(met[name], 0) << name << " is an exception (" << reason << ") and needs none";
    }
}

void ExpectContrast(CMFCVisualManagerOffice20072& manager, const Skin& skin) {
    ExpectContrast(Collector(manager, skin).Pairs(), {});
}

class SkinContrast : public SkinTest {};

TEST_F(SkinContrast, EverythingInTheBlackSkinCanBeReadAndSeen) {
    auto& skin = Use<OpenBlackSkin>();
    ASSERT_NE(skin.GetSkin().plates->FindPlate(skin.GetSkin()[FaceSlot::ButtonHot].plate, PlatePlace::Alone, 24, 1.0),
              nullptr)
        << "no pictures beside the program";
    ExpectContrast(skin, skin.GetSkin());
}

TEST_F(SkinContrast, EverythingInTheSilverSkinCanBeReadAndSeen) {
    auto& skin = Use<OpenSilverSkin>();
    ExpectContrast(skin, skin.GetSkin());
}

TEST_F(SkinContrast, TheFlatColoursOfTheBlackSkinDoAsWell) {
    auto& skin = Use<OpenBlackSkin>();
    skin.SetImageMode(FALSE);
    ExpectContrast(skin, skin.GetSkin());
}

TEST_F(SkinContrast, TheFlatColoursOfTheSilverSkinDoAsWell) {
    auto& skin = Use<OpenSilverSkin>();
    skin.SetImageMode(FALSE);
    ExpectContrast(skin, skin.GetSkin());
}

// A row of a combo's list: black by rule, on the colour of text fields.
TEST_F(SkinContrast, RowsOfTheBlackSkinsDropListsCanBeReadWhetherLitOrNot) {
    auto& skin = Use<OpenBlackSkin>();
    CWnd frame;
    ASSERT_TRUE(frame.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    CMFCCheckDropDown list(nullptr);
    CMFCPopupMenuBar* const rows = list.GetMenuBar();
    ASSERT_TRUE(rows->Create(&frame));
    CMFCToolBarMenuButton row;
    row.OnChangeParentWnd(rows);
    Canvas canvas(CSize(40, 40));
    skin.OnFillBarBackground(canvas.Dc(), rows, CRect(0, 0, 40, 40), CRect(0, 0, 40, 40));
    COLORREF text = 0;
    for (const BOOL isHot : {FALSE, TRUE}) {
        if (isHot) {
            skin.OnHighlightMenuItem(canvas.Dc(), &row, CRect(0, 0, 40, 40), text);
        }
        EXPECT_GE(
            visual::Contrast(Opaque(skin.GetMenuItemTextColor(&row, isHot, FALSE)), 0xFF000000 | canvas.At(20, 20)),
            kText);
    }
    rows->DestroyWindow();
    frame.DestroyWindow();
}

// ---- colours that are fixed, whatever the skin's table says

/// What is seen in tooltips: on their fill and on the end of their gradient.
std::vector<Pair> TooltipPairs(const CMFCToolTipInfo& info) {
    std::vector<Pair> pairs;
    const std::pair<const char*, COLORREF> grounds[] = {{"", info.m_clrFill},
                                                        {" at the end of the gradient", info.m_clrFillGradient}};
    for (const auto& [where, ground] : grounds) {
        if (ground == static_cast<COLORREF>(-1)) {
            continue; // filled with one colour
        }
        pairs.push_back({std::string("text") + where, Opaque(info.m_clrText), Opaque(ground), kText});
        pairs.push_back({std::string("host's help text") + where, Opaque(RGB(255, 0, 0)), Opaque(ground), kText});
        pairs.push_back({std::string("border") + where, Opaque(info.m_clrBorder), Opaque(ground), kSign});
    }
    return pairs;
}

/// The manager of the skin as a host brings it into force.
CMFCVisualManagerOffice20072& ChangeSkin(CMFCRibbonBarEx& bar, int style) {
    bar.ChangeSkinColor(style, false);
    return dynamic_cast<CMFCVisualManagerOffice20072&>(*CMFCVisualManager::GetInstance());
}

TEST_F(SkinContrast, TooltipsOfTheBlackSkinHaveTheBarsFixedColoursWhichStayBelow) {
    CMFCRibbonBarEx bar(FALSE);
    const std::string fixed = "the bar sets all four colours of black tooltips";
    const std::string red = "the red of the text, too, is fixed; see docs/skins.md";
    ExpectContrast(TooltipPairs(ChangeSkin(bar, 0).GetToolTipInfo()),
                   {{"text", fixed},                                      // 3.7
                    {"text at the end of the gradient", fixed},           // 3.9
                    {"host's help text", red},                            // 1.05
                    {"host's help text at the end of the gradient", red}, // 1.11
                    {"border", fixed},                                    // 1.5
                    {"border at the end of the gradient", fixed}});       // 1.6
}

TEST_F(SkinContrast, InTooltipsOfTheSilverSkinTheRedOfAHostsHelpTextAloneStaysBelow) {
    CMFCRibbonBarEx bar(FALSE);
    const std::string red = "the red is fixed, and 3.8 on the skin's 250";
    ExpectContrast(TooltipPairs(ChangeSkin(bar, 1).GetToolTipInfo()),
                   {{"host's help text", red}, {"host's help text at the end of the gradient", red}});
}

// The way out that docs/skins.md names. The border stays: by it the bar knows its colours.
TEST_F(SkinContrast, OnAFillOfTheHostsOwnItsHelpTextCanBeReadInTheBlackSkin) {
    CMFCRibbonBarEx bar(FALSE);
    CMFCToolTipInfo& info = ChangeSkin(bar, 0).GetToolTipInfo();
    info.m_clrFill = info.m_clrFillGradient = RGB(16, 16, 16);
    ExpectContrast(TooltipPairs(info), {});
}

TEST_F(SkinContrast, TheFrameOfAScrollBarsArrowsIsSeenInBlackAndFixedBelowThatInSilver) {
    const CScrollBarBase bar;
    const auto frame = [](COLORREF side, COLORREF ground) {
        return std::vector<Pair>{{"frame of an arrow", Opaque(side), Opaque(ground), kSign}};
    };
    ExpectContrast(frame(bar.GetBlackSideColor(), bar.GetBlackBkColor()), {});
    ExpectContrast(frame(bar.GetSilverSideColor(), bar.GetSilverBkColor()),
                   {{"frame of an arrow", "both colours are fixed (1.8); the arrow itself is a picture, and the frame "
                                          "only says that the pointer is over the bar"}});
}

} // namespace
