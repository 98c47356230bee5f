#include "src/skin_palette.h"

#include "src/skin_plates.h"

#include <array>

namespace tovasque {

namespace {

using visual::Argb;
using visual::ColorSlot;
using visual::Contrast;
using visual::Face;
using visual::FaceSlot;
using visual::Mix;
using visual::Over;
using visual::Readable;
using visual::Skin;
using visual::WithAlpha;

constexpr double kTextContrast = 4.5;
constexpr double kSignContrast = 3.0;
constexpr double kPlateContrast = 7.0;                 // of texts on plates: enough that the plate stays calm
constexpr unsigned kHotPlate = 20, kPressedPlate = 41; // how far a picture covers its ground, of 255
constexpr Argb kBlack = 0xFF000000, kWhite = 0xFFFFFFFF;

Face Flat(Argb outer, Argb fill, PlateNumber plate = PlateNumber::None) {
    return {outer, 0, fill, fill, fill, fill, static_cast<std::uint32_t>(plate)};
}

Argb BlackOrWhiteOn(Argb ground) { return Contrast(kBlack, ground) >= Contrast(kWhite, ground) ? kBlack : kWhite; }

/// A sign in this colour where it can be seen on all the grounds, else in the nearest one that can.
Argb Sign(Argb color, std::initializer_list<Argb> grounds) {
    return Readable(color, BlackOrWhiteOn(*grounds.begin()), grounds, kSignContrast);
}

/// Pale, yet seen on all the grounds.
Argb Disabled(Argb text, std::initializer_list<Argb> grounds) {
    return Readable(Mix(*grounds.begin(), text, 2, 5), text, grounds, kSignContrast);
}

/// As much of the colour over the ground as the text on it bears.
Argb PlateFill(Argb color, Argb text, Argb ground) {
    constexpr unsigned least = 24, step = 8;
    unsigned alpha = 255;
    while (alpha > least && Contrast(text, Over(WithAlpha(color, alpha), ground)) < kPlateContrast) {
        alpha -= step;
    }
    return WithAlpha(color, alpha);
}

/// Colours that several parts share.
struct Shared {
    explicit Shared(const Palette& p)
        : text(p.GetRibbonBtnTextColor),
          ground(p.GetTabCheckColor),
          popup(p.GetRightPopUpBgColor),
          bar(p.GetPaneDividerBgColor),
          barText(p.GetPanelBtnTextColor),
          title(p.GetTitleBgColor),
          titleText(Readable(p.GetPanelTextColor, BlackOrWhiteOn(title), {title}, kTextContrast)),
          accent(Sign(p.accent, {ground, popup})) {}
    Argb text, ground, popup, bar, barText, title, titleText, accent;
};

void SetButtons(Skin& skin, const Palette& p, const Shared& s) {
    const Argb hot = PlateFill(p.GetRibbonBtnClrHilighted, s.text, s.ground);
    const Argb pressed = PlateFill(p.GetRibbonBtnClrPressed, s.text, s.ground);
    const Argb checked = PlateFill(p.GetRibbonBtnClrChecked, s.text, s.ground);
    skin[FaceSlot::ButtonHot] = Flat(0, hot, PlateNumber::ButtonHot);
    skin[FaceSlot::ButtonPressed] = Flat(0, pressed, PlateNumber::ButtonPressed);
    skin[FaceSlot::ButtonChecked] = Flat(s.accent, checked, PlateNumber::ButtonChecked);
    skin[FaceSlot::ButtonCheckedHot] = Flat(s.accent, hot, PlateNumber::ButtonCheckedHot);
    skin[FaceSlot::ButtonPale] = Flat(WithAlpha(s.text, 50), WithAlpha(s.text, 10));
    skin[FaceSlot::DefaultPaneHot] = Flat(0, hot, PlateNumber::ButtonHot);
    skin[FaceSlot::DefaultPanePressed] = Flat(0, pressed, PlateNumber::ButtonPressed);
    skin[FaceSlot::Group].outer = WithAlpha(p.GetPanelBtnClrNormal, 110);
    skin[FaceSlot::AppButton] = Flat(p.GetMainBtnOuterBorderClr, p.GetMainButtonColor, PlateNumber::Application);
    skin[FaceSlot::AppButtonHot] =
        Flat(p.GetMainBtnOuterBorderClr, p.GetMainBtnHilightClr, PlateNumber::ApplicationHot);
    skin[FaceSlot::AppButtonPressed] =
        Flat(p.GetMainBtnOuterBorderClr, Mix(p.GetMainBtnHilightClr, s.accent, 1, 3), PlateNumber::ApplicationPressed);
    for (const FaceSlot slot : {FaceSlot::AppButton, FaceSlot::AppButtonHot, FaceSlot::AppButtonPressed}) {
        skin[slot].inner = p.GetMainBtnInnerBorderClr;
    }
    skin[ColorSlot::RibbonText] = skin[ColorSlot::RibbonTextHot] = s.text;
    skin[ColorSlot::RibbonTextDisabled] = Disabled(s.text, {s.ground, s.popup});
    skin[ColorSlot::PanelElementText] = p.GetPanelBtnTextColor;
    skin[ColorSlot::Glyph] = s.text;
    skin[ColorSlot::GlyphDisabled] = Disabled(s.text, {s.ground, s.popup, s.bar});
    skin[ColorSlot::Hyperlink] = Readable(s.accent, s.text, {s.ground, s.popup}, kTextContrast);
    skin[ColorSlot::Accent] = s.accent;
    skin.arrowPlate = static_cast<std::uint32_t>(PlateNumber::Arrow);
    skin.arrowDisabledPlate = static_cast<std::uint32_t>(PlateNumber::ArrowDisabled);
}

void SetRibbon(Skin& skin, const Palette& p, const Shared& s) {
    skin[ColorSlot::RibbonTop] = skin[ColorSlot::RibbonBottom] = p.GetRibbonTabBgColor;
    skin.tabRowPlate = static_cast<std::uint32_t>(PlateNumber::TabRow);
    // Under the pointer a tab is on its way to the active one.
    skin[FaceSlot::TabHot] = Flat(0, Mix(p.GetRibbonTabBgColor, p.GetTabHilightedColor, 3, 4), PlateNumber::TabHot);
    skin[FaceSlot::TabActive] = Flat(0, p.GetTabCheckColor, PlateNumber::TabActive);
    skin[FaceSlot::TabActiveHot] = Flat(0, p.GetTabCheckColor, PlateNumber::TabActiveHot);
    skin[ColorSlot::TabText] = p.GetRibbonTabTextNormalClr;
    skin[ColorSlot::TabTextHot] = skin[ColorSlot::TabTextActive] = p.GetRibbonTabTextHilightClr;
    skin[FaceSlot::RibbonCategory] = Flat(p.GetPanelOuterBorderColor, s.ground, PlateNumber::Category);
    skin[FaceSlot::RibbonPanel].outer = skin[FaceSlot::RibbonPanelHot].outer = p.GetPanelOuterBorderColor;
    skin[FaceSlot::RibbonPanel].inner = skin[FaceSlot::RibbonPanelHot].inner = p.GetPanelInnerBorderColor;
    skin[ColorSlot::PanelCaptionText] = skin[ColorSlot::PanelCaptionTextHot] = p.GetPanelTextColor;
    skin[ColorSlot::SeparatorDark] = Mix(s.ground, s.text, 1, 5);
    // Nothing beside the line; pens, which know no transparency, draw it in the ground of bars.
    skin[ColorSlot::SeparatorLight] = WithAlpha(s.bar, 0);
    skin[FaceSlot::CategoryScroll] = Flat(p.GetPanelOuterBorderColor, s.popup);
    skin[FaceSlot::KeyTip] = Flat(Sign(p.GetRightLeftLineColor, {s.popup}), s.popup);
    skin[ColorSlot::KeyTipText] = s.barText;
    skin[FaceSlot::CaptionActive] = Flat(0, s.title, PlateNumber::CaptionActive);
    skin[FaceSlot::CaptionInactive] = Flat(0, s.title, PlateNumber::CaptionInactive);
    skin[FaceSlot::CaptionButtonHot] = Flat(0, WithAlpha(s.titleText, 26));
    skin[FaceSlot::CaptionButtonPressed] = Flat(0, WithAlpha(s.titleText, 48));
    skin[ColorSlot::CaptionText] = skin[ColorSlot::CaptionGlyph] = skin[ColorSlot::QatText] = s.titleText;
    skin[ColorSlot::CaptionTextInactive] =
        Readable(Mix(s.title, s.titleText, 1, 2), s.titleText, {s.title, Mix(s.title, p.GetRibbonTabBgColor, 1, 8)},
                 kTextContrast);
    skin[ColorSlot::QatTextDisabled] = Disabled(s.titleText, {s.title});
    skin[ColorSlot::FrameBorder] = p.GetRibbonTabBgColor;
}

void SetPopups(Skin& skin, const Palette& p, const Shared& s) {
    skin[ColorSlot::MenuFill] = skin[ColorSlot::PopupFill] = skin[ColorSlot::MenuLabelFill] = s.popup;
    skin[ColorSlot::MenuGutter] = p.GetRightLeftBgColor;
    skin[ColorSlot::MenuGutterLine] = skin[ColorSlot::MenuSeparator] = p.GetRightLeftLineColor;
    skin[ColorSlot::MenuBorder] = Sign(p.GetPanelOuterBorderColor, {s.popup});
    skin[ColorSlot::MenuText] = skin[ColorSlot::MenuTextHot] = skin[ColorSlot::MenuLabelText] = s.barText;
    skin[ColorSlot::MenuTextDisabled] = Disabled(s.barText, {s.popup, p.GetRightLeftBgColor});
    skin[ColorSlot::CheckMark] = s.barText;
    skin[FaceSlot::MenuItemHot] =
        Flat(0, PlateFill(p.GetRibbonBtnClrHilighted, s.barText, s.popup), PlateNumber::MenuRowHot);
    const Argb check = WithAlpha(s.accent, 90);
    skin[FaceSlot::MenuCheck] = Flat(WithAlpha(s.accent, 160), check, PlateNumber::MenuCheck);
    skin[FaceSlot::MenuCheckHot] = Flat(s.accent, check, PlateNumber::MenuCheckHot);
    skin[FaceSlot::MainPanelFrame] = Flat(skin[ColorSlot::MenuBorder], s.popup);
    skin[FaceSlot::Tooltip] = Flat(Sign(p.GetPanelOuterBorderColor, {s.popup}), s.popup);
    skin[ColorSlot::TooltipText] = s.barText;
}

void SetFields(Skin& skin, const Palette& p, const Shared& s) {
    const Argb field = p.GetRibbonEditBgColor;
    const Argb disabledField = Mix(s.ground, field, 1, 4);
    skin[FaceSlot::Edit] = Flat(Sign(p.GetPanelOuterBorderColor, {s.ground}), field);
    skin[FaceSlot::EditHot] = Flat(s.accent, field);
    skin[FaceSlot::EditDisabled] = Flat(WithAlpha(s.text, 70), disabledField);
    skin[ColorSlot::EditText] = BlackOrWhiteOn(field);
    skin[ColorSlot::EditTextDisabled] = Disabled(s.text, {disabledField});
    skin[ColorSlot::EditSelection] = s.accent;
    skin[ColorSlot::EditSelectionText] = BlackOrWhiteOn(s.accent);
    skin[FaceSlot::DropButton] = Flat(0, p.GetDropDownBtnColor, PlateNumber::DropArrow);
    skin[FaceSlot::DropButtonHot] = Flat(0, p.GetDropDownBtnHilightClr, PlateNumber::DropArrowHot);
    skin[FaceSlot::DropButtonPressed] =
        Flat(0, Mix(p.GetDropDownBtnHilightClr, kBlack, 1, 5), PlateNumber::DropArrowHot);
    skin[ColorSlot::DropArrow] = BlackOrWhiteOn(p.GetDropDownBtnColor);
    skin[ColorSlot::DropArrowHot] = BlackOrWhiteOn(p.GetDropDownBtnHilightClr);
    skin[ColorSlot::DropArrowDisabled] = Disabled(BlackOrWhiteOn(p.GetDropDownBtnColor), {p.GetDropDownBtnColor});

    const Argb box = Mix(s.ground, s.popup, 1, 2);
    const Argb line = Sign(Mix(s.ground, s.text, 1, 2), {box, s.ground, s.popup});
    skin[FaceSlot::CheckBox] = Flat(line, box);
    skin[FaceSlot::CheckBoxHot] = Flat(s.accent, box);
    skin[FaceSlot::CheckBoxPressed] = Flat(s.accent, Over(WithAlpha(s.accent, 70), box));
    skin[FaceSlot::CheckBoxDisabled] = Flat(skin[ColorSlot::GlyphDisabled], box);
    skin[FaceSlot::Knob] = Flat(0, s.accent);
    skin[FaceSlot::KnobHot] = Flat(0, Mix(s.accent, s.text, 1, 4));
    skin[FaceSlot::KnobPressed] = Flat(0, Mix(s.accent, s.text, 2, 4));
    skin[ColorSlot::SliderTrackDark] = Sign(Mix(s.ground, s.text, 1, 3), {s.ground, s.bar});
    skin[FaceSlot::ProgressTrack] = Flat(skin[ColorSlot::SliderTrackDark], s.ground);
    skin[FaceSlot::ProgressChunk] = Flat(0, s.accent);
}

void SetBars(Skin& skin, const Palette& p, const Shared& s) {
    skin[FaceSlot::ToolBar] = Flat(0, s.bar);
    skin[ColorSlot::BarBackground] = skin[ColorSlot::DividerFill] = s.bar;
    skin[ColorSlot::ToolbarText] = s.barText;
    skin[ColorSlot::ToolbarTextHot] = s.text;
    skin[ColorSlot::ToolbarTextDisabled] = Disabled(s.barText, {s.bar, s.ground, s.popup});
    skin[ColorSlot::GripperDark] = Sign(Mix(s.bar, s.barText, 2, 5), {s.bar});
    skin[FaceSlot::StatusBar] = Flat(p.GetStatusBarIntervalColor, s.bar, PlateNumber::StatusGround);
    skin[ColorSlot::StatusText] = p.GetStatusBarTextColor;
    skin[ColorSlot::StatusTextDisabled] = Disabled(p.GetStatusBarTextColor, {s.bar});
    skin[ColorSlot::StatusSeparatorDark] = p.GetStatusBarIntervalColor;

    const Argb caption = p.GetPaneCaptionGridColor, activeCaption = Mix(caption, p.GetRibbonTabBgColor, 1, 3);
    const Argb captionText = Readable(p.GetPanelTextColor, BlackOrWhiteOn(caption), {caption}, kTextContrast);
    skin[FaceSlot::PaneCaption] = Flat(p.GetPaneCaptionLeftGridColor, caption);
    skin[FaceSlot::PaneCaptionActive] = Flat(p.GetPaneCaptionLeftGridColor, activeCaption);
    skin[ColorSlot::PaneCaptionText] = captionText;
    skin[ColorSlot::PaneCaptionTextActive] =
        Readable(captionText, BlackOrWhiteOn(activeCaption), {activeCaption}, kTextContrast);
    skin[ColorSlot::PaneGlyph] = Sign(p.GetPanelBtnClrNormal, {caption});
    const Argb hotCaption = Over(skin[FaceSlot::ButtonHot].top1, caption);
    skin[ColorSlot::PaneGlyphHot] = Sign(
        p.GetPanelBtnClrHilighted, {caption, hotCaption, Over(WithAlpha(s.text, kHotPlate), caption), activeCaption});
    skin[ColorSlot::PaneGlyphPressed] =
        Sign(p.GetPanelBtnClrPressed, {caption, Over(WithAlpha(s.text, kPressedPlate), caption),
                                       Over(skin[FaceSlot::ButtonPressed].top1, caption)});
    skin[ColorSlot::PaneBorder] = p.GetPanelOuterBorderColor;
    skin[ColorSlot::MdiBackground] = p.GetEraseTabAreaColor;

    skin[FaceSlot::DocumentTab] = Flat(p.GetEraseTabAreaBorderClr, p.GetEraseTabButtonColor);
    skin[FaceSlot::DocumentTabActive] = Flat(p.GetEraseTabAreaBorderClr, p.GetEraseTabFrameColor);
    skin[ColorSlot::DocumentTabText] = p.GetTabTextNormalColor;
    skin[ColorSlot::DocumentTabTextActive] = p.GetTabTextHilightColor;
    skin[ColorSlot::TabsArea] = p.GetEraseTabAreaColor;
    skin[ColorSlot::TabsAreaLine] = p.GetEraseTabAreaBorderClr;
    skin[ColorSlot::TabsButton] = p.GetEraseTabButtonColor;
    skin[ColorSlot::TabsFrame] = p.GetEraseTabFrameColor;
}

} // namespace

Skin MakeFlatSkin(const Palette& palette) {
    Skin skin;
    skin.radius = 4;
    skin.isFlat = true;
    const Shared shared(palette);
    SetButtons(skin, palette, shared);
    SetRibbon(skin, palette, shared);
    SetPopups(skin, palette, shared);
    SetFields(skin, palette, shared);
    SetBars(skin, palette, shared);
    return skin;
}

} // namespace tovasque
